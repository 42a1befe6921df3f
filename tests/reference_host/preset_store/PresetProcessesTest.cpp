// Processes that change one folder of presets at once.

#include "reference_host/preset_store/PresetFileName.h"
#include "reference_host/preset_store/PresetFolder.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <gtest/gtest.h>

#if !defined(_WIN32)

#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr int kPresetsEach = 25;
constexpr int kProcesses = 4;

/// Adds presets of this process's own, and one that all processes add.
bool AddPresets(const ReferenceHost::PresetFolder& folder, int process)
{
    for (int number = 0; number < kPresetsEach; ++number)
    {
        const OvxStringT name =
            OvxStringT::Format(L"process %d, ", process) + OvxStringT::Format(L"number %d", number);
        if (!folder.Add(name, ReferenceHost::MakePresetFileName(name), Styles::Style(), /*replace=*/false))
            return false;
    }
    return folder.Add(L"shared", ReferenceHost::MakePresetFileName(L"shared"), Styles::Style(),
                      /*replace=*/true);
}

TEST(PresetsOfSeveralProcesses, AreAllKept)
{
    const ScratchFolder scratch;
    const ReferenceHost::PresetFolder folder(scratch.GetPath() / "presets");
    for (int process = 0; process < kProcesses; ++process)
    {
        if (fork() == 0)
            _exit(AddPresets(folder, process) ? 0 : 1);
    }

    for (int process = 0; process < kProcesses; ++process)
    {
        int status = 0;
        ASSERT_GT(wait(&status), 0);
        EXPECT_EQ(status, 0);
    }

    EXPECT_EQ(folder.ListNames().size(), static_cast<std::size_t>(kProcesses * kPresetsEach + 1));
}

} // namespace

#endif
