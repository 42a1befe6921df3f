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
std::string BytesOf(const ExternalSheet& sheet, std::vector<std::string>& warnings,
                    const ProgressSpan& progress)
{
    std::vector<std::string> lines;
    std::string bytes = DrawingWriter(*sheet.data, lines).Write(progress);
    for (const std::string& line : lines)
        warnings.push_back(sheet.data->path.string() + ": " + line);
    return bytes;
}

/// Does what may fail with one sheet.
template <class Work>
auto Attempt(const ExternalSheet& sheet, const Work& work)
{
    try
    {
        return work();
    }
    catch (const std::system_error& error)
    {
        throw DocumentError(std::string("the style sheet cannot be saved (") + error.what() + ")",
                            sheet.data->path.string(), "a folder that can be written to, with enough room");
    }
}

} // namespace

ExternalSheetSaving::ExternalSheetSaving(const ExternalSheets& sheets, const std::filesystem::path& target,
                                         std::vector<std::string>& warnings, const ProgressSpan& progress)
{
    ProgressPieces pieces(progress, sheets.GetAll().size());
    for (const std::unique_ptr<ExternalSheet>& sheet : sheets.GetAll())
    {
        DemandOtherFile(*sheet, target);
        const ProgressSpan saving = pieces.Next(1);
        const bool mayDiffer =
            sheet->link.isEditable && sheet->journal != nullptr && sheet->journal->HasHeard();
        if (mayDiffer)
            Add(*sheet, warnings, saving);
    }
}

void ExternalSheetSaving::Add(ExternalSheet& sheet, std::vector<std::string>& warnings,
                              const ProgressSpan& progress)
{
    constexpr double kSerialised = 0.9;
    std::string bytes = BytesOf(sheet, warnings, progress.Part(0, kSerialised));
    if (bytes == KnownBytes(sheet))
        return;
    DemandUnchangedFile(sheet);
    ProgressSpan writing = progress.Part(ProgressPhase::Writing, kSerialised, 1);
    writing.Start(bytes.size());
    const auto tell = [&writing](std::size_t written) { writing.Reach(written); };
    StagedFile file = Attempt(sheet, [&] { return StagedFile(sheet.data->path, bytes, tell); });
    changed.push_back({&sheet, std::move(bytes), std::move(file)});
}

std::vector<std::filesystem::path> ExternalSheetSaving::TakePlaces(Backup backup)
{
    std::vector<std::filesystem::path> written;
    for (Changed& each : changed)
    {
        Attempt(*each.sheet, [&] { each.file.TakePlace(backup); });
        each.sheet->savedBytes = std::move(each.bytes);
        written.push_back(each.sheet->data->path);
    }
    return written;
}

} // namespace ReferenceHost
