#pragma once

#include "host/Export.h"
#include "host/style_model/PropertyKey.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// The element of a style in which a property stands.
enum class PropertyElement
{
    Graphic,   ///< style:graphic-properties
    Paragraph, ///< style:paragraph-properties
    Text       ///< style:text-properties
};

/// How the text of an attribute stands for a value.
enum class PropertyCodec
{
    Colour,         ///< "#rrggbb": CLR_COLORSPEC.
    Length,         ///< "0.5cm": int, hundredths of a millimetre.
    RelativeLength, ///< A length, or a percentage of the inherited value: int, hundredths of a millimetre.
    FontSize,       ///< "14pt": int, tenths of a point. A percentage is one of the inherited size.
    Percent,        ///< "70%": int, a whole number.
    Opacity,        ///< "70%" or "0.7": int, what is missing to 100 (a transparency of 30).
    LetterSpacing,  ///< A length, or "normal" for 0: int, hundredths of a millimetre.
    LineSpacing,    ///< "120%", or "normal" for 100: int, a whole number. A fixed height: a text such as
                    ///< "5.25mm".
    Choice,         ///< One of the mapping's choices: PropertyKey.
    Text,           ///< The text itself: OvxStringT.
    StyleName, ///< An encoded name, perhaps of a definition: OvxStringT, decoded or the definition's display
               ///< name.
    FontName,  ///< The name of a font face declaration: OvxStringT, the family it declares.
    FontFamily ///< A font family, quoted or not: OvxStringT.
};

/// The codec that panel descriptions call by `name` ("colour", "length", "relative-length", "font-size",
/// "percent", "opacity", "letter-spacing", "line-spacing", "choice", "text", "style-name", "font-name",
/// "font-family"); none for another name.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::optional<PropertyCodec> FindPropertyCodec(std::string_view name);

/// The element with that local name ("graphic-properties", ...); none for another.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::optional<PropertyElement>
FindPropertyElement(std::string_view localName);

/// One text that a choice allows, and the choice that it stands for.
struct PropertyChoice
{
    std::string text;    ///< As it may stand in the file.
    std::string meaning; ///< The text of the PropertyKey; several texts may mean the same ("700" and "bold").
    Styles::PropertyKey key = {}; ///< That key, where somebody has looked it up already; else the empty one.
};

/// Which value of a shorthand attribute such as fo:margin a property takes: one value stands for all four,
/// two for vertical and horizontal, three for top, horizontal and bottom.
enum class ShorthandSide
{
    None, ///< The attribute is no shorthand.
    Top,
    Right,
    Bottom,
    Left
};

/// Where one property of a category stands in a drawing: a row of the one table that reading and writing
/// share.
///
/// Several rows may hold one property. The first is where it is written; the others are read where those
/// before them give nothing, and must not contradict what is written.
struct PropertyMapping
{
    Styles::PropertyKey category; ///< The substyle.
    Styles::PropertyKey key;      ///< The property in it.
    PropertyElement element = PropertyElement::Graphic;
    std::string namespaceUri; ///< The namespace of the attribute; prefixes mean nothing.
    std::string attribute;    ///< The local name of the attribute.
    PropertyCodec codec = PropertyCodec::Text;
    std::vector<PropertyChoice> choices = {}; ///< For Choice; empty allows every text.
    std::string definition = {}; ///< For StyleName: the local name of the element that defines such names.
    ShorthandSide side = ShorthandSide::None;
};

} // namespace ReferenceHost
