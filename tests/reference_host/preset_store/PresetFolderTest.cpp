#include "reference_host/preset_store/PresetFolder.h"

#include "reference_host/preset_store/PresetFile.h"
#include "reference_host/preset_store/PresetFileName.h"
#include "reference_host/preset_store/PresetReports.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace
{

using Styles::Style;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A folder of presets, and what is reported of it.
class PresetsInAFolder : public testing::Test
{
protected:
    PresetsInAFolder()
        : before(ReferenceHost::SetPresetReporter(
              [this](ReferenceHost::PresetProblem /*problem*/, const std::string& line)
              { reports.push_back(line); }))
    {
    }

    ~PresetsInAFolder() override { ReferenceHost::SetPresetReporter(before); }

    bool Add(const OvxStringT& name, bool replace = false, int value = 0) const
    {
        Style style(nullptr, Key(L"fill"));
        style.SetProperty(Key(L"value"), OvxUtils::Any(value));
        return folder.Add(name, ReferenceHost::MakePresetFileName(name), style, replace);
    }

    static Styles::PropertyKey Key(const wchar_t* text)
    {
        return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text));
    }

    OvxUtils::Any ValueOf(const OvxStringT& name) const
    {
        const std::unique_ptr<Style> style = folder.Load(name);
        return style == nullptr ? OvxUtils::Any() : style->GetProperty(Key(L"value"));
    }

    ScratchFolder scratch;
    ReferenceHost::PresetFolder folder{scratch.GetPath() / "presets/fill"};
    std::vector<std::string> reports;
    ReferenceHost::PresetReporter before;
};

TEST_F(PresetsInAFolder, AreNoneWithoutTheFolder)
{
    EXPECT_THAT(folder.ListNames(), IsEmpty());
    EXPECT_FALSE(folder.Contains(L"a"));
    EXPECT_EQ(folder.Load(L"a"), nullptr);
    EXPECT_FALSE(folder.Remove(L"a"));
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(PresetsInAFolder, ComeInAlphabeticalOrderWhateverTheirCase)
{
    for (const wchar_t* name : {L"zebra", L"Apple", L"apple", L"Mango"})
        ASSERT_TRUE(Add(name));

    EXPECT_THAT(folder.ListNames(), ElementsAre(L"Apple", L"apple", L"Mango", L"zebra"));
}

TEST_F(PresetsInAFolder, AreSeenByWhoeverLooksThereNext)
{
    ASSERT_TRUE(Add(L"a", false, 7));

    const ReferenceHost::PresetFolder again(scratch.GetPath() / "presets/fill");

    EXPECT_TRUE(again.Contains(L"a"));
    EXPECT_EQ(again.Load(L"a")->GetProperty(Key(L"value")), OvxUtils::Any(7));
}

TEST_F(PresetsInAFolder, AreReplacedOnlyWhenThatIsWanted)
{
    ASSERT_TRUE(Add(L"a", false, 1));

    EXPECT_FALSE(Add(L"a", false, 2));
    EXPECT_EQ(ValueOf(L"a"), OvxUtils::Any(1));
    EXPECT_TRUE(Add(L"a", true, 3));
    EXPECT_EQ(ValueOf(L"a"), OvxUtils::Any(3));
    EXPECT_THAT(folder.ListNames(), ElementsAre(L"a"));
}

TEST_F(PresetsInAFolder, AreRemovedOnce)
{
    ASSERT_TRUE(Add(L"a"));

    EXPECT_TRUE(folder.Remove(L"a"));
    EXPECT_FALSE(folder.Remove(L"a"));
    EXPECT_THAT(folder.ListNames(), IsEmpty());
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(PresetsInAFolder, AreKeptUnderNamesWithAnyCharacter)
{
    for (const wchar_t* name : {L"../up", L"a/b", L"", L"%", L"\n"})
        ASSERT_TRUE(Add(name)) << name;

    EXPECT_EQ(folder.ListNames().size(), 5U);
    EXPECT_FALSE(std::filesystem::exists(scratch.GetPath() / "presets/up.preset"));
}

TEST_F(PresetsInAFolder, ArePassedOverAndReportedWhenTheyAreDamagedAndNeverDeleted)
{
    ASSERT_TRUE(Add(L"a"));
    const auto damaged = scratch.GetPath() / "presets/fill/damaged.preset";
    std::ofstream(damaged) << "<preset";

    EXPECT_THAT(folder.ListNames(), ElementsAre(L"a"));
    EXPECT_THAT(reports, ElementsAre(HasSubstr("damaged.preset")));
    EXPECT_TRUE(std::filesystem::exists(damaged));
}

TEST_F(PresetsInAFolder, AreKeptBesideADamagedOneOfTheSameFileName)
{
    ASSERT_TRUE(Add(L"b"));
    const auto damaged =
        scratch.GetPath() / "presets/fill" / (ReferenceHost::MakePresetFileName(L"a") + ".preset");
    std::ofstream(damaged) << "<preset";

    EXPECT_TRUE(Add(L"a", false, 7));

    EXPECT_EQ(ValueOf(L"a"), OvxUtils::Any(7));
    std::ifstream stream(damaged);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), "<preset");
}

TEST_F(PresetsInAFolder, CountByTheNameInsideTheFile)
{
    ASSERT_TRUE(Add(L"a", false, 1));
    const auto folderPath = scratch.GetPath() / "presets/fill";
    std::filesystem::rename(folderPath / (ReferenceHost::MakePresetFileName(L"a") + ".preset"),
                            folderPath / "renamed.preset");

    EXPECT_TRUE(Add(L"a", true, 2));

    EXPECT_EQ(ValueOf(L"a"), OvxUtils::Any(2));
    EXPECT_TRUE(std::filesystem::exists(folderPath / "renamed.preset"));
    EXPECT_TRUE(folder.Remove(L"a"));
}

TEST_F(PresetsInAFolder, CountOnceWhenTwoFilesHoldOneName)
{
    ASSERT_TRUE(Add(L"a", false, 1));
    const auto folderPath = scratch.GetPath() / "presets/fill";
    std::ofstream(folderPath / "a-copy.preset") << ReferenceHost::FormatPreset(L"a", Style());

    EXPECT_THAT(folder.ListNames(), ElementsAre(L"a"));
    EXPECT_EQ(ValueOf(L"a"), OvxUtils::Any(1));
    EXPECT_THAT(reports.front(), HasSubstr("a-copy.preset: the same name as"));
}

TEST_F(PresetsInAFolder, LeaveOtherFilesAlone)
{
    ASSERT_TRUE(Add(L"a"));
    std::ofstream(scratch.GetPath() / "presets/fill/notes.txt") << "mine";

    EXPECT_THAT(folder.ListNames(), ElementsAre(L"a"));
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(PresetsInAFolder, CannotBeKeptWhereAFileStandsInTheWay)
{
    std::ofstream(scratch.GetPath() / "presets") << "a file";

    EXPECT_FALSE(Add(L"a"));
    EXPECT_EQ(reports.size(), 1U);
}

} // namespace
