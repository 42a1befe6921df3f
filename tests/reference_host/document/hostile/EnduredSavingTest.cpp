// Saving while the process is killed, the disk is full, and others save the same file.

#include "reference_host/document/OverwriteRefusal.h"
#include "tests/reference_host/document/SavedDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"
#include "tests/reference_host/document/hostile/MeasuredRun.h"

#include <gmock/gmock.h>

#include <array>
#include <chrono>
#include <csignal>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <stdexcept>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using ReferenceHost::DocumentError;
using ReferenceHost::Drawing;
using ReferenceHost::OverwriteRefusal;

namespace
{

namespace fs = std::filesystem;

constexpr unsigned kSeed = 20240607;

std::string BytesOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// A drawing of some hundred thousand bytes, so that writing it takes time.
std::string LargeDrawing()
{
    FlatDrawing drawing = OneRectangle("<style:graphic-properties draw:fill-color='#111111'/>");
    const std::string filling(400000, 'x');
    return drawing.Styles("<style:style style:family='chart' style:name='" + filling + "'/>").Text();
}

void Paint(Drawing& drawing, std::uint8_t red)
{
    Set(drawing.GetObjects().front().GetStyle(), "fill.color", ColourValue(red, 0, 0));
}

/// The red that Paint() gave a saved drawing; none for a file that is not one of the whole versions.
std::optional<int> RedOf(const std::string& bytes, const std::string& original)
{
    const std::string colour = "draw:fill-color='#";
    const std::size_t place = bytes.find(colour) + colour.size();
    if (bytes.size() != original.size() || place + 6 > bytes.size())
        return std::nullopt;
    std::string same = bytes;
    same.replace(place, 6, "111111");
    if (same != original)
        return std::nullopt;
    return std::stoi(bytes.substr(place, 2), nullptr, 16);
}

void SaveAs(const fs::path& file, int round)
{
    std::vector<std::string> warnings;
    const auto drawing = Drawing::Open(file, warnings);
    Paint(*drawing, static_cast<std::uint8_t>(round % 200));
    drawing->Save(file, {.keepBackup = round % 2 == 0}, warnings);
}

/// A process that opens, changes and saves a drawing again and again until it is killed.
class SavingProcess
{
public:
    explicit SavingProcess(const fs::path& file)
    {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0)
            throw std::runtime_error("no pipe to be had");
        process = fork();
        if (process == 0)
            SaveForever(file, ends[1]);
        close(ends[1]);
        started = ends[0];
    }

    SavingProcess(const SavingProcess&) = delete;
    SavingProcess& operator=(const SavingProcess&) = delete;

    ~SavingProcess() { close(started); }

    /// Ends it some time after it has begun, and waits for its end.
    void KillAfter(std::chrono::microseconds time) const
    {
        char begun = 0;
        EXPECT_EQ(read(started, &begun, 1), 1);
        std::this_thread::sleep_for(time);
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }

private:
    [[noreturn]] static void SaveForever(const fs::path& file, int started)
    {
        if (write(started, "x", 1) != 1)
            _exit(1);
        for (int round = 0;; ++round)
            SaveAs(file, round);
    }

    pid_t process = -1;
    int started = -1;
};

/// How long it takes to open and save a drawing once.
std::chrono::microseconds TimeOfSaving(const fs::path& file)
{
    const auto begin = std::chrono::steady_clock::now();
    SaveAs(file, 1);
    return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - begin);
}

class EnduredSaving : public testing::Test
{
protected:
    EnduredSaving() : original(LargeDrawing()), file(folder.Write("x.fodg", original)) {}

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.GetPath()))
            names.push_back(entry.path().filename().string());
        return names;
    }

    ScratchFolder folder;
    std::string original;
    fs::path file;
};

/// A disk of one megabyte in a folder, where the system lets us have one.
class SmallDisk
{
public:
    explicit SmallDisk(fs::path folder) : path(std::move(folder))
    {
        fs::create_directory(path);
        isMounted = mount("tmpfs", path.c_str(), "tmpfs", 0, "size=1m") == 0;
    }

    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    ~SmallDisk()
    {
        if (isMounted)
            umount(path.c_str());
    }

    [[nodiscard]] bool IsMounted() const noexcept { return isMounted; }

private:
    fs::path path;
    bool isMounted = false;
};

} // namespace

TEST_F(EnduredSaving, LeavesAWholeVersionWheneverItIsKilled)
{
    SCOPED_TRACE(testing::Message() << "seed " << kSeed);
    std::mt19937 random(kSeed);
    fs::permissions(file, static_cast<fs::perms>(0640));
    const auto most = static_cast<unsigned>(3 * TimeOfSaving(file).count());
    const int rounds = TakesLong() ? 1000 : 50;
    int changed = 0;
    for (int round = 0; round < rounds; ++round)
    {
        folder.Write("x.fodg", original);
        SavingProcess(file).KillAfter(std::chrono::microseconds(random() % most));

        const std::string bytes = BytesOf(file);
        ASSERT_TRUE(RedOf(bytes, original).has_value())
            << "round " << round << ": " << bytes.size() << " bytes";
        changed += bytes == original ? 0 : 1;
    }
    EXPECT_GT(changed, 0) << "every process was killed before it had saved once";
    EXPECT_EQ(fs::status(file).permissions(), static_cast<fs::perms>(0640));

    std::vector<std::string> warnings;
    const auto drawing = Drawing::Open(file, warnings);
    Paint(*drawing, 255);
    drawing->Save(file, {}, warnings);
    EXPECT_EQ(RedOf(BytesOf(file), original), 255);
}

TEST_F(EnduredSaving, LeavesTheOldFileAloneOnAFullDisk)
{
    const fs::path disk = folder.GetPath() / "disk";
    const SmallDisk small(disk);
    if (!small.IsMounted())
        GTEST_SKIP() << "no disk can be mounted here";
    const fs::path onDisk = disk / "x.fodg";
    std::ofstream(onDisk, std::ios::binary) << original;
    std::ofstream(disk / "filling", std::ios::binary) << std::string(450000, 'f');
    std::vector<std::string> warnings;
    const auto drawing = Drawing::Open(onDisk, warnings);
    Paint(*drawing, 1);

    EXPECT_THROW(drawing->Save(onDisk, {}, warnings), DocumentError);

    EXPECT_EQ(BytesOf(onDisk), original);
    EXPECT_EQ(std::distance(fs::directory_iterator(disk), {}), 2);
    fs::remove(disk / "filling");
    drawing->Save(onDisk, {}, warnings);
    EXPECT_EQ(RedOf(BytesOf(onDisk), original), 1);
}

TEST_F(EnduredSaving, LetsOneOfTwoProcessesWinAndTellsTheOther)
{
    const int rounds = TakesLong() ? 300 : 20;
    for (int round = 0; round < rounds; ++round)
    {
        folder.Write("x.fodg", original);
        std::vector<pid_t> processes;
        for (const int red : {1, 2, 3})
        {
            processes.push_back(fork());
            if (processes.back() != 0)
                continue;
            std::vector<std::string> warnings;
            const auto drawing = Drawing::Open(file, warnings);
            Paint(*drawing, static_cast<std::uint8_t>(red));
            try
            {
                drawing->Save(file, {}, warnings);
            }
            catch (const OverwriteRefusal&)
            {
                _exit(0);
            }
            _exit(red);
        }
        std::vector<int> acknowledged;
        for (const pid_t process : processes)
        {
            int status = 0;
            waitpid(process, &status, 0);
            ASSERT_TRUE(WIFEXITED(status));
            if (WEXITSTATUS(status) != 0)
                acknowledged.push_back(WEXITSTATUS(status));
        }

        // Who opened after another had saved may save too; the last to save is what stands there.
        const std::optional<int> red = RedOf(BytesOf(file), original);
        ASSERT_TRUE(red.has_value());
        EXPECT_THAT(acknowledged, testing::Contains(*red));
    }
    EXPECT_THAT(Names(), testing::ElementsAre("x.fodg"));
}

TEST_F(EnduredSaving, LosesNothingOfWhoeverSavedWhileItWasEdited)
{
    std::vector<std::string> warnings;
    const auto mine = Drawing::Open(file, warnings);
    const auto theirs = Drawing::Open(file, warnings);
    Paint(*mine, 1);
    Paint(*theirs, 2);
    theirs->Save(file, {}, warnings);

    EXPECT_THROW(mine->Save(file, {}, warnings), OverwriteRefusal);

    EXPECT_EQ(RedOf(BytesOf(file), original), 2);
}
