#include "reference_host/document/StyleRecord.h"

#include <utility>

namespace ReferenceHost
{

const StyleRecord* StyleCatalogue::AddUnlessThere(StyleRecord& record)
{
    if (const StyleRecord* const same = Find(record.origin, record.family, record.name))
        return same;
    StyleRecord& added = records.emplace_back(std::move(record));
    NamesOf(added.origin, added.family).emplace(added.name, &added);
    return nullptr;
}

void StyleCatalogue::Reserve(StyleOrigin origin, std::size_t count)
{
    RecordsByName& names = NamesOf(origin, StyleFamily::Graphic);
    names.reserve(names.size() + count);
}

const StyleRecord* StyleCatalogue::Find(StyleFamily family, std::string_view name) const
{
    const StyleRecord* const automatic = Find(StyleOrigin::Automatic, family, name);
    return automatic != nullptr ? automatic : FindNamed(family, name);
}

StyleRecord* StyleCatalogue::FindNamed(StyleFamily family, std::string_view name) const
{
    StyleRecord* found = FindOwnNamed(family, name);
    for (std::size_t next = 0; found == nullptr && next < fallbacks.size(); ++next)
        found = fallbacks[next]->FindOwnNamed(family, name);
    return found;
}

StyleRecord* StyleCatalogue::FindOwnNamed(StyleFamily family, std::string_view name) const
{
    return Find(StyleOrigin::Named, family, name);
}

StyleRecord* StyleCatalogue::Find(StyleOrigin origin, StyleFamily family, std::string_view name) const
{
    const auto& names = byName[static_cast<std::size_t>(origin)][static_cast<std::size_t>(family)];
    const auto found = names.find(name);
    return found == names.end() ? nullptr : found->second;
}

} // namespace ReferenceHost
