#include "apps/workbench/PanelFolder.h"

#include "apps/workbench/PanelDescriptionReader.h"
#include "apps/workbench/ProgramFolder.h"
#include "apps/workbench/TargetHandover.h"
#include "apps/workbench/UsageError.h"
#include "host/utils/Utf8.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/services/LoadedModule.h"
#include "reference_host/services/NativePaths.h"
#include "reference_host/services/UserFolders.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string_view>
#include <system_error>
#include <tuple>
#include <utility>

namespace Workbench
{
namespace
{

using ReferenceHost::DocumentError;
using ReferenceHost::PathToUtf8;
using Path = std::filesystem::path;

/// Where panels lie as installed and as built, in this order.
std::vector<Path> BuiltInFolders()
{
    std::vector<Path> folders;
    const Path program = FindProgramFolder();
    if (!program.empty())
    {
        folders.push_back((program / STYLEPROPERTIES_PANELS_FROM_PROGRAM).lexically_normal());
        folders.push_back((program / "../panels").lexically_normal());
    }
    folders.emplace_back(STYLEPROPERTIES_PANELS_INSTALLED);
    return folders;
}

/// The files of a folder whose names end so, in order.
std::vector<Path> FindFiles(const Path& folder, std::string_view suffix)
{
    const DocumentError missing("there is no such folder", PathToUtf8(folder), "a folder with panels");
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error))
        throw missing;
    std::vector<Path> files;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
    {
        if (PathToUtf8(entry->path().filename()).ends_with(suffix))
            files.push_back(entry->path());
    }
    if (error)
        throw DocumentError("the folder cannot be read: " + error.message(), PathToUtf8(folder),
                            "a folder with panels");
    std::sort(files.begin(), files.end());
    return files;
}

/// A module without a description is loaded by nobody. One beside a bad description is not told of twice.
void TellModulesWithoutDescription(PanelFolder& content, const Path& folder)
{
    std::set<Path> described;
    for (const PanelDescription& panel : content.panels)
        described.insert(ReferenceHost::LoadedModule::GetFileNameOf(OvxUtils::ToUtf8(panel.module)));
    const std::string suffix = PathToUtf8(ReferenceHost::LoadedModule::GetFileNameOf({}));
    for (const Path& module : FindFiles(folder, suffix))
    {
        const Path own = module.stem() += kPanelDescriptionSuffix;
        std::error_code unknown;
        if (described.contains(module.filename()) || std::filesystem::exists(folder / own, unknown))
            continue;
        content.problems.emplace_back(DocumentError("no description names this module", PathToUtf8(module),
                                                    PathToUtf8(own) + " beside it")
                                          .what());
    }
}

/// Takes out the panels for which `findProblem` gives one, and keeps what is wrong with them.
template <class ProblemFinder>
void Sift(PanelFolder& folder, const ProblemFinder& findProblem)
{
    std::vector<PanelDescription> kept;
    for (PanelDescription& panel : folder.panels)
    {
        const std::optional<DocumentError> problem = findProblem(panel);
        if (problem)
            folder.problems.emplace_back(problem->what());
        else
            kept.push_back(std::move(panel));
    }
    folder.panels = std::move(kept);
}

DocumentError Conflict(const PanelDescription& panel, const std::string& problem, const std::string& expected)
{
    return DocumentError(problem, PathToUtf8(panel.file), expected);
}

/// Leaves each name and each category that panels bring to the first panel that has it.
void SiftDoubles(PanelFolder& folder)
{
    std::set<OvxStringT> names;
    std::set<OvxStringT> categories;
    Sift(folder,
         [&](const PanelDescription& panel) -> std::optional<DocumentError>
         {
             if (!names.insert(panel.name).second)
                 return Conflict(panel, "another panel is called \"" + OvxUtils::ToUtf8(panel.name) + "\"",
                                 "a name of its own");
             if (!panel.ownCategory)
                 return std::nullopt;
             const bool isTaken = TargetHandover::IsHostCategory(panel.category);
             if (isTaken || !categories.insert(panel.category).second)
                 return Conflict(panel,
                                 "the category \"" + OvxUtils::ToUtf8(panel.category) + "\" is there already",
                                 "a new category, or none");
             return std::nullopt;
         });
    Sift(folder,
         [&](const PanelDescription& panel) -> std::optional<DocumentError>
         {
             if (TargetHandover::IsHostCategory(panel.category) || categories.contains(panel.category))
                 return std::nullopt;
             return Conflict(panel,
                             "nothing brings the category \"" + OvxUtils::ToUtf8(panel.category) + "\"",
                             "a known category, or <category> inside <panel>");
         });
}

} // namespace

Path FindPanelFolder(const std::optional<Path>& chosen)
{
    if (chosen)
        return *chosen;
    Path fromEnvironment = ReferenceHost::FindEnvironmentPath("STYLEPROPS_PANELS");
    if (!fromEnvironment.empty())
        return fromEnvironment;
    const std::vector<Path> folders = BuiltInFolders();
    const auto existing = std::find_if(folders.begin(), folders.end(),
                                       [](const Path& folder)
                                       {
                                           std::error_code error;
                                           return std::filesystem::is_directory(folder, error);
                                       });
    return existing == folders.end() ? folders.front() : *existing;
}

PanelFolder ReadPanelFolder(const Path& folder)
{
    PanelFolder content;
    for (const Path& file : FindFiles(folder, kPanelDescriptionSuffix))
    {
        try
        {
            content.panels.push_back(ReadPanelDescription(file));
        }
        catch (const DocumentError& error)
        {
            content.problems.emplace_back(error.what());
        }
    }
    if (content.panels.empty() && content.problems.empty())
        throw DocumentError("there is no panel in it", PathToUtf8(folder),
                            "descriptions whose names end in " + std::string(kPanelDescriptionSuffix));
    TellModulesWithoutDescription(content, folder);
    SiftDoubles(content);
    std::sort(content.panels.begin(), content.panels.end(),
              [](const PanelDescription& left, const PanelDescription& right)
              { return std::tie(left.order, left.name) < std::tie(right.order, right.name); });
    return content;
}

std::vector<PanelDescription> ChoosePanels(const PanelFolder& folder, const std::vector<OvxStringT>& names)
{
    if (names.empty())
        return folder.panels;
    std::string known;
    for (const PanelDescription& panel : folder.panels)
        known += (known.empty() ? "" : ", ") + OvxUtils::ToUtf8(panel.name);
    for (const OvxStringT& name : names)
    {
        const bool isKnown = std::any_of(folder.panels.begin(), folder.panels.end(),
                                         [&](const PanelDescription& panel) { return panel.name == name; });
        if (!isKnown)
            throw UsageError("there is no panel \"" + OvxUtils::ToUtf8(name) + "\"; expected one of " +
                             known);
    }
    std::vector<PanelDescription> chosen;
    std::copy_if(folder.panels.begin(), folder.panels.end(), std::back_inserter(chosen),
                 [&](const PanelDescription& panel)
                 { return std::find(names.begin(), names.end(), panel.name) != names.end(); });
    return chosen;
}

} // namespace Workbench
