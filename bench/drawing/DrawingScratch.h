#pragma once

#include "bench/harness/TemporaryFolder.h"

#include <cstddef>
#include <filesystem>

namespace Bench
{

/// A folder for the drawing of one size, gone with this. As long as it is there, presets and settings are
/// looked for in it and not in the home of whoever runs the benchmarks.
class DrawingScratch
{
public:
    /// Writes the drawing of so many shapes.
    explicit DrawingScratch(std::size_t shapes);
    DrawingScratch(const DrawingScratch&) = delete;
    DrawingScratch& operator=(const DrawingScratch&) = delete;
    ~DrawingScratch();

    /// The drawing.
    [[nodiscard]] const std::filesystem::path& GetDrawing() const noexcept { return drawing; }

    /// Where it can be saved; there is no such file.
    [[nodiscard]] std::filesystem::path GetTarget() const { return folder.GetPath() / "saved.fodg"; }

private:
    TemporaryFolder folder;
    std::filesystem::path drawing;
};

} // namespace Bench
