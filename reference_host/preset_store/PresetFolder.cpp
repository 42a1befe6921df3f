#include "reference_host/preset_store/PresetFolder.h"

#include "reference_host/document/DocumentError.h"
#include "reference_host/preset_store/PresetFile.h"
#include "reference_host/preset_store/PresetFileName.h"
#include "reference_host/preset_store/PresetReports.h"
#include "reference_host/services/AtomicFile.h"
#include "reference_host/services/FolderListing.h"
#include "reference_host/services/FolderLock.h"
#include "reference_host/services/NativePaths.h"

#include <algorithm>
#include <exception>
#include <fstream>
#include <iterator>
#include <new>
#include <system_error>
#include <utility>

namespace ReferenceHost
{

namespace
{

constexpr const char* kExtension = ".preset";

/// More than any preset that was written here holds.
constexpr std::uintmax_t kLargestFile = 1U << 20U;

std::vector<std::filesystem::path> FindFiles(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files = ListFolder(folder);
    std::erase_if(files, [](const std::filesystem::path& file) { return file.extension() != kExtension; });
    std::ranges::sort(files);
    return files;
}

std::string ReadFile(const std::filesystem::path& file)
{
    const std::string label = PathToUtf8(file);
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        throw DocumentError("this is no file", label, "a preset");
    if (std::filesystem::file_size(file, error) > kLargestFile || error)
        throw DocumentError("the file is too large", label, "a preset of at most 1 MiB");
    std::ifstream stream(file, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream)
        throw DocumentError("the file cannot be read", label, "a preset that may be read");
    return text;
}

bool StandsBefore(const OvxStringT& left, const OvxStringT& right)
{
    const int order = left.Compare(right, CompareCase::Insensitive);
    return order != 0 ? order < 0 : left < right;
}

/// Whether the file of a preset is the one that presets of that name are kept in.
bool BearsItsName(const std::filesystem::path& file, const OvxStringT& name)
{
    return PathToUtf8(file.stem()) == MakePresetFileName(name);
}

/// A file for a new preset. One that is there already is somebody's, also a damaged one.
std::filesystem::path FindFreeFile(const std::filesystem::path& folder, const std::string& fileName)
{
    std::filesystem::path file = folder / (fileName + kExtension);
    for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(file)); ++number)
        file = folder / (fileName + "-" + std::to_string(number) + kExtension);
    return file;
}

} // namespace

std::vector<PresetFolder::Entry> PresetFolder::Read() const
{
    std::vector<Entry> entries;
    for (const std::filesystem::path& file : FindFiles(folder))
    {
        try
        {
            Preset preset = ParsePreset(ReadFile(file), PathToUtf8(file));
            entries.push_back({std::move(preset.name), file, std::move(preset.style)});
        }
        catch (const DocumentError& error)
        {
            ReportPresetProblem(PresetProblem::Skipped, error.what());
        }
    }
    std::ranges::stable_sort(entries,
                             [](const Entry& left, const Entry& right)
                             {
                                 if (left.name != right.name)
                                     return StandsBefore(left.name, right.name);
                                 return BearsItsName(left.file, left.name) &&
                                        !BearsItsName(right.file, right.name);
                             });
    const auto isRepeated = [](const Entry& first, const Entry& second)
    {
        if (first.name != second.name)
            return false;
        ReportPresetProblem(PresetProblem::Skipped, PathToUtf8(second.file) + ": the same name as " +
                                                        PathToUtf8(first.file.filename()) +
                                                        ", which counts; expected a name of its own");
        return true;
    };
    entries.erase(std::unique(entries.begin(), entries.end(), isRepeated), entries.end());
    return entries;
}

std::vector<OvxStringT> PresetFolder::ListNames() const
{
    const FolderLock lock(folder, LockKind::Shared);
    std::vector<OvxStringT> names;
    for (Entry& entry : Read())
        names.push_back(std::move(entry.name));
    return names;
}

bool PresetFolder::Contains(const OvxStringT& name) const
{
    const FolderLock lock(folder, LockKind::Shared);
    return !FindFile(name).empty();
}

std::unique_ptr<Styles::Style> PresetFolder::Load(const OvxStringT& name) const
{
    const FolderLock lock(folder, LockKind::Shared);
    std::vector<Entry> entries = Read();
    const auto found = std::ranges::find(entries, name, &Entry::name);
    return found == entries.end() ? nullptr : std::move(found->style);
}

std::map<OvxStringT, std::unique_ptr<Styles::Style>> PresetFolder::LoadAll() const
{
    const FolderLock lock(folder, LockKind::Shared);
    std::map<OvxStringT, std::unique_ptr<Styles::Style>> presets;
    for (Entry& entry : Read())
        presets.emplace(std::move(entry.name), std::move(entry.style));
    return presets;
}

/// Empty without a preset of that name.
std::filesystem::path PresetFolder::FindFile(const OvxStringT& name) const
{
    const std::vector<Entry> entries = Read();
    const auto found = std::ranges::find(entries, name, &Entry::name);
    return found == entries.end() ? std::filesystem::path() : found->file;
}

bool PresetFolder::Add(const OvxStringT& name, const std::string& fileName, const Styles::Style& style,
                       bool replace) const
{
    try
    {
        std::filesystem::create_directories(folder);
        const FolderLock lock(folder, LockKind::Exclusive);
        std::filesystem::path file = FindFile(name);
        if (!file.empty() && !replace)
            return false;
        if (file.empty())
            file = FindFreeFile(folder, fileName);
        WriteFileAtomically(file, FormatPreset(name, style));
        return true;
    }
    catch (const std::bad_alloc&)
    {
        throw; // Nothing to do with the folder.
    }
    catch (const std::exception& error)
    {
        ReportPresetProblem(PresetProblem::NotChanged, error.what());
        return false;
    }
}

bool PresetFolder::Remove(const OvxStringT& name) const
{
    try
    {
        if (!std::filesystem::exists(folder))
            return false;
        const FolderLock lock(folder, LockKind::Exclusive);
        const std::filesystem::path file = FindFile(name);
        return !file.empty() && std::filesystem::remove(file);
    }
    catch (const std::bad_alloc&)
    {
        throw; // Nothing to do with the folder.
    }
    catch (const std::exception& error)
    {
        ReportPresetProblem(PresetProblem::NotChanged, error.what());
        return false;
    }
}

} // namespace ReferenceHost
