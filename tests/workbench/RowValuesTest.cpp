#include "apps/workbench/RowValues.h"

#include "apps/workbench/TargetHandover.h"
#include "apps/workbench/UsageError.h"
#include "tests/reference_host/document/FlatDrawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using OvxUtils::Any;
using testing::HasSubstr;
using Workbench::ControlKind;
using Workbench::NumberRange;
using Workbench::NumberUnit;
using Workbench::RowDescription;
using Workbench::UsageError;
using Workbench::ValueKind;

namespace
{

RowDescription RowOf(ValueKind kind)
{
    RowDescription row;
    row.kind = kind;
    return row;
}

RowDescription NumberRow(ValueKind kind, NumberUnit unit, int minimum, int maximum)
{
    RowDescription row = RowOf(kind);
    row.control = ControlKind::Number;
    row.range = NumberRange{unit, minimum, maximum};
    return row;
}

RowDescription LengthRow()
{
    return NumberRow(ValueKind::Length, NumberUnit::Millimetre, 0, 50'000);
}

RowDescription FontSizeRow()
{
    return NumberRow(ValueKind::FontSize, NumberUnit::Point, 10, 9'999);
}

RowDescription PercentRow()
{
    return NumberRow(ValueKind::Percent, NumberUnit::Percent, 0, 100);
}

RowDescription ChoiceRow()
{
    RowDescription row = RowOf(ValueKind::Choice);
    row.choices = {{L"none", L"None"}, {L"solid", L"Solid"}};
    return row;
}

class RowValue : public testing::Test
{
protected:
    [[nodiscard]] Any Parse(const RowDescription& row, const wchar_t* text) const
    {
        return Workbench::ParseRowValue(row, L"fill.it", text, *opened.drawing);
    }

    [[nodiscard]] std::string ErrorOf(const RowDescription& row, const wchar_t* text) const
    {
        try
        {
            static_cast<void>(Parse(row, text));
        }
        catch (const UsageError& error)
        {
            return error.what();
        }
        return "no error";
    }

    OpenedDrawing opened = FlatDrawing()
                               .Meta("<meta:user-defined meta:name='styleprops:palette:Sea Blue' "
                                     "meta:value-type='string'>#3366cc</meta:user-defined>")
                               .Page("")
                               .Open();
};

Any Plain(CLR_COLORSPEC::Rgb rgb)
{
    return Any(CLR_COLORSPEC::FromRgb(rgb));
}

} // namespace

TEST_F(RowValue, IsAColourBySixDigitsThreeOrAName)
{
    const RowDescription row = RowOf(ValueKind::Colour);

    EXPECT_EQ(Parse(row, L"#3366cc"), Plain({0x33, 0x66, 0xcc}));
    EXPECT_EQ(Parse(row, L"#3366CC"), Plain({0x33, 0x66, 0xcc}));
    EXPECT_EQ(Parse(row, L"#36c"), Plain({0x33, 0x66, 0xcc}));
    EXPECT_EQ(Parse(row, L"RebeccaPurple"), Plain({0x66, 0x33, 0x99}));
}

TEST_F(RowValue, IsNoColourInAnyOtherForm)
{
    const RowDescription row = RowOf(ValueKind::Colour);

    for (const wchar_t* text :
         {L"", L"#", L"#36", L"#3366c", L"#3366ccff", L"#gggggg", L"3366cc", L"#33 6cc"})
        EXPECT_THAT(ErrorOf(row, text),
                    HasSubstr("expected #rgb, #rrggbb, the name of a CSS colour, or palette:"))
            << text;
}

TEST_F(RowValue, RefersToAnEntryOfThePalette)
{
    const Any colour = Parse(RowOf(ValueKind::Colour), L"palette:Sea Blue");

    EXPECT_EQ(colour, Any(CLR_COLORSPEC::FromResource(L"Sea Blue", {0x33, 0x66, 0xcc})));
}

TEST_F(RowValue, NamesTheEntriesWhenThereIsNoSuchOne)
{
    EXPECT_EQ(ErrorOf(RowOf(ValueKind::Colour), L"palette:Sea"),
              "value \"palette:Sea\" for fill.it: expected an entry of the palette: \"Sea Blue\"");
}

TEST_F(RowValue, IsALengthInAnyUnitOfLength)
{
    EXPECT_EQ(Parse(LengthRow(), L"0.5mm"), Any(50));
    EXPECT_EQ(Parse(LengthRow(), L"1.2 cm"), Any(1'200));
    EXPECT_EQ(Parse(LengthRow(), L"1in"), Any(2'540));
    EXPECT_EQ(Parse(LengthRow(), L"72pt"), Any(2'540));
    EXPECT_EQ(Parse(LengthRow(), L"96px"), Any(2'540));
}

TEST_F(RowValue, IsALengthInTheUnitOfTheRowWithoutOne)
{
    EXPECT_EQ(Parse(LengthRow(), L"2"), Any(200));
    EXPECT_EQ(Parse(NumberRow(ValueKind::Length, NumberUnit::Centimetre, 0, 50'000), L"2"), Any(2'000));
}

TEST_F(RowValue, NamesUnitsAndLimitsForWhatIsNoLengthOfTheRow)
{
    for (const wchar_t* text :
         {L"", L"wide", L"5%", L"5 km", L"-0.1mm", L"500.01mm", L"1e2mm", L"nan", L"inf", L"99999999999mm"})
        EXPECT_THAT(ErrorOf(LengthRow(), text),
                    HasSubstr("expected a length in mm, cm, in, pt or px from 0mm to 500mm"))
            << text;
}

TEST_F(RowValue, KeepsTheLimitsThemselves)
{
    EXPECT_EQ(Parse(LengthRow(), L"0"), Any(0));
    EXPECT_EQ(Parse(LengthRow(), L"500mm"), Any(50'000));
}

TEST_F(RowValue, IsAFontSizeInPointsOrAnyUnitOfLength)
{
    EXPECT_EQ(Parse(FontSizeRow(), L"10.5"), Any(105));
    EXPECT_EQ(Parse(FontSizeRow(), L"14pt"), Any(140));
    EXPECT_EQ(Parse(FontSizeRow(), L"1in"), Any(720));
    EXPECT_EQ(Parse(FontSizeRow(), L"16px"), Any(120));
    EXPECT_EQ(Parse(FontSizeRow(), L"2.54cm"), Any(720));
}

TEST_F(RowValue, NamesTheLimitsOfAFontSize)
{
    EXPECT_THAT(ErrorOf(FontSizeRow(), L"0.5pt"), HasSubstr("from 1pt to 999.9pt"));
}

TEST_F(RowValue, IsAWholePercentageWithTheSignOrWithout)
{
    EXPECT_EQ(Parse(PercentRow(), L"30%"), Any(30));
    EXPECT_EQ(Parse(PercentRow(), L"30"), Any(30));
}

TEST_F(RowValue, NamesTheLimitsForWhatIsNoPercentageOfTheRow)
{
    for (const wchar_t* text : {L"101%", L"-1", L"33.3%", L"30mm", L"%"})
        EXPECT_THAT(ErrorOf(PercentRow(), text), HasSubstr("expected a whole percentage from 0% to 100%"))
            << text;
}

TEST_F(RowValue, IsAChoiceByItsValue)
{
    EXPECT_EQ(Parse(ChoiceRow(), L"solid"), Workbench::TargetHandover::ChoiceOfText(L"solid"));
}

TEST_F(RowValue, NamesTheChoicesForWhatIsNone)
{
    EXPECT_EQ(ErrorOf(ChoiceRow(), L"Solid"),
              "value \"Solid\" for fill.it: expected one of \"none\", \"solid\"");
}

TEST_F(RowValue, IsATextAsItStands)
{
    EXPECT_EQ(Parse(RowOf(ValueKind::Text), L" Crossed  Red "), Any(OvxStringT(L" Crossed  Red ")));
    EXPECT_EQ(Parse(RowOf(ValueKind::Text), L""), Any(OvxStringT()));
}

TEST(PlainColour, IsReadWithoutThePalette)
{
    EXPECT_EQ(Workbench::ParsePlainColour(L"it", L"tomato"), (CLR_COLORSPEC::Rgb{0xff, 0x63, 0x47}));
    EXPECT_THROW(static_cast<void>(Workbench::ParsePlainColour(L"it", L"palette:Sea")), UsageError);
}
