#pragma once

#include "apps/cli/EditAnswer.h"
#include "apps/cli/EditScript.h"
#include "apps/cli/EditingCommand.h"
#include "apps/workbench/Editor.h"
#include "apps/workbench/PanelFolder.h"
#include "apps/workbench/Session.h"

#include <cstddef>
#include <vector>

namespace Cli
{

/// Does commands on an open drawing, and gathers what they tell.
class EditRun
{
public:
    /// All three are borrowed and outlive this; the panels of the folder are those that were described to the
    /// session.
    EditRun(Workbench::Session& itsSession, Workbench::Editor& itsEditor,
            const Workbench::PanelFolder& itsPanels)
        : session(&itsSession), editor(&itsEditor), panels(&itsPanels)
    {
    }

    /// Does one command that stands on no line.
    ///
    /// @throws what Workbench::Editor throws, and Workbench::EditError for undo and redo without a step.
    void Do(const EditingCommand& command) { Do(0, command); }

    /// Does all commands of a script.
    ///
    /// @throws ScriptError for the first that cannot be done; those before it are done then.
    void Do(const EditScript& script);

    /// What the commands told, in order.
    [[nodiscard]] const std::vector<EditAnswer>& GetAnswers() const noexcept { return answers; }

private:
    void Do(std::size_t line, const EditingCommand& command);

    Workbench::Session* session;
    Workbench::Editor* editor;
    const Workbench::PanelFolder* panels;
    std::vector<EditAnswer> answers;
};

} // namespace Cli
