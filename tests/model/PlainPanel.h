#pragma once

#include "tests/model/PlainHost.h"
#include "tests/model/PlainList.h"
#include "tests/model/PlainPresetDialog.h"

#include <functional>
#include <optional>
#include <utility>

namespace LibraryModel
{

/// One style-properties panel, step by step as it promises to work, on plain fields.
///
/// It asks nothing of the library and remembers nothing that it need not: where a step begins by finding
/// something, it is found anew. Operations are named after those of the library.
class PlainPanel
{
public:
    /// States of the active property, as numbers: those that the bound names show.
    enum State
    {
        kNone,
        kOverridden,
        kInherited,
        kAmbiguous,
        kAmbiguousParent,
    };

    PlainPanel(PlainHost& itsHost, PlainPresetDialog& itsDialog, std::string itsName);
    PlainPanel(const PlainPanel&) = delete;
    PlainPanel& operator=(const PlainPanel&) = delete;

    /// Everything as in a new data source that was then completed in its context.
    void StartAnew();

    // Targets

    void SetTargetStyle(const std::vector<PlainStyle*>& styles, bool isDefault, const Path& path,
                        const std::set<Path>& forced);
    /// The map's entries in the order of the host's addresses.
    void SetObjectStyles(const std::vector<std::pair<PlainStyle*, std::size_t>>& entries);
    PlainStyle* GetTargetStyle(std::size_t index);
    std::string GetSectionTitle();
    int IsStyle();
    int GetEnableStyleEditing();
    std::string GetStyleNameBasedOnHeirarchy(PlainStyle* style);
    std::optional<std::size_t> GetObjectFromStyle(PlainStyle* style) const;

    // Ambiguity and state

    void ImportForceAmbiguous(const Path& path, const std::set<Path>& paths);
    bool IsAmbiguous(const Path& path);
    bool HasParent();
    bool PrivateHasParent() const;
    State GetActivePropertyState(const std::string& identifier);
    bool DoesOverrideProperties(const PlainStyle* style, const std::string& identifier) const;
    void SetActiveIdentifier(const std::string& identifier);
    /// The picture and the tooltip of an identifier's state.
    std::string PropertyIcon(const std::string& identifier);
    std::string PropertyTooltip(const std::string& identifier);

    // Writing; a null change style is a change without values

    using Change = std::unique_ptr<PlainStyle>;

    void ModifyStyles(const Paths& paths, Change change, const Paths* overridePaths);
    void ModifyStyles(Change change, const Paths* overridePaths);
    void ModifySubstyles(const Paths& paths, const PlainStyle* substyle, Key substyleKey,
                         const Paths* overridePaths);
    void ModifyDefaultStyles(const Paths& paths, Change change);
    void WriteTarget(Key key, const PlainValue& value, const Key* key2, const PlainValue* value2);
    void WriteToDefault(const std::string& styleName, Key key, const PlainValue& value);
    void ClearProperties(const Paths& paths);
    std::string GetTransactionOverrides();
    void StartGroupModify();
    void EndGroupModify(bool commit);

    // Commands

    int GetApplyToParentEnable();
    void OnRevertToParent();
    void OnApplyToParent();
    /// Nothing where the library throws std::bad_cast.
    std::optional<int> GetBreakColorResourceEnable();
    /// False where the library throws std::bad_cast.
    bool OnBreakColorResource();
    int GetCreateStyleFromEnable();
    void OnCreateStyleFrom();
    int GetEditStyleEnable();
    void OnEditStyle();
    std::string MenuString(const std::string& textKey);
    void SetNoParent(bool withSource, const PlainStyle* style);

    // The list of styles

    PlainNode GetStyleResourceList();
    PlainNode GetNewStyleList();
    void SetApplyStyleResource(unsigned id);
    void SetCurrentListStyleItem(const PlainNode& item);
    void OnBaseStylePropertiesDatasourceOk();
    std::string GetPropertyPanelStateIdentifier();

    // Presets

    PlainList GetPresetList();
    PlainItem GetCurrentPreset();
    void SetCurrentPreset(const PlainItem& item);
    int IsAddPresetEnabled();
    void OnAddPreset();

    int IsDeletePresetEnabled() const { return currentPreset.index != -1 ? 1 : 0; }

    void OnDeletePreset();
    void SelectNoPreset();

    /// Tells the listeners of each of these names.
    void Notify(const std::vector<std::string>& names);

    // What a derived class and the host say

    Key category;
    std::string presetCategory;
    PlainContext* context = nullptr; ///< In which it lives; null for none.

    // The state of the panel; read by the answers

    std::vector<PlainStyle*> ownStyles;
    std::vector<PlainStyle*> targetStyles;
    std::vector<std::pair<PlainStyle*, std::size_t>> objectStyles;
    std::set<Path> forceAmbiguous;
    bool isDefaultStyles = false;
    bool isObjectProperties = false;
    std::string activeIdentifier;
    std::string styleName;
    PlainNode currentListItem;
    std::vector<PlainPanel*> siblings;

private:
    PlainStyle* FirstTarget() const { return targetStyles.empty() ? nullptr : targetStyles.front(); }

    PlainStyle* PanelStyle() const { return StyleOrSubstyle(FirstTarget(), category); }

    [[nodiscard]] bool IsEditable(Key ofCategory) const;
    [[nodiscard]] bool TakesPart(const PlainPanel* sibling) const;
    [[nodiscard]] std::string ParentNameOf(const PlainStyle* target, const PlainSheet& sheet) const;
    [[nodiscard]] std::string ParentStyleName();
    void MergeSiblings(bool ignoreCharacterStyles);
    void WriteOwnStyles(const Paths& paths, Change change, const Paths* overridePaths);
    void ForwardToSiblings(const Paths& paths, const PlainStyle* change, const Paths* overridePaths);
    void ApplyStyleResource(const std::string& name);
    void AddOverflowEntries(const PlainSheet& sheet);
    void AskDialogService(const std::function<void(const std::string& key)>& ask);
    [[nodiscard]] PlainPresetDialog* FindDialog();

    [[nodiscard]] Change NewChange() const { return std::make_unique<PlainStyle>(category); }

    PlainHost& host;
    PlainPresetDialog& dialog;
    std::string name;
    bool hasParent = false;
    bool hasParentPending = true;
    std::string sectionTitle;
    bool hasApplicator = false;
    int applicatorId = 0;
    PlainNode documentNode; ///< The loaded content of the list document.
    PlainNode resourceList;
    int visibleLimit = 18;
    bool newStyleListBuilt = false;
    PlainItem currentPreset;
    Change groupStyle;
    Paths groupPaths;
    Paths groupOverridePaths;
    bool isForwarding = false;
};

/// The paths of an active identifier.
[[nodiscard]] Paths ParseActivePaths(const std::string& identifier, bool dropWildcard);

} // namespace LibraryModel
