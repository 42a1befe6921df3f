#include "tests/datasource/support/RecordingPanel.h"

#include "tests/datasource/support/Description.h"

#include <utility>

using namespace Styles;

RecordingPanel::RecordingPanel(CallLog& callLog, std::string panelName)
    : log(callLog), name(std::move(panelName))
{
    log.SetName(static_cast<const Base*>(this), name);
}

void RecordingPanel::ListenTo(const std::vector<OvxStringT>& names)
{
    for (const OvxStringT& each : names)
        AddListener(each, [this](const OvxStringT& changed) { log.Add("notify " + Describe(changed)); });
}

void RecordingPanel::ModifyStyles(std::unique_ptr<Style> values, const PropertyPaths* overridePaths) const
{
    Record("ModifyStyles(" + Describe(values.get()) + ", overridePaths=" + Describe(overridePaths) + ")");
    Base::ModifyStyles(std::move(values), overridePaths);
}

Style* RecordingPanel::GetTargetStyle(std::size_t index) const
{
    Record("GetTargetStyle(" + std::to_string(index) + ")");
    return givesTargetStyle ? givesTargetStyle(index) : Base::GetTargetStyle(index);
}

std::size_t RecordingPanel::GetNumTargetStyles() const
{
    Record("GetNumTargetStyles()");
    return countsTargetStyles ? countsTargetStyles() : Base::GetNumTargetStyles();
}

bool RecordingPanel::HasTargets() const
{
    Record("HasTargets()");
    return hasTargets.has_value() ? *hasTargets : Base::HasTargets();
}

OvxStringT RecordingPanel::GetSectionTitle()
{
    Record("GetSectionTitle()");
    return title.has_value() ? *title : Base::GetSectionTitle();
}

void RecordingPanel::SetTargetStyle(const std::vector<Style*>& styles, bool isDefault,
                                    const PropertyPath& path, const std::set<PropertyPath>& newForceAmbiguous)
{
    Record("SetTargetStyle(" + log.NamesOfStyles(styles) + ", isDefault=" + DescribeFlag(isDefault) +
           ", path=" + Describe(path) + ", forceAmbiguous=" + Describe(newForceAmbiguous) + ")");
    Base::SetTargetStyle(styles, isDefault, path, newForceAmbiguous);
}

void RecordingPanel::SetObjectStyles(const std::map<Style*, std::size_t>& newObjectStyles)
{
    Record("SetObjectStyles(" + std::to_string(newObjectStyles.size()) + " entries)");
    Base::SetObjectStyles(newObjectStyles);
}

OvxStringT RecordingPanel::PresetCategoryName() const
{
    Record("PresetCategoryName()");
    return presetCategory;
}

void RecordingPanel::ModifyStyles(const PropertyPaths& paths, std::unique_ptr<Style> values,
                                  const PropertyPaths* overridePaths) const
{
    Record("ModifyStyles(paths=" + Describe(paths) + ", " + Describe(values.get()) +
           ", overridePaths=" + Describe(overridePaths) + ")");
    Base::ModifyStyles(paths, std::move(values), overridePaths);
}

void RecordingPanel::StartGroupModify()
{
    Record("StartGroupModify()");
    Base::StartGroupModify();
}

void RecordingPanel::EndGroupModify(bool commit)
{
    Record("EndGroupModify(" + DescribeFlag(commit) + ")");
    Base::EndGroupModify(commit);
}

ActivePropertyState RecordingPanel::GetActivePropertyState(const OvxStringT& identifier) const
{
    Record("GetActivePropertyState(" + Describe(identifier) + ")");
    return state.has_value() ? *state : Base::GetActivePropertyState(identifier);
}

bool RecordingPanel::DoesOverrideProperty(Style* style, const PropertyPath& path) const
{
    Record("DoesOverrideProperty(" + log.NameOfStyle(style) + ", " + Describe(path) + ")");
    return overrides ? overrides(style, path) : Base::DoesOverrideProperty(style, path);
}

void RecordingPanel::ClearProperties(const PropertyPaths& paths) const
{
    Record("ClearProperties(" + Describe(paths) + ")");
    Base::ClearProperties(paths);
}

void RecordingPanel::SetNoParent(IStylesSource* source, Style* style) const
{
    Record("SetNoParent(" + std::string(source == nullptr ? "null" : "source") + ", " +
           log.NameOfStyle(style) + ")");
    Base::SetNoParent(source, style);
}

void RecordingPanel::WriteTarget(const PropertyKey& key, const OvxUtils::Any& value, const PropertyKey* key2,
                                 const OvxUtils::Any* value2) const
{
    Record("WriteTarget(" + Describe(key) + ", " + Describe(value) + ", " +
           (key2 == nullptr ? "null" : Describe(*key2)) + ", " +
           (value2 == nullptr ? "null" : Describe(*value2)) + ")");
    Base::WriteTarget(key, value, key2, value2);
}

void RecordingPanel::WriteToDefault(OvxStringT sheetName, const PropertyKey& key,
                                    const OvxUtils::Any& value) const
{
    Record("WriteToDefault(" + Describe(sheetName) + ", " + Describe(key) + ", " + Describe(value) + ")");
    Base::WriteToDefault(std::move(sheetName), key, value);
}

PropertyPaths RecordingPanel::GetStyleCategoryProperties(Style* style) const
{
    Record("GetStyleCategoryProperties(" + log.NameOfStyle(style) + ")");
    return categoryProperties.has_value() ? *categoryProperties : Base::GetStyleCategoryProperties(style);
}

PropertyKey RecordingPanel::GetCategory() const
{
    Record("GetCategory()");
    return category;
}

IModifyStyleOverrides* RecordingPanel::GetTransactionOverrides() const
{
    Record("GetTransactionOverrides()");
    return transactionOverrides.has_value() ? *transactionOverrides : Base::GetTransactionOverrides();
}
