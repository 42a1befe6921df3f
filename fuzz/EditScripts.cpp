// Scripts of edits, run command by command: what cannot be done changes nothing, what was done is saved, and
// all of it can be undone.

#include "apps/cli/AnswerReport.h"
#include "apps/cli/EditRun.h"
#include "apps/cli/EditScript.h"
#include "apps/workbench/EditError.h"
#include "apps/workbench/SelectionError.h"
#include "apps/workbench/UsageError.h"
#include "fuzz/Demand.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/SavingPromises.h"
#include "fuzz/Workplace.h"
#include "reference_host/document/DocumentError.h"

#include <algorithm>
#include <optional>
#include <string>
#include <variant>

namespace
{

/// More make an input slow and find nothing further.
constexpr std::size_t kMostCommands = 40;

std::optional<Cli::EditScript> Read(std::string_view text)
{
    try
    {
        return Cli::ParseEditScript("script", text);
    }
    catch (const Cli::ScriptError&)
    {
        return std::nullopt;
    }
}

/// Does a command.
///
/// @returns whether it could be done.
bool Do(Cli::EditRun& run, const Cli::EditingCommand& command)
{
    try
    {
        run.Do(command);
        return true;
    }
    catch (const Workbench::UsageError&)
    {
        return false;
    }
    catch (const Workbench::SelectionError&)
    {
        return false;
    }
    catch (const Workbench::EditError&)
    {
        return false;
    }
    catch (const ReferenceHost::DocumentError&)
    {
        return false;
    }
}

void DemandAllOrNothing(const Cli::EditScript& script)
{
    Fuzz::Workplace& place = Fuzz::Workplace::Get();
    Cli::EditRun run(place.GetSession(), place.GetEditor(), place.GetPanels());
    std::string bytes = place.GetBytes();
    bool hasUndone = false;
    for (std::size_t each = 0; each < std::min(script.commands.size(), kMostCommands); ++each)
    {
        const Cli::EditingCommand& command = script.commands[each].command;
        // What the input before took back is none of this one's.
        if (std::holds_alternative<Cli::RedoCommand>(command) && !hasUndone)
            continue;
        const bool isDone = Do(run, command);
        hasUndone = hasUndone || (isDone && std::holds_alternative<Cli::UndoCommand>(command));
        const std::string now = place.GetBytes();
        if (!isDone)
            Fuzz::DemandEqual(now, bytes, "a command that cannot be done changes nothing");
        bytes = now;
    }
    for (const Cli::EditAnswer& answer : run.GetAnswers())
        static_cast<void>(Cli::AnswerToJson(answer).size());
}

} // namespace

void Fuzz::RunInput(std::string_view input)
{
    const std::optional<Cli::EditScript> script = Read(input);
    if (!script)
        return;
    Workplace& place = Workplace::Get();
    DemandAllOrNothing(*script);
    if (place.GetEditor().IsGroupOpen())
        place.GetEditor().EndGroup(true);
    static_cast<void>(place.GetEditor().DescribeChanges());
    DemandItIsSaved(place.GetSession().GetDrawing());
    place.Restore();
    Demand(place.GetEditor().DescribeChanges().empty(), "what was undone is no change");
}
