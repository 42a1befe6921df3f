#pragma once

#include "reference_host/document/Drawing.h"
#include "reference_host/history/IDocumentChange.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace ReferenceHost
{

/// A palette entry comes, behind all others, or changes its look.
class PaletteChange final : public IDocumentChange
{
public:
    /// Borrows the palette.
    PaletteChange(std::vector<PaletteEntry>& target, PaletteEntry newEntry);

    void Redo() override;
    void Undo() override;

private:
    std::vector<PaletteEntry>& palette;
    PaletteEntry entry;
    std::size_t place;                        ///< Of the entry in the palette.
    std::optional<CLR_COLORSPEC::Rgb> before; ///< None when the entry is new.
};

} // namespace ReferenceHost
