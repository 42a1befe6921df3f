#include "reference_host/document/PropertyCodecs.h"

#include <gmock/gmock.h>

using OvxUtils::Any;
using ReferenceHost::DeclaredNames;
using ReferenceHost::FindPropertyCodec;
using ReferenceHost::ParsedValue;
using ReferenceHost::ParseFontFamily;
using ReferenceHost::ParseProperty;
using ReferenceHost::PropertyCodec;
using ReferenceHost::PropertyMapping;
using ReferenceHost::ShorthandSide;

namespace
{

PropertyMapping With(PropertyCodec codec)
{
    PropertyMapping mapping;
    mapping.codec = codec;
    return mapping;
}

Any Choice(const wchar_t* text)
{
    return Any(Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text)));
}

Any Text(const wchar_t* text)
{
    return Any(OvxStringT(text));
}

Any Colour(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return Any(CLR_COLORSPEC::FromRgb({red, green, blue}));
}

/// What a codec makes of a text; an empty value for a text that means nothing.
Any Parse(PropertyCodec codec, std::string_view text)
{
    const auto parsed = ParseProperty(With(codec), text, {});
    return parsed ? parsed->value : Any();
}

struct Written
{
    PropertyCodec codec;
    const char* text;
    Any value;
};

class WrittenValues : public testing::TestWithParam<Written>
{
};

TEST_P(WrittenValues, AreRead)
{
    EXPECT_EQ(Parse(GetParam().codec, GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Codecs, WrittenValues,
    testing::Values(Written{PropertyCodec::Colour, "#3366cc", Colour(0x33, 0x66, 0xcc)},
                    Written{PropertyCodec::Colour, "#3366CC", Colour(0x33, 0x66, 0xcc)},
                    Written{PropertyCodec::Colour, " #000000 ", Colour(0, 0, 0)},
                    Written{PropertyCodec::Length, "0.1cm", Any(100)},
                    Written{PropertyCodec::RelativeLength, "-0.25cm", Any(-250)},
                    Written{PropertyCodec::RelativeLength, "0%", Any(0)},
                    Written{PropertyCodec::FontSize, "14pt", Any(140)},
                    Written{PropertyCodec::Percent, "33.4%", Any(33)},
                    Written{PropertyCodec::Opacity, "70%", Any(30)},
                    Written{PropertyCodec::Opacity, "0.7", Any(30)},
                    Written{PropertyCodec::Opacity, "100%", Any(0)},
                    Written{PropertyCodec::LetterSpacing, "normal", Any(0)},
                    Written{PropertyCodec::LetterSpacing, "0.018cm", Any(18)},
                    Written{PropertyCodec::LineSpacing, "120%", Any(120)},
                    Written{PropertyCodec::LineSpacing, "normal", Any(100)},
                    Written{PropertyCodec::LineSpacing, "0.525cm", Text(L"5.25mm")},
                    Written{PropertyCodec::LineSpacing, "5.25mm", Text(L"5.25mm")},
                    Written{PropertyCodec::Choice, "anything", Choice(L"anything")},
                    Written{PropertyCodec::Text, "a_20_b", Text(L"a_20_b")},
                    Written{PropertyCodec::StyleName, "Deep_20_Water", Text(L"Deep Water")},
                    Written{PropertyCodec::StyleName, "", Text(L"")},
                    Written{PropertyCodec::FontFamily, "'DejaVu Sans'", Text(L"DejaVu Sans")}));

struct Malformed
{
    PropertyCodec codec;
    const char* text;
};

class MalformedValues : public testing::TestWithParam<Malformed>
{
};

TEST_P(MalformedValues, MeanNothing)
{
    const auto parsed = ParseProperty(With(GetParam().codec), GetParam().text, {});

    EXPECT_FALSE(parsed.has_value());
}

INSTANTIATE_TEST_SUITE_P(
    Codecs, MalformedValues,
    testing::Values(Malformed{PropertyCodec::Colour, "#36c"}, Malformed{PropertyCodec::Colour, "3366cc"},
                    Malformed{PropertyCodec::Colour, "#3366cg"}, Malformed{PropertyCodec::Colour, "red"},
                    Malformed{PropertyCodec::Colour, "#3366cc0"}, Malformed{PropertyCodec::Colour, "auto"},
                    Malformed{PropertyCodec::Length, "wide"}, Malformed{PropertyCodec::Length, "50%"},
                    Malformed{PropertyCodec::RelativeLength, "-50%"},
                    Malformed{PropertyCodec::FontSize, "large"}, Malformed{PropertyCodec::Percent, "50"},
                    Malformed{PropertyCodec::Opacity, "170%"}, Malformed{PropertyCodec::LetterSpacing, "10%"},
                    Malformed{PropertyCodec::LineSpacing, "single"}, Malformed{PropertyCodec::Choice, ""},
                    Malformed{PropertyCodec::FontName, "Undeclared"},
                    Malformed{PropertyCodec::FontFamily, "''"}));

TEST(Percentages, OfTheInheritedValueStayOpen)
{
    const auto parsed = ParseProperty(With(PropertyCodec::FontSize), "80%", {});

    ASSERT_TRUE(parsed.has_value());
    EXPECT_TRUE(parsed->value.IsEmpty());
    EXPECT_EQ(parsed->percentOfInherited, 80.0);
}

TEST(Choices, AreTheOnesOfTheirRowAlone)
{
    PropertyMapping mapping = With(PropertyCodec::Choice);
    mapping.choices = {{"bold", "bold"}, {"700", "bold"}};

    EXPECT_EQ(ParseProperty(mapping, "700", {})->value, Choice(L"bold"));
    EXPECT_FALSE(ParseProperty(mapping, "heavy", {}).has_value());
}

TEST(StyleNames, AreThoseThatTheirDefinitionDisplays)
{
    PropertyMapping mapping = With(PropertyCodec::StyleName);
    mapping.definition = "gradient";
    DeclaredNames names;
    names.definitions[ReferenceHost::DefinitionKey("gradient", "Gr_31_")] = L"My gradient";
    names.definitions[ReferenceHost::DefinitionKey("hatch", "H")] = L"My hatch";

    EXPECT_EQ(ParseProperty(mapping, "Gr_31_", names)->value, Text(L"My gradient"));
    EXPECT_EQ(ParseProperty(mapping, "H", names)->value, Text(L"H"));
}

TEST(FontNames, StandForTheFamilyOfTheirFace)
{
    DeclaredNames names;
    names.fontFamilies["Body1"] = L"DejaVu Sans";

    EXPECT_EQ(ParseProperty(With(PropertyCodec::FontName), "Body1", names)->value, Text(L"DejaVu Sans"));
}

TEST(FontFamilies, LoseTheirQuotes)
{
    EXPECT_EQ(ParseFontFamily("'DejaVu Sans', serif"), OvxStringT(L"DejaVu Sans, serif"));
    EXPECT_EQ(ParseFontFamily("\"Bob's Hand\""), OvxStringT(L"Bob's Hand"));
    EXPECT_EQ(ParseFontFamily("Arial"), OvxStringT(L"Arial"));
}

struct Shorthand
{
    const char* text;
    int top;
    int right;
    int bottom;
    int left;
};

class Shorthands : public testing::TestWithParam<Shorthand>
{
protected:
    static Any Side(ShorthandSide side)
    {
        PropertyMapping mapping = With(PropertyCodec::Length);
        mapping.side = side;
        const auto parsed = ParseProperty(mapping, GetParam().text, {});
        return parsed ? parsed->value : Any();
    }
};

TEST_P(Shorthands, GiveAllFourSides)
{
    EXPECT_EQ(Side(ShorthandSide::Top), Any(GetParam().top));
    EXPECT_EQ(Side(ShorthandSide::Right), Any(GetParam().right));
    EXPECT_EQ(Side(ShorthandSide::Bottom), Any(GetParam().bottom));
    EXPECT_EQ(Side(ShorthandSide::Left), Any(GetParam().left));
}

INSTANTIATE_TEST_SUITE_P(Counts, Shorthands,
                         testing::Values(Shorthand{"1mm", 100, 100, 100, 100},
                                         Shorthand{"1mm 2mm", 100, 200, 100, 200},
                                         Shorthand{"1mm 2mm 3mm", 100, 200, 300, 200},
                                         Shorthand{" 1mm  2mm 3mm 4mm ", 100, 200, 300, 400}));

TEST(Shorthand, OfFiveValuesMeansNothing)
{
    PropertyMapping mapping = With(PropertyCodec::Length);
    mapping.side = ShorthandSide::Top;

    EXPECT_FALSE(ParseProperty(mapping, "1mm 1mm 1mm 1mm 1mm", {}).has_value());
    EXPECT_FALSE(ParseProperty(mapping, "", {}).has_value());
}

TEST(PropertyCodecs, AreFoundByTheirNames)
{
    EXPECT_EQ(FindPropertyCodec("colour"), PropertyCodec::Colour);
    EXPECT_EQ(FindPropertyCodec("relative-length"), PropertyCodec::RelativeLength);
    EXPECT_EQ(FindPropertyCodec("font-family"), PropertyCodec::FontFamily);
    EXPECT_EQ(FindPropertyCodec("voltage"), std::nullopt);
}

} // namespace
