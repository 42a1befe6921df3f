#pragma once

#include "tests/model/PlainHost.h"
#include "tests/model/PlainList.h"

#include <map>

namespace LibraryModel
{

/// The dialog that names a new preset, and the lists of presets that all panels share.
class PlainPresetDialog
{
public:
    explicit PlainPresetDialog(PlainHost& itsHost) : styleToSave(Key()), host(itsHost) {}

    void SetName(const std::string& name);
    void OnOk();
    void Notify(const std::string& name);

    /// Gives the items of a list from `first` on the indices of their positions.
    static void Number(PlainList& list);

    PlainContext* context = nullptr; ///< Null for none.
    std::map<std::string, PlainList> lists;
    std::string presetName;
    std::string category;
    PlainStyle styleToSave;

private:
    void InsertIntoList();

    PlainHost& host;
};

/// What the host's FillPresetItems does to the items of a list, and its line.
void FillPresetItems(PlainHost& host, const std::vector<std::pair<std::string, PlainItem*>>& namesAndItems,
                     std::size_t firstPosition, const std::string& category);

} // namespace LibraryModel
