#pragma once

#include "host/data_binding/DataSource.h"
#include "host/style_model/Style.h"
#include "host/ui_list/WCmnUI_List.h"
#include "host/utils/OvxStringT.h"
#include "presets/WDynamicDataSource.h"

#include <map>
#include <memory>

/// The data source behind the dialog that names a new preset, and the home of the preset lists that all
/// panels show, one for each preset category.
///
/// Hosts make it through the factory that the module registers when it is loaded. A panel that opens the
/// dialog fills in the fields first; nobody is notified of that, since the dialog is not shown yet.
class StylePresets final : public DataSource<StylePresets, true>, public WDynamicDataSource
{
public:
    /// Registers the dialog's bound names, and the names under which panels of two categories listen.
    void FillDataSourceMap();

    /// The list of a preset category, made empty when it is first asked for. Owned here; keeps its address.
    [[nodiscard]] WCmnUI_List& GetPresetList(const OvxStringT& category) { return presetLists[category]; }

    /// A copy of that list: what a list property gives.
    [[nodiscard]] WCmnUI_List CopyPresetList(const OvxStringT& category) { return presetLists[category]; }

    /// The name typed in the dialog.
    [[nodiscard]] OvxStringT GetAddPresetName() const { return presetName; }

    /// Takes the name and tells listeners of "AddPresetOkEnabled".
    void SetAddPresetName(const OvxStringT& name);

    /// Fills the dialog: the style that becomes the preset, of which a copy is kept, the preset category, and
    /// the proposed name. Notifies nobody.
    void Prepare(const Styles::Style& style, const OvxStringT& category, const OvxStringT& proposedName);

    /// Keeps the preset, after asking where one of that name exists, brings the cached list in line, tells
    /// listeners of the category's name and closes the dialog. Where the answer is not yes, nothing happens
    /// and the dialog stays open.
    void OnAddPresetOk();

    /// Tells whether a name was given; bound under its name without "Is".
    [[nodiscard]] bool IsAddPresetOkEnabled() const { return !presetName.empty(); }

private:
    /// Does nothing: the host closes the dialog, and panels only listen for their category's name.
    void DoNothing() {}

    [[nodiscard]] bool MayKeepPreset() const;
    void BringCachedListInLine();
    void InsertIntoCachedList();
    void CloseDialog();

    std::map<OvxStringT, WCmnUI_List> presetLists; ///< By preset category, in ordinal order.
    OvxStringT presetName;
    OvxStringT categoryName;
    std::unique_ptr<Styles::Style> styleToSave = std::make_unique<Styles::Style>(); ///< Never null.
};

/// The preset data source that lives in the host's current data context under its class name; null when there
/// is none, or something else lives there under that name. Borrowed.
[[nodiscard]] StylePresets* FindStylePresets();

/// Adds the list of `category` to that data source as a bound property of that name, unless it has one; does
/// nothing for an empty category or without the data source.
void AttachPresetList(const OvxStringT& category);
