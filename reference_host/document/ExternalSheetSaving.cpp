#include "reference_host/document/ExternalSheetSaving.h"

#include "reference_host/document/DrawingData.h"
#include "reference_host/document/DrawingWriter.h"
#include "reference_host/document/FileReplacing.h"

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

/// The bytes of the sheet as its styles stand now.
std::string BytesOf(const ExternalSheet& sheet, std::vector<std::string>& warnings,
                    const ProgressSpan& progress)
{
    std::vector<std::string> lines;
    std::string bytes = DrawingWriter(*sheet.data, lines).Write(progress);
    for (const std::string& line : lines)
        warnings.push_back(sheet.data->path.string() + ": " + line);
    return bytes;
}

} // namespace

ExternalSheetSaving::ExternalSheetSaving(const ExternalSheets& sheets, const std::filesystem::path& target,
                                         const SaveOptions& options, std::vector<std::string>& warnings,
                                         const ProgressSpan& progress)
{
    ProgressPieces pieces(progress, sheets.GetAll().size());
    for (const std::unique_ptr<ExternalSheet>& sheet : sheets.GetAll())
    {
        DemandOtherFile(*sheet, target);
        const ProgressSpan saving = pieces.Next(1);
        const bool mayDiffer =
            sheet->link.isEditable && sheet->journal != nullptr && sheet->journal->HasHeard();
        if (mayDiffer)
            Add(*sheet, options, warnings, saving);
    }
}

void ExternalSheetSaving::Add(ExternalSheet& sheet, const SaveOptions& options,
                              std::vector<std::string>& warnings, const ProgressSpan& progress)
{
    constexpr double kSerialised = 0.9;
    std::string bytes = BytesOf(sheet, warnings, progress.Part(0, kSerialised));
    if (bytes == KnownBytes(sheet))
        return;
    FileReplacing file({"style sheet", sheet.data->path, DigestOf(KnownBytes(sheet))}, bytes, options,
                       progress.Part(ProgressPhase::Writing, kSerialised, 1));
    changed.push_back({&sheet, std::move(bytes), std::move(file)});
}

std::vector<std::filesystem::path> ExternalSheetSaving::TakePlaces()
{
    std::vector<std::filesystem::path> written;
    for (Changed& each : changed)
    {
        each.file.TakePlace();
        each.sheet->savedBytes = std::move(each.bytes);
        written.push_back(each.sheet->data->path);
    }
    return written;
}

} // namespace ReferenceHost
