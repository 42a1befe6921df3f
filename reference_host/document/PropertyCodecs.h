#pragma once

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/document/PropertyMapping.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace ReferenceHost
{

/// The names that values refer to: what a document declares beside its styles. All keys are as in the file.
struct DeclaredNames
{
    /// The family that each font face declares, without quotes.
    std::unordered_map<std::string, OvxStringT> fontFamilies;

    /// What people call the gradients, hatches, fill images, dashes and markers, by DefinitionKey().
    std::unordered_map<std::string, OvxStringT> definitions;
};

/// What DeclaredNames::definitions is searched for: the kind keeps a hatch from naming a gradient.
[[nodiscard]] std::string DefinitionKey(std::string_view kind, std::string_view name);

/// What the text of an attribute stands for.
struct ParsedValue
{
    OvxUtils::Any value; ///< Empty when the value is relative.

    /// What a relative value takes of the inherited one; 0 when the value is absolute, because nothing of
    /// anything is absolute as well.
    double percentOfInherited = 0;
};

/// What a choice that means `meaning` is in memory.
[[nodiscard]] Styles::PropertyKey KeyOfChoice(std::string_view meaning);

/// Reads the text of an attribute, blanks at both ends aside; none when it means nothing there.
[[nodiscard]] std::optional<ParsedValue> ParseProperty(const PropertyMapping& mapping, std::string_view text,
                                                       const DeclaredNames& names);

/// The piece of a shorthand that stands for `side`; the text itself when it is no shorthand, and an empty
/// text when there are no one to four values.
[[nodiscard]] std::string_view PickShorthandSide(std::string_view text, ShorthandSide side);

/// A list of font families without its quotes: "'DejaVu Sans', serif" is "DejaVu Sans, serif".
[[nodiscard]] OvxStringT ParseFontFamily(std::string_view text);

/// An "#rrggbb"; none for anything else.
[[nodiscard]] std::optional<CLR_COLORSPEC::Rgb> ParseColour(std::string_view text);

} // namespace ReferenceHost
