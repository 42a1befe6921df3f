// Panel modules loaded, used and unloaded again and again. STYLEPROPERTIES_MODULE_ROUNDS in the environment
// asks for more rounds than an ordinary run makes.

#include "apps/workbench/Editor.h"
#include "apps/workbench/PanelFolder.h"
#include "apps/workbench/Session.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/utils/Utf8.h"
#include "reference_host/services/LoadedModule.h"
#include "tests/endurance/MemoryUse.h"
#include "tests/endurance/RunLength.h"
#include "tests/reference_host/document/ScratchFolder.h"
#include "tests/workbench/EditorFixture.h"
#include "tests/workbench/MemoryImage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

using testing::IsEmpty;
using testing::SizeIs;
using Workbench::PanelDescription;

namespace
{

constexpr std::size_t kOrdinaryRounds = 20;

/// What is allocated once and kept, such as the names of properties, is there after so many rounds.
constexpr std::size_t kWarmUp = 5;

/// What a round writes: a value through each of the shipped panels.
const std::vector<Workbench::Assignment> kValues = {{L"style.style", L"Accent"},
                                                    {L"fill.color", L"#123456"},
                                                    {L"outline.width", L"1mm"},
                                                    {L"character.size", L"20pt"},
                                                    {L"paragraph.left-indent", L"5mm"}};

class ModulesInRounds : public testing::Test
{
protected:
    /// Opens the drawing with panels, edits through each of them, takes it back, and ends all.
    void UseOnce(const std::vector<PanelDescription>& panels) const
    {
        Workbench::Session session(drawing, panels);
        ASSERT_THAT(session.LoadPanels(panels), IsEmpty());
        Workbench::Editor editor(session);
        editor.Select(Workbench::ParseSelector(L"name:D"));
        editor.Set(kValues);
        ASSERT_THAT(editor.DescribeChanges(), SizeIs(testing::Ge(kValues.size())));
        ASSERT_TRUE(editor.Undo());
        ASSERT_THAT(session.Inspect(editor.GetSelection()).panels, SizeIs(panels.size()));
    }

    /// Expects that no trace is left of any panel.
    static void ExpectGone(const std::vector<PanelDescription>& panels)
    {
        for (const PanelDescription& panel : panels)
        {
            const std::string file =
                ReferenceHost::LoadedModule::GetFileNameOf(OvxUtils::ToUtf8(panel.module));
            EXPECT_FALSE(WorkbenchTests::IsInMemory(panel.file.parent_path() / file)) << file;
            EXPECT_EQ(IDataSourceRegistrar::GetInstance().FindFactory(panel.className), nullptr) << file;
        }
    }

    ScratchFolder scratch;
    std::filesystem::path drawing = scratch.Write("drawing.fodg", WorkbenchTests::FourBoxes().Text());
    std::vector<PanelDescription> shipped = Workbench::ReadPanelFolder(SHIPPED_PANELS).panels;
};

} // namespace

TEST_F(ModulesInRounds, LeaveNoTraceAndTakeNoMoreMemory)
{
    const std::size_t rounds = RunLength("STYLEPROPERTIES_MODULE_ROUNDS", kOrdinaryRounds);
    ASSERT_GT(rounds, kWarmUp);
    for (std::size_t round = 0; round < kWarmUp; ++round)
        UseOnce(shipped);
    const MemoryUse before = MeasureMemory();

    for (std::size_t round = kWarmUp; round < rounds && !HasFailure(); ++round)
    {
        // Each is the first and the last that is loaded, in turn.
        std::rotate(shipped.begin(), shipped.begin() + 1, shipped.end());
        UseOnce(shipped);
        ExpectGone(shipped);
    }

    const MemoryUse after = MeasureMemory();
    SCOPED_TRACE(testing::Message() << "before: " << before << "; after " << rounds << " rounds: " << after);
    EXPECT_EQ(after.allocations, before.allocations);
    EXPECT_EQ(after.styles, before.styles);
    EXPECT_EQ(after.trees, before.trees);
    EXPECT_EQ(after.modules, before.modules);
    EXPECT_EQ(after.files, before.files);
}
