#include "apps/cli/TextReport.h"

#include "reference_host/resources/Language.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

using Cli::Colouring;
using Cli::LayOut;
using Cli::ReportToText;
using Cli::StylesToText;
using Workbench::NamedStyleFacts;
using Workbench::NumberRange;
using Workbench::NumberUnit;
using Workbench::PanelDescription;
using Workbench::Report;
using Workbench::RowDescription;
using Workbench::RowOrigin;
using Workbench::RowReport;

namespace
{

/// A report of one panel with one row, which tests change.
class OneRowReport : public testing::Test
{
protected:
    OneRowReport()
    {
        panel.rows.push_back(RowDescription());
        panel.rows[0].label = L"Paint";
        report.selector = L"all";
        report.panels.resize(1);
        report.panels[0].description = &panel;
        report.panels[0].title = L"Colours";
        report.panels[0].hasTargets = true;
        report.panels[0].rows.resize(1);
        Row().description = &panel.rows[0];
        Row().image = L"NoneImage";
    }

    RowReport& Row() { return report.panels[0].rows[0]; }

    [[nodiscard]] std::string Text() const { return LayOut(ReportToText("a.fodg", report), Colouring::Off); }

    PanelDescription panel;
    Report report;
};

NamedStyleFacts NamedStyle(const wchar_t* name, const wchar_t* parent)
{
    NamedStyleFacts facts;
    facts.name = name;
    facts.displayName = name;
    facts.parent = parent;
    facts.category = L"style";
    return facts;
}

} // namespace

TEST_F(OneRowReport, HasALineForARowWithIconLabelValueAndState)
{
    Row().image = L"OverriddenImage";
    Row().state = ActivePropertyState::Overridden;
    Row().origin = {RowOrigin::Kind::Local, {}};
    Row().value = OvxStringT(L"#3366cc");

    EXPECT_EQ(Text(), "a.fodg: all\n\nColours\n  ●  Paint  #3366cc  local\n");
}

TEST_F(OneRowReport, NamesThePaletteEntryBesideTheColour)
{
    Row().value = OvxStringT(L"#3366cc");
    Row().link = L"Sea";

    EXPECT_THAT(Text(), testing::HasSubstr("  ·  Paint  #3366cc (Sea)  no parent\n"));
}

TEST_F(OneRowReport, NamesTheStyleThatSetsTheValue)
{
    Row().image = L"InheritedImage";
    Row().state = ActivePropertyState::Inherited;
    Row().origin = {RowOrigin::Kind::Style, L"Base"};
    Row().value = OvxStringT(L"#3366cc");

    EXPECT_THAT(Text(), testing::HasSubstr("  ○  Paint  #3366cc  inherited from Base\n"));
}

TEST_F(OneRowReport, TellsWhereAValueComesFromThatIsNeitherInheritedNorOverriding)
{
    Row().value = 1;
    Row().origin = {RowOrigin::Kind::Local, {}};
    EXPECT_THAT(Text(), testing::HasSubstr("  ·  Paint  1  no parent (local)\n"));

    Row().origin = {RowOrigin::Kind::Default, {}};
    EXPECT_THAT(Text(), testing::HasSubstr("  ·  Paint  1  no parent (default)\n"));
}

TEST_F(OneRowReport, SaysThatTargetsDiffer)
{
    Row().image = L"AmbiguousImage";
    Row().state = ActivePropertyState::Ambiguous;
    Row().isAmbiguous = true;

    EXPECT_THAT(Text(), testing::HasSubstr("  ◐  Paint  ambiguous  ambiguous\n"));
}

TEST_F(OneRowReport, SaysThatNothingSetsAValue)
{
    EXPECT_THAT(Text(), testing::HasSubstr("  ·  Paint  not set  no parent\n"));
}

TEST_F(OneRowReport, ShowsTheAmpersandsOfATitleOnce)
{
    report.panels[0].title = L"Ink && Paint";

    EXPECT_THAT(Text(), testing::HasSubstr("\nInk & Paint\n"));
}

TEST_F(OneRowReport, HasNoRowsForAPanelWithoutTargets)
{
    report.panels[0].hasTargets = false;

    EXPECT_EQ(Text(), "a.fodg: all\n\nColours\n  nothing to show\n");
}

TEST_F(OneRowReport, DescribesASingleObjectAndCountsMore)
{
    report.panels.clear();
    report.targets.push_back({L"1/4/2", L"Box", L"rect", L"Accent", {L"Base", L"standard"}, 2});
    EXPECT_EQ(Text(), "a.fodg: 1/4/2 rect \"Box\": Accent < Base < standard\n");

    report.targets.push_back(report.targets[0]);
    EXPECT_EQ(Text(), "a.fodg: all (2 objects)\n");
}

TEST_F(OneRowReport, DescribesAnObjectWithoutNameAndStyle)
{
    report.panels.clear();
    report.targets.push_back({L"1/1", L"", L"line", L"", {}, 0});

    EXPECT_EQ(Text(), "a.fodg: 1/1 line\n");
}

TEST_F(OneRowReport, FollowsTheLanguageInForce)
{
    Row().value = 350;
    panel.rows[0].range = NumberRange{NumberUnit::Millimetre, 0, 1};
    ReferenceHost::SetLanguage("de");

    const std::string text = Text();
    ReferenceHost::SetLanguage("en");

    EXPECT_THAT(text, testing::HasSubstr("  ·  Paint  3,5 mm  keine übergeordnete Vorlage\n"));
}

TEST(StyleTree, PutsEachStyleUnderTheOneItInheritsFrom)
{
    std::vector<NamedStyleFacts> styles = {NamedStyle(L"Accent", L"Base"), NamedStyle(L"standard", L""),
                                           NamedStyle(L"Base", L"standard"), NamedStyle(L"Other", L"")};
    styles[0].users = 12;
    styles[2].own = {L"fill.color", L"outline.width"};

    EXPECT_EQ(LayOut(StylesToText(styles), Colouring::Off),
              "Style       Category  Used by  Sets\n"
              "standard    style     0\n"
              "  Base      style     0        fill.color, outline.width\n"
              "    Accent  style     12\n"
              "Other       style     0\n");
}

TEST(StyleTree, NamesDisplayNamesAndExternalStyles)
{
    NamedStyleFacts style = NamedStyle(L"Mid One", L"");
    style.displayName = L"Middle";
    style.isExternal = true;

    EXPECT_THAT(LayOut(StylesToText({style}), Colouring::Off),
                testing::HasSubstr("\nMid One (Middle) [external]  style"));
}

TEST(StyleTree, TellsStylesOfOneNameApartByTheirSheets)
{
    std::vector<NamedStyleFacts> styles = {NamedStyle(L"Box", L"Child"), NamedStyle(L"Box", L""),
                                           NamedStyle(L"Child", L"Box")};
    styles[0].parentSheet = L"House";
    for (const std::size_t external : {1U, 2U})
    {
        styles[external].sheet = L"House";
        styles[external].isExternal = true;
    }
    styles[2].parentSheet = L"House";

    EXPECT_EQ(LayOut(StylesToText(styles), Colouring::Off), "Style               Category  Used by  Sets\n"
                                                            "Box [external]      style     0\n"
                                                            "  Child [external]  style     0\n"
                                                            "    Box             style     0\n");
}

TEST(StyleTree, WalksLongChains)
{
    std::vector<NamedStyleFacts> styles;
    for (int i = 0; i < 300; ++i)
        styles.push_back(
            NamedStyle(std::to_wstring(i).c_str(), i == 0 ? L"" : std::to_wstring(i - 1).c_str()));

    const std::vector<Cli::TextLine> lines = StylesToText(styles);

    ASSERT_EQ(lines.size(), 301U);
    EXPECT_EQ(lines[300].indent, 598U);
}
