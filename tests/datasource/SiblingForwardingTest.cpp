// Which siblings a write is handed on to, when, and what they are given.

#include "tests/datasource/support/SiblingWritingTest.h"
#include "tests/host_pieces/HostPieces.h"

namespace
{

using namespace Styles;
using HostPieces::CountLiveStyles;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class SiblingForwarding : public SiblingWritingTest
{
};

TEST_F(SiblingForwarding, GoesToEachInOrderBetweenTheBeginAndTheOwnChange)
{
    WriteColor(3);

    EXPECT_THAT(Steps(), ElementsAre("panel.ModifyStyles", "modifier.Begin",                     //
                                     "first.ModifyStyles", "modifier.Begin", "modifier.Modify",  //
                                     "modifier.End",                                             //
                                     "second.ModifyStyles", "modifier.Begin", "modifier.Modify", //
                                     "modifier.End",                                             //
                                     "modifier.Modify", "modifier.End"));
    EXPECT_THAT(Written(), ElementsAre("[a.fill]", "[b.fill]", "[own.fill]"));
}

TEST_F(SiblingForwarding, HandsOnThePathsTheChangeAndTheOverridePaths)
{
    const PropertyPaths overridePaths = Paths({L"color", L"type"});

    WriteColor(3, &overridePaths);

    EXPECT_THAT(
        log.LinesOf({"first.ModifyStyles", "second.ModifyStyles"}),
        ElementsAre("first.ModifyStyles(paths=[color], fill{color=3}, overridePaths=[color, type])",
                    "second.ModifyStyles(paths=[color], fill{color=3}, overridePaths=[color, type])"));
    EXPECT_EQ(modifier.Last().changeStyle, "fill{color=3}") << "the own change is still whole";
}

TEST_F(SiblingForwarding, HandsOnAMissingOverrideListAsMissing)
{
    WriteColor(3);

    EXPECT_THAT(log.LinesOf({"first.ModifyStyles"}),
                ElementsAre("first.ModifyStyles(paths=[color], fill{color=3}, overridePaths=null)"));
}

TEST_F(SiblingForwarding, HandsOnACopyToEachWhileTheChangeLivesOn)
{
    std::vector<std::size_t> alive;
    const std::size_t before = CountLiveStyles();
    log.onLine = [&](const std::string& line)
    {
        if (line.starts_with("modifier.Modify"))
            alive.push_back(CountLiveStyles() - before);
    };

    WriteColor(3);

    EXPECT_THAT(alive, ElementsAre(2U, 2U, 1U)) << "the change and one copy at a time, then the change alone";
}

TEST_F(SiblingForwarding, HandsOnNullForAMissingChange)
{
    panel.ModifyStyles(Paths({L"color"}), nullptr, nullptr);

    EXPECT_THAT(log.LinesOf({"first.ModifyStyles", "second.ModifyStyles"}),
                ElementsAre("first.ModifyStyles(paths=[color], null, overridePaths=null)",
                            "second.ModifyStyles(paths=[color], null, overridePaths=null)"));
}

TEST_F(SiblingForwarding, HandsOnACopyWithTheParentOfTheChange)
{
    auto change = Change(3);
    change->SetParent(&FillOf(own));

    panel.ModifyStyles(Paths({L"color"}), std::move(change), nullptr);

    EXPECT_THAT(log.LinesOf({"first.ModifyStyles"}),
                ElementsAre("first.ModifyStyles(paths=[color], fill{color=3} with a parent, "
                            "overridePaths=null)"));
}

TEST_F(SiblingForwarding, LetsTheSiblingWrapForItsOwnTargets)
{
    Target(first, {&a});

    WriteColor(3);

    ASSERT_THAT(modifier.changes, SizeIs(3));
    EXPECT_EQ(modifier.changes[0].changeStyle, "style{fill.color=3}");
    EXPECT_EQ(modifier.changes[2].changeStyle, "fill{color=3}");
}

TEST_F(SiblingForwarding, GoesToNobodyWhenAsManyAreOwnAsAreShown)
{
    Target(first, {});
    Target(second, {});
    Target(panel, {&FillOf(own)});
    log.Clear();

    WriteColor(3);

    EXPECT_THAT(Entered(), ElementsAre("panel.ModifyStyles"));
}

TEST_F(SiblingForwarding, GoesToNobodyBeforeTheirTargetsWereMerged)
{
    panel.UnregisterSiblingDS(&first);
    panel.UnregisterSiblingDS(&second);
    Target(panel, {&FillOf(own)});
    panel.RegisterSiblingDS(&first);
    log.Clear();

    WriteColor(3);

    EXPECT_THAT(Entered(), ElementsAre("panel.ModifyStyles"));
}

TEST_F(SiblingForwarding, GoesToNobodyFromDefaultStyles)
{
    source.defaultStyles = {&own};
    Target(panel, {&own}, /*isDefault=*/true);
    log.Clear();

    WriteColor(3);

    EXPECT_THAT(Entered(), ElementsAre("panel.ModifyStyles"));
    EXPECT_EQ(Describe(&own), "style{fill.color=3}");
}

TEST_F(SiblingForwarding, GoesToNobodyPastAnApplicator)
{
    InstallApplicator();

    WriteColor(3);

    EXPECT_THAT(Steps(), ElementsAre("panel.ModifyStyles", "modifier.Begin", "applicator.ModifyStyles",
                                     "modifier.End"));
}

TEST_F(SiblingForwarding, GoesToAllOfThemWhereOneAddedTargets)
{
    Target(first, {});
    Target(panel, {&FillOf(own)});
    log.Clear();

    WriteColor(3);

    EXPECT_THAT(Entered(), ElementsAre("panel.ModifyStyles", "first.ModifyStyles", "second.ModifyStyles"));
    EXPECT_THAT(Written(), ElementsAre("[b.fill]", "[own.fill]"));
}

TEST_F(SiblingForwarding, GoesOnWithoutOwnTargets)
{
    Target(panel, {});
    log.Clear();

    WriteColor(3);

    EXPECT_THAT(Written(), ElementsAre("[a.fill]", "[b.fill]"));
}

TEST_F(SiblingForwarding, GoesOnWithoutASource)
{
    app.source = nullptr;

    WriteColor(3);

    EXPECT_THAT(Entered(), ElementsAre("panel.ModifyStyles", "first.ModifyStyles", "second.ModifyStyles"));
    EXPECT_THAT(Written(), IsEmpty());
}

TEST_F(SiblingForwarding, PassesOverOneThatHasComeToDefaultStyles)
{
    source.defaultStyles = {&a};
    Target(first, {&a}, /*isDefault=*/true);
    log.Clear();

    WriteColor(3);

    EXPECT_THAT(Entered(), ElementsAre("panel.ModifyStyles", "second.ModifyStyles"));
    EXPECT_EQ(Describe(&a), "style{}");
}

TEST_F(SiblingForwarding, PassesOverOneThatServesObjectProperties)
{
    HostPieces::UserInterface userInterface;
    userInterface.SetObjectPropertiesContext(&context);
    hostObject.applicator = nullptr;
    first.SetDataSourceProvider(&context);
    first.PostConstruct();

    WriteColor(3);

    EXPECT_THAT(Entered(), ElementsAre("panel.ModifyStyles", "second.ModifyStyles"));
}

TEST_F(SiblingForwarding, PassesOverNullAndThePanelItself)
{
    panel.UnregisterSiblingDS(&second);
    panel.RegisterSiblingDS(nullptr);
    panel.RegisterSiblingDS(&panel);
    panel.RegisterSiblingDS(&second);

    WriteColor(3);

    EXPECT_THAT(Entered(), ElementsAre("panel.ModifyStyles", "first.ModifyStyles", "second.ModifyStyles"));
}

TEST_F(SiblingForwarding, GoesTwiceToOneThatIsRegisteredTwice)
{
    panel.RegisterSiblingDS(&first);

    WriteColor(3);

    EXPECT_THAT(Written(), ElementsAre("[a.fill]", "[b.fill]", "[a.fill]", "[own.fill]"));
}

TEST_F(SiblingForwarding, SkipsOneThatIsUnregisteredMeanwhile)
{
    log.onLine = [this](const std::string& line)
    {
        if (line.starts_with("first.ModifyStyles"))
            panel.UnregisterSiblingDS(&second);
    };

    WriteColor(3);

    EXPECT_THAT(Written(), ElementsAre("[a.fill]", "[own.fill]"));
}

TEST_F(SiblingForwarding, ReachesOneThatIsRegisteredMeanwhile)
{
    panel.UnregisterSiblingDS(&second);
    log.onLine = [this](const std::string& line)
    {
        if (line.starts_with("first.ModifyStyles"))
            panel.RegisterSiblingDS(&second);
    };

    WriteColor(3);

    EXPECT_THAT(Written(), ElementsAre("[a.fill]", "[b.fill]", "[own.fill]"));
}

} // namespace
