#pragma once

#include "reference_host/document/DrawingData.h"
#include "reference_host/document/SavedPart.h"
#include "reference_host/document/SavingContext.h"
#include "reference_host/document/Warnings.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// Splices what the model says otherwise than the file into the file's bytes.
class DrawingWriter
{
public:
    /// Borrows both.
    DrawingWriter(DrawingData& drawing, std::vector<std::string>& warningLines);

    /// @returns the bytes of the whole file. Once only.
    /// @throws DocumentError
    [[nodiscard]] std::string Write();

private:
    [[nodiscard]] std::string WriteFlat();
    [[nodiscard]] std::string WritePackage();
    void EditAll(SavedPart& styles, SavedPart& content, SavedPart& meta);

    DrawingData& data;
    Warnings warnings;
    SavingContext context;
};

} // namespace ReferenceHost
