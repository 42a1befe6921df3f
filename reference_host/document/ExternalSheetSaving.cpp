#include "reference_host/document/ExternalSheetSaving.h"

#include "reference_host/document/DrawingData.h"
#include "reference_host/document/DrawingWriter.h"

#include <system_error>
#include <utility>

namespace ReferenceHost
{

namespace
{

/// @throws DocumentError when saving the drawing would replace the sheet.
void DemandOtherFile(const ExternalSheet& sheet, const std::filesystem::path& target)
{
    std::error_code ignored;
    if (std::filesystem::equivalent(target, sheet.data->path, ignored))
        throw DocumentError("this is a style sheet of the drawing, which would be lost", target.string(),
                            "another file to save to");
}

/// What lies on disk, as far as this program knows.
const std::string& KnownBytes(const ExternalSheet& sheet)
{
    return sheet.savedBytes ? *sheet.savedBytes : sheet.data->file.bytes;
}

/// @throws DocumentError when the file is another than the one that was read.
void DemandUnchangedFile(const ExternalSheet& sheet)
{
    if (ReadDrawingFile(sheet.data->path).bytes != KnownBytes(sheet))
        throw DocumentError("the style sheet has been changed by somebody else since it was opened",
                            sheet.data->path.string(),
                            "the file as it was; open the drawing again and repeat the edit");
}

/// The bytes of the sheet as its styles stand now.
std::string BytesOf(const ExternalSheet& sheet, std::vector<std::string>& warnings)
{
    std::vector<std::string> lines;
    std::string bytes = DrawingWriter(*sheet.data, lines).Write();
    for (const std::string& line : lines)
        warnings.push_back(sheet.data->path.string() + ": " + line);
    return bytes;
}

} // namespace

ExternalSheetSaving::ExternalSheetSaving(const ExternalSheets& sheets, const std::filesystem::path& target,
                                         std::vector<std::string>& warnings)
{
    for (const std::unique_ptr<ExternalSheet>& sheet : sheets.GetAll())
    {
        DemandOtherFile(*sheet, target);
        const bool mayDiffer =
            sheet->link.isEditable && sheet->journal != nullptr && sheet->journal->HasHeard();
        if (!mayDiffer)
            continue;
        std::string bytes = BytesOf(*sheet, warnings);
        if (bytes == KnownBytes(*sheet))
            continue;
        DemandUnchangedFile(*sheet);
        changed.push_back({sheet.get(), std::move(bytes)});
    }
}

std::vector<std::filesystem::path> ExternalSheetSaving::Write(Backup backup)
{
    std::vector<std::filesystem::path> written;
    for (Changed& each : changed)
    {
        const std::filesystem::path& file = each.sheet->data->path;
        try
        {
            WriteFileAtomically(file, each.bytes, backup);
        }
        catch (const std::system_error& error)
        {
            throw DocumentError(std::string("the style sheet cannot be saved (") + error.what() + ")",
                                file.string(), "a folder that can be written to, with enough room");
        }
        each.sheet->savedBytes = std::move(each.bytes);
        written.push_back(file);
    }
    return written;
}

} // namespace ReferenceHost
