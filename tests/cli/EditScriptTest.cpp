#include "apps/cli/EditScript.h"

#include "reference_host/document/DocumentError.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using Cli::BeginGroupCommand;
using Cli::CreateStyleCommand;
using Cli::EditScript;
using Cli::EndGroupCommand;
using Cli::ParseEditScript;
using Cli::ReadEditScript;
using Cli::RedoCommand;
using Cli::ScriptError;
using Cli::SelectCommand;
using Cli::SetCommand;
using Cli::ShowCommand;
using Cli::UndoCommand;
using testing::AllOf;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;
using testing::ThrowsMessage;

namespace
{

EditScript Parse(std::string_view text)
{
    return ParseEditScript("tidy.txt", text);
}

/// The one command of a script.
template <class Kind>
Kind Only(std::string_view text)
{
    return std::get<Kind>(Parse(text).commands.at(0).command);
}

std::string ErrorOf(std::string_view text)
{
    try
    {
        static_cast<void>(Parse(text));
    }
    catch (const ScriptError& error)
    {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(EditScriptText, KnowsTheLineOfEachCommand)
{
    const EditScript script = Parse("# tidy up\n\nselect all\n  \nundo");

    ASSERT_THAT(script.commands, SizeIs(2));
    EXPECT_EQ(script.commands[0].line, 3U);
    EXPECT_EQ(script.commands[1].line, 5U);
    EXPECT_EQ(script.name, "tidy.txt");
}

TEST(EditScriptText, HasCommandsAsOnTheCommandLine)
{
    const auto set = Only<SetCommand>("set fill.color=\"palette:Deep Sea\" outline.width=-1mm");
    ASSERT_THAT(set.assignments, SizeIs(2));
    EXPECT_EQ(set.assignments[0].row, L"fill.color");
    EXPECT_EQ(set.assignments[0].value, L"palette:Deep Sea");
    EXPECT_EQ(set.assignments[1].value, L"-1mm");

    const auto create = Only<CreateStyleCommand>("create-style fill --name \"Blue box\"");
    EXPECT_EQ(create.panel, L"fill");
    EXPECT_EQ(create.name, L"Blue box");
}

TEST(EditScriptText, HasCommandsOfItsOwn)
{
    EXPECT_EQ(Only<SelectCommand>("select sheet:Base").selector.styleName, L"Base");
    EXPECT_NO_THROW(Only<UndoCommand>("undo"));
    EXPECT_NO_THROW(Only<RedoCommand>("redo"));
    EXPECT_EQ(Only<ShowCommand>("show").panel, std::nullopt);
    EXPECT_EQ(Only<ShowCommand>("show fill").panel, L"fill");

    const EditScript groups = Parse("begin-group\nend-group\nbegin-group\nend-group --cancel\n");
    EXPECT_FALSE(std::get<EndGroupCommand>(groups.commands.at(1).command).isCancelled);
    EXPECT_TRUE(std::get<EndGroupCommand>(groups.commands.at(3).command).isCancelled);
}

TEST(EditScriptText, MayBeginWithAByteOrderMarkAndEndLinesAsOtherSystemsDo)
{
    const EditScript script = Parse("\xEF\xBB\xBFundo\r\nredo\r\n");

    EXPECT_THAT(script.commands, SizeIs(2));
}

TEST(EditScriptText, MayHoldNothing)
{
    EXPECT_THAT(Parse("").commands, SizeIs(0));
    EXPECT_THAT(Parse("# nothing\n").commands, SizeIs(0));
}

TEST(EditScriptText, NamesTheLineAndTheCommandsForAnUnknownOne)
{
    EXPECT_EQ(ErrorOf("undo\npaint it\n"),
              "tidy.txt, line 2: \"paint\" is no command; expected one of set, clear, revert, "
              "apply-to-parent, break-link, create-style, edit-style, style-list, restyle, "
              "presets list, presets show, presets apply, presets add, presets delete, palette, select, "
              "undo, redo, "
              "begin-group, end-group, show");
}

TEST(EditScriptText, NamesTheLineAndTheFormForACommandThatIsWrittenWrongly)
{
    EXPECT_THAT(ErrorOf("set"),
                AllOf(StartsWith("tidy.txt, line 1: "), HasSubstr("; expected set ROW=VALUE...")));
    EXPECT_THAT(ErrorOf("\nundo twice"),
                AllOf(StartsWith("tidy.txt, line 2: "), HasSubstr("; expected undo")));
    EXPECT_THAT(ErrorOf("edit-style fill outline"), HasSubstr("expected edit-style PANEL"));
    EXPECT_THAT(ErrorOf("end-group --stop"), HasSubstr("expected end-group [--cancel]"));
    EXPECT_THAT(ErrorOf("set fill.color"), HasSubstr("expected ROW=VALUE"));
    EXPECT_THAT(ErrorOf("palette =#fff"), HasSubstr("expected NAME=COLOUR"));
    EXPECT_THAT(ErrorOf("select colour:red"), HasSubstr("\"colour:red\" is not a term"));
    EXPECT_THAT(ErrorOf("undo \"redo"), HasSubstr("never closed"));
    EXPECT_THAT(ErrorOf("create-style fill --name \"\""), HasSubstr("name is empty"));
}

TEST(EditScriptText, HasNoOptionsOfTheCommandLine)
{
    EXPECT_THAT(ErrorOf("set fill.color=#fff --in-place"), HasSubstr("--in-place"));
    EXPECT_THAT(ErrorOf("set fill.color=#fff --json"), HasSubstr("--json"));
    EXPECT_THAT(ErrorOf("undo --help"), HasSubstr("--help"));
}

TEST(EditScriptText, MustCloseItsGroups)
{
    EXPECT_EQ(ErrorOf("undo\nbegin-group\nclear fill.color\n"),
              "tidy.txt, line 2: the group is never closed; expected end-group");
    EXPECT_EQ(ErrorOf("end-group"),
              "tidy.txt, line 1: no group is open; expected begin-group before end-group");
}

TEST(EditScriptText, HasInGroupsOnlyWhatChangesTheDrawing)
{
    for (const std::string command : {"undo", "redo", "begin-group", "select all", "edit-style fill", "show"})
    {
        EXPECT_THAT(ErrorOf("begin-group\n" + command + "\nend-group"),
                    AllOf(StartsWith("tidy.txt, line 2: "), HasSubstr("cannot stand in a group"),
                          HasSubstr("since line 1")));
    }
    EXPECT_EQ(
        ErrorOf("begin-group\nset fill.color=#fff\nrevert fill\nbreak-link fill.color\nend-group\nundo"),
        "no error");
}

TEST(EditScriptText, IsUtf8)
{
    EXPECT_THAT(ErrorOf("undo\nselect name:caf\xE9\n"),
                StartsWith("tidy.txt, line 2: the line is no valid UTF-8"));
    EXPECT_THAT(ErrorOf(std::string("undo\0", 5)), HasSubstr("zero byte"));
}

TEST(EditScriptText, IsLimited)
{
    EXPECT_THAT(ErrorOf("# " + std::string(Cli::kLongestScriptLine - 2, 'x')), "no error");
    EXPECT_THAT(ErrorOf("# " + std::string(Cli::kLongestScriptLine - 1, 'x')), HasSubstr("line is too long"));
    EXPECT_THAT(ErrorOf(std::string(Cli::kMostScriptLines, '\n')), "no error");
    EXPECT_THAT(ErrorOf(std::string(Cli::kMostScriptLines + 1, '\n')),
                StartsWith("tidy.txt, line 100001: there are too many lines"));
}

TEST(EditScriptFile, IsNamedInErrors)
{
    const ScratchFolder folder;
    const std::string file = folder.Write("edits", "undo\npaint\n").string();

    EXPECT_THAT([&] { static_cast<void>(ReadEditScript(file)); },
                ThrowsMessage<ScriptError>(StartsWith(file + ", line 2: ")));
}

TEST(EditScriptFile, MustBeThereAndBeAFile)
{
    const ScratchFolder folder;
    const std::string missing = (folder.GetPath() / "none").string();

    EXPECT_THAT([&] { static_cast<void>(ReadEditScript(missing)); },
                ThrowsMessage<ReferenceHost::DocumentError>(
                    AllOf(StartsWith(missing + ": the script cannot be read"), HasSubstr("No such file"))));
    EXPECT_THAT([&] { static_cast<void>(ReadEditScript(folder.GetPath().string())); },
                ThrowsMessage<ReferenceHost::DocumentError>(HasSubstr("Is a directory")));
}

TEST(EditScriptFile, IsLimited)
{
    const ScratchFolder folder;
    const std::string file = folder.Write("edits", std::string(Cli::kLargestScript + 1, '\n')).string();

    EXPECT_THAT([&] { static_cast<void>(ReadEditScript(file)); },
                ThrowsMessage<ReferenceHost::DocumentError>(HasSubstr("larger than 16 MiB")));
}
