#pragma once

#include "reference_host/document/ExternalSheets.h"
#include "reference_host/document/FileReplacing.h"
#include "reference_host/document/ProgressMeter.h"

#include <filesystem>
#include <string>
#include <vector>

namespace ReferenceHost
{

/// Saves the style sheets outside a drawing that were changed from it, each to its own file.
///
/// Everything but the last step is done in the constructor; a failure there, and giving up before the last
/// step, leaves all files as they are. What cannot be changed by its link is never written.
class ExternalSheetSaving
{
public:
    /// Borrows the sheets, and writes the new bytes of those that were changed beside their files.
    ///
    /// @param target   where the drawing is about to be saved.
    /// @param warnings receives what the files cannot hold.
    /// @throws DocumentError when `target` is one of the sheets, or one cannot be written.
    /// @throws OverwriteRefusal when the file of a changed sheet may not be replaced, see Drawing::Save().
    ExternalSheetSaving(const ExternalSheets& sheets, const std::filesystem::path& target,
                        const SaveOptions& options, std::vector<std::string>& warnings,
                        const ProgressSpan& progress);

    /// Lets the changed sheets take the places of their files.
    ///
    /// @returns the files that were written.
    /// @throws DocumentError for the first that cannot take its place; those before it are saved.
    std::vector<std::filesystem::path> TakePlaces();

private:
    struct Changed
    {
        ExternalSheet* sheet;
        std::string bytes;
        FileReplacing file;
    };

    void Add(ExternalSheet& sheet, const SaveOptions& options, std::vector<std::string>& warnings,
             const ProgressSpan& progress);

    std::vector<Changed> changed;
};

} // namespace ReferenceHost
