// What is asked of whom when targets are handed in, in which order, and what can be seen meanwhile.

#include "tests/datasource/support/HostedTest.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// New targets with everything there is to ask: an own target in a named style, and a sibling.
class NewTargets : public HostedTest
{
protected:
    NewTargets()
    {
        NameInSheet(L"Old", old);
        NameInSheet(L"Base", base);
        Target(sibling, {&line});
        panel.SetTargetStyle({&old}, /*isDefault=*/true, PropertyPath(), {Path({L"type"})});
        panel.RegisterSiblingDS(&sibling);
        panel.ListenTo({L"SectionTitle"});
        log.Clear();
    }

    /// Runs `look` at the first call whose line begins like that, once.
    void AtFirst(const std::string& beginning, std::function<void()> look)
    {
        log.onLine = [this, beginning, look = std::move(look)](const std::string& call)
        {
            if (!call.starts_with(beginning))
                return;
            log.onLine = nullptr;
            look();
            ++looks;
        };
    }

    void HandIn(bool isDefault = false)
    {
        panel.SetTargetStyle({&box}, isDefault, PropertyPath(), {Path({L"color"})});
        EXPECT_LE(looks, 1);
    }

    int looks = 0;
    Style& base = styles.WithFill("base");
    Style& box = styles.WithFill("box", &base);
    Style& line = styles.WithFill("line");
    Style& old = styles.WithFill("old", &base);
    RecordingPanel sibling{log, "sibling"};
};

TEST_F(NewTargets, AskSourceThenTitleThenSiblingsThenStyleNameThenTell)
{
    HandIn();

    EXPECT_THAT(log.LinesBut({"panel.SetTargetStyle", "panel.GetCategory", "sibling.GetCategory"}),
                ElementsAre("app.GetActiveStyleSourceProvider()",
                            "source.ShouldIgnoreCharacterStyleSiblings()", "panel.GetTargetStyle(0)",
                            "app.GetActiveStyleSourceProvider()", "source.GetStyleSheet()",
                            "sheet.GetStyleName(null)", "sheet.GetStyleName(base)",
                            "stylesApp.GetDisplayStyleName(Base)", "sibling.GetNumTargetStyles()",
                            "sibling.GetTargetStyle(0)", "sibling.GetNumTargetStyles()",
                            "app.GetActiveStyleSourceProvider()", "source.GetStyleSheet()",
                            "sheet.GetStyleName(box)", "notify SectionTitle"));
}

TEST_F(NewTargets, HaveNewForcedPathsAndAStillUnknownParentWhenTheSourceIsAsked)
{
    AtFirst("source.ShouldIgnoreCharacterStyleSiblings",
            [this]
            {
                EXPECT_THAT(panel.GetAmbiguousForce(), ElementsAre(Path({L"color"})));
                EXPECT_FALSE(panel.AreTargetsDefaultStyles());
                EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&old))
                    << "the targets are still the old ones";
                EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>") << "and so is the title";
                EXPECT_FALSE(panel.IsObjectStyle()) << "and the style name";
            });

    HandIn();

    EXPECT_EQ(looks, 1);
}

TEST_F(NewTargets, AskForTheCategoryAfterTheSourceAndBeforeTheTargetsChange)
{
    AtFirst("panel.GetCategory",
            [this]
            {
                EXPECT_THAT(log.LinesOf({"source."}),
                            ElementsAre("source.ShouldIgnoreCharacterStyleSiblings()"));
                EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&old));
                EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>");
            });

    HandIn();

    EXPECT_EQ(looks, 1);
}

TEST_F(NewTargets, AreTheOwnOnesWithoutATitleWhenTheFirstIsAskedFor)
{
    AtFirst("panel.GetTargetStyle(0)",
            [this]
            {
                EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&box));
                EXPECT_EQ(panel.GetSectionTitle(), L"Fill")
                    << "an empty title is filled with the category's name";
                EXPECT_FALSE(panel.IsObjectStyle()) << "the style name is still the old one";
            });

    HandIn();

    EXPECT_EQ(looks, 1);
    EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>");
}

TEST_F(NewTargets, HaveTheirTitleAndNoStyleNameWhenTheSiblingIsAsked)
{
    AtFirst("sibling.GetNumTargetStyles",
            [this]
            {
                EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>");
                EXPECT_TRUE(panel.IsObjectStyle());
                EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&box));
            });

    HandIn();

    EXPECT_EQ(looks, 1);
}

TEST_F(NewTargets, ThatAreDefaultStylesAreAwayWhileTheSiblingIsAsked)
{
    AtFirst("sibling.GetNumTargetStyles", [this] { EXPECT_THAT(panel.GetTargetStyles(), IsEmpty()); });

    HandIn(/*isDefault=*/true);

    EXPECT_EQ(looks, 1);
}

TEST_F(NewTargets, AreMergedWhenTheStyleNameIsAskedFor)
{
    AtFirst("sheet.GetStyleName(box)",
            [this] { EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&box, &FillOf(line))); });

    HandIn();

    EXPECT_EQ(looks, 1);
}

TEST_F(NewTargets, AreSettledWhenListenersAreTold)
{
    NameInSheet(L"Box", box);
    AtFirst("notify SectionTitle",
            [this]
            {
                EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>");
                EXPECT_EQ(panel.IsStyle(), 1);
                EXPECT_THAT(panel.GetTargetStyles(), SizeIs(2));
                EXPECT_EQ(panel.GetActivePropertyState(L"color"), ActivePropertyState::AmbiguousParent);
            });

    HandIn();

    EXPECT_EQ(looks, 1);
}

TEST_F(NewTargets, HaveNoForcedPathsLeftFromBefore)
{
    panel.ImportForceAmbiguous(PropertyPath(), {Path({L"gradient"})});

    HandIn();

    EXPECT_THAT(panel.GetAmbiguousForce(), ElementsAre(Path({L"color"})));
}

TEST_F(NewTargets, AreMergedThroughTheirOwnOperationsInAnOverridingPanel)
{
    panel.givesTargetStyle = [](std::size_t) { return nullptr; };

    HandIn();

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill")
        << "the style that the title asks about is the panel's answer";
}

} // namespace
