#include "apps/cli/EditTool.h"

#include "apps/cli/AnswerReport.h"
#include "apps/cli/EditReport.h"
#include "apps/cli/EditRun.h"
#include "apps/cli/EditScript.h"
#include "apps/cli/JsonReport.h"
#include "apps/cli/LanguageChoice.h"
#include "apps/cli/StandardOutput.h"
#include "apps/cli/TerminalAnswers.h"
#include "apps/workbench/Editor.h"
#include "apps/workbench/PanelFolder.h"
#include "apps/workbench/Selector.h"
#include "apps/workbench/Session.h"
#include "host/utils/Utf8.h"
#include "reference_host/document/OverwriteRefusal.h"

#include <filesystem>
#include <functional>
#include <iostream>
#include <memory>

namespace Cli
{
namespace
{

/// Saves the drawing, and where that is refused tells what does it all the same.
std::vector<std::filesystem::path> SaveAs(Workbench::Editor& editor, const std::filesystem::path& target,
                                          const OutputOptions& output, std::vector<std::string>& warnings)
{
    ReferenceHost::SaveOptions options;
    options.keepBackup = output.keepsBackup;
    options.force = output.isForced;
    try
    {
        return editor.Save(target, options, warnings);
    }
    catch (const ReferenceHost::OverwriteRefusal& refusal)
    {
        throw ReferenceHost::DocumentError(refusal.GetProblem(), refusal.GetWhere(),
                                           refusal.GetExpected() + ", or --force to replace it all the same");
    }
}

/// Saves where the options say. In place, a drawing without a step is left alone.
///
/// @param result receives which files were written.
void Save(Workbench::Editor& editor, const EditedDrawing& edited, EditResult& result)
{
    const OutputOptions& output = edited.output;
    if (output.isDryRun || (output.isInPlace && editor.GetStepCount() == 0))
        return;
    const std::filesystem::path target =
        output.isInPlace ? std::filesystem::path(edited.drawing.file) : output.target;
    std::vector<std::string> warnings;
    result.savedSheets = SaveAs(editor, target, output, warnings);
    result.savedAs = target;
    WriteWarnings(warnings);
}

/// The panels, with what is wrong with them told.
Workbench::PanelFolder ReadPanels(const DrawingOptions& options)
{
    Workbench::PanelFolder folder =
        Workbench::ReadPanelFolder(Workbench::FindPanelFolder(options.panelFolder));
    WriteWarnings(folder.problems);
    return folder;
}

/// Tells of presets that were passed over, whatever becomes of the work.
struct PresetWarnings
{
    Workbench::Session& session;

    explicit PresetWarnings(Workbench::Session& itsSession) : session(itsSession) {}

    PresetWarnings(const PresetWarnings&) = delete;
    PresetWarnings& operator=(const PresetWarnings&) = delete;

    ~PresetWarnings() { WriteWarnings(session.TakePresetWarnings()); }
};

/// Lets `work` run commands on what is selected, with a person at the terminal to ask.
void RunCommands(Workbench::Session& session, const Workbench::PanelFolder& folder,
                 const Workbench::Selector& selector,
                 const std::function<void(EditRun&, Workbench::Editor&)>& work)
{
    WriteWarnings(session.GetWarnings());
    WriteWarnings(session.LoadPanels(folder.panels));
    TerminalAnswers terminal(std::cin, std::cerr);
    const Workbench::AnswersInPlace answers(session.GetDialogs(), &terminal);
    const PresetWarnings presetWarnings(session);

    Workbench::Editor editor(session);
    editor.Select(selector);
    EditRun run(session, editor, folder);
    work(run, editor);
}

/// Opens a drawing, lets `edit` change it, saves it and writes the report.
///
/// @param result what is known of the result so far.
void EditDrawing(const EditedDrawing& edited, EditResult result, const std::function<void(EditRun&)>& edit)
{
    const Workbench::Selector selector = Workbench::ParseSelector(OvxUtils::FromUtf8(edited.selector));
    const Workbench::PanelFolder folder = ReadPanels(edited.drawing);
    Workbench::Session session(edited.drawing.file, folder.panels);
    const auto work = [&](EditRun& run, Workbench::Editor& editor)
    {
        edit(run);
        result.changes = editor.DescribeChanges();
        result.steps = editor.GetStepCount();
        Save(editor, edited, result);
        result.answers = run.GetAnswers();
    };
    RunCommands(session, folder, selector, work);
    result.file = edited.drawing.file;
    result.isDryRun = edited.output.isDryRun;
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

void RunAsk(const AskOptions& options)
{
    ChooseLanguage(options.drawing);
    const Workbench::Selector selector = Workbench::ParseSelector(OvxUtils::FromUtf8(options.selector));
    const Workbench::PanelFolder folder = ReadPanels(options.drawing);
    const std::string& file = options.drawing.file;
    const auto session = file.empty() ? std::make_unique<Workbench::Session>(folder.panels)
                                      : std::make_unique<Workbench::Session>(file, folder.panels);
    std::vector<EditAnswer> answers;
    const auto work = [&](EditRun& run, const Workbench::Editor&)
    {
        run.Do(options.command);
        answers = run.GetAnswers();
    };
    RunCommands(*session, folder, selector, work);
    for (const EditAnswer& answer : answers)
        WriteStandardOutput(options.drawing.isJson ? FormatJson(AnswerToJson(answer))
                                                   : LayOut(AnswerToText(answer, file), ChooseColouring()));
}

} // namespace Cli
