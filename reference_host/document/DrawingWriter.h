#pragma once

#include "reference_host/document/DrawingData.h"
#include "reference_host/document/ProgressMeter.h"
#include "reference_host/document/SavedPart.h"
#include "reference_host/document/SavingContext.h"
#include "reference_host/document/Warnings.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

class ShapeEdits;

/// Splices what the model says otherwise than the file into the file's bytes.
class DrawingWriter
{
public:
    /// Borrows drawing and lines.
    ///
    /// @param targetFolder where the file goes: links to style sheets lead on from there.
    DrawingWriter(DrawingData& drawing, std::vector<std::string>& warningLines,
                  std::filesystem::path targetFolder);

    /// The same for where the drawing comes from.
    DrawingWriter(DrawingData& drawing, std::vector<std::string>& warningLines);

    /// @returns the bytes of the whole file. Once only.
    /// @throws DocumentError
    [[nodiscard]] std::string Write(const ProgressSpan& whole = {});

private:
    [[nodiscard]] std::string WriteFlat();
    [[nodiscard]] std::string WritePackage();
    void EditShapes(ShapeEdits& shapes);
    void EditAll(SavedPart& styles, SavedPart& content, SavedPart& meta);
    void MoveSheetLinks(SavedPart& styles);

    DrawingData& data;
    Warnings warnings;
    SavingContext context;
    std::filesystem::path folder; ///< Where the file goes.
    ProgressSpan progress;
};

} // namespace ReferenceHost
