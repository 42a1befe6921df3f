#pragma once

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/style_model/CategoryNames.h"
#include "tests/datasource/support/CallLog.h"

#include <functional>
#include <optional>
#include <string>

/// A panel that takes down which of its virtual operations are called, and answers either what the test has
/// set or what the base answers. Its protected operations are open.
class RecordingPanel : public BaseStylePropertiesDatasource
{
public:
    RecordingPanel(CallLog& callLog, std::string panelName);

    /// Runs what a factory runs once the object stands.
    void Complete() { FinishConstruction(); }

    /// Adds a line "notify NAME" for each change of one of these names.
    void ListenTo(const std::vector<OvxStringT>& names);

    // What is answered in place of the base where it is set

    Styles::PropertyKey category = Styles::FillStyleCategoryName;
    OvxStringT presetCategory;
    std::function<Styles::Style*(std::size_t)> givesTargetStyle;
    std::function<std::size_t()> countsTargetStyles;
    std::optional<bool> hasTargets;
    std::optional<OvxStringT> title;
    std::optional<ActivePropertyState> state;
    std::function<bool(Styles::Style*, const Styles::PropertyPath&)> overrides;
    std::optional<Styles::PropertyPaths> categoryProperties;
    std::optional<Styles::IModifyStyleOverrides*> transactionOverrides;

    // The virtual operations, in their order

    void ModifyStyles(std::unique_ptr<Styles::Style> values,
                      const Styles::PropertyPaths* overridePaths) const override;
    [[nodiscard]] Styles::Style* GetTargetStyle(std::size_t index) const override;
    [[nodiscard]] std::size_t GetNumTargetStyles() const override;
    [[nodiscard]] bool HasTargets() const override;
    [[nodiscard]] OvxStringT GetSectionTitle() override;
    void SetTargetStyle(const std::vector<Styles::Style*>& styles, bool isDefault,
                        const Styles::PropertyPath& path,
                        const std::set<Styles::PropertyPath>& forceAmbiguous) override;
    void SetObjectStyles(const std::map<Styles::Style*, std::size_t>& newObjectStyles) override;
    [[nodiscard]] OvxStringT PresetCategoryName() const override;
    void ModifyStyles(const Styles::PropertyPaths& paths, std::unique_ptr<Styles::Style> values,
                      const Styles::PropertyPaths* overridePaths) const override;
    void StartGroupModify() override;
    void EndGroupModify(bool commit) override;
    [[nodiscard]] ActivePropertyState GetActivePropertyState(const OvxStringT& identifier) const override;
    [[nodiscard]] bool DoesOverrideProperty(Styles::Style* style,
                                            const Styles::PropertyPath& path) const override;
    void ClearProperties(const Styles::PropertyPaths& paths) const override;
    void SetNoParent(IStylesSource* source, Styles::Style* style) const override;
    void WriteTarget(const Styles::PropertyKey& key, const OvxUtils::Any& value,
                     const Styles::PropertyKey* key2, const OvxUtils::Any* value2) const override;
    void WriteToDefault(OvxStringT name, const Styles::PropertyKey& key,
                        const OvxUtils::Any& value) const override;
    [[nodiscard]] Styles::PropertyPaths GetStyleCategoryProperties(Styles::Style* style) const override;
    [[nodiscard]] Styles::PropertyKey GetCategory() const override;
    [[nodiscard]] Styles::IModifyStyleOverrides* GetTransactionOverrides() const override;

    // The protected operations that are not virtual

    using BaseStylePropertiesDatasource::ClearForceAmbiguous;
    using BaseStylePropertiesDatasource::DoesOverrideProperties;
    using BaseStylePropertiesDatasource::GetObjectFromStyle;
    using BaseStylePropertiesDatasource::GetStyleApplicatorID;
    using BaseStylePropertiesDatasource::ImportForceAmbiguous;
    using BaseStylePropertiesDatasource::ModifyDefaultStyles;
    using BaseStylePropertiesDatasource::ModifySubstyles;
    using BaseStylePropertiesDatasource::OnPresetsListUpdated;
    using BaseStylePropertiesDatasource::Private_HasParent;
    using BaseStylePropertiesDatasource::SetTargetStyle;
    using BaseStylePropertiesDatasource::siblings;

private:
    using Base = BaseStylePropertiesDatasource;

    void Record(const std::string& call) const { log.Add(name + "." + call); }

    CallLog& log;
    std::string name;
};
