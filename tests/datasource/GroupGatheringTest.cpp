// Writes that are gathered while a group on default styles is open, and what its commit hands on.

#include "tests/datasource/support/GroupTest.h"

namespace
{

using namespace Styles;
using OvxUtils::Any;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class GroupOnDefaults : public GroupTest
{
};

TEST_F(GroupOnDefaults, OpensWithoutTellingAnyone)
{
    panel.StartGroupModify();

    EXPECT_THAT(log.LinesOf({"source.", "modifier.", "applicator.", "event"}), IsEmpty());
    EXPECT_EQ(RecordingEvents::DeliverPending(), 0U);
}

TEST_F(GroupOnDefaults, HandsOnOnePathAndTheLastValueOfMany)
{
    panel.StartGroupModify();
    for (const int color : {3, 4, 5})
        WriteValue(L"color", color);

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=5}, overridePaths=[])"));
    EXPECT_EQ(Describe(&defaults), "style{fill.color=5}");
}

TEST_F(GroupOnDefaults, RaisesOneEventOnIdleWhenItIsCommitted)
{
    panel.StartGroupModify();
    for (int color = 0; color < 1000; ++color)
        WriteValue(L"color", color);
    EXPECT_EQ(RecordingEvents::DeliverPending(), 0U);

    Commit();
    EXPECT_THAT(log.LinesOf({"event"}), IsEmpty()) << "not before the application is idle";

    EXPECT_EQ(RecordingEvents::DeliverPending(), 1U);
    EXPECT_THAT(log.LinesOf({"event"}), ElementsAre("event StylePropertiesChange(fill, '')"));
}

TEST_F(GroupOnDefaults, SortsPathsAndDropsRepeatedOnes)
{
    const PropertyPaths all = {Path({L"type"}), Path({L"gradient", L"start"}), Path({L"color"}),
                               Path({L"gradient"})};
    panel.StartGroupModify();
    for (const int round : {1, 2})
        panel.ModifyStyles(all, Change(round), nullptr);

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=" + Describe(Sorted(all)) +
                                      ", fill{color=2}, overridePaths=[])"));
}

TEST_F(GroupOnDefaults, SortsOverridePathsAndDropsRepeatedOnes)
{
    const PropertyPaths all = Paths({L"type", L"color", L"style"});
    panel.StartGroupModify();
    WriteBoth({}, all);
    WriteBoth({}, all);

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[], fill{color=9, style=9, type=9}, "
                                      "overridePaths=" +
                                      Describe(Sorted(all)) + ")"));
}

TEST_F(GroupOnDefaults, HandsOnAPathThatWasWrittenBothWaysAsAnOrdinaryOne)
{
    const PropertyPaths kept = Paths({L"type", L"style"});
    panel.StartGroupModify();
    WriteBoth({}, Paths({L"type", L"color", L"style"}));
    WriteBoth(Paths({L"color"}), {});

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=9, style=9, type=9}, "
                                      "overridePaths=" +
                                      Describe(Sorted(kept)) + ")"));
}

TEST_F(GroupOnDefaults, GathersTheValuesAtOverridePathsWithoutWritingThemToTheDefaults)
{
    panel.StartGroupModify();
    WriteBoth(Paths({L"color"}), Paths({L"type"}));

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=9, type=9}, "
                                      "overridePaths=[type])"));
    EXPECT_EQ(Describe(&defaults), "style{fill.color=9}");
}

TEST_F(GroupOnDefaults, GathersTheListedPathsOnly)
{
    panel.StartGroupModify();
    auto change = Change(3);
    change->SetProperty(Key(L"type"), Any(2));
    panel.ModifyStyles(Paths({L"color"}), std::move(change), nullptr);

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=3}, overridePaths=[])"));
}

TEST_F(GroupOnDefaults, LeavesTheOverridePathsAloneForOrdinaryWrites)
{
    panel.StartGroupModify();
    WriteBoth({}, Paths({L"type"}));
    WriteValue(L"color", 3);

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=3, type=9}, "
                                      "overridePaths=[type])"));
}

TEST_F(GroupOnDefaults, ResetsAPathThatWasWrittenAndThenCleared)
{
    panel.StartGroupModify();
    WriteValue(L"color", 3);
    panel.ClearProperties(Paths({L"color"}));

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[color], fill{}, overridePaths=[])"));
    EXPECT_EQ(Describe(&defaults), "style{}");
}

TEST_F(GroupOnDefaults, TakesThePathsOfANullChangeAndKeepsTheValuesItHas)
{
    panel.StartGroupModify();
    WriteValue(L"color", 3);
    const PropertyPaths overridePaths = Paths({L"style"});
    panel.ModifyStyles(Paths({L"color", L"type"}), nullptr, &overridePaths);

    EXPECT_THAT(Commit(),
                ElementsAre("panel.ModifyStyles(paths=" + Describe(Sorted(Paths({L"color", L"type"}))) +
                            ", fill{color=3}, overridePaths=[style])"));
}

TEST_F(GroupOnDefaults, CommitsNothingWrittenAsAChangeWithoutPaths)
{
    panel.StartGroupModify();

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[], fill{}, overridePaths=[])"));
    EXPECT_EQ(Describe(&defaults), "style{fill.color=1}");
    EXPECT_EQ(RecordingEvents::DeliverPending(), 1U);
}

TEST_F(GroupOnDefaults, GoesToTheApplicatorWithItsOverridePaths)
{
    InstallApplicator();
    panel.StartGroupModify();
    WriteBoth(Paths({L"color"}), Paths({L"type"}));

    Commit();

    EXPECT_THAT(log.LinesOf({"applicator.ModifyStyles"}),
                ElementsAre("applicator.ModifyStyles(7, paths=[color], changeStyle=fill{color=9, type=9}, "
                            "overridePaths=[type], toDefaultStyles=true)"));
    EXPECT_EQ(RecordingEvents::DeliverPending(), 0U);
}

TEST_F(GroupOnDefaults, IsClosedByACommit)
{
    panel.StartGroupModify();
    Commit();

    WriteValue(L"color", 4);

    EXPECT_EQ(Describe(&defaults), "style{fill.color=4}") << "written at once";
}

TEST_F(GroupOnDefaults, IsClosedByACommitThatFails)
{
    panel.StartGroupModify();
    WriteValue(L"color", 3);
    log.FailAt("source.GetDefaultStyles");
    EXPECT_THROW(panel.EndGroupModify(true), InjectedFailure);

    WriteValue(L"color", 4);

    EXPECT_EQ(Describe(&defaults), "style{fill.color=4}") << "written at once";
}

TEST_F(GroupOnDefaults, StartsAnewWhenItIsStartedAgain)
{
    panel.StartGroupModify();
    WriteBoth(Paths({L"color"}), Paths({L"type"}));
    panel.StartGroupModify();
    WriteValue(L"style", 2);

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[style], fill{style=2}, overridePaths=[])"));
}

TEST_F(GroupOnDefaults, HasNoNesting)
{
    panel.StartGroupModify();
    panel.StartGroupModify();
    Commit();

    WriteValue(L"color", 4);

    EXPECT_EQ(Describe(&defaults), "style{fill.color=4}");
}

TEST_F(GroupOnDefaults, StartsWithoutThePathsOfACommittedOne)
{
    panel.StartGroupModify();
    WriteBoth(Paths({L"color"}), Paths({L"type"}));
    Commit();
    panel.StartGroupModify();

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[], fill{}, overridePaths=[])"));
}

TEST_F(GroupOnDefaults, DoesNotOpenWithoutASource)
{
    app.source = nullptr;
    panel.StartGroupModify();
    app.source = &source;

    WriteValue(L"color", 4);

    EXPECT_EQ(Describe(&defaults), "style{fill.color=4}") << "written at once";
}

TEST_F(GroupOnDefaults, CommitsToTheTargetsThatItHasByThen)
{
    panel.StartGroupModify();
    WriteValue(L"color", 3);
    Target(panel, {&styles.OfCategory("alone", FillStyleCategoryName)});

    Commit();

    EXPECT_EQ(modifier.Last().targets, "[alone]");
    EXPECT_EQ(modifier.Last().changeStyle, "fill{color=3}");
}

TEST_F(GroupOnDefaults, StaysOpenWhileOrdinaryTargetsStartAGroupAtTheSource)
{
    panel.StartGroupModify();
    WriteValue(L"color", 3);
    Target(panel, {&styles.WithFill("box")});
    panel.StartGroupModify();

    EXPECT_THAT(log.LinesOf({"source.BeginGroup"}), SizeIs(1));
    EXPECT_THAT(Commit(), SizeIs(1));
    EXPECT_THAT(log.LinesOf({"source.EndGroup"}), IsEmpty());
}

// The carrier's category

TEST_F(GroupOnDefaults, OfAnyPanelLandsInTheFillOfTheDefaultStyles)
{
    panel.category = OutlineStyleCategoryName;
    panel.StartGroupModify();
    WriteValue(L"width", 3);

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[width], fill{width=3}, overridePaths=[])"));
    EXPECT_EQ(Describe(&defaults), "style{fill.color=1, fill.width=3}");
    RecordingEvents::DeliverPending();
    EXPECT_THAT(log.LinesOf({"event"}), ElementsAre("event StylePropertiesChange(fill, '')"));
}

} // namespace
