// Preset files.

#include "fuzz/Demand.h"
#include "fuzz/FuzzTarget.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/preset_store/PresetFile.h"
#include "reference_host/preset_store/PresetFileName.h"
#include "reference_host/preset_store/PresetPicture.h"

#include <algorithm>
#include <optional>
#include <string>

namespace
{

std::optional<ReferenceHost::Preset> Read(std::string_view text)
{
    try
    {
        return ReferenceHost::ParsePreset(text, "input.preset");
    }
    catch (const ReferenceHost::DocumentError&)
    {
        return std::nullopt;
    }
}

bool IsInFileName(char character)
{
    return character == '-' || (character >= 'a' && character <= 'z') ||
           (character >= '0' && character <= '9');
}

void DemandFileName(const OvxStringT& name)
{
    constexpr std::size_t kLongest = 60;
    const std::string file = ReferenceHost::MakePresetFileName(name);
    Fuzz::Demand(!file.empty() && file.size() <= kLongest &&
                     std::all_of(file.begin(), file.end(), IsInFileName),
                 "a preset of any name has a file name that every file system takes: " + file);
}

} // namespace

void Fuzz::RunInput(std::string_view input)
{
    const std::optional<ReferenceHost::Preset> preset = Read(input);
    if (!preset)
        return;
    Demand(preset->style != nullptr && preset->style->GetParent() == nullptr,
           "a preset that was read has a style without a parent");
    DemandFileName(preset->name);
    const std::string written = ReferenceHost::FormatPreset(preset->name, *preset->style);
    const std::optional<ReferenceHost::Preset> again = Read(written);
    Demand(again.has_value(), "a preset that was written can be read:\n" + written);
    Demand(again->name == preset->name, "a preset keeps its name:\n" + written);
    Demand(ReferenceHost::DescribePicture(*again->style) == ReferenceHost::DescribePicture(*preset->style),
           "a preset keeps its looks:\n" + written);
    DemandEqual(ReferenceHost::FormatPreset(again->name, *again->style), written,
                "a preset that was read is written as it was");
}
