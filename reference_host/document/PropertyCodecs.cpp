#include "reference_host/document/PropertyCodecs.h"

#include "host/utils/Utf8.h"
#include "reference_host/document/Measures.h"
#include "reference_host/document/StyleNames.h"
#include "reference_host/document/XmlText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace ReferenceHost
{

namespace
{

using OvxUtils::Any;

/// What a parser may look at.
struct Source
{
    const PropertyMapping& mapping;
    std::string_view text;
    const DeclaredNames& names;
};

using Parsed = std::optional<ParsedValue>;

Parsed Absolute(std::optional<int> number)
{
    return number ? Parsed(ParsedValue{Any(*number)}) : std::nullopt;
}

Parsed AbsoluteText(OvxStringT text)
{
    return ParsedValue{Any(std::move(text))};
}

/// A percentage of the inherited value; none when the text is no percentage, or a negative one.
Parsed Relative(std::string_view text)
{
    const std::optional<double> percent = ParsePercent(text);
    if (!percent || *percent < 0)
        return std::nullopt;
    return *percent == 0 ? ParsedValue{Any(0)} : ParsedValue{Any(), *percent};
}

Parsed ParseColourValue(const Source& source)
{
    const std::optional<CLR_COLORSPEC::Rgb> rgb = ParseColour(source.text);
    return rgb ? Parsed(ParsedValue{Any(CLR_COLORSPEC::FromRgb(*rgb))}) : std::nullopt;
}

Parsed ParseLengthValue(const Source& source)
{
    return Absolute(ParseLength(source.text));
}

Parsed ParseRelativeLength(const Source& source)
{
    return source.text.ends_with('%') ? Relative(source.text) : ParseLengthValue(source);
}

Parsed ParseFontSizeValue(const Source& source)
{
    return source.text.ends_with('%') ? Relative(source.text) : Absolute(ParseFontSize(source.text));
}

Parsed ParsePercentValue(const Source& source)
{
    const std::optional<double> percent = ParsePercent(source.text);
    return percent ? Absolute(RoundToInt(*percent)) : std::nullopt;
}

Parsed ParseOpacity(const Source& source)
{
    const std::optional<double> opacity = ParseFraction(source.text);
    return opacity ? Absolute(RoundToInt(100.0 - *opacity)) : std::nullopt;
}

Parsed ParseLetterSpacing(const Source& source)
{
    return source.text == "normal" ? Absolute(0) : ParseLengthValue(source);
}

Parsed ParseLineSpacing(const Source& source)
{
    if (source.text == "normal")
        return Absolute(100);
    if (source.text.ends_with('%'))
        return ParsePercentValue(source);
    // A fixed height is no percentage and must not look like one: it becomes a text, in one unit so that
    // equal heights are equal.
    const std::optional<int> height = ParseLength(source.text);
    return height ? AbsoluteText(OvxUtils::FromUtf8(FormatLength(*height))) : std::nullopt;
}

Parsed ParseChoice(const Source& source)
{
    const auto& choices = source.mapping.choices;
    if (choices.empty() && !source.text.empty())
        return ParsedValue{Any(KeyOfChoice(source.text))};
    const auto choice = std::ranges::find(choices, source.text, &PropertyChoice::text);
    if (choice == choices.end())
        return std::nullopt;
    const bool isKnown = choice->key != Styles::PropertyKey::Empty;
    return ParsedValue{Any(isKnown ? choice->key : KeyOfChoice(choice->meaning))};
}

Parsed ParseText(const Source& source)
{
    return AbsoluteText(OvxUtils::FromUtf8(source.text));
}

Parsed ParseStyleName(const Source& source)
{
    const auto found = source.names.definitions.find(DefinitionKey(source.mapping.definition, source.text));
    return AbsoluteText(found == source.names.definitions.end() ? DecodeStyleName(source.text)
                                                                : found->second);
}

Parsed ParseFontName(const Source& source)
{
    const auto found = source.names.fontFamilies.find(std::string(source.text));
    return found == source.names.fontFamilies.end() ? std::nullopt : AbsoluteText(found->second);
}

Parsed ParseFontFamilyValue(const Source& source)
{
    OvxStringT family = ParseFontFamily(source.text);
    return family.empty() ? std::nullopt : AbsoluteText(std::move(family));
}

/// A codec: how panel descriptions call it, and how it reads.
struct Codec
{
    PropertyCodec codec;
    std::string_view name;
    Parsed (*parse)(const Source& source);
};

constexpr std::array<Codec, 13> kCodecs{
    {{PropertyCodec::Colour, "colour", ParseColourValue},
     {PropertyCodec::Length, "length", ParseLengthValue},
     {PropertyCodec::RelativeLength, "relative-length", ParseRelativeLength},
     {PropertyCodec::FontSize, "font-size", ParseFontSizeValue},
     {PropertyCodec::Percent, "percent", ParsePercentValue},
     {PropertyCodec::Opacity, "opacity", ParseOpacity},
     {PropertyCodec::LetterSpacing, "letter-spacing", ParseLetterSpacing},
     {PropertyCodec::LineSpacing, "line-spacing", ParseLineSpacing},
     {PropertyCodec::Choice, "choice", ParseChoice},
     {PropertyCodec::Text, "text", ParseText},
     {PropertyCodec::StyleName, "style-name", ParseStyleName},
     {PropertyCodec::FontName, "font-name", ParseFontName},
     {PropertyCodec::FontFamily, "font-family", ParseFontFamilyValue}}};

constexpr bool AreInOrder()
{
    for (std::size_t place = 0; place < kCodecs.size(); ++place)
    {
        if (static_cast<std::size_t>(kCodecs[place].codec) != place)
            return false;
    }
    return true;
}

static_assert(AreInOrder(), "a codec is found by its number");

} // namespace

Styles::PropertyKey KeyOfChoice(std::string_view meaning)
{
    return Styles::PooledString<Styles::StringPool>(OvxUtils::FromUtf8(meaning));
}

std::optional<PropertyCodec> FindPropertyCodec(std::string_view name)
{
    const auto* const codec = std::ranges::find(kCodecs, name, &Codec::name);
    return codec == kCodecs.end() ? std::nullopt : std::optional(codec->codec);
}

std::string DefinitionKey(std::string_view kind, std::string_view name)
{
    // No name of XML holds a blank.
    return std::string(kind).append(" ").append(name);
}

std::optional<ParsedValue> ParseProperty(const PropertyMapping& mapping, std::string_view text,
                                         const DeclaredNames& names)
{
    const Codec& codec = kCodecs[static_cast<std::size_t>(mapping.codec)];
    return codec.parse({mapping, PickShorthandSide(TrimXmlBlanks(text), mapping.side), names});
}

std::string_view PickShorthandSide(std::string_view text, ShorthandSide side)
{
    if (side == ShorthandSide::None)
        return text;
    std::array<std::string_view, 4> values;
    std::size_t count = 0;
    for (text = TrimXmlBlanks(text); !text.empty(); text = TrimXmlBlanks(text))
    {
        if (count == values.size())
            return {};
        const auto* const blank = std::ranges::find_if(text, IsXmlBlank);
        const auto length = static_cast<std::size_t>(blank - text.begin());
        values[count++] = text.substr(0, length);
        text.remove_prefix(length);
    }
    // Which of the values written stands for top, right, bottom and left, for one to four of them.
    constexpr std::size_t kPlaces[4][4] = {{0, 0, 0, 0}, {0, 1, 0, 1}, {0, 1, 2, 1}, {0, 1, 2, 3}};
    if (count == 0)
        return {};
    return values[kPlaces[count - 1][static_cast<std::size_t>(side) - 1]];
}

OvxStringT ParseFontFamily(std::string_view text)
{
    std::string families;
    char quote = '\0';
    for (const char character : TrimXmlBlanks(text))
    {
        const bool isQuote = quote == '\0' ? character == '\'' || character == '"' : character == quote;
        if (isQuote)
            quote = quote == '\0' ? character : '\0';
        else
            families += character;
    }
    return OvxUtils::FromUtf8(families);
}

std::optional<CLR_COLORSPEC::Rgb> ParseColour(std::string_view text)
{
    if (text.size() != 7 || text.front() != '#')
        return std::nullopt;
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.data() + 1, text.data() + text.size(), number, 16);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    const auto component = [number](unsigned shift)
    { return static_cast<std::uint8_t>((number >> shift) & 0xFFU); };
    return CLR_COLORSPEC::Rgb{component(16), component(8), component(0)};
}

} // namespace ReferenceHost
