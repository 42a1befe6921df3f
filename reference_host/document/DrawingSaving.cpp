// How a drawing gets back to disk: the bytes come from the DrawingWriter, the file from the services.
#include "reference_host/document/Drawing.h"
#include "reference_host/document/DrawingWriter.h"
#include "reference_host/document/ExternalSheetSaving.h"
#include "reference_host/services/AtomicFile.h"

namespace ReferenceHost
{

std::string Drawing::Serialise(std::vector<std::string>& warnings) const
{
    // What depends on a change is brought in line when its step ends.
    data->history.EndLooseStep();
    return DrawingWriter(*data, warnings).Write();
}

std::vector<std::filesystem::path> Drawing::Save(const std::filesystem::path& target,
                                                 const SaveOptions& options,
                                                 std::vector<std::string>& warnings) const
{
    data->history.EndLooseStep();
    const std::string bytes = DrawingWriter(*data, warnings, target.parent_path()).Write();
    ExternalSheetSaving sheets(data->sheets, target, warnings);
    const Backup backup = options.keepBackup ? Backup::Keep : Backup::None;
    std::vector<std::filesystem::path> written = sheets.Write(backup);
    try
    {
        WriteFileAtomically(target, bytes, backup);
    }
    catch (const std::system_error& error)
    {
        throw DocumentError(std::string("the drawing cannot be saved (") + error.what() + ")",
                            target.string(), "a folder that can be written to, with enough room");
    }
    return written;
}

} // namespace ReferenceHost
