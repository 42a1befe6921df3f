#include "reference_host/document/PropertyMappings.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/PropertyCodecs.h"

#include "host/style_model/CategoryNames.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <array>

namespace ReferenceHost
{

namespace
{

using Element = PropertyElement;
using Codec = PropertyCodec;
using Side = ShorthandSide;

constexpr std::array<std::string_view, 3> kElementNames{"graphic-properties", "paragraph-properties",
                                                        "text-properties"};

/// The categories by their places in the row below.
enum class BuiltInCategory
{
    Fill,
    Outline,
    Paragraph,
    Character
};

/// A row without what cannot be a constant.
struct Row
{
    BuiltInCategory category;
    const wchar_t* key;
    Element element;
    std::string_view namespaceUri;
    std::string_view attribute;
    Codec codec;
    std::string_view choices = {}; ///< Separated by blanks; "700=bold" is another text for "bold".
    std::string_view definition = {};
    Side side = Side::None;
};

constexpr auto kFill = BuiltInCategory::Fill;
constexpr auto kOutline = BuiltInCategory::Outline;
constexpr auto kParagraph = BuiltInCategory::Paragraph;
constexpr auto kCharacter = BuiltInCategory::Character;

constexpr std::string_view kLineStyles = "none solid dotted dash long-dash dot-dash dot-dot-dash wave";
constexpr std::string_view kWeights = "normal bold 400=normal 700=bold 100 200 300 500 600 800 900";

constexpr std::array kRows{
    Row{kFill, L"type", Element::Graphic, Odf::kDraw, "fill", Codec::Choice,
        "none solid bitmap gradient hatch"},
    Row{kFill, L"color", Element::Graphic, Odf::kDraw, "fill-color", Codec::Colour},
    Row{kFill, L"transparency", Element::Graphic, Odf::kDraw, "opacity", Codec::Opacity},
    Row{kFill,
        L"gradient",
        Element::Graphic,
        Odf::kDraw,
        "fill-gradient-name",
        Codec::StyleName,
        {},
        "gradient"},
    Row{kFill, L"hatch", Element::Graphic, Odf::kDraw, "fill-hatch-name", Codec::StyleName, {}, "hatch"},
    Row{kFill,
        L"bitmap",
        Element::Graphic,
        Odf::kDraw,
        "fill-image-name",
        Codec::StyleName,
        {},
        "fill-image"},

    Row{kOutline, L"type", Element::Graphic, Odf::kDraw, "stroke", Codec::Choice, "none dash solid"},
    Row{kOutline, L"color", Element::Graphic, Odf::kSvg, "stroke-color", Codec::Colour},
    Row{kOutline, L"width", Element::Graphic, Odf::kSvg, "stroke-width", Codec::Length},
    Row{kOutline, L"transparency", Element::Graphic, Odf::kSvg, "stroke-opacity", Codec::Opacity},
    Row{kOutline, L"dash", Element::Graphic, Odf::kDraw, "stroke-dash", Codec::StyleName, {}, "stroke-dash"},
    Row{kOutline, L"join", Element::Graphic, Odf::kDraw, "stroke-linejoin", Codec::Choice,
        "miter round bevel middle none"},
    Row{kOutline, L"cap", Element::Graphic, Odf::kSvg, "stroke-linecap", Codec::Choice, "butt round square"},
    Row{kOutline,
        L"start-arrow",
        Element::Graphic,
        Odf::kDraw,
        "marker-start",
        Codec::StyleName,
        {},
        "marker"},
    Row{kOutline, L"end-arrow", Element::Graphic, Odf::kDraw, "marker-end", Codec::StyleName, {}, "marker"},

    Row{kParagraph, L"align", Element::Paragraph, Odf::kFo, "text-align", Codec::Choice,
        "start end left right center justify"},
    Row{kParagraph, L"left-indent", Element::Paragraph, Odf::kFo, "margin-left", Codec::RelativeLength},
    Row{kParagraph,
        L"left-indent",
        Element::Paragraph,
        Odf::kFo,
        "margin",
        Codec::RelativeLength,
        {},
        {},
        Side::Left},
    Row{kParagraph, L"right-indent", Element::Paragraph, Odf::kFo, "margin-right", Codec::RelativeLength},
    Row{kParagraph,
        L"right-indent",
        Element::Paragraph,
        Odf::kFo,
        "margin",
        Codec::RelativeLength,
        {},
        {},
        Side::Right},
    Row{kParagraph, L"first-line-indent", Element::Paragraph, Odf::kFo, "text-indent", Codec::RelativeLength},
    Row{kParagraph, L"space-before", Element::Paragraph, Odf::kFo, "margin-top", Codec::RelativeLength},
    Row{kParagraph,
        L"space-before",
        Element::Paragraph,
        Odf::kFo,
        "margin",
        Codec::RelativeLength,
        {},
        {},
        Side::Top},
    Row{kParagraph, L"space-after", Element::Paragraph, Odf::kFo, "margin-bottom", Codec::RelativeLength},
    Row{kParagraph,
        L"space-after",
        Element::Paragraph,
        Odf::kFo,
        "margin",
        Codec::RelativeLength,
        {},
        {},
        Side::Bottom},
    Row{kParagraph, L"line-spacing", Element::Paragraph, Odf::kFo, "line-height", Codec::LineSpacing},

    Row{kCharacter, L"font", Element::Text, Odf::kStyle, "font-name", Codec::FontName},
    Row{kCharacter, L"font", Element::Text, Odf::kFo, "font-family", Codec::FontFamily},
    Row{kCharacter, L"size", Element::Text, Odf::kFo, "font-size", Codec::FontSize},
    Row{kCharacter, L"weight", Element::Text, Odf::kFo, "font-weight", Codec::Choice, kWeights},
    Row{kCharacter, L"posture", Element::Text, Odf::kFo, "font-style", Codec::Choice,
        "normal italic oblique"},
    Row{kCharacter, L"underline", Element::Text, Odf::kStyle, "text-underline-style", Codec::Choice,
        kLineStyles},
    Row{kCharacter, L"strikethrough", Element::Text, Odf::kStyle, "text-line-through-style", Codec::Choice,
        kLineStyles},
    Row{kCharacter, L"color", Element::Text, Odf::kFo, "color", Codec::Colour},
    Row{kCharacter, L"letter-spacing", Element::Text, Odf::kFo, "letter-spacing", Codec::LetterSpacing},
};

Styles::PropertyKey CategoryKey(BuiltInCategory category)
{
    switch (category)
    {
    case BuiltInCategory::Fill:
        return Styles::FillStyleCategoryName;
    case BuiltInCategory::Outline:
        return Styles::OutlineStyleCategoryName;
    case BuiltInCategory::Paragraph:
        return Styles::GetParagraphStyleCategoryName();
    case BuiltInCategory::Character:
        return Styles::GetCharacterStyleCategoryName();
    }
    return Styles::PropertyKey::Empty;
}

std::vector<PropertyChoice> SplitChoices(std::string_view choices)
{
    std::vector<PropertyChoice> result;
    while (!choices.empty())
    {
        const std::string_view choice = choices.substr(0, choices.find(' '));
        const std::size_t equals = choice.find('=');
        const std::string_view text = choice.substr(0, equals);
        const std::string_view meaning = equals == std::string_view::npos ? text : choice.substr(equals + 1);
        result.push_back({std::string(text), std::string(meaning)});
        choices.remove_prefix(std::min(choices.size(), choice.size() + 1));
    }
    return result;
}

std::vector<PropertyMapping> MakeBuiltInProperties()
{
    std::vector<PropertyMapping> mappings;
    mappings.reserve(kRows.size());
    for (const Row& row : kRows)
    {
        PropertyMapping mapping;
        mapping.category = CategoryKey(row.category);
        mapping.key = Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(row.key));
        mapping.element = row.element;
        mapping.namespaceUri = row.namespaceUri;
        mapping.attribute = row.attribute;
        mapping.codec = row.codec;
        mapping.choices = SplitChoices(row.choices);
        mapping.definition = row.definition;
        mapping.side = row.side;
        mappings.push_back(std::move(mapping));
    }
    return mappings;
}

} // namespace

const std::vector<PropertyMapping>& BuiltInProperties()
{
    static const std::vector<PropertyMapping> properties = MakeBuiltInProperties();
    return properties;
}

std::string_view ElementName(PropertyElement element)
{
    return kElementNames[static_cast<std::size_t>(element)];
}

std::optional<PropertyElement> FindPropertyElement(std::string_view localName)
{
    const auto* const found = std::ranges::find(kElementNames, localName);
    if (found == kElementNames.end())
        return std::nullopt;
    return static_cast<PropertyElement>(found - kElementNames.begin());
}

std::string NameOfProperty(const PropertyMapping& row)
{
    return OvxUtils::ToUtf8(row.category.GetString()) + "." + OvxUtils::ToUtf8(row.key.GetString());
}

PropertyMappings::PropertyMappings(const std::vector<PropertyMapping>& extensions) : rows(BuiltInProperties())
{
    rows.insert(rows.end(), extensions.begin(), extensions.end());
    for (std::size_t place = 0; place < rows.size(); ++place)
    {
        if (std::ranges::find(categories, rows[place].category) == categories.end())
            categories.push_back(rows[place].category);
        rowsByAttribute[rows[place].attribute].push_back(place);
        for (PropertyChoice& choice : rows[place].choices)
            choice.key = KeyOfChoice(choice.meaning);
        firstRows.push_back(
            static_cast<std::size_t>(FindRow(rows[place].category, rows[place].key) - rows.data()));
    }
}

const std::vector<std::size_t>& PropertyMappings::FindRows(std::string_view attribute) const
{
    static const std::vector<std::size_t> none;
    const auto found = rowsByAttribute.find(attribute);
    return found == rowsByAttribute.end() ? none : found->second;
}

const PropertyMapping* PropertyMappings::FindRow(Styles::PropertyKey category, Styles::PropertyKey key) const
{
    const auto found = std::ranges::find_if(rows, [&](const PropertyMapping& row)
                                            { return row.category == category && row.key == key; });
    return found == rows.end() ? nullptr : &*found;
}

} // namespace ReferenceHost
