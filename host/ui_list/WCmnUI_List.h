#pragma once

#include "host/Export.h"
#include "host/ui_list/WCmnUI_ListItem.h"

#include <cstddef>
#include <memory>
#include <vector>

/// The entries of a list that the user interface shows. Owns its items; a copy owns copies.
///
/// An item's index is its position; the list keeps it so when items come and go. The address of an item stays
/// the same until that item is removed.
class STYLEPROPERTIES_HOST_API WCmnUI_List
{
public:
    WCmnUI_List();
    WCmnUI_List(const WCmnUI_List& other);
    WCmnUI_List(WCmnUI_List&& other) noexcept;
    WCmnUI_List& operator=(const WCmnUI_List& other);
    WCmnUI_List& operator=(WCmnUI_List&& other) noexcept;
    ~WCmnUI_List();

    /// Adds an empty item at the end and gives it to be filled.
    WCmnUI_ListItem* AddItem();

    /// Inserts a copy of `item` at `position`, at most GetCount(); a larger one counts as the end.
    WCmnUI_ListItem* InsertItem(std::size_t position, const WCmnUI_ListItem& item);

    /// Removes the item at `position`; does nothing when there is none.
    void RemoveItem(std::size_t position);

    /// The item at `position`, owned by the list; null when there is none.
    [[nodiscard]] WCmnUI_ListItem* GetItem(std::size_t position);
    [[nodiscard]] const WCmnUI_ListItem* GetItem(std::size_t position) const;

    [[nodiscard]] std::size_t GetCount() const noexcept { return items.size(); }

    friend STYLEPROPERTIES_HOST_API bool operator==(const WCmnUI_List& left, const WCmnUI_List& right);

private:
    std::vector<std::unique_ptr<WCmnUI_ListItem>> items;
};
