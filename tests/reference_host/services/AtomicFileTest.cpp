#include "reference_host/services/AtomicFile.h"

#include "tests/reference_host/document/ScratchFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

using ReferenceHost::Backup;
using ReferenceHost::OwnerCannotBeKept;
using ReferenceHost::Ownership;
using ReferenceHost::StagedFile;
using ReferenceHost::WriteFileAtomically;
using testing::UnorderedElementsAre;

namespace
{

namespace fs = std::filesystem;

/// Somebody other than root.
constexpr uid_t kOther = 1000;

class AtomicFiles : public testing::Test
{
protected:
    [[nodiscard]] static std::string BytesOf(const fs::path& file)
    {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.GetPath()))
            names.push_back(entry.path().filename().string());
        return names;
    }

    ScratchFolder folder;
};

/// Lets no file grow beyond some bytes while it lives: what a full disk does to a writer.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes) : handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &old);
        const rlimit limit{bytes, old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &old);
        std::signal(SIGXFSZ, handler);
    }

private:
    rlimit old{};
    void (*handler)(int);
};

TEST_F(AtomicFiles, AreMadeWhereThereWereNone)
{
    WriteFileAtomically(folder.GetPath() / "new", "bytes", Backup::Keep);

    EXPECT_EQ(BytesOf(folder.GetPath() / "new"), "bytes");
    EXPECT_THAT(Names(), UnorderedElementsAre("new"));
}

TEST_F(AtomicFiles, KeepThePermissionsOfTheOldOne)
{
    const fs::path file = folder.Write("x", "old");
    fs::permissions(file, static_cast<fs::perms>(0640));

    WriteFileAtomically(file, "new");

    EXPECT_EQ(BytesOf(file), "new");
    EXPECT_EQ(fs::status(file).permissions(), static_cast<fs::perms>(0640));
    EXPECT_THAT(Names(), UnorderedElementsAre("x"));
}

TEST_F(AtomicFiles, KeepTheOldOneAsABackupInPlaceOfAnEarlierOne)
{
    const fs::path file = folder.Write("x", "old");
    folder.Write("x~", "older");

    WriteFileAtomically(file, "new", Backup::Keep);

    EXPECT_EQ(BytesOf(folder.GetPath() / "x~"), "old");
    EXPECT_THAT(Names(), UnorderedElementsAre("x", "x~"));
}

TEST_F(AtomicFiles, FollowALink)
{
    const fs::path file = folder.Write("x", "old");
    const fs::path link = folder.GetPath() / "link";
    fs::create_symlink("x", link);

    WriteFileAtomically(link, "new");

    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(BytesOf(file), "new");
}

TEST_F(AtomicFiles, RefuseALinkThatLeadsToItself)
{
    const fs::path link = folder.GetPath() / "link";
    fs::create_symlink("link", link);

    EXPECT_THROW(WriteFileAtomically(link, "new"), std::system_error);
}

TEST_F(AtomicFiles, LeaveTheOldOneWholeOnAFullDisk)
{
    const fs::path file = folder.Write("x", "old");
    {
        const FullDisk disk(1000);

        EXPECT_THROW(WriteFileAtomically(file, std::string(5000, 'n'), Backup::Keep), std::system_error);
    }

    EXPECT_EQ(BytesOf(file), "old");
    EXPECT_THAT(Names(), UnorderedElementsAre("x"));
}

TEST_F(AtomicFiles, LeaveTheOldOneWholeInAFolderThatIsReadOnly)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "nothing is read-only for root";
    const fs::path file = folder.Write("x", "old");
    fs::permissions(folder.GetPath(), static_cast<fs::perms>(0555));

    EXPECT_THROW(WriteFileAtomically(file, "new"), std::system_error);

    fs::permissions(folder.GetPath(), static_cast<fs::perms>(0755));
    EXPECT_EQ(BytesOf(file), "old");
    EXPECT_THAT(Names(), UnorderedElementsAre("x"));
}

TEST_F(AtomicFiles, LeaveNoTraceWhenTheyAreGivenUp)
{
    const fs::path file = folder.Write("x", "old");

    {
        const StagedFile given(file, "new");
        EXPECT_EQ(Names().size(), 2U);
    }

    EXPECT_EQ(BytesOf(file), "old");
    EXPECT_THAT(Names(), UnorderedElementsAre("x"));
}

TEST_F(AtomicFiles, LeaveNoTraceWhenTheyAreGivenUpWhileTheyAreWritten)
{
    const fs::path file = folder.Write("x", "old");
    const auto giveUp = [](std::size_t) { throw std::out_of_range("enough"); };

    EXPECT_THROW(StagedFile(file, "new", Ownership::MayChange, giveUp), std::out_of_range);

    EXPECT_EQ(BytesOf(file), "old");
    EXPECT_THAT(Names(), UnorderedElementsAre("x"));
}

TEST_F(AtomicFiles, TellHowManyBytesWereWritten)
{
    const std::string bytes(3'000'000, 'n');
    std::vector<std::size_t> told;

    const StagedFile staged(folder.GetPath() / "x", bytes, Ownership::MayChange,
                            [&told](std::size_t written) { told.push_back(written); });

    EXPECT_GT(told.size(), 2U);
    EXPECT_TRUE(std::ranges::is_sorted(told));
    EXPECT_EQ(told.back(), bytes.size());
}

TEST_F(AtomicFiles, TakeTheirPlacesTogetherWhenAllAreWritten)
{
    const fs::path first = folder.Write("x", "old");
    const fs::path second = folder.Write("y", "old");
    StagedFile newFirst(first, "new");
    StagedFile newSecond(second, "new");
    EXPECT_EQ(BytesOf(first), "old");

    newFirst.TakePlace(Backup::None);
    newSecond.TakePlace(Backup::Keep);

    EXPECT_EQ(BytesOf(first) + BytesOf(second), "newnew");
    EXPECT_THAT(Names(), UnorderedElementsAre("x", "y", "y~"));
}

TEST_F(AtomicFiles, MayHaveTheLongestNames)
{
    const std::string name(255, 'n');
    const fs::path file = folder.Write(name, "old");

    WriteFileAtomically(file, "new");

    EXPECT_EQ(BytesOf(file), "new");
    EXPECT_THAT(Names(), UnorderedElementsAre(name));
}

TEST_F(AtomicFiles, KeepTheOwnerAndTheGroup)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may give files away";
    const fs::path file = folder.Write("x", "old");
    ASSERT_EQ(chown(file.c_str(), kOther, kOther), 0);

    WriteFileAtomically(file, "new");

    struct stat status
    {
    };

    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(BytesOf(file), "new");
    EXPECT_EQ(status.st_uid, kOther);
    EXPECT_EQ(status.st_gid, kOther);
}

TEST_F(AtomicFiles, OfOthersAreReplacedOnlyWhereTheirOwnerMayChange)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may have files of others";
    const fs::path file = folder.Write("x", "old");
    fs::permissions(folder.GetPath(), static_cast<fs::perms>(0777));
    ASSERT_EQ(seteuid(kOther), 0);

    EXPECT_THROW(StagedFile(file, "new", Ownership::Keep), OwnerCannotBeKept);

    EXPECT_EQ(BytesOf(file), "old");
    EXPECT_THAT(Names(), UnorderedElementsAre("x"));
    StagedFile(file, "new", Ownership::MayChange).TakePlace(Backup::None);
    ASSERT_EQ(seteuid(0), 0);
    EXPECT_EQ(BytesOf(file), "new");
}

TEST_F(AtomicFiles, AreLeftAsTheyAreByWhatTheCheckThrows)
{
    const fs::path file = folder.Write("x", "old");
    fs::create_symlink("x", folder.GetPath() / "link");
    fs::path seen;
    const auto refuse = [&seen](const fs::path& real)
    {
        seen = real;
        throw std::domain_error("not now");
    };

    EXPECT_THROW(StagedFile(folder.GetPath() / "link", "new").TakePlace(Backup::None, refuse),
                 std::domain_error);

    EXPECT_EQ(seen, file);
    EXPECT_EQ(BytesOf(file), "old");
    EXPECT_THAT(Names(), UnorderedElementsAre("x", "link"));
}

TEST_F(AtomicFiles, ReplaceNoFolder)
{
    fs::create_directory(folder.GetPath() / "x");

    EXPECT_THROW(WriteFileAtomically(folder.GetPath() / "x", "new"), std::system_error);
    EXPECT_THAT(Names(), UnorderedElementsAre("x"));
}

} // namespace
