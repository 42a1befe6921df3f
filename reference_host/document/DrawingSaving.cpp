// How a drawing gets back to disk: the bytes come from the DrawingWriter, the file from the services.
#include "reference_host/document/Drawing.h"
#include "reference_host/document/DrawingWriter.h"
#include "reference_host/document/ExternalSheetSaving.h"
#include "reference_host/document/ProgressMeter.h"
#include "reference_host/services/AtomicFile.h"

namespace ReferenceHost
{

namespace
{

// Which share of the work is done after each stage.
constexpr double kSerialised = 0.85;
constexpr double kSheetsStaged = 0.9;

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
    const Backup backup = options.keepBackup ? Backup::Keep : Backup::None;
    try
    {
        ExternalSheetSaving sheets(data->sheets, target, warnings,
                                   whole.Part(ProgressPhase::StyleSheets, kSerialised, kSheetsStaged));
        ProgressSpan writing = whole.Part(ProgressPhase::Writing, kSheetsStaged, 1);
        writing.Start(bytes.size());
        StagedFile file(target, bytes, [&writing](std::size_t written) { writing.Reach(written); });
        meter.Finish();
        std::vector<std::filesystem::path> written = sheets.TakePlaces(backup);
        file.TakePlace(backup);
        return written;
    }
    catch (const std::system_error& error)
    {
        throw DocumentError(std::string("the drawing cannot be saved (") + error.what() + ")",
                            target.string(), "a folder that can be written to, with enough room");
    }
}

} // namespace ReferenceHost
