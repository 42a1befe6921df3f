#include "apps/workbench/PanelReading.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/data_binding/ID_CString.h"
#include "host/style_model/PropertyKey.h"
#include "reference_host/document/DocumentError.h"
#include "tests/reference_host/data_binding/BoundNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <typeinfo>

using ReferenceHost::DocumentError;
using testing::ElementsAre;
using testing::SizeIs;
using Workbench::ParseOrigin;
using Workbench::ReportValue;
using Workbench::RowOrigin;
using Workbench::ToReportValue;

namespace
{

/// A panel with one row, whose answers a test sets.
class OneRowPanel : public IReflectable
{
public:
    OneRowPanel()
    {
        BoundNames::AddWritable<OvxStringT>(
            *this, L"ActiveIdentifier", [this] { return activeIdentifier; },
            [this](const OvxStringT& identifier) { activeIdentifier = identifier; });
        BoundNames::AddReadOnly<OvxStringT>(*this, L"SectionTitle",
                                            [] { return OvxStringT(L"Paint && Ink"); });
        BindQuestion(L"PropertyIcon", L"picture of ");
        BindQuestion(L"PropertyTooltip", L"words about ");
        BoundNames::AddReadOnly<OvxUtils::Any>(*this, L"Paint", [this] { return value; });
        BoundNames::AddReadOnly<int>(*this, L"PaintState", [this] { return state; });
        BoundNames::AddReadOnly<int>(*this, L"PaintAmbiguous", [this] { return ambiguous; });
        BoundNames::AddReadOnly<OvxStringT>(*this, L"PaintOrigin", [this] { return origin; });
        BoundNames::AddReadOnly<OvxStringT>(*this, L"PaintLink",
                                            [this]
                                            {
                                                ++linkReads;
                                                return link;
                                            });
        description.file = "paint.panel.xml";
        description.rows.resize(1);
        description.rows[0].identifier = L"paint";
        description.rows[0].property = L"Paint";
    }

    [[nodiscard]] Workbench::PanelReport Report()
    {
        return Workbench::ReadPanel(*this, description, {true, false, L"Base"});
    }

    [[nodiscard]] Workbench::RowReport Row() { return Report().rows.at(0); }

    [[nodiscard]] std::string Error()
    {
        try
        {
            static_cast<void>(Report());
        }
        catch (const DocumentError& error)
        {
            return error.what();
        }
        return "no error";
    }

    OvxStringT activeIdentifier = L"something";
    OvxUtils::Any value;
    int state = 0;
    int ambiguous = 0;
    OvxStringT origin;
    OvxStringT link;
    int linkReads = 0;
    Workbench::PanelDescription description;

private:
    /// The answer goes into the value that the asker holds, as the library does it.
    void BindQuestion(const OvxStringT& name, const OvxStringT& answer)
    {
        BoundNames::AddWritable<OvxUtils::Any>(
            *this, name, [] { return OvxUtils::Any(); },
            [answer](const OvxUtils::Any& question)
            {
                const auto& held = question.Get<ID_CString>();
                const_cast<ID_CString&>(held).result = answer + held.identifier;
            });
    }
};

OvxUtils::Any Choice(const wchar_t* text)
{
    return OvxUtils::Any(Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text)));
}

} // namespace

TEST(ReportValue, IsNothingForAnEmptyValue)
{
    EXPECT_EQ(ToReportValue(OvxUtils::Any()), ReportValue());
}

TEST(ReportValue, KeepsNumbersAndTexts)
{
    EXPECT_EQ(ToReportValue(OvxUtils::Any(-12)), ReportValue(-12));
    EXPECT_EQ(ToReportValue(OvxUtils::Any(OvxStringT(L"Sans"))), ReportValue(OvxStringT(L"Sans")));
}

TEST(ReportValue, IsTheTextOfAChoice)
{
    EXPECT_EQ(ToReportValue(Choice(L"solid")), ReportValue(OvxStringT(L"solid")));
}

TEST(ReportValue, WritesColoursWithSixLowerCaseDigits)
{
    EXPECT_EQ(ToReportValue(OvxUtils::Any(CLR_COLORSPEC::FromRgb({0x0A, 0xB0, 0xFF}))),
              ReportValue(OvxStringT(L"#0ab0ff")));
    EXPECT_EQ(ToReportValue(OvxUtils::Any(CLR_COLORSPEC::FromResource(L"Sea", {0x33, 0x66, 0xCC}))),
              ReportValue(OvxStringT(L"#3366cc")));
}

TEST(ReportValue, IsNoneForATypeThatNoRowHas)
{
    EXPECT_EQ(ToReportValue(OvxUtils::Any(0.5)), std::nullopt);
}

TEST(RowOrigin, IsReadFromItsText)
{
    EXPECT_EQ(ParseOrigin(L""), RowOrigin());
    EXPECT_EQ(ParseOrigin(L"local"), (RowOrigin{RowOrigin::Kind::Local, {}}));
    EXPECT_EQ(ParseOrigin(L"default"), (RowOrigin{RowOrigin::Kind::Default, {}}));
    EXPECT_EQ(ParseOrigin(L"style:style:local"), (RowOrigin{RowOrigin::Kind::Style, L"style:local"}));
    EXPECT_EQ(ParseOrigin(L"style:"), (RowOrigin{RowOrigin::Kind::Style, L""}));
    EXPECT_EQ(ParseOrigin(L"elsewhere"), std::nullopt);
}

TEST(StateName, IsTheNameOfTheEnumerator)
{
    EXPECT_EQ(Workbench::StateName(ActivePropertyState::None), L"None");
    EXPECT_EQ(Workbench::StateName(ActivePropertyState::Overridden), L"Overridden");
    EXPECT_EQ(Workbench::StateName(ActivePropertyState::Inherited), L"Inherited");
    EXPECT_EQ(Workbench::StateName(ActivePropertyState::Ambiguous), L"Ambiguous");
    EXPECT_EQ(Workbench::StateName(ActivePropertyState::AmbiguousParent), L"AmbiguousParent");
}

TEST(PanelRow, IsMadeOfAnswersThatWereGivenOnce)
{
    OneRowPanel panel;
    panel.link = L"Sea";

    const Workbench::RowReport row = panel.Row();

    EXPECT_EQ(row.link, L"Sea");
    EXPECT_EQ(panel.linkReads, 1);
}

TEST(PanelProperties, AreTheReadableNumbersAndTextsInOrder)
{
    OneRowPanel panel;
    BoundNames::AddCommand(panel, L"OnPaint", [] {});
    BoundNames::AddReadOnly<bool>(panel, L"IsWet", [] { return true; });
    BoundNames::AddReadOnly<unsigned>(panel, L"Coats", [] { return 2U; });
    panel.state = 3;

    const auto properties = Workbench::ReadProperties(panel);

    ASSERT_THAT(properties, SizeIs(6));
    EXPECT_EQ(properties[0].name, L"ActiveIdentifier");
    EXPECT_EQ(properties[1].name, L"SectionTitle");
    EXPECT_EQ(properties[1].value, ReportValue(OvxStringT(L"Paint && Ink")));
    EXPECT_EQ(properties[2].name, L"PaintState");
    EXPECT_EQ(properties[2].value, ReportValue(3));
    EXPECT_EQ(properties[5].name, L"PaintLink");
}

TEST(PanelProperties, CountAnEnableThatFailsForWantOfAColourAsNotEnabled)
{
    OneRowPanel panel;
    BoundNames::AddReadOnly<int>(panel, L"BreakEnable", []() -> int { throw std::bad_cast(); });

    const auto properties = Workbench::ReadProperties(panel);

    EXPECT_EQ(properties.back().name, L"BreakEnable");
    EXPECT_EQ(properties.back().value, ReportValue(0));
}

TEST(PanelReport, LeavesTheActiveIdentifierEmpty)
{
    OneRowPanel panel;

    const Workbench::PanelReport report = panel.Report();

    EXPECT_EQ(panel.activeIdentifier, L"");
    EXPECT_EQ(report.properties.at(0).value, ReportValue(OvxStringT()));
}

TEST(PanelReport, KeepsTheTitleAsTheLibraryGivesIt)
{
    OneRowPanel panel;

    const Workbench::PanelReport report = panel.Report();

    EXPECT_EQ(report.title, L"Paint && Ink");
    EXPECT_EQ(report.styleName, L"Base");
    EXPECT_TRUE(report.hasTargets);
    EXPECT_FALSE(report.isDefaults);
}

TEST(PanelReport, ReadsARowThroughItsBoundNames)
{
    OneRowPanel panel;
    panel.value = OvxUtils::Any(7);
    panel.state = 2;
    panel.origin = L"style:Base";
    panel.link = L"Sea";

    const Workbench::RowReport row = panel.Row();

    EXPECT_EQ(row.value, ReportValue(7));
    EXPECT_FALSE(row.isAmbiguous);
    EXPECT_EQ(row.state, ActivePropertyState::Inherited);
    EXPECT_EQ(row.origin, (RowOrigin{RowOrigin::Kind::Style, L"Base"}));
    EXPECT_EQ(row.link, L"Sea");
    EXPECT_EQ(row.image, L"picture of paint");
    EXPECT_EQ(row.tooltip, L"words about paint");
}

TEST(PanelReport, ShowsNoValueWhereTargetsDiffer)
{
    OneRowPanel panel;
    panel.value = OvxUtils::Any(7);
    panel.ambiguous = 1;

    const Workbench::RowReport row = panel.Row();

    EXPECT_TRUE(row.isAmbiguous);
    EXPECT_EQ(row.value, ReportValue());
}

TEST(PanelReport, RefusesAnswersThatNoPanelShouldGive)
{
    OneRowPanel oddState;
    oddState.state = 5;
    OneRowPanel oddOrigin;
    oddOrigin.origin = L"elsewhere";
    OneRowPanel oddValue;
    oddValue.value = OvxUtils::Any(0.5);

    EXPECT_EQ(oddState.Error(), "paint.panel.xml: the row paint answers the state 5; expected 0 to 4");
    EXPECT_EQ(oddOrigin.Error(),
              "paint.panel.xml: the row paint answers the origin \"elsewhere\"; expected \"local\", "
              "\"style:NAME\", \"default\" or nothing");
    EXPECT_EQ(oddValue.Error(),
              "paint.panel.xml: the row paint answers a value of an unknown type; expected a colour, "
              "number, choice or text");
}
