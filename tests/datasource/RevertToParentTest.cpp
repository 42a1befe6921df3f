// Revert to parent, and the enable that it shares with apply to parent.

#include "tests/datasource/support/WritingTest.h"

namespace
{

using namespace Styles;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class RevertToParent : public WritingTest
{
protected:
    RevertToParent() { TargetAs({&box}, L"color"); }

    void TargetAs(const std::vector<Style*>& targets, const wchar_t* identifier)
    {
        Target(panel, targets);
        panel.SetActiveIdentifier(identifier);
        log.Clear();
    }

    /// What is cleared by the command.
    std::vector<std::string> Revert()
    {
        panel.Invoke(L"OnRevertToParent");
        return log.LinesOf({"panel.ClearProperties"});
    }

    Style& base = styles.WithColor("base", 1);
    Style& box = styles.WithColor("box", 2, &base);
    Style& circle = styles.WithFill("circle", &base);
};

TEST_F(RevertToParent, ClearsTheActiveProperty)
{
    EXPECT_THAT(Revert(), ElementsAre("panel.ClearProperties([color])"));
    EXPECT_EQ(modifier.Last().targets, "[box]");
    EXPECT_EQ(modifier.Last().paths, "[fill.color]");
    EXPECT_EQ(modifier.Last().changeStyle, "style{}");
}

TEST_F(RevertToParent, ClearsEveryActivePathInOrderWithoutWildcards)
{
    TargetAs({&box}, L"type,color,gradient.*");

    EXPECT_THAT(Revert(), ElementsAre("panel.ClearProperties([type, color, gradient])"));
}

TEST_F(RevertToParent, ClearsWhereTheTargetsDisagree)
{
    TargetAs({&box, &circle}, L"color");

    EXPECT_THAT(Revert(), ElementsAre("panel.ClearProperties([color])"));
    EXPECT_EQ(modifier.Last().targets, "[box, circle]");
}

TEST_F(RevertToParent, DoesNothingWhereTheValueIsInherited)
{
    TargetAs({&circle}, L"color");

    EXPECT_THAT(Revert(), IsEmpty());
    EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(RevertToParent, DoesNothingWithoutAParent)
{
    TargetAs({&base}, L"color");

    EXPECT_THAT(Revert(), IsEmpty());
}

TEST_F(RevertToParent, DoesNothingWhereAParentIsMissing)
{
    TargetAs({&box, &base}, L"color");

    EXPECT_THAT(Revert(), IsEmpty());
}

TEST_F(RevertToParent, AsksTheDerivedClassForTheStateOfTheActiveIdentifier)
{
    panel.state = ActivePropertyState::Inherited;

    EXPECT_THAT(Revert(), IsEmpty());
    EXPECT_THAT(log.Lines(), Contains("panel.GetActivePropertyState(color)"));
}

TEST_F(RevertToParent, FollowsTheDerivedClassWhereItSaysOverridden)
{
    TargetAs({&circle}, L"color");
    panel.state = ActivePropertyState::Overridden;

    EXPECT_THAT(Revert(), ElementsAre("panel.ClearProperties([color])"));
}

TEST_F(RevertToParent, DoesNothingWithoutTargetsWhateverTheDerivedClassSays)
{
    TargetAs({}, L"color");
    panel.state = ActivePropertyState::Overridden;
    panel.hasTargets = true;

    EXPECT_THAT(Revert(), IsEmpty());
}

// The whole style

TEST_F(RevertToParent, ClearsAllPropertiesOfTheCategoryForTheWholeStyle)
{
    TargetAs({&box}, L"style");
    panel.categoryProperties = Paths({L"type", L"color"});

    EXPECT_THAT(Revert(), ElementsAre("panel.ClearProperties([type, color])"));
    EXPECT_THAT(log.LinesOf({"panel.GetStyleCategoryProperties"}),
                ElementsAre("panel.GetStyleCategoryProperties(box.fill)"));
}

TEST_F(RevertToParent, TakesThePropertiesThatTheHostKnowsForTheWholeStyle)
{
    TargetAs({&box}, L"style");
    const PropertyPaths known = MakePaths(GetStyleCategoryProperties(FillOf(box)));

    EXPECT_THAT(Revert(), ElementsAre("panel.ClearProperties(" + Describe(known) + ")"));
}

TEST_F(RevertToParent, DoesNothingForTheWholeStyleWithoutThePanelsStyle)
{
    TargetBare(&base, L"style");
    panel.state = ActivePropertyState::Overridden;

    EXPECT_THAT(Revert(), IsEmpty());
}

TEST_F(RevertToParent, DoesNothingForTheWholeStyleOfANullFirst)
{
    TargetAs({nullptr, &box}, L"style");
    panel.state = ActivePropertyState::Overridden;

    EXPECT_THAT(Revert(), IsEmpty());
}

TEST_F(RevertToParent, ClearsOnePropertyAlsoWithoutThePanelsStyle)
{
    TargetBare(&base, L"color");
    panel.state = ActivePropertyState::Overridden;

    EXPECT_THAT(Revert(), ElementsAre("panel.ClearProperties([color])"));
}

TEST_F(RevertToParent, TakesAnIdentifierThatOnlyContainsStyleAsPaths)
{
    TargetAs({&box}, L"style,color");

    EXPECT_THAT(Revert(), ElementsAre("panel.ClearProperties([style, color])"));
}

TEST_F(RevertToParent, GoesByTheFirstTargetItselfWhateverIsShownForIt)
{
    TargetAs({&box}, L"style");
    panel.givesTargetStyle = [](std::size_t) { return nullptr; };

    Revert();

    EXPECT_THAT(log.LinesOf({"panel.GetStyleCategoryProperties", "panel.GetTargetStyle"}),
                ElementsAre("panel.GetStyleCategoryProperties(box.fill)"));
}

// The enable, by state

struct StateCase
{
    const char* name;
    ActivePropertyState state;
    int enabled;
};

class RevertEnable : public WritingTest, public testing::WithParamInterface<StateCase>
{
};

TEST_P(RevertEnable, FollowsTheState)
{
    panel.state = GetParam().state;

    EXPECT_EQ(panel.Read<int>(L"RevertToParentEnable"), GetParam().enabled);
    EXPECT_EQ(panel.Read<int>(L"ApplyToParentEnable"), GetParam().enabled);
}

TEST_P(RevertEnable, IsWhatTheCommandGoesBy)
{
    panel.state = GetParam().state;
    Target(panel, {&styles.WithFill("box")});
    log.Clear();

    panel.OnRevertToParent();

    EXPECT_EQ(log.LinesOf({"panel.ClearProperties"}).size(), static_cast<std::size_t>(GetParam().enabled));
}

INSTANTIATE_TEST_SUITE_P(States, RevertEnable,
                         testing::Values(StateCase{"None", ActivePropertyState::None, 0},
                                         StateCase{"Overridden", ActivePropertyState::Overridden, 1},
                                         StateCase{"Inherited", ActivePropertyState::Inherited, 0},
                                         StateCase{"Ambiguous", ActivePropertyState::Ambiguous, 1},
                                         StateCase{"AmbiguousParent", ActivePropertyState::AmbiguousParent,
                                                   0},
                                         StateCase{"Unknown", static_cast<ActivePropertyState>(5), 0}),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
