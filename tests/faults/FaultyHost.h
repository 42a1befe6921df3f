#pragma once

#include "host/data_binding/IDataContext.h"
#include "host/data_binding/IDataSource.h"
#include "host/data_binding/IDialogService.h"
#include "host/data_binding/IHostObject.h"
#include "host/services/IOrvexCmn_App.h"
#include "host/style_model/IMultipleStyleModifier.h"
#include "host/style_model/IStyleApplicator.h"
#include "host/style_model/IStyleSourceProvider.h"
#include "host/style_model/IStylesCollectionEditor.h"
#include "host/style_model/IStylesSource.h"
#include "host/style_model/IStylesSourceApp.h"
#include "tests/faults/HostCalls.h"

#include <filesystem>
#include <map>
#include <utility>
#include <vector>

/// @file
/// The interfaces of a host, each operation of which may be made to fail. They note what they would change
/// and change nothing; what they answer is public, and borrowed from the test.

/// Named styles.
class FaultySheet final : public Styles::StyleSheet
{
public:
    explicit FaultySheet(HostCalls& hostCalls) : calls(hostCalls) {}

    [[nodiscard]] Styles::Style* GetStyle(const OvxStringT& name) const override;
    [[nodiscard]] OvxStringT GetStyleName(const Styles::Style* style) const override;
    [[nodiscard]] std::vector<OvxStringT> GetStyleNames(const Styles::PropertyKey& category) const override;
    [[nodiscard]] OvxStringT GetUnusedStyleName(const OvxStringT& base) const override;

    std::vector<std::pair<OvxStringT, Styles::Style*>> entries;

private:
    HostCalls& calls;
};

/// A modifier that takes changes and drops them.
class FaultyModifier final : public IMultipleStyleModifier
{
public:
    explicit FaultyModifier(HostCalls& hostCalls) : calls(hostCalls) {}

    void Begin() override;
    void End() override;
    void Modify(const std::vector<Styles::Style*>& targets,
                const std::map<Styles::Style*, std::size_t>& objects, const Styles::PropertyPaths& paths,
                std::unique_ptr<Styles::Style> changeStyle, const Styles::PropertyPaths& overridePaths,
                bool reserved, bool bound, Styles::IModifyStyleOverrides* transactionOverrides) override;

private:
    HostCalls& calls;
};

/// The style source of one document. Preset items get their names and positions.
class FaultySource final : public IStylesSource
{
public:
    explicit FaultySource(HostCalls& hostCalls) : sheet(hostCalls), modifier(hostCalls), calls(hostCalls) {}

    Styles::StyleSheet* GetStyleSheet() override;
    Styles::StyleSheet* GetExternalStyleSheet(const OvxStringT& sheetName) override;
    bool ShouldIgnoreCharacterStyleSiblings() override;
    Styles::StyleSheet* GetDefaultStyleSheet() override;
    std::vector<Styles::Style*> GetDefaultStyles() override;
    IMultipleStyleModifier* GetMultipleStyleModifier() override;
    void ApplyToParent(std::function<void(const Styles::PropertyPaths&)> clear, Styles::Style* destination,
                       const Styles::PropertyPaths& paths, std::unique_ptr<Styles::Style> values) override;
    void ReplaceProperties(Styles::Style* style, const Styles::PropertyPaths& paths,
                           std::unique_ptr<Styles::Style> values, bool dropParent, bool reserved) override;
    void CreateStyle(const Styles::PropertyKey& category, const OvxStringT& name) override;
    void ApplyStyle(Styles::Style* style, bool reserved) override;
    void SetParent(Styles::Style* target, Styles::Style* parent, bool reserved) override;
    void ApplyPresetToStyles(const OvxStringT& name, const OvxStringT& category,
                             const std::vector<Styles::Style*>& styles) override;
    void ApplyPresetToObjects(const OvxStringT& name, const OvxStringT& category,
                              const std::vector<std::size_t>& objects) override;
    void FillPresetItems(std::vector<Styles::PresetListEntry> entries, const OvxStringT& category) override;
    void BeginGroup() override;
    void EndGroup(bool commit) override;
    Styles::IModifyStyleOverrides* GetTransactionOverrides() override;

    FaultySheet sheet;
    FaultyModifier modifier;
    std::vector<Styles::Style*> defaultStyles;

private:
    HostCalls& calls;
};

/// Keeps presets in a folder of the test.
class FaultyPresetManager final : public Styles::StylePresetManager
{
public:
    FaultyPresetManager(HostCalls& hostCalls, std::filesystem::path presetFolder)
        : calls(hostCalls), folder(std::move(presetFolder))
    {
    }

protected:
    OvxStringT GetPresetFolder(Styles::PresetLocation location, OvxStringT category) override;
    OvxStringT GetPresetFileName(Styles::PresetLocation location, OvxStringT name) override;
    int GetPresetFormat() override;
    OvxStringT GetCustomConfigurationDirectory() override;
    OvxStringT GetUserDocumentsDirectory() override;

private:
    HostCalls& calls;
    std::filesystem::path folder;
};

/// An application with a style source and services for styles.
class FaultyApp final : public IOrvexCmn_App, public IStyleSourceProvider, public IStylesSourceApp
{
public:
    FaultyApp(HostCalls& hostCalls, std::filesystem::path presetFolder)
        : presetManager(hostCalls, std::move(presetFolder)), calls(hostCalls)
    {
    }

    void QueryInterface(const InterfaceId& id, void** out) override;
    IStyleSourceProvider* GetActiveStyleSourceProvider() override;
    bool IsExcludedStyleName(const OvxStringT& name) override;
    OvxStringT GetDisplayStyleName(const OvxStringT& name) override;
    Styles::StylePresetManager& GetStylePresetManager() override;

    IStylesSource* source = nullptr;
    FaultyPresetManager presetManager;

private:
    HostCalls& calls;
};

/// An applicator that takes changes and drops them.
class FaultyApplicator final : public IStyleApplicator
{
public:
    explicit FaultyApplicator(HostCalls& hostCalls) : calls(hostCalls) {}

    void AttachDataSource(int id, BaseStylePropertiesDatasource* dataSource) override;
    void ModifyStyles(int id, const Styles::PropertyPaths& paths, Styles::Style* changeStyle,
                      const Styles::PropertyPaths* overridePaths, bool toDefaultStyles) override;
    Styles::PropertyPath GetTargetPath(int id) override;

    Styles::PropertyPath targetPath;

private:
    HostCalls& calls;
};

/// A data source that opens named styles, and opens none.
class FaultyStylesEditor final : public IDataSource, public IStylesCollectionEditor
{
public:
    explicit FaultyStylesEditor(HostCalls& hostCalls) : calls(hostCalls) {}

    [[nodiscard]] IDataContext* GetDataContext() const override { return nullptr; }

    void SetDataSourceProvider(IDataContext*) override {}

    void Destroy() override {}

    void EditStyle(const OvxStringT& name, bool select, bool show) override;

private:
    HostCalls& calls;
};

/// A data context with its host object and dialogs that nobody sees.
class FaultyContext final : public IDataContext, public IHostObject, public IDialogService
{
public:
    explicit FaultyContext(HostCalls& hostCalls) : calls(hostCalls) {}

    IHostObject* GetHostObject() override;
    IDataSource* GetDataSource(const OvxStringT& name) override;
    IDialogService* GetDialogService() override;
    void* Query(const InterfaceId& id) override;
    void ShowDialog(const OvxStringT& key, IDataContext* context) override;
    void CloseDialog(const OvxStringT& key, int result, int reserved) override;

    std::map<OvxStringT, IDataSource*> dataSources;
    IStyleApplicator* applicator = nullptr;

private:
    HostCalls& calls;
};
