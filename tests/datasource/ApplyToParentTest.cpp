// Apply to parent: the whole style's own values go into what it inherits from.

#include "tests/datasource/support/WritingTest.h"

namespace
{

using namespace Styles;
using OvxUtils::Any;
using testing::ElementsAre;
using testing::IsEmpty;

class ApplyToParent : public WritingTest
{
protected:
    ApplyToParent() { TargetAs({&box}, L"style"); }

    void TargetAs(const std::vector<Style*>& targets, const wchar_t* identifier)
    {
        Target(panel, targets);
        panel.SetActiveIdentifier(identifier);
        log.Clear();
    }

    /// What the source is asked for by the command.
    std::vector<std::string> Apply()
    {
        panel.Invoke(L"OnApplyToParent");
        return log.LinesOf({"source.ApplyToParent"});
    }

    Style& base = styles.WithColor("base", 1);
    Style& box = styles.WithColor("box", 2, &base);
};

TEST_F(ApplyToParent, HandsTheSourceTheOwnValuesAndTheSubstyleOfTheOwnersParent)
{
    EXPECT_THAT(Apply(), ElementsAre("source.ApplyToParent(destination=base.fill, paths=[color], "
                                     "values=fill{color=2})"));
}

TEST_F(ApplyToParent, ListsThePathsThroughSubstyles)
{
    FillOf(box).SetPathProperty(Path({L"gradient", L"start"}), Any(5));

    EXPECT_THAT(Apply(), ElementsAre("source.ApplyToParent(destination=base.fill, "
                                     "paths=[color, gradient.start], "
                                     "values=fill{color=2, gradient.start=5})"));
}

TEST_F(ApplyToParent, PrefersTheParentOfThePanelsOwnStyle)
{
    FillOf(box).SetParent(&styles.OfCategory("fillBase", FillStyleCategoryName));

    EXPECT_THAT(Apply(), ElementsAre("source.ApplyToParent(destination=fillBase, paths=[color], "
                                     "values=fill{color=2})"));
}

TEST_F(ApplyToParent, AppliesAStyleOfThePanelsCategoryByItself)
{
    Style& fillBase = styles.OfCategory("fillBase", FillStyleCategoryName);
    Style& alone = styles.OfCategory("alone", FillStyleCategoryName, &fillBase);
    alone.SetProperty(Key(L"type"), Any(4));
    TargetAs({&alone}, L"style");

    EXPECT_THAT(Apply(), ElementsAre("source.ApplyToParent(destination=fillBase, paths=[type], "
                                     "values=fill{type=4})"));
}

TEST_F(ApplyToParent, AppliesAWholeStyleWithAllItsSubstyles)
{
    panel.category = StyleCategoryName;
    TargetAs({&box}, L"style");

    panel.state = ActivePropertyState::Overridden;

    EXPECT_THAT(Apply(), ElementsAre("source.ApplyToParent(destination=base, paths=[fill.color], "
                                     "values=style{fill.color=2})"));
}

TEST_F(ApplyToParent, AppliesTheFirstTargetAlone)
{
    TargetAs({&box, &styles.WithColor("circle", 7, &base)}, L"style");

    EXPECT_THAT(Apply(), ElementsAre("source.ApplyToParent(destination=base.fill, paths=[color], "
                                     "values=fill{color=2})"));
}

TEST_F(ApplyToParent, LetsTheSourceClearOnThisPanelsTargets)
{
    source.clearedPaths = Paths({L"color"});

    Apply();

    EXPECT_THAT(log.LinesOf({"panel.ClearProperties"}), ElementsAre("panel.ClearProperties([color])"));
    EXPECT_EQ(modifier.Last().targets, "[box]");
    EXPECT_EQ(modifier.Last().paths, "[fill.color]");
}

TEST_F(ApplyToParent, ClearsNothingOfItsOwnAccord)
{
    Apply();

    EXPECT_THAT(log.LinesOf({"panel.ClearProperties", "modifier."}), IsEmpty());
    EXPECT_EQ(Describe(&box), "style{fill.color=2} with a parent");
    EXPECT_EQ(Describe(&base), "style{fill.color=1}");
}

TEST_F(ApplyToParent, DoesNothingForASinglePropertyAlthoughItIsEnabled)
{
    TargetAs({&box}, L"color");
    EXPECT_EQ(panel.Read<int>(L"ApplyToParentEnable"), 1);

    EXPECT_THAT(Apply(), IsEmpty());
}

TEST_F(ApplyToParent, DoesNothingForAnIdentifierThatOnlyContainsStyle)
{
    TargetAs({&box}, L"style,color");

    EXPECT_THAT(Apply(), IsEmpty());
}

TEST_F(ApplyToParent, DoesNothingWhereNothingIsOverridden)
{
    TargetAs({&styles.WithFill("circle", &base)}, L"style");

    EXPECT_THAT(Apply(), IsEmpty());
}

TEST_F(ApplyToParent, AsksTheDerivedClassForTheState)
{
    panel.state = ActivePropertyState::Inherited;

    EXPECT_THAT(Apply(), IsEmpty());
}

TEST_F(ApplyToParent, ActsWhereTheTargetsDisagree)
{
    panel.state = ActivePropertyState::Ambiguous;

    EXPECT_EQ(Apply().size(), 1U);
}

TEST_F(ApplyToParent, GoesByTheFirstTargetItselfWhateverIsShownForIt)
{
    panel.givesTargetStyle = [](std::size_t) { return nullptr; };

    EXPECT_EQ(Apply().size(), 1U);
    EXPECT_THAT(log.LinesOf({"panel.GetTargetStyle"}), IsEmpty());
}

TEST_F(ApplyToParent, DoesNothingWithoutTargets)
{
    TargetAs({}, L"style");
    panel.state = ActivePropertyState::Overridden;

    EXPECT_THAT(Apply(), IsEmpty());
}

TEST_F(ApplyToParent, DoesNothingWithoutThePanelsStyle)
{
    TargetBare(&base, L"style");
    panel.state = ActivePropertyState::Overridden;

    EXPECT_THAT(Apply(), IsEmpty());
}

TEST_F(ApplyToParent, DoesNothingForANullFirst)
{
    TargetAs({nullptr, &box}, L"style");
    panel.state = ActivePropertyState::Overridden;

    EXPECT_THAT(Apply(), IsEmpty());
}

TEST_F(ApplyToParent, DoesNothingWithoutASource)
{
    app.source = nullptr;

    EXPECT_THAT(Apply(), IsEmpty());
}

TEST_F(ApplyToParent, DoesNothingForAStyleByItselfWithoutAParent)
{
    TargetAs({&styles.OfCategory("alone", FillStyleCategoryName)}, L"style");
    panel.state = ActivePropertyState::Overridden;

    EXPECT_THAT(Apply(), IsEmpty());
}

TEST_F(ApplyToParent, DoesNothingWhereTheOwnerHasNoParent)
{
    TargetAs({&base}, L"style");
    panel.state = ActivePropertyState::Overridden;

    EXPECT_THAT(Apply(), IsEmpty());
}

TEST_F(ApplyToParent, DoesNothingWhereTheOwnersParentLacksTheSubstyle)
{
    Style& bare = styles.Whole("bare");
    TargetAs({&styles.WithColor("circle", 3, &bare)}, L"style");
    panel.state = ActivePropertyState::Overridden;

    EXPECT_THAT(Apply(), IsEmpty());
    EXPECT_EQ(bare.GetSubstyle(FillStyleCategoryName, false), nullptr) << "none is made";
}

} // namespace
