#pragma once

#include "host/Export.h"
#include "host/style_model/IModifyStyleOverrides.h"
#include "host/style_model/IMultipleStyleModifier.h"
#include "host/style_model/PresetListEntry.h"
#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"
#include "host/style_model/StyleSheet.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

/// The styles of the active document: what is there, and how it is changed.
///
/// Everything returned is borrowed and lives as long as the document stays active. All pointers returned may
/// be null.
class STYLEPROPERTIES_HOST_API IStylesSource
{
public:
    /// The named styles of the document.
    virtual Styles::StyleSheet* GetStyleSheet() = 0;

    /// A sheet outside the document, by the name that external styles carry.
    virtual Styles::StyleSheet* GetExternalStyleSheet(const OvxStringT& sheetName) = 0;

    /// Tells whether character styles are left out when the targets of several panels are merged.
    virtual bool ShouldIgnoreCharacterStyleSiblings() = 0;

    /// The sheet in which the style of a default value is found by its name.
    virtual Styles::StyleSheet* GetDefaultStyleSheet() = 0;

    /// The document's default styles, in order; none of them null.
    virtual std::vector<Styles::Style*> GetDefaultStyles() = 0;

    /// What applies one change to many styles.
    virtual IMultipleStyleModifier* GetMultipleStyleModifier() = 0;

    /// Moves values into a parent.
    ///
    /// Writes `values` at `paths` to `destination`, and calls `clear` with the paths that the targets are to
    /// inherit from now on.
    virtual void ApplyToParent(std::function<void(const Styles::PropertyPaths&)> clear,
                               Styles::Style* destination, const Styles::PropertyPaths& paths,
                               std::unique_ptr<Styles::Style> values) = 0;

    /// Replaces what `style` sets at `paths` by what `values` holds there.
    ///
    /// @param dropParent the style no longer depends on its parent.
    /// @param reserved   always false.
    virtual void ReplaceProperties(Styles::Style* style, const Styles::PropertyPaths& paths,
                                   std::unique_ptr<Styles::Style> values, bool dropParent, bool reserved) = 0;

    /// Makes a named style of `category` from the selection.
    virtual void CreateStyle(const Styles::PropertyKey& category, const OvxStringT& name) = 0;

    /// Gives a named style to the selected objects. `reserved` is false.
    virtual void ApplyStyle(Styles::Style* style, bool reserved) = 0;

    /// Makes `parent` the parent of `target`. `reserved` is true. A parent that would close a cycle is
    /// refused.
    virtual void SetParent(Styles::Style* target, Styles::Style* parent, bool reserved) = 0;

    /// Gives the styles what a preset sets.
    virtual void ApplyPresetToStyles(const OvxStringT& name, const OvxStringT& category,
                                     const std::vector<Styles::Style*>& styles) = 0;

    /// The objects are WNodeHandle pointers as numbers.
    virtual void ApplyPresetToObjects(const OvxStringT& name, const OvxStringT& category,
                                      const std::vector<std::size_t>& objects) = 0;

    /// Gives the items of preset lists their text and whatever else a list shows.
    virtual void FillPresetItems(std::vector<Styles::PresetListEntry> entries,
                                 const OvxStringT& category) = 0;

    /// Opens a group: what is written until EndGroup is one change.
    virtual void BeginGroup() = 0;

    /// Closes the group; without `commit` everything written in it is taken back.
    virtual void EndGroup(bool commit) = 0;

    /// What the running transaction overrides.
    virtual Styles::IModifyStyleOverrides* GetTransactionOverrides() = 0;

protected:
    ~IStylesSource() = default;
};
