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
    /// Copies every item.
    WCmnUI_List(const WCmnUI_List& other);
    /// Takes the items, whose addresses stay, and leaves an empty list.
    WCmnUI_List(WCmnUI_List&& other) noexcept;
    /// Gives up its own items and copies every item.
    WCmnUI_List& operator=(const WCmnUI_List& other);
    /// Gives up its own items and takes the others, whose addresses stay.
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
    /// The item at `position`, owned by the list; null when there is none.
    [[nodiscard]] const WCmnUI_ListItem* GetItem(std::size_t position) const;

    /// How many items there are.
    [[nodiscard]] std::size_t GetCount() const noexcept { return items.size(); }

    /// Equal when they have equal items in the same order.
    friend STYLEPROPERTIES_HOST_API bool operator==(const WCmnUI_List& left, const WCmnUI_List& right);

private:
    std::vector<std::unique_ptr<WCmnUI_ListItem>> items;
};
