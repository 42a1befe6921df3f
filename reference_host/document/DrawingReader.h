#pragma once

#include "reference_host/document/DrawingData.h"
#include "reference_host/document/ProgressMeter.h"
#include "reference_host/document/StyleReader.h"
#include "reference_host/document/Warnings.h"
#include "reference_host/document/XmlNames.h"

#include <pugixml.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// Reads one drawing into its data.
class DrawingReader
{
public:
    /// What becomes of links to style sheets outside the drawing.
    enum class SheetLinks
    {
        Follow,
        PassOver ///< They are reported: the drawing is a sheet itself.
    };

    /// Borrows both; `target` holds nothing of the file yet.
    DrawingReader(DrawingData& target, std::vector<std::string>& warningLines,
                  const ProgressSpan& whole = {});

    /// Reads the file that the drawing's path names.
    ///
    /// @throws DocumentError
    void Read(SheetLinks links);

    /// Reads what `target` holds as the bytes of its file.
    ///
    /// @throws DocumentError
    void ReadContents(SheetLinks links);

private:
    /// One XML text of the drawing: a flat file has one, a package up to three. Without a text all is empty.
    struct Part
    {
        std::string label;
        std::string_view text; ///< Borrowed from the drawing's file.
        std::unique_ptr<pugi::xml_document> tree;

        [[nodiscard]] pugi::xml_node GetRoot() const
        {
            return tree == nullptr ? pugi::xml_node() : tree->document_element();
        }
    };

    /// The texts of the drawing as parts: of a flat file the content stands for all.
    struct Parts
    {
        Part content;
        Part styles;
        Part meta;
    };

    [[nodiscard]] Parts ParseAll() const;
    [[nodiscard]] Part Parse(std::string_view text, const char* entry, const ProgressSpan& parsing) const;
    void RequireDrawing(const Part& content);
    void ReadPalette(const Part& part);
    void ReadPaletteEntry(pugi::xml_node element, XmlNames& names);
    void ReadStyles(StyleReader& reader, const Part& styles, const Part& content);
    void ReadSheetLinks(const Part& styles);
    void OpenSheets(SheetLinks links);
    void ReadShapes(const Part& content);

    DrawingData& data;
    Warnings warnings;
    ProgressSpan progress;
    PaletteColours colours;
};

} // namespace ReferenceHost
