#pragma once

#include "reference_host/document/Drawing.h"
#include "reference_host/document/FileDigest.h"
#include "reference_host/document/ProgressMeter.h"
#include "reference_host/services/AtomicFile.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace ReferenceHost
{

/// A file that is about to be written.
struct ReplacedFile
{
    std::string kind; ///< What messages call it: "drawing".
    std::filesystem::path path;
    std::optional<FileDigest> known; ///< What it held when this program last read or wrote it; else none.
};

/// Replaces a file where that loses nothing, or the options force it: the new bytes are made ready beside it,
/// and take its place when the caller says so. Given up before that, the file is as it was.
class FileReplacing
{
public:
    /// Writes the new bytes beside the file.
    ///
    /// @throws OverwriteRefusal when the file has further names, is protected, belongs to somebody else, or
    ///         is no longer what is known of it. One that is gone may be written anew.
    /// @throws DocumentError when the bytes cannot be written; OperationCancelled.
    FileReplacing(ReplacedFile replaced, std::string_view bytes, const SaveOptions& options,
                  ProgressSpan progress);

    /// Lets the new bytes take the place of the file. Once. What may refuse is looked at again in this last
    /// moment.
    ///
    /// @throws OverwriteRefusal and DocumentError as the constructor does.
    void TakePlace();

private:
    ReplacedFile file;
    Backup backup;
    bool isForced;
    StagedFile staged;
};

} // namespace ReferenceHost
