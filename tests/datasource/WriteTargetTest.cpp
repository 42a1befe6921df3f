// The two ways in which a panel's own rows write: one value, or two, and the clearing of paths.

#include "tests/datasource/support/WritingTest.h"

namespace
{

using namespace Styles;
using OvxUtils::Any;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class WriteTarget : public WritingTest
{
protected:
    WriteTarget()
    {
        Target(panel, {&styles.WithFill("box")});
        log.Clear();
    }

    /// What the router was handed.
    std::vector<std::string> Routed() const { return log.LinesOf({"panel.ModifyStyles"}); }

    const PropertyKey color = Key(L"color");
    const PropertyKey type = Key(L"type");
};

TEST_F(WriteTarget, RoutesOneValueAtItsPathWithAnEmptyOverrideList)
{
    panel.WriteTarget(color, Any(3), nullptr, nullptr);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=3}, overridePaths=[])"));
}

TEST_F(WriteTarget, RoutesTwoValuesInOneChange)
{
    const Any solid(1);

    panel.WriteTarget(color, Any(3), &type, &solid);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[color, type], fill{color=3, type=1}, "
                                      "overridePaths=[])"));
}

TEST_F(WriteTarget, LeavesOutASecondKeyWithoutAValue)
{
    panel.WriteTarget(color, Any(3), &type, nullptr);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=3}, overridePaths=[])"));
}

TEST_F(WriteTarget, LeavesOutASecondValueWithoutAKey)
{
    const Any solid(1);

    panel.WriteTarget(color, Any(3), nullptr, &solid);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=3}, overridePaths=[])"));
}

TEST_F(WriteTarget, LetsTheSecondValueWinWhereBothKeysAreTheSame)
{
    const Any second(4);

    panel.WriteTarget(color, Any(3), &color, &second);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[color, color], fill{color=4}, "
                                      "overridePaths=[])"));
}

TEST_F(WriteTarget, ResetsThePathForAnEmptyValue)
{
    panel.WriteTarget(color, Any(), nullptr, nullptr);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[color], fill{}, overridePaths=[])"));
}

TEST_F(WriteTarget, MakesAChangeOfTheDerivedCategory)
{
    panel.category = OutlineStyleCategoryName;

    panel.WriteTarget(color, Any(3), nullptr, nullptr);

    EXPECT_THAT(Routed(),
                ElementsAre("panel.ModifyStyles(paths=[color], outline{color=3}, overridePaths=[])"));
}

TEST_F(WriteTarget, WritesTheWholeWayToTheModifier)
{
    panel.WriteTarget(color, Any(3), nullptr, nullptr);

    EXPECT_THAT(Steps(),
                ElementsAre("panel.ModifyStyles", "modifier.Begin", "modifier.Modify", "modifier.End"));
}

TEST_F(WriteTarget, WritesNothingWithoutTargets)
{
    Target(panel, {});
    log.Clear();

    panel.WriteTarget(color, Any(3), nullptr, nullptr);

    EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(WriteTarget, AsksTheDerivedClassWhetherThereAreTargets)
{
    panel.hasTargets = false;

    panel.WriteTarget(color, Any(3), nullptr, nullptr);

    EXPECT_THAT(log.Lines(), Contains("panel.HasTargets()"));
    EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(WriteTarget, RoutesWithoutTargetsWhereTheDerivedClassClaimsSome)
{
    Target(panel, {});
    panel.hasTargets = true;
    log.Clear();

    panel.WriteTarget(color, Any(3), nullptr, nullptr);

    EXPECT_THAT(Routed(), SizeIs(1));
}

TEST_F(WriteTarget, DoesNotChangeTheTargetItself)
{
    panel.WriteTarget(color, Any(3), nullptr, nullptr);

    EXPECT_EQ(panel.GetTargetStyle(0)->GetOwnPropertyCount(), 0U) << "the modifier alone writes";
}

class ClearProperties : public WriteTarget
{
};

TEST_F(ClearProperties, RouteAnEmptyChangeWithoutAnOverrideList)
{
    panel.ClearProperties({Path({L"color"}), Path({L"gradient", L"start"})});

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[color, gradient.start], fill{}, "
                                      "overridePaths=null)"));
}

TEST_F(ClearProperties, RouteAChangeOfTheDerivedCategory)
{
    panel.category = OutlineStyleCategoryName;

    panel.ClearProperties(Paths({L"color"}));

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[color], outline{}, overridePaths=null)"));
}

TEST_F(ClearProperties, RouteAnEmptyListOfPathsToo)
{
    panel.ClearProperties({});

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[], fill{}, overridePaths=null)"));
}

TEST_F(ClearProperties, DoNothingWithoutTargets)
{
    Target(panel, {});
    log.Clear();

    panel.ClearProperties(Paths({L"color"}));

    EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(ClearProperties, LookAtTheTargetsThemselvesWhateverTheDerivedClassClaims)
{
    panel.hasTargets = false;
    panel.ClearProperties(Paths({L"color"}));
    EXPECT_THAT(Routed(), SizeIs(1));

    Target(panel, {});
    panel.hasTargets = true;
    log.Clear();
    panel.ClearProperties(Paths({L"color"}));
    EXPECT_THAT(Routed(), IsEmpty());
}

TEST_F(ClearProperties, CountNullTargets)
{
    Target(panel, {nullptr});
    log.Clear();

    panel.ClearProperties(Paths({L"color"}));

    EXPECT_THAT(Routed(), SizeIs(1));
}

TEST_F(ClearProperties, CountTheTargetsOfSiblings)
{
    RecordingPanel first(log, "first");
    Target(first, {&styles.WithFill("a")});
    panel.RegisterSiblingDS(&first);
    Target(panel, {});
    log.Clear();

    panel.ClearProperties(Paths({L"color"}));

    EXPECT_THAT(Routed(), SizeIs(1));
}

} // namespace
