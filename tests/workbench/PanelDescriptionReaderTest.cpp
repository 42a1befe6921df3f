#include "apps/workbench/PanelDescriptionReader.h"

#include "reference_host/document/DocumentError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using ReferenceHost::DocumentError;
using ReferenceHost::PropertyCodec;
using ReferenceHost::PropertyElement;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::SizeIs;
using Workbench::ControlKind;
using Workbench::NumberUnit;
using Workbench::PanelDescription;
using Workbench::ParsePanelDescription;
using Workbench::RowDescription;
using Workbench::TargetKind;
using Workbench::ValueKind;

namespace
{

const std::string kHead =
    R"(<panel name="shadow" module="shadow-panel" class="ShadowDatasource" title="Shadow")"
    R"( order="7" category="shadow" targets="objects">)";

const std::string kTextRow =
    R"(<row identifier="note" property="ShadowNote" label="Note" control="text" kind="text" order="1"/>)";

std::string Panel(const std::string& content)
{
    return kHead + content + "</panel>";
}

std::string Row(const std::string& attributes, const std::string& content = {})
{
    return "<row identifier=\"a\" property=\"A\" label=\"l\" order=\"1\" " + attributes + ">" + content +
           "</row>";
}

std::string Category(const std::string& content)
{
    return R"(<category name="shadow" title="Shadow">)" + content + "</category>";
}

PanelDescription Parse(const std::string& text)
{
    return ParsePanelDescription(text, "dir/shadow.panel.xml");
}

std::string ErrorOf(const std::string& text)
{
    try
    {
        static_cast<void>(Parse(text));
    }
    catch (const DocumentError& error)
    {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(PanelDescription, TellsTheAttributesOfThePanel)
{
    const PanelDescription panel = Parse(Panel(""));

    EXPECT_EQ(panel.file, "dir/shadow.panel.xml");
    EXPECT_EQ(panel.name, L"shadow");
    EXPECT_EQ(panel.module, L"shadow-panel");
    EXPECT_EQ(panel.className, L"ShadowDatasource");
    EXPECT_EQ(panel.title, L"Shadow");
    EXPECT_EQ(panel.order, 7);
    EXPECT_EQ(panel.category, L"shadow");
    EXPECT_EQ(panel.targets, TargetKind::Objects);
    EXPECT_THAT(panel.rows, IsEmpty());
    EXPECT_FALSE(panel.ownCategory.has_value());
}

TEST(PanelDescription, MaySetAByteOrderMarkAndAnXmlDeclarationInFront)
{
    EXPECT_EQ(Parse("\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<!-- ours -->\n" + Panel("<!-- no rows -->")).name,
              L"shadow");
}

TEST(PanelDescription, ShowsRowsByTheirOrderAndEqualOnesAsInTheFile)
{
    const auto row = [](const std::string& name, const std::string& order)
    {
        return "<row identifier=\"" + name + "\" property=\"P" + name +
               "\" label=\"l\" control=\"text\" kind=\"text\"" + " order=\"" + order + "\"/>";
    };

    const PanelDescription panel =
        Parse(Panel(row("late", "20") + row("b", "10") + row("a", "10") + row("first", "-1")));

    EXPECT_THAT(panel.rows, ElementsAre(Field(&RowDescription::identifier, OvxStringT(L"first")),
                                        Field(&RowDescription::identifier, OvxStringT(L"b")),
                                        Field(&RowDescription::identifier, OvxStringT(L"a")),
                                        Field(&RowDescription::identifier, OvxStringT(L"late"))));
}

TEST(PanelDescription, TellsWhatANumberControlOffers)
{
    const PanelDescription panel =
        Parse(Panel(Row(R"(control="number" kind="length" unit="cm" minimum="-5" maximum="250")")));

    ASSERT_THAT(panel.rows, SizeIs(1));
    EXPECT_EQ(panel.rows[0].control, ControlKind::Number);
    EXPECT_EQ(panel.rows[0].kind, ValueKind::Length);
    ASSERT_TRUE(panel.rows[0].range.has_value());
    EXPECT_EQ(panel.rows[0].range->unit, NumberUnit::Centimetre);
    EXPECT_EQ(panel.rows[0].range->minimum, -5);
    EXPECT_EQ(panel.rows[0].range->maximum, 250);
}

TEST(PanelDescription, TellsTheChoicesOfARowInOrder)
{
    const PanelDescription panel =
        Parse(Panel(Row(R"(control="switch" kind="choice")",
                        R"(<choice value="off" label="Aus"/><choice value="on" label="An"/>)")));

    ASSERT_THAT(panel.rows, SizeIs(1));
    EXPECT_EQ(panel.rows[0].control, ControlKind::Switch);
    ASSERT_THAT(panel.rows[0].choices, SizeIs(2));
    EXPECT_EQ(panel.rows[0].choices[0].value, L"off");
    EXPECT_EQ(panel.rows[0].choices[1].label, L"An");
}

TEST(PanelDescription, MapsTheCategoryThatThePanelBrings)
{
    const PanelDescription panel = Parse(Panel(Category(
        R"(<map key="shown" element="graphic-properties" attribute="draw:shadow" codec="choice">)"
        R"(<choice text="visible" value="on"/></map>)"
        R"(<map key="look" element="text-properties" attribute="svg:look" codec="style-name" definition="gradient"/>)")));

    ASSERT_TRUE(panel.ownCategory.has_value());
    EXPECT_EQ(panel.ownCategory->title, L"Shadow");
    ASSERT_THAT(panel.ownCategory->mappings, SizeIs(2));
    const ReferenceHost::PropertyMapping& shown = panel.ownCategory->mappings[0];
    EXPECT_EQ(shown.category.GetString(), L"shadow");
    EXPECT_EQ(shown.key.GetString(), L"shown");
    EXPECT_EQ(shown.element, PropertyElement::Graphic);
    EXPECT_EQ(shown.namespaceUri, "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0");
    EXPECT_EQ(shown.attribute, "shadow");
    EXPECT_EQ(shown.codec, PropertyCodec::Choice);
    ASSERT_THAT(shown.choices, SizeIs(1));
    EXPECT_EQ(shown.choices[0].text, "visible");
    EXPECT_EQ(shown.choices[0].meaning, "on");
    EXPECT_EQ(panel.ownCategory->mappings[1].definition, "gradient");
}

struct BadDescription
{
    const char* name;
    std::string text;
    std::string error;
};

class BadPanelDescription : public testing::TestWithParam<BadDescription>
{
};

TEST_P(BadPanelDescription, IsRefusedWithLineElementAndWhatWasExpected)
{
    EXPECT_EQ(ErrorOf(GetParam().text), "dir/shadow.panel.xml, " + GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, BadPanelDescription,
    testing::Values(
        BadDescription{"OtherRoot", "<panels/>",
                       "line 1, <panels>: this is no panel description; expected the element <panel>"},
        BadDescription{
            "UnknownAttribute", Panel("\n<row identifer=\"a\"/>"),
            "line 2, <row>: unknown attribute \"identifer\"; expected only \"identifier\", \"property\", "
            "\"label\", \"control\", \"kind\", \"unit\", \"minimum\", \"maximum\", \"order\""},
        BadDescription{"UnknownElement", Panel("\n\n<line/>"),
                       "line 3, <line>: unknown element; expected only \"category\", \"row\""},
        BadDescription{"TextInside", Panel("rows"),
                       "line 1, <panel>: it holds a text; expected elements and attributes only"},
        BadDescription{"MissingAttribute", Panel("<row/>"),
                       "line 1, <row>: attribute \"identifier\" is missing; expected the attribute"},
        BadDescription{"EmptyAttribute", Panel("<row identifier=\"\"/>"),
                       "line 1, <row>: attribute \"identifier\" is empty; expected a text"},
        BadDescription{
            "UnknownWord", Panel(Row(R"(control="slider" kind="text")")),
            "line 1, <row>: attribute \"control\" is \"slider\"; expected one of \"colour\", \"number\", "
            "\"choice\", \"switch\", \"text\""},
        BadDescription{"KindThatTheControlIsNotFor", Panel(Row(R"(control="colour" kind="text")")),
                       "line 1, <row>: attribute \"kind\" is \"text\"; expected one of \"colour\""},
        BadDescription{"UnitThatTheKindDoesNotHave",
                       Panel(Row(R"(control="number" kind="percent" unit="mm" minimum="0" maximum="1")")),
                       "line 1, <row>: attribute \"unit\" is \"mm\"; expected one of \"%\""},
        BadDescription{"NumberWithAFraction",
                       Panel(Row(R"(control="number" kind="percent" unit="%" minimum="0.5" maximum="1")")),
                       "line 1, <row>: attribute \"minimum\" is \"0.5\"; expected a whole number"},
        BadDescription{"EmptyRange",
                       Panel(Row(R"(control="number" kind="percent" unit="%" minimum="2" maximum="1")")),
                       "line 1, <row>: \"minimum\" is above \"maximum\"; expected a range"},
        BadDescription{
            "RangeOfAText", Panel(Row(R"(control="text" kind="text" unit="mm")")),
            "line 1, <row>: attribute \"unit\" stands here; expected it with the control \"number\" only"},
        BadDescription{"SwitchWithOneChoice",
                       Panel(Row(R"(control="switch" kind="choice")", R"(<choice value="a" label="a"/>)")),
                       "line 1, <row>: a switch with 1 choices; expected two, the first for off"},
        BadDescription{"ChoiceWithoutChoices", Panel(Row(R"(control="choice" kind="choice")")),
                       "line 1, <row>: it has no choices; expected at least one <choice>"},
        BadDescription{
            "ChoicesOfAText", Panel(Row(R"(control="text" kind="text")", R"(<choice value="a" label="a"/>)")),
            "line 1, <row>: it has choices; expected them with the controls \"choice\" and \"switch\" only"},
        BadDescription{
            "ChoiceTwice",
            Panel(Row(R"(control="choice" kind="choice")",
                      "<choice value=\"a\" label=\"a\"/>\n<choice value=\"a\" label=\"b\"/>")),
            "line 2, <choice>: the row has a choice with this value already; expected each value once"},
        BadDescription{
            "IdentifierTwice", Panel(kTextRow + "\n" + kTextRow),
            "line 2, <row>: the panel has a row with this identifier already; expected each identifier once"},
        BadDescription{"SecondCategory", Panel("<category/>\n<category/>"),
                       "line 2, <category>: a second category; expected at most one in a panel"},
        BadDescription{"CategoryOfAnotherName", Panel("<category name=\"glow\" title=\"Glow\"/>"),
                       "line 1, <category>: its name is not the panel's category; expected \"shadow\""},
        BadDescription{"CategoryWithoutMaps", Panel(Category("")),
                       "line 1, <category>: it maps nothing; expected at least one <map>"},
        BadDescription{
            "MapToAnUnknownElement",
            Panel(Category(R"(<map key="k" element="properties" attribute="draw:k" codec="text"/>)")),
            "line 1, <map>: attribute \"element\" is \"properties\"; expected \"graphic-properties\", "
            "\"paragraph-properties\" or \"text-properties\""},
        BadDescription{
            "MapWithAnUnknownCodec",
            Panel(Category(R"(<map key="k" element="text-properties" attribute="draw:k" codec="angle"/>)")),
            "line 1, <map>: attribute \"codec\" is \"angle\"; expected one of the codecs, such as "
            "\"colour\", \"length\" or \"text\""},
        BadDescription{
            "MapWithAnUnknownPrefix",
            Panel(Category(R"(<map key="k" element="text-properties" attribute="odd:k" codec="text"/>)")),
            "line 1, <map>: attribute \"attribute\" is \"odd:k\"; expected an attribute with one of the "
            "prefixes draw, dr3d, fo, style, svg, table and text, as in draw:shadow"},
        BadDescription{
            "MapWithoutAPrefix",
            Panel(Category(R"(<map key="k" element="text-properties" attribute="draw" codec="text"/>)")),
            "line 1, <map>: attribute \"attribute\" is \"draw\"; expected an attribute with one of the "
            "prefixes draw, dr3d, fo, style, svg, table and text, as in draw:shadow"},
        BadDescription{
            "DefinitionOfAText",
            Panel(Category(R"(<map key="k" element="text-properties" attribute="fo:k" codec="text")"
                           R"( definition="hatch"/>)")),
            "line 1, <map>: attribute \"definition\" stands here; expected it with the codec "
            "\"style-name\" only"},
        BadDescription{
            "MappedChoicesOfAText",
            Panel(Category(R"(<map key="k" element="text-properties" attribute="fo:k" codec="text">)"
                           R"(<choice text="a" value="a"/></map>)")),
            "line 1, <map>: it has choices; expected them with the codec \"choice\" only"}),
    [](const auto& instance) { return std::string(instance.param.name); });

TEST(PanelDescription, RefusesNamesThatCannotBeTypedEasily)
{
    EXPECT_EQ(
        ErrorOf(
            R"(<panel name="My Panel" module="m" class="C" title="t" order="1" category="c" targets="runs"/>)"),
        "dir/shadow.panel.xml, line 1, <panel>: attribute \"name\" is \"My Panel\"; expected lower-case "
        "letters, "
        "digits and hyphens");
}

TEST(PanelDescription, RefusesModulesInOtherFolders)
{
    EXPECT_EQ(
        ErrorOf(
            R"(<panel name="p" module="../m" class="C" title="t" order="1" category="c" targets="runs"/>)"),
        "dir/shadow.panel.xml, line 1, <panel>: attribute \"module\" is \"../m\"; expected the name of a "
        "file in "
        "the description's folder, without prefix and suffix");
}

TEST(PanelDescription, RefusesTextThatIsNoXml)
{
    EXPECT_THAT(ErrorOf("<panel name=\"p\">\n<row>"), testing::StartsWith("dir/shadow.panel.xml, line 2"));
}

TEST(PanelDescription, RefusesAnAttributeThatStandsTwice)
{
    EXPECT_THAT(ErrorOf("<panel name=\"p\" name=\"q\"/>"),
                testing::StartsWith("dir/shadow.panel.xml, line 1"));
}

TEST(PanelDescription, ThatCannotBeReadIsAnError)
{
    EXPECT_THROW(static_cast<void>(Workbench::ReadPanelDescription("no/such.panel.xml")), DocumentError);
}
