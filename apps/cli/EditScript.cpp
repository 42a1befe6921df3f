#include "apps/cli/EditScript.h"

#include "apps/cli/EditingVerb.h"
#include "apps/cli/ScriptWords.h"
#include "apps/workbench/UsageError.h"
#include "host/utils/Utf8.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/services/NativePaths.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>
#include <utility>

namespace Cli
{
namespace
{

using ReferenceHost::DocumentError;
using Workbench::UsageError;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string NameOf(const std::string& source)
{
    return source == "-" ? "standard input" : ReferenceHost::PathToUtf8(source);
}

/// Takes the next line, without what ends it, off the front of `rest`.
std::string_view TakeLine(std::string_view& rest)
{
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

void CheckLine(std::string_view line, std::size_t number)
{
    if (number > kMostScriptLines)
        throw UsageError("there are too many lines; expected " + std::to_string(kMostScriptLines) +
                         " at the most");
    if (line.size() > kLongestScriptLine)
        throw UsageError("the line is too long; expected " + std::to_string(kLongestScriptLine) +
                         " bytes at the most");
    if (OvxUtils::ToUtf8(OvxUtils::FromUtf8(line)) != line)
        throw UsageError("the line is no valid UTF-8; expected a script in UTF-8");
    if (line.find('\0') != std::string_view::npos)
        throw UsageError("the line holds a zero byte; expected text");
}

template <class... Commands>
bool IsOneOf(const EditingCommand& command)
{
    return (std::holds_alternative<Commands>(command) || ...);
}

/// Tells whether a command belongs to what a group gathers. The others look at the drawing, choose what is
/// edited or go through the steps, none of which can be done in the middle of one.
bool BelongsInGroups(const EditingCommand& command)
{
    const bool isChoice = IsOneOf<SelectCommand, EditStyleCommand>(command);
    const bool isStepping = IsOneOf<UndoCommand, RedoCommand, BeginGroupCommand>(command);
    const bool isLook = IsOneOf<ShowCommand, StyleListCommand, PresetListCommand, PresetShowCommand,
                                PresetAddCommand, PresetDeleteCommand>(command);
    return !isChoice && !isStepping && !isLook;
}

/// Follows the groups of a script from line to line.
class GroupCheck
{
public:
    void Take(const ScriptCommand& each, const std::string& verb)
    {
        if (isOpen && !BelongsInGroups(each.command))
            throw UsageError(verb + " cannot stand in a group, and there is one since line " +
                             std::to_string(beginLine) + "; expected end-group before it");
        if (std::holds_alternative<BeginGroupCommand>(each.command))
            Begin(each.line);
        if (std::holds_alternative<EndGroupCommand>(each.command))
            End();
    }

    [[nodiscard]] bool IsOpen() const { return isOpen; }

    /// The line on which the open group begins; meaningless without one.
    [[nodiscard]] std::size_t GetBeginLine() const { return beginLine; }

private:
    void Begin(std::size_t line)
    {
        isOpen = true;
        beginLine = line;
    }

    void End()
    {
        if (!isOpen)
            throw UsageError("no group is open; expected begin-group before end-group");
        isOpen = false;
    }

    bool isOpen = false;
    std::size_t beginLine = 0;
};

DocumentError TooLarge(const std::string& name)
{
    return DocumentError("the script is larger than " + std::to_string(kLargestScript >> 20U) + " MiB", name,
                         "a smaller script");
}

DocumentError CannotRead(const std::string& name, int reason)
{
    return DocumentError("the script cannot be read (" + std::generic_category().message(reason) + ")", name,
                         "a text file with a command on each line, or - for the standard input");
}

std::string ReadAll(std::istream& stream, const std::string& name)
{
    std::string text(kLargestScript + 1, '\0');
    errno = 0;
    stream.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (stream.bad())
        throw CannotRead(name, errno);
    text.resize(static_cast<std::size_t>(stream.gcount()));
    if (text.size() > kLargestScript)
        throw TooLarge(name);
    return text;
}

std::string ReadSource(const std::string& source, const std::string& name)
{
    if (source == "-")
        return ReadAll(std::cin, name);
    std::error_code reason;
    if (std::filesystem::is_directory(source, reason))
        throw CannotRead(name, EISDIR);
    errno = 0;
    std::ifstream stream(source, std::ios::binary);
    if (!stream)
        throw CannotRead(name, errno);
    return ReadAll(stream, name);
}

} // namespace

EditScript ParseEditScript(const std::string& name, std::string_view text)
{
    EditScript script{name, {}};
    GroupCheck groups;
    if (text.starts_with(kByteOrderMark))
        text.remove_prefix(kByteOrderMark.size());
    for (std::size_t number = 1; !text.empty(); ++number)
    {
        try
        {
            const std::string_view line = TakeLine(text);
            CheckLine(line, number);
            const std::vector<std::string> words = SplitWords(line);
            if (words.empty())
                continue;
            script.commands.push_back({number, ReadEditingCommand(words)});
            groups.Take(script.commands.back(), NameOfCommand(words));
        }
        catch (const UsageError& error)
        {
            throw ScriptError(name, number, error.what());
        }
    }
    if (groups.IsOpen())
        throw ScriptError(name, groups.GetBeginLine(), "the group is never closed; expected end-group");
    return script;
}

EditScript ReadEditScript(const std::string& source)
{
    const std::string name = NameOf(source);
    return ParseEditScript(name, ReadSource(source, name));
}

} // namespace Cli
