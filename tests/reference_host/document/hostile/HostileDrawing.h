#pragma once

#include "tests/reference_host/document/hostile/MeasuredRun.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>

/// The parts of a flat drawing that somebody means harm with; each may be far larger than memory should be.
struct HostileDrawing
{
    /// Writes a text to the file.
    using Write = std::function<void(const std::string& text)>;
    using Part = std::function<void(const Write& write)>;

    std::string prologue; ///< Before the root element.
    std::string rootAttributes;
    Part meta;
    Part styles;
    Part automatic;
    Part page;

    /// Writes the drawing, piece by piece.
    void WriteTo(const std::filesystem::path& file) const;
};

/// The text that `make` gives for each number from 0 on.
[[nodiscard]] HostileDrawing::Part Repeat(std::size_t count, std::function<std::string(std::size_t)> make);

/// What becomes of whoever opens a file, reads what it looks like, asks for the style of its first object,
/// changes it, and makes the bytes to be saved: "error: ...", "warning: ..." with the first of them, or
/// "success".
[[nodiscard]] MeasuredRun OpenAndEdit(const std::filesystem::path& file);

/// Expects a run to have stayed within what any file may cost.
void ExpectBounded(const MeasuredRun& run);
