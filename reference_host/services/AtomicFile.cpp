#include "reference_host/services/AtomicFile.h"

#include "reference_host/services/FileTurn.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#if !defined(_WIN32)
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace ReferenceHost
{

namespace
{

using Path = std::filesystem::path;

/// Removes a temporary file unless it has found its place. Handed on without a copy, which could fail.
class Leftover
{
public:
    explicit Leftover(Path file) noexcept : path(std::move(file)) {}

    Leftover(Leftover&& other) noexcept : path(std::exchange(other.path, Path())) {}

    Leftover(const Leftover&) = delete;
    Leftover& operator=(const Leftover&) = delete;

    ~Leftover()
    {
        std::error_code ignored;
        if (!path.empty())
            std::filesystem::remove(path, ignored);
    }

    [[nodiscard]] const Path& GetPath() const noexcept { return path; }

    /// Leaves the file to the caller.
    [[nodiscard]] Path Release() noexcept { return std::exchange(path, Path()); }

private:
    Path path;
};

/// Where the bytes go: behind all symbolic links, of which the last may lead to nothing yet.
Path FollowLinks(Path target)
{
    constexpr int kMostLinks = 40;
    for (int link = 0; std::filesystem::is_symlink(std::filesystem::symlink_status(target)); ++link)
    {
        if (link == kMostLinks)
            throw std::system_error(std::make_error_code(std::errc::too_many_symbolic_link_levels),
                                    "the link leads nowhere");
        const Path next = std::filesystem::read_symlink(target);
        target = next.is_absolute() ? next : target.parent_path() / next;
    }
    return target;
}

Path FolderOf(const Path& file)
{
    return file.has_parent_path() ? file.parent_path() : Path(".");
}

/// As many bytes as are written before it is told how many there were.
constexpr std::size_t kWrittenAtOnce = std::size_t{1} << 20U;

/// Keeps the old file under its second name, which both names share until the new file takes the first.
void KeepBackup(const Path& file)
{
    Path backup = file;
    backup += "~";
    std::error_code failure;
    std::filesystem::remove(backup, failure);
    std::filesystem::create_hard_link(file, backup, failure);
    // Not every file system knows hard links.
    if (failure)
        std::filesystem::copy_file(file, backup, std::filesystem::copy_options::overwrite_existing);
}

#if defined(_WIN32)

Leftover WriteTemporary(const Path& file, std::string_view bytes, Ownership /*ownership*/,
                        const StagedFile::Written& written)
{
    Path temporary = file;
    temporary += ".new";
    Leftover leftover(std::move(temporary));
    std::ofstream stream(leftover.GetPath(), std::ios::binary | std::ios::trunc);
    std::size_t done = 0;
    while (stream && done < bytes.size())
    {
        const std::string_view piece = bytes.substr(done, kWrittenAtOnce);
        stream.write(piece.data(), static_cast<std::streamsize>(piece.size()));
        done += piece.size();
        if (written)
            written(done);
    }
    stream.close();
    if (!stream)
        throw std::system_error(std::make_error_code(std::errc::io_error), "the bytes cannot be written");
    return leftover;
}

void FlushFolder(const Path& /*folder*/)
{
}

#else

[[noreturn]] void Fail(const char* what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

/// An open file, closed at the end.
class Descriptor
{
public:
    explicit Descriptor(int opened) : number(opened) {}

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    ~Descriptor()
    {
        if (number >= 0)
            close(number);
    }

    [[nodiscard]] int Get() const noexcept { return number; }

    /// Closes it now, and tells whether that went well: some file systems report failed writes only here.
    [[nodiscard]] bool Close() { return close(std::exchange(number, -1)) == 0; }

private:
    int number;
};

void WriteAll(int descriptor, std::string_view bytes, const StagedFile::Written& written)
{
    std::size_t done = 0;
    while (done < bytes.size())
    {
        const std::string_view piece = bytes.substr(done, kWrittenAtOnce);
        const ssize_t length = write(descriptor, piece.data(), piece.size());
        if (length < 0 && errno == EINTR)
            continue;
        if (length < 0)
            Fail("the bytes cannot be written");
        done += static_cast<std::size_t>(length);
        if (written)
            written(done);
    }
}

/// Gives a new file the permissions that new files get.
void TakeUsualPermissions(int descriptor)
{
    const mode_t mask = umask(0);
    umask(mask);
    constexpr mode_t kReadAndWrite = 0666;
    if (fchmod(descriptor, kReadAndWrite & ~mask) != 0)
        Fail("the permissions cannot be set");
}

/// Gives a new file the owner and group of the one that it replaces. Only some may give files away; the group
/// alone often can be kept.
void TakeOwner(int descriptor, const struct stat& old, Ownership ownership)
{
    struct stat made
    {
    };

    const bool isSame =
        fstat(descriptor, &made) == 0 && made.st_uid == old.st_uid && made.st_gid == old.st_gid;
    if (isSame || fchown(descriptor, old.st_uid, old.st_gid) == 0)
        return;
    if (ownership == Ownership::Keep)
        throw OwnerCannotBeKept(errno, std::generic_category(), "it belongs to others");
    if (fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) != 0)
        errno = 0;
}

/// Gives a new file what the one that it replaces has beside its bytes; or what new files get.
void TakeOver(int descriptor, const Path& file, Ownership ownership)
{
    struct stat old
    {
    };

    if (stat(file.c_str(), &old) != 0)
        return TakeUsualPermissions(descriptor);
    TakeOwner(descriptor, old, ownership);
    constexpr mode_t kAllPermissions = 07777;
    if (fchmod(descriptor, old.st_mode & kAllPermissions) != 0)
        Fail("the permissions cannot be kept");
}

/// A name for a temporary file beside another, for mkstemp. Names have a limit, which that of the file may
/// reach already.
std::string TemporaryName(const Path& file)
{
    constexpr std::size_t kLongestSpeakingName = 200;
    const std::string name = file.filename().string();
    return (FolderOf(file) / ("." + (name.size() > kLongestSpeakingName ? "saving" : name) + ".XXXXXX"))
        .string();
}

/// Takes charge of a file that was just made.
Leftover TakeCharge(const std::string& name)
{
    try
    {
        return Leftover(name);
    }
    catch (...)
    {
        unlink(name.c_str());
        throw;
    }
}

Leftover WriteTemporary(const Path& file, std::string_view bytes, Ownership ownership,
                        const StagedFile::Written& written)
{
    std::string name = TemporaryName(file);
    Descriptor descriptor(mkostemp(name.data(), O_CLOEXEC));
    if (descriptor.Get() < 0)
        Fail("no file can be made beside it");
    Leftover leftover = TakeCharge(name);
    WriteAll(descriptor.Get(), bytes, written);
    TakeOver(descriptor.Get(), file, ownership);
    if (fsync(descriptor.Get()) != 0 || !descriptor.Close())
        Fail("the bytes cannot be written");
    return leftover;
}

/// Makes the new name last. A file system that cannot do that for folders does it in its own time.
void FlushFolder(const Path& folder)
{
    const Descriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.Get() >= 0)
        fsync(descriptor.Get());
}

#endif

} // namespace

OwnerCannotBeKept::~OwnerCannotBeKept() = default;

StagedFile::StagedFile(const Path& target, std::string_view bytes, Ownership ownership,
                       const Written& written)
    : file(FollowLinks(target))
{
    const auto status = std::filesystem::status(file);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        throw std::system_error(std::make_error_code(std::errc::invalid_argument),
                                "what is there is no regular file");
    temporary = WriteTemporary(file, bytes, ownership, written).Release();
}

StagedFile::StagedFile(StagedFile&& other) noexcept
    : file(std::move(other.file)), temporary(std::exchange(other.temporary, Path()))
{
}

StagedFile::~StagedFile()
{
    const Leftover removed(std::move(temporary));
}

void StagedFile::TakePlace(Backup backup, const Check& check)
{
    // What may fail comes before the file is in its place.
    const Path folder = FolderOf(file);
    std::optional<FileTurn> turn;
    if (check)
    {
        turn.emplace(file);
        check(file);
    }
    if (backup == Backup::Keep && std::filesystem::exists(file))
        KeepBackup(file);
    std::filesystem::rename(temporary, file);
    temporary.clear();
    FlushFolder(folder);
}

void WriteFileAtomically(const Path& target, std::string_view bytes, Backup backup)
{
    StagedFile(target, bytes).TakePlace(backup);
}

} // namespace ReferenceHost
