// Lists that the user interface shows. Who fills an item keeps its address while others are added, therefore
// each item is allocated by itself.

#include "host/ui_list/WCmnUI_List.h"
#include "tiny_host/Lasting.h"
#include "tiny_host/broken/Promises.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace
{

using Items = std::vector<std::unique_ptr<WCmnUI_ListItem>>;

Items CopyOf(const Items& items)
{
    Items copy;
    for (const auto& item : items)
        copy.push_back(std::make_unique<WCmnUI_ListItem>(*item));
    return copy;
}

/// The index of an item is its place.
void Number(Items& items)
{
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i]->SetIndex(static_cast<int>(i));
}

/// How items must not be kept. Who still has their old addresses finds them there, and none of the list's.
void MoveElsewhere(Items& items)
{
    Items moved = CopyOf(items);
    std::ranges::move(items, std::back_inserter(TinyHost::Lasting<Items>()));
    items = std::move(moved);
}

} // namespace

WCmnUI_List::WCmnUI_List() = default;

WCmnUI_List::WCmnUI_List(const WCmnUI_List& other) : items(CopyOf(other.items))
{
}

WCmnUI_List::WCmnUI_List(WCmnUI_List&& other) noexcept = default;

WCmnUI_List& WCmnUI_List::operator=(const WCmnUI_List& other)
{
    items = CopyOf(other.items);
    return *this;
}

WCmnUI_List& WCmnUI_List::operator=(WCmnUI_List&& other) noexcept = default;
WCmnUI_List::~WCmnUI_List() = default;

WCmnUI_ListItem* WCmnUI_List::AddItem()
{
    return InsertItem(items.size(), WCmnUI_ListItem());
}

WCmnUI_ListItem* WCmnUI_List::InsertItem(std::size_t position, const WCmnUI_ListItem& item)
{
    auto added = std::make_unique<WCmnUI_ListItem>(item);
    if (!TinyHost::Keeps(TinyHost::Promise::ItemsKeepTheirAddresses))
        MoveElsewhere(items);
    WCmnUI_ListItem* const address = added.get();
    const std::size_t place = std::min(position, items.size());
    items.insert(items.begin() + static_cast<std::ptrdiff_t>(place), std::move(added));
    Number(items);
    return address;
}

void WCmnUI_List::RemoveItem(std::size_t position)
{
    if (position >= items.size())
        return;
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(position));
    Number(items);
}

WCmnUI_ListItem* WCmnUI_List::GetItem(std::size_t position)
{
    return position < items.size() ? items[position].get() : nullptr;
}

const WCmnUI_ListItem* WCmnUI_List::GetItem(std::size_t position) const
{
    return position < items.size() ? items[position].get() : nullptr;
}

bool operator==(const WCmnUI_List& left, const WCmnUI_List& right)
{
    return std::ranges::equal(left.items, right.items,
                              [](const auto& one, const auto& other) { return *one == *other; });
}
