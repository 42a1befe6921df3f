#include "reference_host/document/PropertyFormats.h"

#include "reference_host/document/Measures.h"
#include "reference_host/document/StyleNames.h"
#include "reference_host/document/XmlText.h"

#include "host/style_model/PropertyKey.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <array>
#include <vector>

namespace ReferenceHost
{

namespace
{

using OvxUtils::Any;

/// What a writer may look at.
struct Wanted
{
    const PropertyMapping& mapping;
    const Any& value;
    std::string_view previous;
    const DeclaredNames& names;
};

/// Texts that may stand for a value, best first; those that do not are sorted out by reading them.
using Spellings = std::vector<std::string>;

Spellings SpellColour(const Wanted& wanted)
{
    const auto* const colour = wanted.value.TryGet<CLR_COLORSPEC>();
    return colour == nullptr ? Spellings() : Spellings{FormatColour(colour->ToRgb())};
}

Spellings SpellLength(const Wanted& wanted)
{
    const int* const length = wanted.value.TryGet<int>();
    if (length == nullptr)
        return {};
    return {FormatLengthLike(*length, wanted.previous), FormatLength(*length)};
}

Spellings SpellFontSize(const Wanted& wanted)
{
    const int* const size = wanted.value.TryGet<int>();
    return size == nullptr ? Spellings() : Spellings{FormatTenths(*size) + "pt"};
}

Spellings SpellPercent(const Wanted& wanted)
{
    const int* const percent = wanted.value.TryGet<int>();
    return percent == nullptr ? Spellings() : Spellings{std::to_string(*percent) + "%"};
}

Spellings SpellOpacity(const Wanted& wanted)
{
    const int* const transparency = wanted.value.TryGet<int>();
    const bool isPart = transparency != nullptr && *transparency >= 0 && *transparency <= 100;
    return isPart ? Spellings{std::to_string(100 - *transparency) + "%"} : Spellings();
}

Spellings SpellLetterSpacing(const Wanted& wanted)
{
    Spellings spellings = SpellLength(wanted);
    const int* const length = wanted.value.TryGet<int>();
    if (length != nullptr && *length == 0)
        spellings.insert(spellings.begin(), "normal");
    return spellings;
}

Spellings SpellText(const Wanted& wanted)
{
    const auto* const text = wanted.value.TryGet<OvxStringT>();
    return text == nullptr ? Spellings() : Spellings{OvxUtils::ToUtf8(*text)};
}

Spellings SpellLineSpacing(const Wanted& wanted)
{
    // A fixed height is kept as a text.
    return wanted.value.TryGet<int>() == nullptr ? SpellText(wanted) : SpellPercent(wanted);
}

Spellings SpellChoice(const Wanted& wanted)
{
    const auto* const key = wanted.value.TryGet<Styles::PropertyKey>();
    if (key == nullptr)
        return {};
    const std::string meaning = OvxUtils::ToUtf8(key->GetString());
    const auto& choices = wanted.mapping.choices;
    if (choices.empty())
        return {meaning};
    const auto choice = std::ranges::find(choices, meaning, &PropertyChoice::meaning);
    return choice == choices.end() ? Spellings() : Spellings{choice->text};
}

Spellings SpellStyleName(const Wanted& wanted)
{
    const auto* const name = wanted.value.TryGet<OvxStringT>();
    if (name == nullptr)
        return {};
    // The kind, and behind the blank the encoded name.
    const std::string kind = DefinitionKey(wanted.mapping.definition, {});
    Spellings defined;
    for (const auto& [key, displayName] : wanted.names.definitions)
    {
        if (displayName == *name && key.starts_with(kind))
            defined.push_back(key.substr(kind.size()));
    }
    std::ranges::sort(defined);
    defined.insert(defined.begin(), EncodeStyleName(*name));
    return defined;
}

Spellings SpellFontName(const Wanted& wanted)
{
    const auto* const family = wanted.value.TryGet<OvxStringT>();
    Spellings faces;
    if (family == nullptr)
        return faces;
    for (const auto& [face, declared] : wanted.names.fontFamilies)
    {
        if (declared == *family)
            faces.push_back(face);
    }
    std::ranges::sort(faces);
    return faces;
}

bool NeedsQuotes(std::string_view family)
{
    const auto isPlain = [](char character) { return IsXmlNameByte(character) && character != ':'; };
    return !std::ranges::all_of(family, isPlain);
}

/// A family, or a list of them, with quotes round those that need them: "DejaVu Sans, serif" becomes
/// "'DejaVu Sans', serif".
std::string QuoteFamilies(std::string_view families)
{
    std::string quoted;
    while (!families.empty())
    {
        const std::string_view piece = families.substr(0, families.find(','));
        const std::string_view name = TrimXmlBlanks(piece);
        const char* const quote = !NeedsQuotes(name) ? "" : name.find('\'') == name.npos ? "'" : "\"";
        const auto before = static_cast<std::size_t>(name.data() - piece.data());
        quoted.append(piece.substr(0, before)).append(quote).append(name).append(quote);
        quoted.append(piece.substr(before + name.size()));
        families.remove_prefix(piece.size());
        if (!families.empty())
            quoted += ',';
        families.remove_prefix(std::min<std::size_t>(families.size(), 1));
    }
    return quoted;
}

Spellings SpellFontFamily(const Wanted& wanted)
{
    const auto* const text = wanted.value.TryGet<OvxStringT>();
    if (text == nullptr || text->empty())
        return {};
    const std::string families = OvxUtils::ToUtf8(*text);
    return {QuoteFamilies(families), "'" + families + "'", "\"" + families + "\""};
}

/// How a codec writes.
struct Speller
{
    PropertyCodec codec;
    Spellings (*spell)(const Wanted& wanted);
};

constexpr std::array<Speller, 13> kSpellers{{{PropertyCodec::Colour, SpellColour},
                                             {PropertyCodec::Length, SpellLength},
                                             {PropertyCodec::RelativeLength, SpellLength},
                                             {PropertyCodec::FontSize, SpellFontSize},
                                             {PropertyCodec::Percent, SpellPercent},
                                             {PropertyCodec::Opacity, SpellOpacity},
                                             {PropertyCodec::LetterSpacing, SpellLetterSpacing},
                                             {PropertyCodec::LineSpacing, SpellLineSpacing},
                                             {PropertyCodec::Choice, SpellChoice},
                                             {PropertyCodec::Text, SpellText},
                                             {PropertyCodec::StyleName, SpellStyleName},
                                             {PropertyCodec::FontName, SpellFontName},
                                             {PropertyCodec::FontFamily, SpellFontFamily}}};

bool LooksAlike(const Any& left, const Any& right)
{
    const auto* const leftColour = left.TryGet<CLR_COLORSPEC>();
    const auto* const rightColour = right.TryGet<CLR_COLORSPEC>();
    if (leftColour != nullptr && rightColour != nullptr)
        return leftColour->ToRgb() == rightColour->ToRgb();
    return left == right;
}

bool HoldsXmlCharactersOnly(std::string_view text)
{
    return std::ranges::none_of(text, [](char character)
                                { return ClassifyXmlByte(character) == XmlByte::Forbidden; });
}

} // namespace

std::optional<std::string> FormatProperty(const PropertyMapping& mapping, const Any& value,
                                          std::string_view previous, const DeclaredNames& names)
{
    const auto* const speller = std::ranges::find(kSpellers, mapping.codec, &Speller::codec);
    PropertyMapping alone = mapping;
    alone.side = ShorthandSide::None;
    for (std::string& text : speller->spell({mapping, value, TrimXmlBlanks(previous), names}))
    {
        const std::optional<ParsedValue> parsed = ParseProperty(alone, text, names);
        if (parsed && LooksAlike(parsed->value, value) && HoldsXmlCharactersOnly(text))
            return std::move(text);
    }
    return std::nullopt;
}

std::string FormatColour(CLR_COLORSPEC::Rgb colour)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text = "#";
    for (const unsigned component : {colour.red, colour.green, colour.blue})
        text.append({kDigits[component / 16], kDigits[component % 16]});
    return text;
}

} // namespace ReferenceHost
