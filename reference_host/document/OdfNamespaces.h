#pragma once

#include <string_view>

namespace ReferenceHost
{

/// The namespaces of OpenDocument that this host looks at, by their URIs. Prefixes mean nothing.
namespace Odf
{
inline constexpr std::string_view kOffice = "urn:oasis:names:tc:opendocument:xmlns:office:1.0";
inline constexpr std::string_view kPresentation = "urn:oasis:names:tc:opendocument:xmlns:presentation:1.0";
inline constexpr std::string_view kStyle = "urn:oasis:names:tc:opendocument:xmlns:style:1.0";
inline constexpr std::string_view kText = "urn:oasis:names:tc:opendocument:xmlns:text:1.0";
inline constexpr std::string_view kDraw = "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0";
inline constexpr std::string_view kDr3d = "urn:oasis:names:tc:opendocument:xmlns:dr3d:1.0";
inline constexpr std::string_view kFo = "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0";
inline constexpr std::string_view kSvg = "urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0";
inline constexpr std::string_view kMeta = "urn:oasis:names:tc:opendocument:xmlns:meta:1.0";
inline constexpr std::string_view kManifest = "urn:oasis:names:tc:opendocument:xmlns:manifest:1.0";
inline constexpr std::string_view kXlink = "http://www.w3.org/1999/xlink";
} // namespace Odf

/// What this host writes into drawings beyond OpenDocument. Other programs keep the palette, which stands in
/// the user-defined metadata, and may drop the attributes: what they need is always written beside them.
namespace OwnMarkup
{
/// The namespace of the own elements and attributes.
inline constexpr std::string_view kNamespace = "urn:styleproperties:1.0";

/// On style:style: the category of a named style that is not a whole style ("fill").
inline constexpr std::string_view kCategory = "category";

/// On style:style, beside kCategory: the encoded name of its parent of the same category. Empty on the
/// automatic style of a shape: the shape has no parent, where it would otherwise take "standard".
inline constexpr std::string_view kParent = "parent-style-name";

/// Behind the text of a category, on the style:style of a shape or a whole style: the encoded name of the
/// named style of that category that the substyle inherits from ("fill-parent-style-name"). What the substyle
/// inherits so stands in the style as well, for other programs.
inline constexpr std::string_view kSubstyleParentSuffix = "-parent-style-name";

/// On style:style, beside those: which of the values that stand in the style are inherited so and not the
/// style's own, as "fill.color fill.type".
inline constexpr std::string_view kInheritedValues = "inherited-values";

/// Behind the local name of a colour attribute, the attribute that names the palette entry of the colour:
/// "fill-color" and "fill-color-resource".
inline constexpr std::string_view kResourceSuffix = "-resource";

/// Below office:styles, an element that names a style sheet outside the drawing by xlink:href, with the two
/// attributes behind it.
inline constexpr std::string_view kSheetLink = "style-sheet";

/// On kSheetLink: what the sheet is called; without it, it is called as its file is named.
inline constexpr std::string_view kSheetName = "name";

/// On kSheetLink: "true" when the styles of the sheet may be edited from the drawing.
inline constexpr std::string_view kSheetEditable = "editable";

/// In front of the name of a palette entry, the meta:name of the meta:user-defined that holds its "#rrggbb".
inline constexpr std::string_view kPalettePrefix = "styleprops:palette:";
} // namespace OwnMarkup

} // namespace ReferenceHost
