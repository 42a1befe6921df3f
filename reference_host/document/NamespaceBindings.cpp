#include "reference_host/document/NamespaceBindings.h"

#include <algorithm>

namespace ReferenceHost
{

namespace
{

constexpr std::string_view kXmlNamespace = "http://www.w3.org/XML/1998/namespace";

std::size_t SlotOf(std::string_view prefix, std::size_t slots)
{
    if (prefix.empty())
        return 0;
    const auto first = static_cast<unsigned char>(prefix.front());
    const auto last = static_cast<unsigned char>(prefix.back());
    return (prefix.size() * 7U + std::size_t{first} * 31U + last) % slots;
}

} // namespace

NamespaceBindings::NamespaceBindings() : bindings{{"xml", kXmlNamespace}}
{
}

void NamespaceBindings::Declare(std::string_view prefix, std::string_view uri)
{
    hasAliases =
        hasAliases || std::ranges::any_of(bindings, [&](const Binding& binding)
                                          { return binding.uri == uri && binding.prefix != prefix; });
    bindings.push_back({prefix, uri});
    ++generation;
}

void NamespaceBindings::Release(std::size_t mark)
{
    if (mark == bindings.size())
        return;
    bindings.resize(mark);
    ++generation;
}

const std::string_view* NamespaceBindings::Find(std::string_view prefix)
{
    Remembered& slot = remembered[SlotOf(prefix, remembered.size())];
    if (slot.generation == generation && slot.prefix == prefix)
        return &bindings[slot.place].uri;
    for (std::size_t place = bindings.size(); place-- > 0;)
    {
        if (bindings[place].prefix != prefix)
            continue;
        if (bindings[place].uri.empty())
            return nullptr;
        slot = {prefix, place, generation};
        return &bindings[place].uri;
    }
    return nullptr;
}

bool NamespaceBindings::IsInForce(std::string_view uri) const
{
    return std::ranges::find(bindings, uri, &Binding::uri) != bindings.end();
}

} // namespace ReferenceHost
