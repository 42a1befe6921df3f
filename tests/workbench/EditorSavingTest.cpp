// What an editor saves.

#include "reference_host/document/DocumentError.h"
#include "tests/workbench/EditorFixture.h"

#include <fstream>
#include <iterator>

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace WorkbenchTests
{
namespace
{

std::string ReadFile(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

class SavingWhatWasEdited : public EditorOnFourBoxes
{
protected:
    void Save()
    {
        editor.Save(saved, {}, warnings);
        EXPECT_THAT(warnings, IsEmpty());
    }

    ScratchFolder folder;
    std::filesystem::path saved = folder.GetPath() / "saved.fodg";
    std::vector<std::string> warnings;
    const std::string original = FourBoxes().Text();
};

} // namespace

TEST_F(SavingWhatWasEdited, WritesTheOriginalWithoutAnEdit)
{
    Save();

    EXPECT_EQ(ReadFile(saved), original);
}

TEST_F(SavingWhatWasEdited, WritesTheOriginalWhenEverythingIsUndone)
{
    open.Set(L"fill.color", L"palette:Sea");
    open.Select(L"name:B");
    editor.CreateStyle(L"style", L"New");
    open.Set(L"style.style", L"");
    editor.DefineColours({{L"Sand", L"#e9c46a"}});
    while (editor.Undo())
    {
    }

    Save();

    EXPECT_EQ(ReadFile(saved), original);
}

TEST_F(SavingWhatWasEdited, WritesTheOriginalAfterAGroupThatWasCancelled)
{
    editor.BeginGroup();
    editor.Set({{L"fill.color", L"red"}, {L"character.size", L"30pt"}});
    editor.EndGroup(false);

    Save();

    EXPECT_EQ(ReadFile(saved), original);
}

TEST_F(SavingWhatWasEdited, WritesWhatAnotherSessionReads)
{
    open.Select(L"name:B");
    editor.Set({{L"fill.color", L"palette:Sea"}, {L"outline.width", L"0.5mm"}});
    open.Select(L"name:D");
    open.Set(L"character.size", L"20pt");
    const std::string edited = open.Dump();
    Save();
    open.End();

    OpenEditor again(saved);

    EXPECT_EQ(again.Dump(), edited);
}

TEST_F(SavingWhatWasEdited, KeepsTheOldFileWhereThatIsAsked)
{
    folder.Write("saved.fodg", "old");

    editor.Save(saved, {.keepBackup = true}, warnings);

    EXPECT_EQ(ReadFile(folder.GetPath() / "saved.fodg~"), "old");
    EXPECT_EQ(ReadFile(saved), original);
}

TEST_F(SavingWhatWasEdited, FailsWhereNothingCanBeWritten)
{
    EXPECT_THROW(editor.Save(folder.GetPath() / "missing" / "saved.fodg", {}, warnings),
                 ReferenceHost::DocumentError);
}

} // namespace WorkbenchTests
