#include "reference_host/preset_store/PresetFileName.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>

namespace
{

using ReferenceHost::MakePresetFileName;

TEST(PresetFileName, CanBeRecognised)
{
    EXPECT_EQ(MakePresetFileName(L"Warm Glow 2").substr(0, 12), "warm-glow-2-");
}

TEST(PresetFileName, TellsNamesApartThatLookAlike)
{
    EXPECT_NE(MakePresetFileName(L"Glow"), MakePresetFileName(L"glow"));
    EXPECT_NE(MakePresetFileName(L"a b"), MakePresetFileName(L"a/b"));
    EXPECT_NE(MakePresetFileName(L"\x4E2D"), MakePresetFileName(L"\x6587"));
}

TEST(PresetFileName, IsSafeForAnyText)
{
    const std::wstring longName(5000, L'x');
    const std::wstring withNul(L"nul\0inside", 10);
    for (const OvxStringT& name :
         {OvxStringT(L"../../etc/passwd"), OvxStringT(L"."), OvxStringT(L""), OvxStringT(L"CON"),
          OvxStringT(L"a\nb\tc"), OvxStringT(longName), OvxStringT(withNul)})
    {
        const std::string file = MakePresetFileName(name);

        EXPECT_LE(file.size(), 60U);
        EXPECT_TRUE(std::ranges::all_of(
            file, [](unsigned char each)
            { return std::islower(each) != 0 || std::isdigit(each) != 0 || each == '-'; }))
            << file;
        EXPECT_GE(file.size(), 16U);
    }
}

} // namespace
