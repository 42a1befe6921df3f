#include "host/ui_list/WCmnUI_List.h"

#include <algorithm>
#include <utility>

namespace
{

using Items = std::vector<std::unique_ptr<WCmnUI_ListItem>>;

/// Gives the items from `first` on the indices of their positions.
void NumberFrom(Items& items, std::size_t first)
{
    for (std::size_t i = first; i < items.size(); ++i)
        items[i]->SetIndex(static_cast<int>(i));
}

Items CopyOf(const Items& source)
{
    Items copy;
    copy.reserve(source.size());
    for (const auto& item : source)
        copy.push_back(std::make_unique<WCmnUI_ListItem>(*item));
    return copy;
}

} // namespace

WCmnUI_List::WCmnUI_List() = default;

WCmnUI_List::WCmnUI_List(const WCmnUI_List& other) : items(CopyOf(other.items))
{
}

WCmnUI_List::WCmnUI_List(WCmnUI_List&& other) noexcept = default;

WCmnUI_List& WCmnUI_List::operator=(const WCmnUI_List& other)
{
    if (this != &other)
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
    const std::size_t at = std::min(position, items.size());
    const auto inserted = items.insert(items.begin() + static_cast<std::ptrdiff_t>(at),
                                       std::make_unique<WCmnUI_ListItem>(item));
    WCmnUI_ListItem* added = inserted->get();
    NumberFrom(items, at);
    return added;
}

void WCmnUI_List::RemoveItem(std::size_t position)
{
    if (position >= items.size())
        return;
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(position));
    NumberFrom(items, position);
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
    return std::equal(left.items.begin(), left.items.end(), right.items.begin(), right.items.end(),
                      [](const auto& first, const auto& second) { return *first == *second; });
}
