// What is kept in balance when something fails in the middle of a write.

#include "tests/datasource/support/WritingTest.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class WriteFailure : public WritingTest
{
protected:
    WriteFailure()
    {
        Target(first, {&styles.OfCategory("a", FillStyleCategoryName)});
        panel.RegisterSiblingDS(&first);
        Target(panel, {&styles.WithFill("box")});
        log.Clear();
    }

    std::vector<std::string> Balance() const { return log.CallsOf({"modifier.Begin", "modifier.End"}); }

    RecordingPanel first{log, "first"};
};

TEST_F(WriteFailure, OfTheModifierEndsWhatItBegan)
{
    log.FailAt("modifier.Modify(targets=[box]");

    EXPECT_THROW(WriteColor(3), InjectedFailure);

    EXPECT_THAT(Steps(),
                ElementsAre("panel.ModifyStyles", "modifier.Begin", "first.ModifyStyles", "modifier.Begin",
                            "modifier.Modify", "modifier.End", "modifier.Modify", "modifier.End"));
}

TEST_F(WriteFailure, OfASiblingsModifierEndsBothAndWritesNoMore)
{
    log.FailAt("modifier.Modify(targets=[a]");

    EXPECT_THROW(WriteColor(3), InjectedFailure);

    EXPECT_THAT(Steps(), ElementsAre("panel.ModifyStyles", "modifier.Begin", "first.ModifyStyles",
                                     "modifier.Begin", "modifier.Modify", "modifier.End", "modifier.End"));
}

TEST_F(WriteFailure, OfASiblingItselfEndsWhatThePanelBegan)
{
    log.FailAt("first.ModifyStyles");

    EXPECT_THROW(WriteColor(3), InjectedFailure);

    EXPECT_THAT(Steps(),
                ElementsAre("panel.ModifyStyles", "modifier.Begin", "first.ModifyStyles", "modifier.End"));
}

TEST_F(WriteFailure, OfTheApplicatorEndsWhatThePanelBegan)
{
    InstallApplicator();
    log.FailAt("applicator.ModifyStyles");

    EXPECT_THROW(WriteColor(3), InjectedFailure);

    EXPECT_THAT(Balance(), ElementsAre("modifier.Begin", "modifier.End"));
}

TEST_F(WriteFailure, OfTheTransactionsQuestionEndsWhatThePanelBegan)
{
    log.FailAt("panel.GetTransactionOverrides");

    EXPECT_THROW(WriteColor(3), InjectedFailure);

    EXPECT_EQ(Balance().back(), "modifier.End");
    EXPECT_THAT(Balance(), SizeIs(4));
}

TEST_F(WriteFailure, OfTheBeginningIsFollowedByNoEnd)
{
    log.FailAt("modifier.Begin");

    EXPECT_THROW(WriteColor(3), InjectedFailure);

    EXPECT_THAT(Steps(), ElementsAre("panel.ModifyStyles", "modifier.Begin"));
}

TEST_F(WriteFailure, OfTheEndReachesTheCaller)
{
    log.FailAt("modifier.End");

    EXPECT_THROW(WriteColor(3), InjectedFailure);

    EXPECT_THAT(modifier.changes, SizeIs(1)) << "that of the sibling, which failed to end";
}

TEST_F(WriteFailure, OfTheSourceBeginsNothing)
{
    log.FailAt("source.GetMultipleStyleModifier");

    EXPECT_THROW(WriteColor(3), InjectedFailure);

    EXPECT_THAT(log.LinesOf({"modifier."}), IsEmpty());
}

TEST_F(WriteFailure, LeavesThePanelReadyForTheNextWrite)
{
    log.FailAt("modifier.Modify");
    EXPECT_THROW(WriteColor(3), InjectedFailure);
    modifier.changes.clear();

    WriteColor(4);

    EXPECT_THAT(modifier.changes, SizeIs(2));
    EXPECT_EQ(modifier.Last().changeStyle, "style{fill.color=4}");
}

TEST_F(WriteFailure, OfTheApplicatorOnDefaultStylesReachesTheCaller)
{
    InstallApplicator();
    Target(panel, {&styles.WithFill("defaults")}, /*isDefault=*/true);
    log.FailAt("applicator.ModifyStyles");

    EXPECT_THROW(WriteColor(3), InjectedFailure);

    EXPECT_THAT(Balance(), IsEmpty());
}

} // namespace
