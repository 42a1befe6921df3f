#include "reference_host/document/PropertyFormats.h"

#include "reference_host/document/PropertyMappings.h"

#include <gmock/gmock.h>

using OvxUtils::Any;
using ReferenceHost::BuiltInProperties;
using ReferenceHost::DeclaredNames;
using ReferenceHost::DefinitionKey;
using ReferenceHost::FormatProperty;
using ReferenceHost::ParseProperty;
using ReferenceHost::PropertyCodec;
using ReferenceHost::PropertyMapping;
using ReferenceHost::ShorthandSide;
using testing::Eq;
using testing::Optional;

namespace
{

PropertyMapping With(PropertyCodec codec)
{
    PropertyMapping mapping;
    mapping.codec = codec;
    return mapping;
}

Any Choice(const std::string& text)
{
    return Any(Styles::PropertyKey(
        Styles::PooledString<Styles::StringPool>(OvxStringT(std::wstring(text.begin(), text.end())))));
}

Any Text(const wchar_t* text)
{
    return Any(OvxStringT(text));
}

std::optional<std::string> Format(PropertyCodec codec, const Any& value, std::string_view previous = {},
                                  const DeclaredNames& names = {})
{
    return FormatProperty(With(codec), value, previous, names);
}

DeclaredNames SomeNames()
{
    DeclaredNames names;
    names.fontFamilies["F1"] = L"DejaVu Sans";
    names.fontFamilies["Body"] = L"DejaVu Sans";
    names.fontFamilies["Two"] = L"A, 'B'";
    for (const char* const kind : {"gradient", "hatch", "fill-image", "stroke-dash", "marker"})
    {
        names.definitions[DefinitionKey(kind, "other")] = L"Deep Water";
        names.definitions[DefinitionKey(kind, "Shown")] = L"Hidden";
    }
    return names;
}

/// Values that a property of a codec can have, odd ones included.
std::vector<Any> ValuesOf(const PropertyMapping& mapping)
{
    std::vector<Any> values;
    switch (mapping.codec)
    {
    case PropertyCodec::Colour:
        return {Any(CLR_COLORSPEC::FromRgb({0, 0, 0})), Any(CLR_COLORSPEC::FromRgb({255, 16, 1}))};
    case PropertyCodec::Opacity:
        return {Any(0), Any(1), Any(99), Any(100)};
    case PropertyCodec::FontSize:
        return {Any(1), Any(105), Any(240), Any(100000)};
    case PropertyCodec::Length:
    case PropertyCodec::RelativeLength:
    case PropertyCodec::LetterSpacing:
    case PropertyCodec::Percent:
        return {Any(0), Any(1), Any(-1), Any(35), Any(254), Any(123456789)};
    case PropertyCodec::LineSpacing:
        return {Any(0), Any(100), Any(115), Text(L"5.25mm")};
    case PropertyCodec::Choice:
        for (const auto& choice : mapping.choices)
            values.push_back(Choice(choice.meaning));
        return values;
    case PropertyCodec::StyleName:
        return {Text(L""),       Text(L"Deep Water"),    Text(L"a & \"b\""), Text(L"_20_"),
                Text(L"1st  x"), Text(L"\u00D7\u00E9é"), Text(L"tab\tx"),    Text(L"Deep_20_Water")};
    case PropertyCodec::FontName:
        return {Text(L"DejaVu Sans"), Text(L"A, 'B'")};
    case PropertyCodec::FontFamily:
        return {Text(L"Serif"),      Text(L"DejaVu Sans, serif"), Text(L"it's"),
                Text(L"say \"so\""), Text(L" leading"),           Text(L"a,b , c")};
    case PropertyCodec::Text:
        return {Text(L"any text & <more>"), Text(L"")};
    }
    return values;
}

class TableRows : public testing::TestWithParam<std::size_t>
{
};

TEST_P(TableRows, ReadBackWhatTheyWrite)
{
    const DeclaredNames names = SomeNames();
    PropertyMapping mapping = BuiltInProperties()[GetParam()];
    mapping.side = ShorthandSide::None;
    for (const Any& value : ValuesOf(mapping))
    {
        for (const char* const previous : {"", "0.5cm", "12pt", "1in", "50%", "normal", "nonsense", "3px"})
        {
            const auto text = FormatProperty(mapping, value, previous, names);

            ASSERT_TRUE(text.has_value()) << mapping.attribute;
            EXPECT_EQ(ParseProperty(mapping, *text, names)->value, value)
                << mapping.attribute << " " << *text;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AllOf, TableRows, testing::Range<std::size_t>(0, BuiltInProperties().size()));

TEST(WrittenLengths, KeepTheUnitThatWasThere)
{
    EXPECT_THAT(Format(PropertyCodec::Length, Any(140), "0.5cm"), Optional(Eq("0.14cm")));
    EXPECT_THAT(Format(PropertyCodec::Length, Any(254), "2in"), Optional(Eq("0.1in")));
    EXPECT_THAT(Format(PropertyCodec::Length, Any(5), "1mm"), Optional(Eq("0.05mm")));
    EXPECT_THAT(Format(PropertyCodec::Length, Any(-30)), Optional(Eq("-0.3mm")));
    EXPECT_THAT(Format(PropertyCodec::RelativeLength, Any(500), "50%"), Optional(Eq("5mm")));
}

TEST(WrittenNumbers, HaveTheFormOfTheirCodec)
{
    EXPECT_THAT(Format(PropertyCodec::FontSize, Any(105)), Optional(Eq("10.5pt")));
    EXPECT_THAT(Format(PropertyCodec::Opacity, Any(30)), Optional(Eq("70%")));
    EXPECT_THAT(Format(PropertyCodec::LetterSpacing, Any(0)), Optional(Eq("normal")));
    EXPECT_THAT(Format(PropertyCodec::LineSpacing, Text(L"5mm")), Optional(Eq("5mm")));
    EXPECT_THAT(Format(PropertyCodec::Colour, Any(CLR_COLORSPEC::FromRgb({1, 0xAB, 255}))),
                Optional(Eq("#01abff")));
}

TEST(WrittenChoices, AreTheFirstTextOfTheirMeaning)
{
    PropertyMapping weights = With(PropertyCodec::Choice);
    weights.choices = {{"bold", "bold"}, {"700", "bold"}};

    EXPECT_THAT(FormatProperty(weights, Choice("bold"), "700", {}), Optional(Eq("bold")));
    EXPECT_EQ(FormatProperty(weights, Choice("thin"), "", {}), std::nullopt);
}

TEST(WrittenNames, AreThoseOfTheDefinition)
{
    PropertyMapping mapping = With(PropertyCodec::StyleName);
    mapping.definition = "gradient";

    EXPECT_THAT(FormatProperty(mapping, Text(L"Deep Water"), "", {}), Optional(Eq("Deep_20_Water")));
    EXPECT_THAT(FormatProperty(mapping, Text(L"Hidden"), "", SomeNames()), Optional(Eq("Hidden")));
    // "Shown" is what the file calls the gradient that people know as "Hidden".
    EXPECT_EQ(FormatProperty(mapping, Text(L"Shown"), "", SomeNames()), std::nullopt);
}

TEST(WrittenFonts, NeedAFaceWhereFacesAreNamed)
{
    EXPECT_THAT(Format(PropertyCodec::FontName, Text(L"DejaVu Sans"), {}, SomeNames()), Optional(Eq("Body")));
    EXPECT_EQ(Format(PropertyCodec::FontName, Text(L"Nowhere"), {}, SomeNames()), std::nullopt);
    EXPECT_THAT(Format(PropertyCodec::FontFamily, Text(L"DejaVu Sans, serif")),
                Optional(Eq("'DejaVu Sans', serif")));
}

TEST(Values, WithoutAFormAreRefused)
{
    EXPECT_EQ(Format(PropertyCodec::Opacity, Any(101)), std::nullopt);
    EXPECT_EQ(Format(PropertyCodec::Opacity, Any(-1)), std::nullopt);
    EXPECT_EQ(Format(PropertyCodec::FontSize, Any(0)), std::nullopt);
    EXPECT_EQ(Format(PropertyCodec::Length, Text(L"wide")), std::nullopt);
    EXPECT_EQ(Format(PropertyCodec::FontFamily, Text(L"")), std::nullopt);
    EXPECT_EQ(Format(PropertyCodec::Text, Text(L"control \x01")), std::nullopt);
}

} // namespace
