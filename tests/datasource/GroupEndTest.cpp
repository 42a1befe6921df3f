// How groups end: cancelled, started again from inside, or at the style source for all targets but default
// styles.

#include "tests/datasource/support/GroupTest.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class GroupEnd : public GroupTest
{
};

// Cancelling

TEST_F(GroupEnd, WritesNothingWhenItIsCancelled)
{
    panel.StartGroupModify();
    WriteValue(L"color", 3);
    log.Clear();

    panel.EndGroupModify(false);

    EXPECT_EQ(Describe(&defaults), "style{fill.color=1}");
    EXPECT_THAT(Steps(), IsEmpty());
    EXPECT_THAT(log.LinesOf({"source."}), IsEmpty());
}

TEST_F(GroupEnd, RaisesTheChangeOfObjectsAtOnceWhenItIsCancelled)
{
    panel.StartGroupModify();

    panel.EndGroupModify(false);

    EXPECT_THAT(log.LinesOf({"event"}), ElementsAre("event ObjectStyleChanged()"));
    EXPECT_EQ(RecordingEvents::DeliverPending(), 0U);
}

TEST_F(GroupEnd, IsClosedWhenTheChangeOfObjectsIsRaised)
{
    log.onLine = [this](const std::string& line)
    {
        if (line.starts_with("event ObjectStyleChanged"))
            WriteValue(L"color", 4);
    };
    panel.StartGroupModify();

    panel.EndGroupModify(false);

    EXPECT_EQ(Describe(&defaults), "style{fill.color=4}") << "written at once";
}

TEST_F(GroupEnd, RaisesTheChangeOfObjectsAlsoWithoutASource)
{
    panel.StartGroupModify();
    app.source = nullptr;

    panel.EndGroupModify(false);

    EXPECT_THAT(log.LinesOf({"event"}), ElementsAre("event ObjectStyleChanged()"));
}

TEST_F(GroupEnd, StartsWithoutThePathsOfACancelledOne)
{
    panel.StartGroupModify();
    WriteBoth(Paths({L"color"}), Paths({L"type"}));
    panel.EndGroupModify(false);
    panel.StartGroupModify();

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[], fill{}, overridePaths=[])"));
}

// Calls from inside

TEST_F(GroupEnd, KeepsItsPathsWhenAnotherStartsFromInsideItsCommit)
{
    log.onLine = [this](const std::string& line)
    {
        if (line == "source.GetDefaultStyles()")
            panel.StartGroupModify();
    };
    panel.StartGroupModify();
    WriteValue(L"color", 3);

    Commit();

    EXPECT_EQ(Describe(&defaults), "style{fill.color=3}");
}

TEST_F(GroupEnd, HandsTheApplicatorListsThatAnotherStartDoesNotClear)
{
    InstallApplicator();
    panel.StartGroupModify();
    WriteBoth(Paths({L"color"}), Paths({L"type"}));
    log.onLine = [this](const std::string& line)
    {
        if (!line.starts_with("panel.ModifyStyles"))
            return;
        log.onLine = nullptr;
        panel.StartGroupModify();
        panel.EndGroupModify(false);
    };

    Commit();

    EXPECT_THAT(log.LinesOf({"applicator.ModifyStyles"}),
                ElementsAre("applicator.ModifyStyles(7, paths=[color], changeStyle=fill{color=9, type=9}, "
                            "overridePaths=[type], toDefaultStyles=true)"));
}

TEST_F(GroupEnd, ThatStartsFromInsideACommitIsOpenAfterwards)
{
    log.onLine = [this](const std::string& line)
    {
        if (line == "source.GetDefaultStyles()")
            panel.StartGroupModify();
    };
    panel.StartGroupModify();
    Commit();
    log.onLine = nullptr;
    WriteValue(L"type", 2);
    EXPECT_EQ(Describe(&defaults), "style{fill.color=1}");

    EXPECT_THAT(Commit(), ElementsAre("panel.ModifyStyles(paths=[type], fill{type=2}, overridePaths=[])"));
}

// Other targets

class GroupOnObjects : public WritingTest
{
protected:
    GroupOnObjects()
    {
        Target(panel, {&styles.WithFill("box")});
        log.Clear();
    }
};

TEST_F(GroupOnObjects, IsOpenedAtTheSource)
{
    panel.StartGroupModify();

    EXPECT_THAT(log.LinesOf({"source."}), ElementsAre("source.BeginGroup()"));
}

TEST_F(GroupOnObjects, IsClosedAtTheSource)
{
    panel.StartGroupModify();
    log.Clear();

    panel.EndGroupModify(true);

    EXPECT_THAT(log.LinesOf({"source.", "modifier.", "event"}), ElementsAre("source.EndGroup(true)"));
}

TEST_F(GroupOnObjects, IsCancelledAtTheSourceWithoutAnEvent)
{
    panel.StartGroupModify();
    log.Clear();

    panel.EndGroupModify(false);

    EXPECT_THAT(log.LinesOf({"source.", "event"}), ElementsAre("source.EndGroup(false)"));
    EXPECT_EQ(RecordingEvents::DeliverPending(), 0U);
}

TEST_F(GroupOnObjects, WritesEachChangeAsItComes)
{
    panel.StartGroupModify();

    WriteColor(3);
    WriteColor(4);

    EXPECT_THAT(modifier.changes, SizeIs(2));
}

TEST_F(GroupOnObjects, DoesNothingWithoutASource)
{
    app.source = nullptr;

    panel.StartGroupModify();
    panel.EndGroupModify(true);
    panel.EndGroupModify(false);

    EXPECT_THAT(log.LinesOf({"source.", "modifier.", "event"}), IsEmpty());
}

TEST_F(GroupOnObjects, IsClosedAtTheSourceAlsoWhenNoneWasOpened)
{
    panel.EndGroupModify(true);

    EXPECT_THAT(log.LinesOf({"source."}), ElementsAre("source.EndGroup(true)"));
}

TEST_F(GroupOnObjects, IsClosedAtTheSourceForDefaultStylesThatOpenedNone)
{
    Target(panel, {&styles.WithFill("defaults")}, /*isDefault=*/true);
    log.Clear();

    panel.EndGroupModify(false);

    EXPECT_THAT(log.LinesOf({"source.", "event"}), ElementsAre("source.EndGroup(false)"));
}

} // namespace
