// How a drawing gets back to disk: the bytes come from the DrawingWriter, the file from the services.
#include "reference_host/document/Drawing.h"
#include "reference_host/document/DrawingData.h"
#include "reference_host/document/DrawingWriter.h"
#include "reference_host/document/ExternalSheetSaving.h"
#include "reference_host/document/FileReplacing.h"
#include "reference_host/document/ProgressMeter.h"

namespace ReferenceHost
{

namespace
{

// Which share of the work is done after each stage.
constexpr double kSerialised = 0.85;
constexpr double kSheetsStaged = 0.9;

/// What a file held when this drawing was last saved there, or read from it; none for any other file.
std::optional<FileDigest> FindKnownBytes(const DrawingData& data, const std::filesystem::path& target)
{
    if (std::optional<FileDigest> saved = data.saved.Find(target))
        return saved;
    std::error_code ignored;
    const bool isOpened = std::filesystem::equivalent(target, data.path, ignored);
    return isOpened ? std::optional(DigestOf(data.file.bytes)) : std::nullopt;
}

} // namespace

std::string Drawing::Serialise(std::vector<std::string>& warnings, const ProgressListener& progress) const
{
    // What depends on a change is brought in line when its step ends.
    data->history.EndLooseStep();
    ProgressMeter meter(progress);
    std::string bytes = DrawingWriter(*data, warnings).Write(ProgressSpan(meter));
    meter.Finish();
    return bytes;
}

std::vector<std::filesystem::path> Drawing::Save(const std::filesystem::path& target,
                                                 const SaveOptions& options,
                                                 std::vector<std::string>& warnings) const
{
    data->history.EndLooseStep();
    ProgressMeter meter(options.progress);
    const ProgressSpan whole(meter);
    const std::string bytes =
        DrawingWriter(*data, warnings, target.parent_path()).Write(whole.Part(0, kSerialised));
    ExternalSheetSaving sheets(data->sheets, target, options, warnings,
                               whole.Part(ProgressPhase::StyleSheets, kSerialised, kSheetsStaged));
    FileReplacing file({"drawing", target, FindKnownBytes(*data, target)}, bytes, options,
                       whole.Part(ProgressPhase::Writing, kSheetsStaged, 1));
    meter.Finish();
    std::vector<std::filesystem::path> written = sheets.TakePlaces();
    file.TakePlace();
    data->saved.Note(target, bytes);
    return written;
}

} // namespace ReferenceHost
