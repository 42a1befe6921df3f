// Writes among data sources that are siblings of each other, directly or in a ring.

#include "tests/datasource/support/SiblingWritingTest.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;

/// The three tied to each other, each showing the targets of all.
class MutualSiblings : public SiblingWritingTest
{
protected:
    /// Ties `from` to `to` and shows the merged targets anew.
    void Tie(RecordingPanel& from, RecordingPanel& to, Style& target)
    {
        from.RegisterSiblingDS(&to);
        Target(from, {&target});
        log.Clear();
    }
};

TEST_F(MutualSiblings, WriteEachOtherOnce)
{
    Tie(first, panel, FillOf(a));

    WriteColor(3);

    EXPECT_THAT(Entered(), ElementsAre("panel.ModifyStyles", "first.ModifyStyles", "second.ModifyStyles"));
    EXPECT_THAT(Written(), ElementsAre("[a.fill]", "[b.fill]", "[own.fill]"));
}

TEST_F(MutualSiblings, EndAWriteThatComesFromTheOtherSide)
{
    Tie(first, panel, FillOf(a));

    first.ModifyStyles(Paths({L"color"}), Change(3), nullptr);

    EXPECT_THAT(Written(), ElementsAre("[b.fill]", "[own.fill]", "[a.fill]"));
}

TEST_F(MutualSiblings, InARingEndWhereTheWriteBegan)
{
    panel.UnregisterSiblingDS(&second);
    Tie(first, second, FillOf(a));
    Tie(second, panel, FillOf(b));

    WriteColor(3);

    EXPECT_THAT(Entered(), ElementsAre("panel.ModifyStyles", "first.ModifyStyles", "second.ModifyStyles"));
    EXPECT_THAT(Written(), ElementsAre("[b.fill]", "[a.fill]", "[own.fill]"));
}

TEST_F(MutualSiblings, AreWrittenTwiceWhereTwoWaysLeadToThem)
{
    Tie(first, second, FillOf(a));

    WriteColor(3);

    EXPECT_THAT(Written(), ElementsAre("[b.fill]", "[a.fill]", "[b.fill]", "[own.fill]"))
        << "only those that are forwarding themselves are left out";
}

TEST_F(MutualSiblings, AreReachedAgainByTheNextWrite)
{
    Tie(first, panel, FillOf(a));
    WriteColor(3);
    modifier.changes.clear();

    first.ModifyStyles(Paths({L"color"}), Change(4), nullptr);

    EXPECT_THAT(Written(), ElementsAre("[b.fill]", "[own.fill]", "[a.fill]"));
}

TEST_F(MutualSiblings, AreReachedAgainAfterAWriteThatFailed)
{
    Tie(first, panel, FillOf(a));
    log.FailAt("second.ModifyStyles");
    EXPECT_THROW(WriteColor(3), InjectedFailure);
    modifier.changes.clear();

    first.ModifyStyles(Paths({L"color"}), Change(4), nullptr);

    EXPECT_THAT(Written(), ElementsAre("[b.fill]", "[own.fill]", "[a.fill]"));
}

TEST_F(MutualSiblings, AreReachedWhenTheRoutersOwnModifierWritesAgain)
{
    log.onLine = [this](const std::string& line)
    {
        if (!line.starts_with("modifier.Modify(targets=[own.fill]"))
            return;
        log.onLine = nullptr;
        first.ModifyStyles(Paths({L"type"}), Change(5), nullptr);
    };
    Tie(first, panel, FillOf(a));

    WriteColor(3);

    EXPECT_THAT(Written(), ElementsAre("[a.fill]", "[b.fill]", "[own.fill]", //
                                       "[b.fill]", "[own.fill]", "[a.fill]"))
        << "the forwarding was over when the own targets were written";
}

} // namespace
