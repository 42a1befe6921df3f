#pragma once

#include "reference_host/document/ExternalSheets.h"
#include "reference_host/services/AtomicFile.h"

#include <filesystem>
#include <string>
#include <vector>

namespace ReferenceHost
{

/// Saves the style sheets outside a drawing that were changed from it, each to its own file.
///
/// Everything that can be known before is found out in the constructor; a failure there leaves all files as
/// they are. What cannot be changed by its link is never written.
class ExternalSheetSaving
{
public:
    /// Borrows the sheets.
    ///
    /// @param target   where the drawing is about to be saved.
    /// @param warnings receives what the files cannot hold.
    /// @throws DocumentError when `target` is one of the sheets, or somebody else has changed the file of a
    ///         changed sheet since it was read or saved.
    ExternalSheetSaving(const ExternalSheets& sheets, const std::filesystem::path& target,
                        std::vector<std::string>& warnings);

    /// Writes the changed sheets, each at once or not at all.
    ///
    /// @returns the files that were written.
    /// @throws DocumentError for the first that cannot be written; those before it are saved.
    std::vector<std::filesystem::path> Write(Backup backup);

private:
    struct Changed
    {
        ExternalSheet* sheet;
        std::string bytes;
    };

    std::vector<Changed> changed;
};

} // namespace ReferenceHost
