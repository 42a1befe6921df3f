#pragma once

#include "tests/reference_host/document/ScratchFolder.h"

#include <filesystem>
#include <string>
#include <vector>

namespace WorkbenchTests
{

/// A place of its own for the presets of one test, which processes started meanwhile find as well.
class ScratchConfiguration
{
public:
    ScratchConfiguration();
    ScratchConfiguration(const ScratchConfiguration&) = delete;
    ScratchConfiguration& operator=(const ScratchConfiguration&) = delete;
    ~ScratchConfiguration();

    [[nodiscard]] const std::filesystem::path& GetPath() const noexcept { return folder.GetPath(); }

    /// The files of all presets, in the order of their paths.
    [[nodiscard]] std::vector<std::filesystem::path> PresetFiles() const;

    /// Puts a file in the place where presets are looked for, so that none can be read or kept.
    void Obstruct() const;

private:
    ScratchFolder folder;
};

} // namespace WorkbenchTests
