#pragma once

#include "host/style_model/IStylesSource.h"
#include "tests/datasource/support/CallLog.h"

#include <map>
#include <optional>

/// A style source that takes down every call with all its arguments, changes nothing, and answers what the
/// test has set. Everything in the answers is borrowed from the test.
class RecordingStylesSource final : public IStylesSource
{
public:
    explicit RecordingStylesSource(CallLog& callLog) : log(callLog) {}

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

    Styles::StyleSheet* sheet = nullptr;
    std::map<OvxStringT, Styles::StyleSheet*> externalSheets; ///< By name; null for all others.
    bool ignoresCharacterStyleSiblings = false;
    Styles::StyleSheet* defaultSheet = nullptr;
    std::vector<Styles::Style*> defaultStyles;
    IMultipleStyleModifier* modifier = nullptr;
    Styles::IModifyStyleOverrides* transactionOverrides = nullptr;

    /// What ApplyToParent asks to be cleared, after it was taken down; nothing is asked while it is not set.
    std::optional<Styles::PropertyPaths> clearedPaths;

    /// Gives preset items their names as texts, or `presetText` where that is set, and their positions.
    bool fillsPresetItems = false;
    std::optional<OvxStringT> presetText;

private:
    CallLog& log;
};
