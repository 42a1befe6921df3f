#include "reference_host/document/FileReplacing.h"

#include "reference_host/document/OverwriteRefusal.h"

#include <fstream>
#include <system_error>
#include <utility>

namespace ReferenceHost
{

namespace
{

namespace fs = std::filesystem;

/// How many names lead to a file, without that of its backup: a program that was ended between making the
/// backup and replacing the file has left both names to one file.
std::uintmax_t CountNames(const fs::path& file)
{
    std::error_code failure;
    const std::uintmax_t names = fs::hard_link_count(file, failure);
    if (failure)
        return 1;
    fs::path backup = fs::weakly_canonical(file, failure);
    backup += "~";
    return fs::equivalent(file, backup, failure) ? names - 1 : names;
}

bool MayBeWritten(const fs::path& file)
{
    return std::ofstream(file, std::ios::binary | std::ios::in | std::ios::out).is_open();
}

/// The checks, for the file behind all links of the one that messages name.
void DemandReplaceable(const ReplacedFile& named, const fs::path& file)
{
    if (!fs::is_regular_file(fs::status(file)))
        return;
    if (CountNames(file) > 1)
        throw OverwriteRefusal("the file has further names (hard links), which would keep the old " +
                                   named.kind,
                               named.path.string(), "a file with one name");
    if (!MayBeWritten(file))
        throw OverwriteRefusal("the file is protected against changes", named.path.string(),
                               "a file that may be written to");
    if (named.known && DigestOfFile(file) != named.known)
        throw OverwriteRefusal("the " + named.kind + " has been changed by somebody else since it was opened",
                               named.path.string(),
                               "the file as it was; open the drawing again and repeat the edit");
}

/// Does what may fail with a file on disk.
template <class Work>
auto Attempt(const ReplacedFile& file, const Work& work)
{
    try
    {
        return work();
    }
    catch (const OwnerCannotBeKept&)
    {
        throw OverwriteRefusal("the file belongs to others and would become yours", file.path.string(),
                               "a file of your own");
    }
    catch (const std::system_error& error)
    {
        throw DocumentError("the " + file.kind + " cannot be saved (" + error.what() + ")",
                            file.path.string(), "a folder that can be written to, with enough room");
    }
}

StagedFile Stage(const ReplacedFile& file, std::string_view bytes, bool isForced, ProgressSpan& progress)
{
    const auto tell = [&progress](std::size_t written) { progress.Reach(written); };
    const Ownership ownership = isForced ? Ownership::MayChange : Ownership::Keep;
    return Attempt(file,
                   [&]
                   {
                       if (!isForced)
                           DemandReplaceable(file, file.path);
                       progress.Start(bytes.size());
                       return StagedFile(file.path, bytes, ownership, tell);
                   });
}

} // namespace

FileReplacing::FileReplacing(ReplacedFile replaced, std::string_view bytes, const SaveOptions& options,
                             ProgressSpan progress)
    : file(std::move(replaced)),
      backup(options.keepBackup ? Backup::Keep : Backup::None),
      isForced(options.force),
      staged(Stage(file, bytes, isForced, progress))
{
}

void FileReplacing::TakePlace()
{
    StagedFile::Check check;
    if (!isForced)
        check = [this](const fs::path& real) { DemandReplaceable(file, real); };
    Attempt(file, [&] { staged.TakePlace(backup, check); });
}

} // namespace ReferenceHost
