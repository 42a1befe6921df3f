// Processes that add, replace and drop presets in one folder at once, and are killed meanwhile.

#include "reference_host/preset_store/PresetFileName.h"
#include "reference_host/preset_store/PresetFolder.h"
#include "reference_host/preset_store/PresetReports.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <gmock/gmock.h>

#if !defined(_WIN32)

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using testing::Contains;
using testing::IsEmpty;
using testing::IsSupersetOf;

namespace
{

constexpr unsigned kSeed = 20240608;
constexpr int kOwnNames = 5;     ///< Of each process: it adds, replaces and drops them.
constexpr int kSharedNames = 20; ///< All processes try to add them; nobody replaces or drops them.

enum class Action : int
{
    Add,
    Drop,
    AddShared
};

/// What a process notes before and after it does something; the note before has no result.
struct Note
{
    Action action = Action::Add;
    int name = 0;
    int value = 0;
    int result = -1;
};

bool TakesLong()
{
    return std::getenv("STYLEPROPERTIES_LONG_TESTS") != nullptr;
}

Styles::PropertyKey Key(const wchar_t* text)
{
    return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

OvxStringT NameOf(int process, const Note& note)
{
    if (note.action == Action::AddShared)
        return OvxStringT::Format(L"shared %d", note.name);
    return OvxStringT::Format(L"process %d, ", process) + OvxStringT::Format(L"name %d", note.name);
}

std::vector<Note> ReadNotes(const std::filesystem::path& file)
{
    std::vector<Note> notes;
    std::ifstream stream(file, std::ios::binary);
    for (Note note; stream.read(reinterpret_cast<char*>(&note), sizeof note);)
        notes.push_back(note);
    return notes;
}

/// One of the processes; what it does is noted in a file of its own, which outlives it.
class Worker
{
public:
    Worker(int number, const ReferenceHost::PresetFolder& presets, std::filesystem::path noteFile)
        : process(number),
          folder(presets),
          file(std::move(noteFile)),
          notes(file, std::ios::app | std::ios::binary)
    {
    }

    /// Does things until so many are done, those of its predecessors included.
    void Work(std::size_t count, unsigned seed)
    {
        std::mt19937 random(seed);
        for (std::size_t done = ReadNotes(file).size() / 2; done < count; ++done)
        {
            Note note;
            const unsigned choice = static_cast<unsigned>(random() % 10);
            note.action = choice == 0 ? Action::AddShared : choice < 4 ? Action::Drop : Action::Add;
            note.name =
                static_cast<int>(random() % (note.action == Action::AddShared ? kSharedNames : kOwnNames));
            note.value = note.action == Action::AddShared ? process : static_cast<int>(random() % 1000000);
            Put(note);
            note.result = Do(note) ? 1 : 0;
            Put(note);
        }
    }

private:
    void Put(const Note& note)
    {
        notes.write(reinterpret_cast<const char*>(&note), sizeof note);
        notes.flush();
    }

    [[nodiscard]] bool Do(const Note& note) const
    {
        const OvxStringT name = NameOf(process, note);
        if (note.action == Action::Drop)
            return folder.Remove(name);
        Styles::Style style(nullptr, Key(L"fill"));
        style.SetProperty(Key(L"value"), OvxUtils::Any(note.value));
        return folder.Add(name, ReferenceHost::MakePresetFileName(name), style, note.action == Action::Add);
    }

    int process;
    const ReferenceHost::PresetFolder& folder;
    std::filesystem::path file;
    std::ofstream notes;
};

/// The values that a preset may have; none stands for a preset that is not there.
using Possible = std::set<std::optional<int>>;

class PresetsUnderFire : public testing::TestWithParam<int>
{
protected:
    PresetsUnderFire()
        : before(ReferenceHost::SetPresetReporter(
              [this](ReferenceHost::PresetProblem /*problem*/, const std::string& line)
              { reports.push_back(line); }))
    {
    }

    ~PresetsUnderFire() override { ReferenceHost::SetPresetReporter(before); }

    [[nodiscard]] std::filesystem::path NotesOf(int process) const
    {
        return scratch.GetPath() / ("notes" + std::to_string(process));
    }

    pid_t Start(int process, std::size_t count, unsigned seed) const
    {
        const pid_t child = fork();
        if (child != 0)
            return child;
        Worker(process, folder, NotesOf(process)).Work(count, seed);
        _exit(0);
    }

    /// Nobody drops a shared preset: whoever has seen one sees it from then on.
    void LookAtSharedPresets()
    {
        std::set<OvxStringT> names;
        for (const OvxStringT& name : folder.ListNames())
        {
            if (name.Compare(L"shared", CompareCase::Sensitive) > 0)
                names.insert(name);
        }
        EXPECT_THAT(names, IsSupersetOf(seen));
        seen = names;
    }

    [[nodiscard]] std::optional<int> ValueOf(const OvxStringT& name) const
    {
        const std::unique_ptr<Styles::Style> style = folder.Load(name);
        if (style == nullptr)
            return std::nullopt;
        return *style->GetProperty(Key(L"value")).TryGet<int>();
    }

    /// What a process's own presets may be after all that it has noted.
    [[nodiscard]] std::map<int, Possible> PossibleValues(int process) const
    {
        std::map<int, Possible> possible;
        for (int name = 0; name < kOwnNames; ++name)
            possible[name] = {std::nullopt};
        for (const Note& note : ReadNotes(NotesOf(process)))
        {
            if (note.action == Action::AddShared)
                continue;
            Possible& values = possible[note.name];
            const std::optional<int> wanted =
                note.action == Action::Add ? std::optional(note.value) : std::nullopt;
            const bool isDone = note.result != -1;
            EXPECT_FALSE(note.action == Action::Add && note.result == 0)
                << "process " << process << " could not keep its preset";
            if (isDone)
                values = {wanted};
            else
                values.insert(wanted);
        }
        return possible;
    }

    ScratchFolder scratch;
    ReferenceHost::PresetFolder folder{scratch.GetPath() / "presets"};
    std::set<OvxStringT> seen;
    std::vector<std::string> reports;
    ReferenceHost::PresetReporter before;
};

} // namespace

TEST_P(PresetsUnderFire, AreAllThereThatWereAcknowledged)
{
    SCOPED_TRACE(testing::Message() << "seed " << kSeed);
    const int processes = GetParam();
    const std::size_t count = (TakesLong() ? 10000U : 200U) / static_cast<unsigned>(processes);
    std::mt19937 random(kSeed);
    std::vector<pid_t> children;
    for (int process = 0; process < processes; ++process)
        children.push_back(Start(process, count, static_cast<unsigned>(random())));
    for (int kills = TakesLong() ? 200 : 10; kills > 0; --kills)
    {
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 30000));
        const std::size_t victim = random() % children.size();
        kill(children[victim], SIGKILL);
        waitpid(children[victim], nullptr, 0);
        children[victim] = Start(static_cast<int>(victim), count, static_cast<unsigned>(random()));
        LookAtSharedPresets();
    }
    for (const pid_t child : children)
    {
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    LookAtSharedPresets();

    std::map<int, std::vector<int>> winners;
    for (int process = 0; process < processes; ++process)
    {
        for (const auto& [name, values] : PossibleValues(process))
            EXPECT_THAT(values, Contains(ValueOf(NameOf(process, {Action::Add, name}))));
        for (const Note& note : ReadNotes(NotesOf(process)))
        {
            if (note.action == Action::AddShared && note.result == 1)
                winners[note.name].push_back(process);
        }
    }
    for (const auto& [name, owners] : winners)
    {
        EXPECT_EQ(owners.size(), 1U) << "several processes were told that they had added one preset";
        EXPECT_EQ(ValueOf(NameOf(0, {Action::AddShared, name})), owners.front());
    }
    EXPECT_THAT(reports, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Processes, PresetsUnderFire, testing::Values(2, 8));

#endif
