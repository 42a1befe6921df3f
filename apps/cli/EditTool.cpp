#include "apps/cli/EditTool.h"

#include "apps/cli/EditReport.h"
#include "apps/cli/EditRun.h"
#include "apps/cli/EditScript.h"
#include "apps/cli/LanguageChoice.h"
#include "apps/cli/StandardOutput.h"
#include "apps/workbench/Editor.h"
#include "apps/workbench/PanelFolder.h"
#include "apps/workbench/Selector.h"
#include "apps/workbench/Session.h"
#include "host/utils/Utf8.h"

#include <filesystem>
#include <functional>

namespace Cli
{
namespace
{

/// Saves where the options say. In place, a drawing without a step is left alone.
///
/// @returns the file that was written; empty for none.
std::filesystem::path Save(Workbench::Editor& editor, const EditedDrawing& edited)
{
    const OutputOptions& output = edited.output;
    if (output.isDryRun || (output.isInPlace && editor.GetStepCount() == 0))
        return {};
    const std::filesystem::path target =
        output.isInPlace ? std::filesystem::path(edited.drawing.file) : output.target;
    std::vector<std::string> warnings;
    editor.Save(target, output.keepsBackup, warnings);
    WriteWarnings(warnings);
    return target;
}

/// Opens a drawing, lets `edit` change it, saves it and writes the report.
///
/// @param result what is known of the result so far.
void EditDrawing(const EditedDrawing& edited, EditResult result, const std::function<void(EditRun&)>& edit)
{
    const Workbench::Selector selector = Workbench::ParseSelector(OvxUtils::FromUtf8(edited.selector));
    const Workbench::PanelFolder folder =
        Workbench::ReadPanelFolder(Workbench::FindPanelFolder(edited.drawing.panelFolder));
    WriteWarnings(folder.problems);
    Workbench::Session session(edited.drawing.file, folder.panels);
    WriteWarnings(session.GetWarnings());
    WriteWarnings(session.LoadPanels(folder.panels));

    Workbench::Editor editor(session);
    editor.Select(selector);
    EditRun run(session, editor, folder);
    edit(run);
    result.changes = editor.DescribeChanges();
    result.steps = editor.GetStepCount();
    result.savedAs = Save(editor, edited);

    result.file = edited.drawing.file;
    result.isDryRun = edited.output.isDryRun;
    result.answers = run.GetAnswers();
    WriteStandardOutput(edited.drawing.isJson ? EditResultToJson(result)
                                              : EditResultToText(result, folder.panels, ChooseColouring()));
}

} // namespace

void RunEdit(const EditOptions& options)
{
    ChooseLanguage(options.edited.drawing);
    EditDrawing(options.edited, {}, [&](EditRun& run) { run.Do(options.command); });
}

void RunEditScript(const ScriptOptions& options)
{
    ChooseLanguage(options.edited.drawing);
    const EditScript script = ReadEditScript(options.script);
    EditResult result;
    result.isScript = true;
    EditDrawing(options.edited, result, [&](EditRun& run) { run.Do(script); });
}

} // namespace Cli
