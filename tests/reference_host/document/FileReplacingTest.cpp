// What saving refuses to replace, and what force does about it.

#include "reference_host/document/OverwriteRefusal.h"
#include "tests/reference_host/document/SavedDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <unistd.h>

using ReferenceHost::Drawing;
using ReferenceHost::OverwriteRefusal;
using testing::AllOf;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

namespace
{

namespace fs = std::filesystem;

/// A drawing that was opened from "x.fodg" and edited.
class SavingOver : public testing::Test
{
protected:
    SavingOver() : drawing(Drawing::Open(file, warnings)) { Edit(1); }

    void Edit(std::uint8_t red) const
    {
        Set(drawing->GetObjects()[0].GetStyle(), "fill.color", ColourValue(red, 0, 0));
    }

    void Save(const fs::path& target) { drawing->Save(target, {}, warnings); }

    void SaveByForce(const fs::path& target) { drawing->Save(target, {.force = true}, warnings); }

    /// Why saving is refused; empty when it is not.
    std::string RefusalOf(const fs::path& target)
    {
        try
        {
            Save(target);
            return {};
        }
        catch (const OverwriteRefusal& refusal)
        {
            return refusal.what();
        }
    }

    [[nodiscard]] static std::string BytesOf(const fs::path& path)
    {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    [[nodiscard]] std::string Current() { return drawing->Serialise(warnings); }

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.GetPath()))
            names.push_back(entry.path().filename().string());
        return names;
    }

    ScratchFolder folder;
    const std::string original = OneRectangle("<style:graphic-properties draw:fill-color='#111111'/>").Text();
    fs::path file = folder.Write("x.fodg", original);
    std::vector<std::string> warnings;
    std::unique_ptr<Drawing> drawing;
};

TEST_F(SavingOver, RefusesAFileThatSomebodyElseHasChanged)
{
    folder.Write("x.fodg", "theirs");

    EXPECT_THAT(RefusalOf(file), HasSubstr("x.fodg: the drawing has been changed by somebody else"));
    EXPECT_EQ(BytesOf(file), "theirs");
    EXPECT_THAT(Names(), UnorderedElementsAre("x.fodg"));

    SaveByForce(file);
    EXPECT_EQ(BytesOf(file), Current());
}

TEST_F(SavingOver, RefusesAnotherDrawingOfTheSameLength)
{
    std::string theirs = original;
    theirs.replace(theirs.find("#111111"), 7, "#222222");
    folder.Write("x.fodg", theirs);

    EXPECT_THAT(RefusalOf(file), HasSubstr("changed by somebody else"));
    EXPECT_EQ(BytesOf(file), theirs);
}

TEST_F(SavingOver, KnowsWhatItHasSavedItself)
{
    Save(file);
    Edit(2);

    EXPECT_EQ(RefusalOf(file), "");
    folder.Write("x.fodg", original);
    Edit(3);

    EXPECT_THAT(RefusalOf(file), HasSubstr("changed by somebody else"));
    EXPECT_EQ(BytesOf(file), original);
}

TEST_F(SavingOver, KnowsItsFileByAnyPath)
{
    const fs::path copy = folder.GetPath() / "copy.fodg";
    Save(copy);
    folder.Write("copy.fodg", "theirs");
    fs::create_symlink("copy.fodg", folder.GetPath() / "link.fodg");

    EXPECT_THAT(RefusalOf(folder.GetPath() / "." / "link.fodg"), HasSubstr("changed by somebody else"));
    EXPECT_EQ(RefusalOf(file), "");
}

TEST_F(SavingOver, LeavesTheStyleOfAnUnknownFileToWhoeverNamedIt)
{
    const fs::path other = folder.Write("other.fodg", "not seen before");

    EXPECT_EQ(RefusalOf(other), "");
    EXPECT_EQ(BytesOf(other), Current());
}

TEST_F(SavingOver, MakesAFileAnewThatWasRemoved)
{
    fs::remove(file);

    EXPECT_EQ(RefusalOf(file), "");
    EXPECT_EQ(BytesOf(file), Current());
}

TEST_F(SavingOver, RefusesAFileWithFurtherNames)
{
    const fs::path second = folder.GetPath() / "second.fodg";
    fs::create_hard_link(file, second);

    EXPECT_THAT(RefusalOf(file), HasSubstr("x.fodg: the file has further names (hard links)"));
    EXPECT_EQ(BytesOf(file), original);
    EXPECT_EQ(fs::hard_link_count(file), 2U);

    SaveByForce(file);
    EXPECT_EQ(BytesOf(file), Current());
    EXPECT_EQ(BytesOf(second), original);
}

TEST_F(SavingOver, TakesABackupThatWasLeftHalfMadeForNoFurtherName)
{
    fs::create_hard_link(file, folder.GetPath() / "x.fodg~");

    EXPECT_EQ(RefusalOf(file), "");
    EXPECT_EQ(BytesOf(folder.GetPath() / "x.fodg~"), original);
}

TEST_F(SavingOver, RefusesAFileThatIsProtected)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "nothing is protected against root";
    fs::permissions(file, static_cast<fs::perms>(0444));

    EXPECT_THAT(RefusalOf(file), HasSubstr("protected against changes"));
    EXPECT_EQ(BytesOf(file), original);

    SaveByForce(file);
    EXPECT_EQ(BytesOf(file), Current());
    EXPECT_EQ(fs::status(file).permissions(), static_cast<fs::perms>(0444));
}

TEST_F(SavingOver, ReplacesWhatASymbolicLinkLeadsTo)
{
    const fs::path link = folder.GetPath() / "link.fodg";
    fs::create_symlink("x.fodg", link);
    folder.Write("x.fodg", original);

    EXPECT_EQ(RefusalOf(link), "");
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(BytesOf(file), Current());
}

TEST_F(SavingOver, TellsOfLinksThatLeadNowhere)
{
    const fs::path link = folder.GetPath() / "link.fodg";
    fs::create_symlink("other.fodg", link);
    fs::create_symlink("link.fodg", folder.GetPath() / "other.fodg");

    try
    {
        Save(link);
        FAIL() << "saved through links that lead to each other";
    }
    catch (const ReferenceHost::DocumentError& error)
    {
        EXPECT_THAT(error.what(), AllOf(HasSubstr("cannot be saved"), HasSubstr("link.fodg")));
    }
}

TEST_F(SavingOver, IsNotHurtByWhatAnEndedProgramHasLeft)
{
    folder.Write(".x.fodg.Ab3dEf", "half a dra");

    EXPECT_EQ(RefusalOf(file), "");
    EXPECT_EQ(BytesOf(file), Current());
    EXPECT_THAT(Names(), UnorderedElementsAre("x.fodg", ".x.fodg.Ab3dEf"));
}

} // namespace
