#include "apps/cli/Tool.h"

#include "apps/cli/CommandLine.h"
#include "apps/cli/EditTool.h"
#include "apps/cli/JsonReport.h"
#include "apps/cli/LanguageChoice.h"
#include "apps/cli/StandardOutput.h"
#include "apps/cli/TextReport.h"
#include "apps/workbench/FailedWrites.h"
#include "apps/workbench/PanelFolder.h"
#include "apps/workbench/SelectionSearch.h"
#include "apps/workbench/Selector.h"
#include "apps/workbench/Session.h"
#include "apps/workbench/UsageError.h"
#include "host/utils/Utf8.h"
#include "reference_host/document/DocumentError.h"

#include <exception>

namespace Cli
{
namespace
{

using Workbench::Session;

constexpr int kSuccess = 0;
constexpr int kBadInput = 1;
constexpr int kWrongUsage = 2;

/// Reports problems that leave the rest usable.
///
/// @returns the exit status that they call for.
int ReportProblems(const std::vector<std::string>& problems)
{
    for (const std::string& problem : problems)
        WriteErrorLine(problem);
    return problems.empty() ? kSuccess : kBadInput;
}

/// What the panels show for each of the selections, in the form that was asked for.
std::string DescribeSelections(Session& session, const std::vector<Workbench::Selection>& selections,
                               const DrawingOptions& options)
{
    if (options.isJson)
    {
        JsonDocument document(options.file, "reports");
        for (const Workbench::Selection& selection : selections)
            document.Add(ReportToJson(session.Inspect(selection)));
        return document.Finish();
    }
    const Colouring colouring = ChooseColouring();
    std::string text;
    for (const Workbench::Selection& selection : selections)
    {
        text += text.empty() ? "" : "\n";
        text += LayOut(ReportToText(options.file, session.Inspect(selection)), colouring);
    }
    return text;
}

int Run(const InspectOptions& options)
{
    ChooseLanguage(options.drawing);
    const Workbench::Selector selector = Workbench::ParseSelector(OvxUtils::FromUtf8(options.selector));
    const Workbench::PanelFolder folder =
        Workbench::ReadPanelFolder(Workbench::FindPanelFolder(options.drawing.panelFolder));
    int status = ReportProblems(folder.problems);
    std::vector<OvxStringT> names;
    for (const std::string& name : options.panels)
        names.push_back(OvxUtils::FromUtf8(name));
    const auto chosen = Workbench::ChoosePanels(folder, names);

    Session session(options.drawing.file, folder.panels);
    WriteWarnings(session.GetWarnings());
    status = std::max(status, ReportProblems(session.LoadPanels(chosen)));
    const Workbench::Selection selection = session.Select(selector);
    const auto selections = options.isEach ? Workbench::SplitByObject(selection) : std::vector{selection};
    WriteStandardOutput(DescribeSelections(session, selections, options.drawing));
    return status;
}

/// The panels that may bring categories along. Without a folder that was chosen, styles can be shown without.
Workbench::PanelFolder FindCategories(const DrawingOptions& options)
{
    try
    {
        return Workbench::ReadPanelFolder(Workbench::FindPanelFolder(options.panelFolder));
    }
    catch (const ReferenceHost::DocumentError&)
    {
        if (options.panelFolder)
            throw;
        return {};
    }
}

int Run(const StylesOptions& options)
{
    ChooseLanguage(options.drawing);
    const Workbench::PanelFolder folder = FindCategories(options.drawing);
    const int status = ReportProblems(folder.problems);
    Session session(options.drawing.file, folder.panels);
    WriteWarnings(session.GetWarnings());
    const std::vector<Workbench::NamedStyleFacts> styles = session.GetStyles().DescribeNamedStyles();
    if (!options.drawing.isJson)
    {
        WriteStandardOutput(LayOut(StylesToText(styles), ChooseColouring()));
        return status;
    }
    JsonDocument document(options.drawing.file, "styles");
    for (const Workbench::NamedStyleFacts& style : styles)
        document.Add(StyleToJson(style));
    WriteStandardOutput(document.Finish());
    return status;
}

int Run(const EditOptions& options)
{
    RunEdit(options);
    return kSuccess;
}

int Run(const ScriptOptions& options)
{
    RunEditScript(options);
    return kSuccess;
}

int Run(const AskOptions& options)
{
    RunAsk(options);
    return kSuccess;
}

int Run(const InformationText& information)
{
    WriteStandardOutput(information.text);
    return kSuccess;
}

} // namespace

int RunTool(int argumentCount, const char* const* arguments)
{
    Workbench::OutliveFailedWrites();
    try
    {
        return std::visit([](const auto& command) { return Run(command); },
                          ParseCommandLine(argumentCount, arguments));
    }
    catch (const Workbench::UsageError& error)
    {
        WriteErrorLine(error.what());
        return kWrongUsage;
    }
    catch (const std::exception& error)
    {
        WriteErrorLine(error.what());
        return kBadInput;
    }
}

} // namespace Cli
