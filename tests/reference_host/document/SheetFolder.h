#pragma once

#include "tests/reference_host/document/FlatDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <filesystem>
#include <string>

/// A folder for one test with drawings and the style sheets that they link to.
class SheetFolder
{
public:
    /// The path of a file; the folders on the way to it are made.
    [[nodiscard]] std::filesystem::path PathOf(const std::string& name) const;

    /// Writes a flat drawing.
    ///
    /// @returns its path.
    std::filesystem::path Write(const std::string& name, const FlatDrawing& drawing) const;

    /// Writes any file.
    ///
    /// @returns its path.
    std::filesystem::path WriteBytes(const std::string& name, const std::string& bytes) const;

    /// What a file holds; empty without it.
    [[nodiscard]] std::string Bytes(const std::string& name) const;

    [[nodiscard]] OpenedDrawing Open(const std::string& name) const;

private:
    ScratchFolder folder;
};

/// A style sheet with the whole styles "House Base" (colour #3366cc, lines 1 mm wide) and its child "House
/// Box" (colour #00aa00), and "House Ink", a style for fills alone (colour #111111).
[[nodiscard]] FlatDrawing HouseSheet();

/// A link to a style sheet, for office:styles.
[[nodiscard]] std::string LinkTo(const std::string& reference, const std::string& attributes = "");

/// A drawing that links to "house.fodg" as "House": its own style "Note" inherits from "House Base" and has
/// the colour #ffee00, its shape 1/1 inherits from "House Box" and has lines 2 mm wide, its shape 1/2
/// inherits from "Note", and its default style has dashed lines, which the sheet's default style has not.
[[nodiscard]] FlatDrawing LinkedDrawing(const std::string& linkAttributes = "");

/// LinkedDrawing() whose link lets the sheet be edited.
[[nodiscard]] FlatDrawing EditingDrawing();
