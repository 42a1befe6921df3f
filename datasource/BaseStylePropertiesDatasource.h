#pragma once

#include "datasource/ActivePropertyState.h"
#include "host/data_binding/PartialDataSource.h"
#include "host/style_model/IModifyStyleOverrides.h"
#include "host/style_model/IStyleApplicator.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"
#include "host/style_model/SubStyle.h"
#include "host/style_model/WNodeHandle.h"
#include "host/ui_list/WCmnUI_Guid.h"
#include "host/ui_list/WCmnUI_List.h"
#include "host/ui_list/WCmnUI_ListItem.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/RepeatingCallback.h"
#include "host/xml/WXmlDoc.h"
#include "host/xml/WXmlNode.h"
#include "module/IGetModifyStyles.h"
#include "module/LibraryExport.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <vector>

class IMultipleStyleModifier;
class IStylesSource;

namespace Styles
{
class StyleSheet;
}

/// The logic behind one style-properties panel: what the targets' properties of one category are, where their
/// values come from, and the commands on them.
///
/// A panel module derives from this class once for each category, overrides GetCategory() and adds its own
/// bound names. The host makes the object through a factory, hands in targets with SetTargetStyle() and
/// SetObjectStyles(), and reads everything else by bound name.
///
/// A *target* is a style that is shown: of a selected object, a default style of the document, or a named
/// style. Its *category style* is itself when it is of this panel's category, else its substyle of that
/// category.
///
/// Styles, siblings, the applicator and the host are borrowed: whoever hands them in keeps them alive until
/// they are replaced. No operation reports an error; what is missing gives the neutral answer that is
/// documented with it. All of it runs on the user interface's thread.
class STYLEPROPERTIES_API BaseStylePropertiesDatasource
    : public IGetModifyStyles,
      public virtual PartialDataSource<BaseStylePropertiesDatasource, true>
{
public:
    /// One data source that this one shows and edits the targets of as well; borrowed, null is passed over.
    struct SiblingEntry
    {
        BaseStylePropertiesDatasource* sibling = nullptr; ///< The other data source.
        std::vector<Styles::PropertyPath> paths;          ///< For derived classes; empty and unused here.
        bool flag = false;                                ///< For derived classes; false and unused here.
    };

    /// Makes a data source without targets.
    ///
    /// The bound names are registered when the object is complete, base first, before PostConstruct().
    BaseStylePropertiesDatasource();

    // The virtual operations stand in the order of the binary interface, whatever their access; the first
    // four are those of IGetModifyStyles. Adding, removing or moving one breaks every panel module that was
    // built before.

    /// Writes every property that `values` sets itself, substyles not counted; a null `values` does nothing.
    ///
    /// The base hands on to the protected form, which decides where it goes. Targets are not asked for.
    void ModifyStyles(std::unique_ptr<Styles::Style> values,
                      const Styles::PropertyPaths* overridePaths) const override;

    /// The style that is shown for the target at `index`: reached from the target along the applicator's
    /// path, if there is one, else along the one key GetCategory(). Called wherever a value is read.
    ///
    /// @returns null when there is no such target or the target is null. Missing substyles are created.
    [[nodiscard]] Styles::Style* GetTargetStyle(std::size_t index) const override;

    /// How many targets there are, null ones and those of siblings included; HasTargets() whether any.
    [[nodiscard]] std::size_t GetNumTargetStyles() const override;
    [[nodiscard]] bool HasTargets() const override; ///< Any, null ones included.

    /// The title above the panel's section; bound as "SectionTitle".
    ///
    /// After SetTargetStyle() it names the category and the style that the first target inherits from, if
    /// any, with every "&" doubled. While it is empty it is filled with the category's display name as it is.
    /// An override decides what the panel reads; it need not call the base.
    [[nodiscard]] virtual OvxStringT GetSectionTitle();

    /// Takes new targets; what was derived from the old ones is derived anew. Raises "SectionTitle" alone.
    ///
    /// @param styles         the targets, in order; borrowed until the next call; any may be null.
    /// @param isDefault      the targets are the document's default styles; with siblings, these count only
    ///                       when no sibling contributes a target.
    /// @param path           where this data source's category lies within `forceAmbiguous`.
    /// @param forceAmbiguous paths that show as ambiguous; what lies under `path` is kept, see
    ///                       ImportForceAmbiguous().
    /// @note  Called by the host whenever the selection or the document changes. An override calls the base.
    virtual void SetTargetStyle(const std::vector<Styles::Style*>& styles, bool isDefault,
                                const Styles::PropertyPath& path,
                                const std::set<Styles::PropertyPath>& forceAmbiguous);

    /// Takes the document objects that own targets: a WNodeHandle* as a number for each style.
    ///
    /// Deselects the preset (SelectNoPreset) when the number of objects changes or the first objects of both
    /// maps differ; the styles themselves are not compared. Notifies nobody. An override calls the base.
    virtual void SetObjectStyles(const std::map<Styles::Style*, std::size_t>& newObjectStyles);

    /// The category under which the host keeps this panel's presets; empty, as here, for one without.
    [[nodiscard]] virtual OvxStringT PresetCategoryName() const;

protected:
    /// Decides where a change goes. Every write of this class ends here.
    ///
    /// In this order: into the open group on default styles; to the default styles; to the style applicator,
    /// if there is one; to the siblings whose targets were merged in, and to the own styles through the style
    /// source's modifier, whose Begin and End enclose these two also when something throws. What an override
    /// does not hand on to the base is not written.
    ///
    /// @param paths         what is written; a path at which `values` holds nothing is reset.
    /// @param values        the change style; may be null, then nothing but the paths is handed on.
    /// @param overridePaths what is written as overrides of the selected objects; may be null. On the way to
    ///                      the modifier, a path in both lists counts as an override.
    virtual void ModifyStyles(const Styles::PropertyPaths& paths, std::unique_ptr<Styles::Style> values,
                              const Styles::PropertyPaths* overridePaths) const;

public:
    /// Opens a group: what is written until EndGroupModify() is one change. Called when a drag begins.
    ///
    /// On default styles this data source gathers the values, and a second call drops what was gathered; for
    /// other targets the style source holds the group. Without a style source no group is opened.
    virtual void StartGroupModify();

    /// Closes the group, applying what was gathered, or dropping it when `commit` is false.
    ///
    /// On default styles the values land in the fill substyle, whatever the panel. Dropping raises
    /// "ObjectStyleChanged" at once. Without a group here the style source is told.
    virtual void EndGroupModify(bool commit);

protected:
    /// Tells where the values that `identifier` names come from, over all targets.
    ///
    /// The first target sets the standard and is never tested for a missing parent; each further one is. The
    /// identifier "style" asks about the whole category style: there the first target counts as overriding
    /// when it holds anything at all, further ones only by properties of their own. Both asymmetries are
    /// deliberate.
    [[nodiscard]] virtual ActivePropertyState GetActivePropertyState(const OvxStringT& identifier) const;

    /// Tells whether `style` itself sets the property at `path`; false for null. Asked for each active path.
    [[nodiscard]] virtual bool DoesOverrideProperty(Styles::Style* style,
                                                    const Styles::PropertyPath& path) const;

    /// Resets the properties at `paths` on the targets, if there are any, so that they inherit again.
    virtual void ClearProperties(const Styles::PropertyPaths& paths) const;

    /// Makes `style` independent of its parent while it keeps every value that it shows, by the style
    /// source's ReplaceProperties. A null `style` or `source` does nothing. For commands of derived classes.
    virtual void SetNoParent(IStylesSource* source, Styles::Style* style) const;

    /// Writes one property of the targets, or two when `key2` and `value2` are both given; with only one of
    /// those the second property is left out. Does nothing without targets.
    virtual void WriteTarget(const Styles::PropertyKey& key, const OvxUtils::Any& value,
                             const Styles::PropertyKey* key2, const OvxUtils::Any* value2) const;

    /// Sets one property in the panel's substyle of a named style of the default style sheet. Notifies
    /// nobody, and does nothing when the source, the sheet, the style or the substyle is missing.
    virtual void WriteToDefault(OvxStringT name, const Styles::PropertyKey& key,
                                const OvxUtils::Any& value) const;

    /// The paths of all properties of the category of `style`, which is not null; one key each, in key order.
    [[nodiscard]] virtual Styles::PropertyPaths GetStyleCategoryProperties(Styles::Style* style) const;

    /// The category whose properties this panel shows. Every panel overrides it; the base answers none.
    [[nodiscard]] virtual Styles::PropertyKey GetCategory() const;

    /// What the style source's running transaction overrides; null without one.
    [[nodiscard]] virtual Styles::IModifyStyleOverrides* GetTransactionOverrides() const;

public:
    /// Ends the members only. The owner of a sibling relation calls UnregisterSiblingDS() on both sides
    /// before either data source goes.
    ~BaseStylePropertiesDatasource() override;

    /// Finds the style applicator that the host object of the data context offers, attaches this data source
    /// to it, and learns whether this is the host's object-properties context. An override calls this first.
    void PostConstruct() override;

    /// Registers the bound names of every style-properties panel. Called once by the framework.
    void FillDataSourceMap();

    // Siblings

    /// Adds a sibling, whose targets are merged in by the next SetTargetStyle().
    ///
    /// Nothing is checked: a sibling may be added twice, and is then merged twice. Null and this object
    /// itself are passed over wherever siblings are used. The relation has one direction.
    void RegisterSiblingDS(BaseStylePropertiesDatasource* sibling);

    /// Removes every entry of a sibling, if any. Targets merged from it stay until the next SetTargetStyle().
    void UnregisterSiblingDS(BaseStylePropertiesDatasource* sibling);

    // Targets

    void SetTargetStyle(const std::vector<Styles::Style*>& styles, bool isDefault, Styles::PropertyKey key,
                        const std::set<Styles::PropertyPath>& forceAmbiguous); ///< With the path of one key.

    void ClearObjectStyles(); ///< SetObjectStyles() with an empty map.

    /// All targets as they were merged, in order, null ones included.
    [[nodiscard]] std::vector<Styles::Style*> GetTargetStyles() const;

    [[nodiscard]] bool AreTargetsDefaultStyles() const { return isDefaultStyles; } ///< As handed in.

    /// 1 when the panel edits the properties of objects rather than styles, else 0; bound under its name.
    [[nodiscard]] int IsObjectProperties() const { return isObjectProperties ? 1 : 0; }

    [[nodiscard]] bool IsObjectPropertiesContext() const { return isObjectProperties; } ///< The same as bool.

    /// Tells whether the first target is no named style of the sheet; also true without targets.
    [[nodiscard]] bool IsObjectStyle() const { return styleName.empty(); }

    [[nodiscard]] int IsObjectStyleDatabound() const { return styleName.empty() ? 1 : 0; } ///< As int.

    /// 1 when the first target is a named style, else 0; IsStyle() leaves out those that are excluded.
    [[nodiscard]] int IsStyle() const;

    [[nodiscard]] int IsStyleOrDefault() const { return styleName.empty() ? 0 : 1; } ///< Excluded or not.

    /// 1 when the styles behind the targets may be edited, else 0: no style that is visited on the way from a
    /// target to what it inherits from is external without a link. 1 without targets.
    [[nodiscard]] int GetEnableStyleEditing() const;

    // Ambiguity and state

    /// The paths forced ambiguous, relative to GetCategory(); the empty path stands for all.
    [[nodiscard]] const std::set<Styles::PropertyPath>& GetAmbiguousForce() const { return forceAmbiguous; }

    /// Tells whether the targets disagree on the value at `path`.
    ///
    /// `path` is relative to GetCategory(); the empty path asks about the category as a whole and is
    /// ambiguous only when forced. A path forced ambiguous, or below one that is, counts as disagreeing.
    /// Otherwise the first non-empty value sets the standard: targets without a value before it are passed
    /// over, one after it disagrees.
    ///
    /// @returns false with exactly one target, whatever is forced, and with none unless forced.
    /// @note    May create a missing category substyle in a target: it asks GetTargetStyle() for each.
    [[nodiscard]] bool IsAmbiguous(const Styles::PropertyPath& path) const;

    [[nodiscard]] bool IsAmbiguous(const Styles::PropertyKey& key) const; ///< Of the path of one key.
    [[nodiscard]] bool IsAmbiguous() const;                               ///< Of the empty path.

    /// Names what commands are about: paths separated by ",", keys by ".", a path may end in "*"; or "style".
    /// Notifies "RevertToParentEnable", then "BreakColorResourceEnable", also when nothing changes.
    void SetActiveIdentifier(const OvxStringT& identifier);

    [[nodiscard]] OvxStringT GetActiveIdentifier() const { return activeIdentifier; } ///< As it was set.

    [[nodiscard]] OvxUtils::Any GetPropertyIcon() const; ///< Always empty: it is asked by writing it.

    /// Writes the name of the picture for the state of its identifier into the ID_CString that `request`
    /// holds: into the caller's own value, never a copy. An empty `request` does nothing.
    ///
    /// @throws std::bad_cast when `request` holds anything but an ID_CString.
    void SetPropertyIcon(const OvxUtils::Any& request);

    [[nodiscard]] OvxUtils::Any GetPropertyTooltip() const { return GetPropertyIcon(); } ///< As the icon.

    /// SetPropertyIcon() with the tooltip text of the state in place of the picture's name.
    void SetPropertyTooltip(const OvxUtils::Any& request);

    // Style commands: none of them asks, shows a message or notifies; all are about the active identifier

    [[nodiscard]] int GetRevertToParentEnable() const { return GetApplyToParentEnable(); } ///< One for both.

    /// Clears the active properties on all targets, or with "style" all properties of the category, so that
    /// they inherit again. Does nothing unless enabled.
    void OnRevertToParent();

    /// 1 when there is exactly one target and one of the active colours refers to a colour resource, else 0.
    ///
    /// @throws std::bad_cast when an active property before that is no colour.
    [[nodiscard]] int GetBreakColorResourceEnable() const;

    /// Writes the active colours of the one target as plain colours of the same look.
    ///
    /// @throws std::bad_cast when an active property is no colour; nothing is written then.
    void OnBreakColorResource();

    /// 1 when the state of the active identifier is Overridden or Ambiguous, else 0.
    [[nodiscard]] int GetApplyToParentEnable() const;

    /// Moves what the first target's category style sets itself into what that style inherits from.
    ///
    /// Acts for the identifier "style" alone, although it is enabled for single properties too. Does nothing
    /// without a parent to apply to.
    void OnApplyToParent();

    /// 1 when the first target is no substyle, or has a parent; else 0.
    [[nodiscard]] int GetCreateStyleFromEnable() const;

    /// Has the style source make a named style of this category, named after it.
    void OnCreateStyleFrom();

    /// 1 when what the first target inherits from has a name, else 0.
    [[nodiscard]] int GetEditStyleEnable() const;

    /// Opens that style in the data source "StylesDatasource" of the context, if that edits styles.
    void OnEditStyle();

    /// The texts of the commands in menus, with the display name of what the first target inherits from,
    /// every "&" doubled, or with a text for a parent without a name.
    [[nodiscard]] OvxStringT GetRevertToMenuString() const;
    [[nodiscard]] OvxStringT GetApplyToMenuString() const;   ///< Of the command "apply".
    [[nodiscard]] OvxStringT GetEditStyleMenuString() const; ///< Of "edit".

    // Style resource list

    /// Builds the drop-down of named styles: "placeholderData" with an "itemData" for no style, for each
    /// style of the category that the first target may inherit from, and, where these are more than 18, for
    /// the first nine, the current one and "more styles". Without a sheet or a target the list is empty.
    [[nodiscard]] WXmlNode GetStyleResourceList();

    [[nodiscard]] unsigned GetApplyStyleResource() const; ///< Always 0: picking is done by writing.

    /// Takes the entry of that id in the list built last: applies its style, or opens the more-styles dialog
    /// of the category for an id beyond the main list. Unknown ids and the current style do nothing.
    void SetApplyStyleResource(const unsigned& id);

    /// The list for the more-styles dialog: the styles of the category beyond the first nine, with ids from 9
    /// on. Built once for each main list, and then what ids are looked up in.
    [[nodiscard]] WXmlNode GetNewStyleList();

    /// Chooses an item in the more-styles dialog; notifies "BaseStylePropertiesDatasourceOkEnabled".
    void SetCurrentListStyleItem(const WXmlNode& item);
    [[nodiscard]] WXmlNode GetCurrentListStyleItem() const; ///< The chosen item; invalid while none is.

    /// Applies the chosen item and closes the dialog; does nothing while none is chosen.
    void OnBaseStylePropertiesDatasourceOk();
    [[nodiscard]] int GetBaseStylePropertiesDatasourceOkEnabled() const; ///< 1 while an item is chosen.

    /// "State.ObjectProperties" when this lives in the host's current context, else "State.ObjectStyles".
    [[nodiscard]] WCmnUI_Guid GetPropertyPanelStateIdentifier() const;

    // Presets

    /// A copy of the list that all panels of the preset category share; filled when it is empty. Empty
    /// without a preset category or the preset data source.
    [[nodiscard]] WCmnUI_List GetPresetList();

    [[nodiscard]] WCmnUI_ListItem GetCurrentPreset(); ///< Its index is -1 when none is selected.

    /// Selects a preset and applies it to the default styles or to the objects that were handed in; an index
    /// of -1 selects none. Notifies "CurrentPreset,DeletePresetEnabled".
    void SetCurrentPreset(const WCmnUI_ListItem& item);

    /// 1 when objects are edited and the panel offers presets, else 0.
    [[nodiscard]] int IsAddPresetEnabled() const;

    /// Opens the dialog that names a new preset, made from the whole style of the first target. Notifies
    /// "DeletePresetEnabled" in any case.
    void OnAddPreset();

    [[nodiscard]] int IsDeletePresetEnabled() const; ///< 1 when a preset is selected, else 0.

    /// Deletes the selected preset without asking and selects none. Notifies as SetCurrentPreset().
    void OnDeletePreset();

    /// Deselects the preset: its index becomes -1, and in a panel that offers presets its text the no-preset
    /// text. Notifies nobody.
    void SelectNoPreset();

protected:
    /// The object that owns `style`, as it was handed in with SetObjectStyles(); null when there is none.
    [[nodiscard]] WNodeHandle* GetObjectFromStyle(Styles::Style* style) const;

    /// What the style applicator knows this data source by; 0 without one.
    [[nodiscard]] int GetStyleApplicatorID() const { return styleApplicatorID; }

    /// Adds to the forced paths what lies under `path` in `paths`, relative to `path`. When `paths` holds
    /// `path` itself or a prefix of it, everything is forced: the empty path is added and nothing else.
    void ImportForceAmbiguous(const Styles::PropertyPath& path, const std::set<Styles::PropertyPath>& paths);
    /// The same with the path of one key.
    void ImportForceAmbiguous(const Styles::PropertyKey& key, const std::set<Styles::PropertyPath>& paths);

    void ClearForceAmbiguous() { forceAmbiguous.clear(); } ///< Forces nothing any more.

    /// Tells whether `path` or a prefix of it, the empty path included, is forced ambiguous.
    [[nodiscard]] bool IsForcedAmbiguous(const Styles::PropertyPath& path) const;

    /// Writes `values` at `paths` into every default style: into its substyle of their category, made where
    /// it is missing, or into the style itself for the category of whole styles.
    ///
    /// Raises "StylePropertiesChange" with that category once when the application is idle, also when nothing
    /// is written; null `values` write nothing, and the key is empty.
    void ModifyDefaultStyles(const Styles::PropertyPaths& paths, std::unique_ptr<Styles::Style> values) const;

    /// Writes a whole substyle: `paths` and `overridePaths` are relative to it, and `substyle` is copied.
    /// Null as the substyle resets the paths.
    void ModifySubstyles(const Styles::PropertyPaths& paths, const Styles::Style* substyle,
                         Styles::PropertyKey substyleKey, const Styles::PropertyPaths* overridePaths) const;

    /// What values of `categoryStyle` are applied to: its parent, else the style of the same category in the
    /// parent of its owner; null when there is neither.
    [[nodiscard]] static Styles::Style* FindInParent(const Styles::Style& categoryStyle);

    /// Tells whether the category style of the first target has anything to inherit from: a parent, or,
    /// unless the category is that of whole styles, a substyle of this category in its owner's parent.
    [[nodiscard]] bool Private_HasParent() const;

    /// Tells whether DoesOverrideProperty() holds for one of the paths of `identifier`; false for an empty
    /// one. A last key "*" counts as a key.
    [[nodiscard]] bool DoesOverrideProperties(Styles::Style* style, const OvxStringT& identifier) const;

    void OnPresetsListUpdated(); ///< Tells listeners that "PresetList" changed.

private:
    /// A write on its way to where it goes.
    struct PendingWrite;

    [[nodiscard]] bool HasParent() const;
    [[nodiscard]] bool DoesOverrideAny(Styles::Style* style, const Styles::PropertyPaths& paths) const;
    [[nodiscard]] bool GetEnableStyleEditingInternal(const Styles::PropertyKey& category) const;
    [[nodiscard]] bool ShouldIgnoreCharacterStyleSiblings() const;
    [[nodiscard]] OvxStringT GetStyleNameBasedOnHeirarchy(Styles::Style* style) const;
    [[nodiscard]] Styles::Style* GetFirstTarget() const;
    [[nodiscard]] Styles::Style* GetCategoryStyle(Styles::Style* target) const;
    [[nodiscard]] Styles::Style* FollowApplicatorPath(std::size_t index) const;
    [[nodiscard]] bool TakesPartAsSibling(const BaseStylePropertiesDatasource* sibling) const;
    [[nodiscard]] OvxStringT MakeSectionTitle(const OvxStringT& categoryDisplayName) const;
    void GatherIntoGroup(const PendingWrite& write) const;
    void ModifyTargets(IMultipleStyleModifier& modifier, PendingWrite& write) const;
    void ForwardToSiblings(const PendingWrite& write) const;
    void ModifyOwnStyles(IMultipleStyleModifier& modifier, PendingWrite& write) const;
    void AddStyleEntries(WXmlNode& list, const std::vector<OvxStringT>& names, const OvxStringT& current);
    void AddOverflowEntries(WXmlNode& list, const Styles::StyleSheet& sheet);
    void ApplyStyleResource(const OvxStringT& name);
    void ApplyCurrentPreset(IStylesSource& source) const;
    [[nodiscard]] OvxStringT GetParentStyleName() const;
    void MergeSiblingTargets();
    void AppendTargetsOf(const BaseStylePropertiesDatasource& sibling);

    /// The styles handed in by the last SetTargetStyle(), in order. Borrowed from the host; any may be null.
    std::vector<Styles::SubStyle> ownStyles;

    /// What is shown: the own styles, or these merged with those of siblings. Borrowed; any may be null.
    std::vector<Styles::SubStyle> targetStyles;

    /// The object of each style, a WNodeHandle* as a number. Borrowed until the next SetObjectStyles().
    std::map<Styles::Style*, std::size_t> objectStyles;

    /// Paths relative to the category that show as ambiguous; the empty path stands for all.
    std::set<Styles::PropertyPath> forceAmbiguous;

    bool isDefaultStyles = false;
    bool isObjectProperties = false;
    bool ignoreCharacterStyleSiblings = false;
    OvxStringT activeIdentifier;
    OvxStringT sectionTitle;

    OvxStringT styleName; ///< The sheet's name of the first target; empty for an object's own style.

    WXmlDoc listDocument;           ///< Makes the list nodes.
    WXmlNode resourceListNode;      ///< The list built last; ids that come back are looked up in it.
    WXmlNode currentListItem;       ///< Chosen in the more-styles dialog; invalid while none is.
    std::int32_t visibleLimit = 18; ///< The highest id that stands for a style of the main list.
    bool newStyleListBuilt = false;
    std::int32_t listedStyleCount = 0;
    std::int32_t styleApplicatorID = 0;

    /// Takes over writes and gives the path to the edited substyle. Borrowed from the host; may be null.
    IStyleApplicator* styleApplicator = nullptr;

    /// One value computed when it is first asked for after SetTargetStyle(): see HasParent().
    mutable bool hasParent = false;
    mutable bool hasParentPending = true;
    OvxUtils::RepeatingCallback<bool()> hasParentDelegate;

    WCmnUI_ListItem currentPreset;

    /// Gathers writes while a group on default styles is open; null otherwise. Owned.
    std::unique_ptr<Styles::Style> groupModifyStyle;

    /// The paths written during the open group, in order, repeated ones too.
    mutable Styles::PropertyPaths groupModifyPaths;
    mutable Styles::PropertyPaths groupModifyOverridePaths;

    /// A write of this data source is being forwarded to siblings further up in the chain of calls.
    mutable bool isForwarding = false;

protected:
    /// In order of registration. Borrowed: whoever ties data sources together unties them before either goes.
    std::vector<SiblingEntry> siblings;
};
