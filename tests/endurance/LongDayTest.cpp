// A long day at one drawing after another in one process: after the first hours, memory stays as it is.
// STYLEPROPERTIES_DAY_EDITS in the environment asks for more edits than an ordinary run makes.

#include "tests/endurance/MemoryUse.h"
#include "tests/endurance/RunLength.h"
#include "tests/endurance/WorkingDay.h"
#include "tests/workbench/EditorFixture.h"
#include "tests/workbench/ScratchConfiguration.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

using testing::Contains;
using testing::IsEmpty;
using testing::Key;
using WorkbenchTests::FourBoxes;
using WorkbenchTests::OpenEditor;

namespace
{

constexpr std::size_t kOrdinaryEdits = 2'000;
constexpr std::size_t kHours = 20;
constexpr std::size_t kSeed = 20;

/// What is allocated once and kept, such as the names of properties, is there after so many hours.
constexpr std::size_t kWarmUp = 5;

/// What chance makes of one hour and not of another: a preset more, a longer list of what was told. An edit
/// that leaves one allocation behind shows all the same.
constexpr std::size_t kAllocationBand = 40;

/// The allocator keeps what was given back, in pieces that differ from hour to hour.
constexpr std::size_t kResidentBandKib = 4 * 1024;

std::string ReadFile(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void Save(Workbench::Editor& editor, const std::filesystem::path& file)
{
    std::vector<std::string> warnings;
    editor.Save(file, {}, warnings);
    EXPECT_THAT(warnings, IsEmpty());
}

class LongDay : public testing::Test
{
protected:
    /// Opens the drawing, edits, saves, takes everything back, saves again, and looks at both files.
    void WorkOneHour()
    {
        {
            OpenEditor open(original);
            WorkingDay day(open.editor, dice);
            day.Edit(editsOfAnHour);
            Remember(day);
            Save(open.editor, edited);
            day.UndoAll();
            Save(open.editor, undone);
        }
        EXPECT_EQ(ReadFile(undone), text);
        OpenEditor again(edited);
        EXPECT_THAT(again.GetSession().GetWarnings(), IsEmpty());
    }

    void Remember(const WorkingDay& day)
    {
        for (const auto& [kind, times] : day.GetDone())
            done[kind] += times;
    }

    /// Runs all hours, and expects that none behind the warm-up ends with more than the last of that.
    template <class Hour>
    void ExpectFlat(const Hour& work)
    {
        std::vector<MemoryUse> uses;
        for (std::size_t hour = 0; hour < kHours && !HasFailure(); ++hour)
        {
            work();
            uses.push_back(MeasureMemory());
            std::cout << "hour " << hour + 1 << ": " << uses.back() << '\n';
        }
        ASSERT_GT(uses.size(), kWarmUp);
        const MemoryUse& warm = uses[kWarmUp - 1];
        for (std::size_t hour = kWarmUp; hour < uses.size(); ++hour)
            ExpectNoMore(uses[hour], warm);
    }

    static void ExpectNoMore(const MemoryUse& now, const MemoryUse& warm)
    {
        EXPECT_LE(now.allocations, warm.allocations + kAllocationBand);
        EXPECT_EQ(now.styles, warm.styles);
        EXPECT_EQ(now.trees, warm.trees);
        EXPECT_EQ(now.modules, warm.modules);
        EXPECT_EQ(now.files, warm.files);
        EXPECT_LE(now.residentKib.value_or(0), warm.residentKib.value_or(0) + kResidentBandKib);
    }

    void ExpectEveryKindDone() const
    {
        for (const std::string& kind : WorkingDay::GetKinds())
            EXPECT_THAT(done, Contains(Key(kind)));
    }

    const std::size_t editsOfAnHour = RunLength("STYLEPROPERTIES_DAY_EDITS", kOrdinaryEdits) / kHours;
    WorkbenchTests::ScratchConfiguration presets;
    ScratchFolder folder;
    const std::string text = FourBoxes().Text();
    const std::filesystem::path original = folder.Write("drawing.fodg", text);
    const std::filesystem::path edited = folder.GetPath() / "edited.fodg";
    const std::filesystem::path undone = folder.GetPath() / "undone.fodg";
    LibraryModel::Dice dice{kSeed};
    std::map<std::string, std::size_t> done;
};

} // namespace

TEST_F(LongDay, TakesNoMoreMemoryFromDrawingToDrawing)
{
    ExpectFlat([&] { WorkOneHour(); });

    ExpectEveryKindDone();
}

TEST_F(LongDay, TakesNoMoreMemoryAtOneDrawing)
{
    OpenEditor open(original);
    WorkingDay day(open.editor, dice);

    ExpectFlat(
        [&]
        {
            day.Edit(editsOfAnHour);
            day.UndoAll();
            // What could be done again goes with the next step.
            open.Select(L"name:A");
            open.Set(L"fill.color", L"#112233");
            day.UndoAll();
        });

    Remember(day);
    ExpectEveryKindDone();
    Save(open.editor, undone);
    EXPECT_EQ(ReadFile(undone), text);
}
