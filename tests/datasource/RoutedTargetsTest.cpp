// What the modifier is given of the targets and their objects, and how a change is wrapped where whole styles
// are among them.

#include "tests/datasource/support/WritingTest.h"

namespace
{

using namespace Styles;

class RoutedTargets : public WritingTest
{
protected:
    /// What the modifier is given of a colour that is written to these.
    RecordedChange WriteTo(const std::vector<Style*>& targets)
    {
        Target(panel, targets);
        WriteColor(3);
        return modifier.Last();
    }

    Style& box = styles.WithFill("box");
    Style& circle = styles.WithFill("circle");
    Style& alone = styles.OfCategory("alone", FillStyleCategoryName);
};

// Without whole styles

TEST_F(RoutedTargets, OfThePanelsCategoryTakeTheChangeAsItIs)
{
    const RecordedChange change = WriteTo({&FillOf(box), &alone});

    EXPECT_EQ(change.targets, "[box.fill, alone]");
    EXPECT_EQ(change.paths, "[color]");
    EXPECT_EQ(change.changeStyle, "fill{color=3}");
}

TEST_F(RoutedTargets, OfThePanelsCategoryComeWithAllObjects)
{
    panel.SetObjectStyles({{&FillOf(box), 1}, {&circle, 2}});

    EXPECT_EQ(WriteTo({&FillOf(box)}).objects, "{box.fill: 1, circle: 2}");
}

TEST_F(RoutedTargets, AreNotClimbedWithoutAWholeStyle)
{
    Style& frame = *FillOf(box).GetSubstyleAndCreateIfMissing(Key(L"frame"), Key(L"frame"));

    EXPECT_EQ(WriteTo({&frame}).targets, "[box.fill.frame]");
}

TEST_F(RoutedTargets, KeepNullsBehindTheFirst)
{
    EXPECT_EQ(WriteTo({&alone, nullptr, &FillOf(box)}).targets, "[alone, null, box.fill]");
}

TEST_F(RoutedTargets, TakeNullForAMissingChange)
{
    Target(panel, {&alone});

    panel.ModifyStyles(Paths({L"color"}), nullptr, nullptr);

    EXPECT_EQ(modifier.Last().changeStyle, "null");
    EXPECT_EQ(modifier.Last().paths, "[color]");
}

// With whole styles

TEST_F(RoutedTargets, ThatAreWholeTakeTheChangeWrapped)
{
    const RecordedChange change = WriteTo({&box, &circle});

    EXPECT_EQ(change.targets, "[box, circle]");
    EXPECT_EQ(change.paths, "[fill.color]");
    EXPECT_EQ(change.changeStyle, "style{fill.color=3}");
}

TEST_F(RoutedTargets, AreClimbedToWholeStylesWhereOneIsAmongThem)
{
    Style& frame = *FillOf(circle).GetSubstyleAndCreateIfMissing(Key(L"frame"), Key(L"frame"));

    EXPECT_EQ(WriteTo({&FillOf(circle), &frame, &box}).targets, "[circle, circle, box]");
}

TEST_F(RoutedTargets, AreClimbedNoFurtherThanToAWholeStyle)
{
    Style& inner = *box.GetSubstyleAndCreateIfMissing(Key(L"inner"), StyleCategoryName);

    EXPECT_EQ(WriteTo({&inner, &FillOf(inner)}).targets, "[box.style, box.style]")
        << "the whole style within another stays where it is";
}

TEST_F(RoutedTargets, StayAsTheyAreWithoutAnOwnerToClimbTo)
{
    EXPECT_EQ(WriteTo({&alone, &box}).targets, "[alone, box]");
}

TEST_F(RoutedTargets, KeepNullsInPlaceWhileOthersAreClimbed)
{
    EXPECT_EQ(WriteTo({&FillOf(box), nullptr, &circle, nullptr}).targets, "[box, null, circle, null]");
}

TEST_F(RoutedTargets, AreWrappedByTheCategoryOfTheFirstClimbedOne)
{
    EXPECT_EQ(WriteTo({&alone, &box}).changeStyle, "fill{fill.color=3}");
    EXPECT_EQ(WriteTo({&FillOf(circle), &box}).changeStyle, "style{fill.color=3}");
}

TEST_F(RoutedTargets, AreWrappedByTheChangesCategoryAndPathsTakeThePanels)
{
    Target(panel, {&box});

    panel.ModifyStyles(Paths({L"color"}), Change(3, OutlineStyleCategoryName), nullptr);

    EXPECT_EQ(modifier.Last().changeStyle, "style{outline.color=3}");
    EXPECT_EQ(modifier.Last().paths, "[fill.color]");
}

TEST_F(RoutedTargets, TakeEveryPathAndOverridePathWithTheCategoryInFront)
{
    Target(panel, {&box});
    const PropertyPaths overridePaths = {Path({L"type"}), Path({L"gradient", L"end"})};

    panel.ModifyStyles({Path({L"gradient", L"start"}), Path({L"color"}), PropertyPath()}, Change(3),
                       &overridePaths);

    EXPECT_EQ(modifier.Last().paths, "[fill.gradient.start, fill.color, fill]");
    EXPECT_EQ(modifier.Last().overridePaths, "[fill.type, fill.gradient.end]");
}

TEST_F(RoutedTargets, TakeTheCategoryOfTheDerivedPanel)
{
    panel.category = OutlineStyleCategoryName;

    EXPECT_EQ(WriteTo({&box}).paths, "[outline.color]");
}

TEST_F(RoutedTargets, OfAWholeStylePanelAreWrappedOnceMore)
{
    panel.category = StyleCategoryName;
    Target(panel, {&box});
    auto change = std::make_unique<Style>(nullptr, StyleCategoryName);
    change->SetPathProperty(Path({L"fill", L"color"}), OvxUtils::Any(3));

    panel.ModifyStyles({Path({L"fill", L"color"})}, std::move(change), nullptr);

    EXPECT_EQ(modifier.Last().changeStyle, "style{style.fill.color=3}");
    EXPECT_EQ(modifier.Last().paths, "[style.fill.color]");
}

TEST_F(RoutedTargets, ThatAreWholeTakeNullForAMissingChangeAtPrefixedPaths)
{
    Target(panel, {&box});
    const PropertyPaths overridePaths = Paths({L"type"});

    panel.ModifyStyles(Paths({L"color"}), nullptr, &overridePaths);

    EXPECT_EQ(modifier.Last().changeStyle, "null");
    EXPECT_EQ(modifier.Last().paths, "[fill.color]");
    EXPECT_EQ(modifier.Last().overridePaths, "[fill.type]");
}

TEST_F(RoutedTargets, TakeAWrapperWithoutAParentWhateverTheFirstInheritsFrom)
{
    box.SetParent(&circle);

    EXPECT_EQ(WriteTo({&box}).changeStyle, "style{fill.color=3}");
}

// Objects of whole styles

TEST_F(RoutedTargets, ThatAreWholeComeWithTheirOwnObjectsOnly)
{
    panel.SetObjectStyles({{&box, 1}, {&circle, 2}});

    EXPECT_EQ(WriteTo({&box}).objects, "{box: 1}");
}

TEST_F(RoutedTargets, AreLookedUpAmongTheObjectsBeforeTheyAreClimbed)
{
    panel.SetObjectStyles({{&FillOf(circle), 1}, {&box, 2}});

    EXPECT_EQ(WriteTo({&FillOf(circle), &box}).objects, "{box: 2, circle: 1}");
}

TEST_F(RoutedTargets, AreNotLookedUpByWhatTheyWereClimbedTo)
{
    panel.SetObjectStyles({{&circle, 1}, {&box, 2}});

    EXPECT_EQ(WriteTo({&FillOf(circle), &box}).objects, "{box: 2}");
}

TEST_F(RoutedTargets, ComeWithTheObjectOfTheFirstThatIsClimbedToOneStyle)
{
    Style& frame = *FillOf(box).GetSubstyleAndCreateIfMissing(Key(L"frame"), Key(L"frame"));
    panel.SetObjectStyles({{&FillOf(box), 1}, {&frame, 2}, {&box, 3}});

    EXPECT_EQ(WriteTo({&frame, &FillOf(box), &box}).objects, "{box: 2}");
    EXPECT_EQ(WriteTo({&box, &FillOf(box), &frame}).objects, "{box: 3}");
}

TEST_F(RoutedTargets, ThatAreNullAreNeverAmongTheObjects)
{
    panel.SetObjectStyles({{nullptr, 1}, {&box, 2}});

    EXPECT_EQ(WriteTo({&box, nullptr}).objects, "{box: 2}");
}

TEST_F(RoutedTargets, ThatAreWholeMayComeWithoutObjects)
{
    EXPECT_EQ(WriteTo({&box}).objects, "{}");
}

TEST_F(RoutedTargets, LeaveTheObjectsOfThePanelAsTheyWere)
{
    panel.SetObjectStyles({{&FillOf(circle), 1}, {&box, 2}});

    WriteTo({&FillOf(circle), &box});

    EXPECT_NE(panel.GetObjectFromStyle(&FillOf(circle)), nullptr);
    EXPECT_EQ(panel.GetObjectFromStyle(&circle), nullptr);
}

TEST_F(RoutedTargets, LeaveTheTargetsOfThePanelAsTheyWere)
{
    WriteTo({&FillOf(circle), &box});

    EXPECT_EQ(log.NamesOfStyles(panel.GetTargetStyles()), "[circle.fill, box]");
}

/// By how many targets there are.
class RoutedTargetCount : public WritingTest, public testing::WithParamInterface<std::size_t>
{
};

TEST_P(RoutedTargetCount, MakesNoDifferenceToTheNumberOfCalls)
{
    std::vector<Style*> targets(GetParam());
    for (Style*& target : targets)
        target = &styles.WithFill("box");
    Target(panel, targets);
    panel.ListenTo(panel.GetNames());
    log.Clear();

    panel.WriteTarget(Key(L"color"), OvxUtils::Any(3), nullptr, nullptr);

    EXPECT_EQ(modifier.Last().targets, log.NamesOfStyles(targets));
    EXPECT_THAT(log.CallsOf({"modifier.", "notify"}),
                testing::ElementsAre("modifier.Begin", "modifier.Modify", "modifier.End"));
}

INSTANTIATE_TEST_SUITE_P(Numbers, RoutedTargetCount, testing::Values(1, 2, 3, 500, 501, 10'000));

} // namespace
