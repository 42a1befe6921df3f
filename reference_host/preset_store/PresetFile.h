#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <memory>
#include <string>
#include <string_view>

namespace ReferenceHost
{

/// A preset as it lies in a file.
struct Preset
{
    OvxStringT name;
    std::unique_ptr<Styles::Style> style; ///< Without a parent; never null once read.
};

/// The text of a preset's file: its name, and every effective value of the style as its own, so that it looks
/// the same in every drawing. Colours lose their reference to a palette, which belongs to one drawing.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::string FormatPreset(const OvxStringT& name,
                                                                const Styles::Style& style);

/// Reads such a text. Properties of a type that is not known here are passed over.
///
/// @param label names the file in errors.
/// @throws DocumentError for a text that is no preset.
[[nodiscard]] STYLEPROPERTIES_HOST_API Preset ParsePreset(std::string_view text, const std::string& label);

} // namespace ReferenceHost
