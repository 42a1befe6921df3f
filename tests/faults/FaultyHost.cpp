#include "tests/faults/FaultyHost.h"

#include "conformance/HostQueries.h"
#include "host/utils/Utf8.h"
#include "tests/datasource/support/Description.h"
#include "tests/faults/FailingAllocations.h"

using namespace Styles;
using FailingAllocations::Pause;

Style* FaultySheet::GetStyle(const OvxStringT& name) const
{
    calls.Enter("sheet.GetStyle");
    for (const auto& [entryName, style] : entries)
    {
        if (entryName == name)
            return style;
    }
    return nullptr;
}

OvxStringT FaultySheet::GetStyleName(const Style* style) const
{
    calls.Enter("sheet.GetStyleName");
    for (const auto& [name, entryStyle] : entries)
    {
        if (entryStyle == style)
            return name;
    }
    return {};
}

std::vector<OvxStringT> FaultySheet::GetStyleNames(const PropertyKey& category) const
{
    calls.Enter("sheet.GetStyleNames");
    std::vector<OvxStringT> names;
    for (const auto& [name, style] : entries)
    {
        if (style->GetCategoryName() == category)
            names.push_back(name);
    }
    return names;
}

OvxStringT FaultySheet::GetUnusedStyleName(const OvxStringT& base) const
{
    calls.Enter("sheet.GetUnusedStyleName");
    return base + L"*";
}

void FaultyModifier::Begin()
{
    calls.Enter("modifier.Begin");
    ++calls.openModifications;
}

void FaultyModifier::End()
{
    --calls.openModifications;
    calls.Enter("modifier.End");
}

void FaultyModifier::Modify(const std::vector<Style*>& targets, const std::map<Style*, std::size_t>& objects,
                            const PropertyPaths& paths, std::unique_ptr<Style> changeStyle,
                            const PropertyPaths& overridePaths, bool /*reserved*/, bool /*bound*/,
                            IModifyStyleOverrides* /*transactionOverrides*/)
{
    calls.Enter("modifier.Modify");
    const Pause pause;
    calls.Note("Modify " + std::to_string(targets.size()) + " targets, " + std::to_string(objects.size()) +
               " objects, " + Describe(paths) + ", " + Describe(changeStyle.get()) + ", " +
               Describe(overridePaths));
}

StyleSheet* FaultySource::GetStyleSheet()
{
    calls.Enter("source.GetStyleSheet");
    return &sheet;
}

StyleSheet* FaultySource::GetExternalStyleSheet(const OvxStringT& /*sheetName*/)
{
    calls.Enter("source.GetExternalStyleSheet");
    return &sheet;
}

bool FaultySource::ShouldIgnoreCharacterStyleSiblings()
{
    calls.Enter("source.ShouldIgnoreCharacterStyleSiblings");
    return false;
}

StyleSheet* FaultySource::GetDefaultStyleSheet()
{
    calls.Enter("source.GetDefaultStyleSheet");
    return &sheet;
}

std::vector<Style*> FaultySource::GetDefaultStyles()
{
    calls.Enter("source.GetDefaultStyles");
    return defaultStyles;
}

IMultipleStyleModifier* FaultySource::GetMultipleStyleModifier()
{
    calls.Enter("source.GetMultipleStyleModifier");
    return &modifier;
}

void FaultySource::ApplyToParent(std::function<void(const PropertyPaths&)> clear, Style* /*destination*/,
                                 const PropertyPaths& paths, std::unique_ptr<Style> values)
{
    calls.Enter("source.ApplyToParent");
    const std::unique_ptr<Style> owned = std::move(values);
    clear(paths);
}

void FaultySource::ReplaceProperties(Style* /*style*/, const PropertyPaths& paths,
                                     std::unique_ptr<Style> values, bool /*dropParent*/, bool /*reserved*/)
{
    calls.Enter("source.ReplaceProperties");
    const Pause pause;
    calls.Note("ReplaceProperties " + Describe(paths) + ", " + Describe(values.get()));
}

void FaultySource::CreateStyle(const PropertyKey& /*category*/, const OvxStringT& name)
{
    calls.Enter("source.CreateStyle");
    const Pause pause;
    calls.Note("CreateStyle " + Describe(name));
}

void FaultySource::ApplyStyle(Style* style, bool /*reserved*/)
{
    calls.Enter("source.ApplyStyle");
    const Pause pause;
    calls.Note("ApplyStyle " + Describe(sheet.GetStyleName(style)));
}

void FaultySource::SetParent(Style* /*target*/, Style* parent, bool /*reserved*/)
{
    calls.Enter("source.SetParent");
    const Pause pause;
    calls.Note("SetParent " + Describe(sheet.GetStyleName(parent)));
}

void FaultySource::ApplyPresetToStyles(const OvxStringT& name, const OvxStringT& /*category*/,
                                       const std::vector<Style*>& /*styles*/)
{
    calls.Enter("source.ApplyPresetToStyles");
    const Pause pause;
    calls.Note("ApplyPresetToStyles " + Describe(name));
}

void FaultySource::ApplyPresetToObjects(const OvxStringT& name, const OvxStringT& /*category*/,
                                        const std::vector<std::size_t>& objects)
{
    calls.Enter("source.ApplyPresetToObjects");
    const Pause pause;
    calls.Note("ApplyPresetToObjects " + Describe(name) + ", " + std::to_string(objects.size()));
}

void FaultySource::FillPresetItems(std::vector<PresetListEntry> entries, const OvxStringT& /*category*/)
{
    calls.Enter("source.FillPresetItems");
    for (const PresetListEntry& entry : entries)
    {
        entry.item->SetText(entry.name);
        entry.item->SetIndex(static_cast<int>(entry.position));
    }
}

void FaultySource::BeginGroup()
{
    calls.Enter("source.BeginGroup");
    ++calls.openGroups;
}

void FaultySource::EndGroup(bool /*commit*/)
{
    --calls.openGroups;
    calls.Enter("source.EndGroup");
}

IModifyStyleOverrides* FaultySource::GetTransactionOverrides()
{
    calls.Enter("source.GetTransactionOverrides");
    return nullptr;
}

OvxStringT FaultyPresetManager::GetPresetFolder(PresetLocation /*location*/, OvxStringT category)
{
    calls.Enter("presetManager.GetPresetFolder");
    return category;
}

OvxStringT FaultyPresetManager::GetPresetFileName(PresetLocation /*location*/, OvxStringT name)
{
    calls.Enter("presetManager.GetPresetFileName");
    return name;
}

int FaultyPresetManager::GetPresetFormat()
{
    calls.Enter("presetManager.GetPresetFormat");
    return 1;
}

OvxStringT FaultyPresetManager::GetCustomConfigurationDirectory()
{
    calls.Enter("presetManager.GetCustomConfigurationDirectory");
    return OvxUtils::FromUtf8(folder.string());
}

OvxStringT FaultyPresetManager::GetUserDocumentsDirectory()
{
    calls.Enter("presetManager.GetUserDocumentsDirectory");
    return {};
}

void FaultyApp::QueryInterface(const InterfaceId& id, void** out)
{
    calls.Enter("app.QueryInterface");
    if (id == HostTests::kStylesSourceAppId)
        *out = static_cast<IStylesSourceApp*>(this);
    else if (id == HostTests::kStylesSourceId)
        *out = source;
}

IStyleSourceProvider* FaultyApp::GetActiveStyleSourceProvider()
{
    calls.Enter("app.GetActiveStyleSourceProvider");
    return this;
}

bool FaultyApp::IsExcludedStyleName(const OvxStringT& /*name*/)
{
    calls.Enter("app.IsExcludedStyleName");
    return false;
}

OvxStringT FaultyApp::GetDisplayStyleName(const OvxStringT& name)
{
    calls.Enter("app.GetDisplayStyleName");
    return L"<" + name + L">";
}

StylePresetManager& FaultyApp::GetStylePresetManager()
{
    calls.Enter("app.GetStylePresetManager");
    return presetManager;
}

void FaultyApplicator::AttachDataSource(int /*id*/, BaseStylePropertiesDatasource* /*dataSource*/)
{
    calls.Enter("applicator.AttachDataSource");
}

void FaultyApplicator::ModifyStyles(int /*id*/, const PropertyPaths& paths, Style* changeStyle,
                                    const PropertyPaths* overridePaths, bool /*toDefaultStyles*/)
{
    calls.Enter("applicator.ModifyStyles");
    const Pause pause;
    calls.Note("applicator " + Describe(paths) + ", " + Describe(changeStyle) + ", " +
               Describe(overridePaths));
}

PropertyPath FaultyApplicator::GetTargetPath(int /*id*/)
{
    calls.Enter("applicator.GetTargetPath");
    return targetPath;
}

void FaultyStylesEditor::EditStyle(const OvxStringT& name, bool /*select*/, bool /*show*/)
{
    calls.Enter("stylesEditor.EditStyle");
    const Pause pause;
    calls.Note("EditStyle " + Describe(name));
}

IHostObject* FaultyContext::GetHostObject()
{
    calls.Enter("context.GetHostObject");
    return this;
}

IDataSource* FaultyContext::GetDataSource(const OvxStringT& name)
{
    calls.Enter("context.GetDataSource");
    const auto found = dataSources.find(name);
    return found == dataSources.end() ? nullptr : found->second;
}

IDialogService* FaultyContext::GetDialogService()
{
    calls.Enter("context.GetDialogService");
    return this;
}

void* FaultyContext::Query(const InterfaceId& id)
{
    calls.Enter("hostObject.Query");
    return id == HostTests::kStyleApplicatorId ? applicator : nullptr;
}

void FaultyContext::ShowDialog(const OvxStringT& /*key*/, IDataContext* /*context*/)
{
    calls.Enter("dialogs.ShowDialog");
    calls.Note("ShowDialog");
}

void FaultyContext::CloseDialog(const OvxStringT& /*key*/, int /*result*/, int /*reserved*/)
{
    calls.Enter("dialogs.CloseDialog");
    calls.Note("CloseDialog");
}
