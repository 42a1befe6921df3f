#pragma once

#include "tiny_host/Lasting.h"
#include "tiny_host/XmlElement.h"

#include <deque>
#include <memory>

namespace TinyHost
{

/// Takes from an element and all below it what they hold; the elements stay.
inline void Empty(XmlElement& element)
{
    element.name = {};
    element.attributes.clear();
    for (const auto& child : element.children)
        Empty(*child);
}

/// A tree that ends too early, without the danger of memory that is gone: it is emptied with its last owner.
[[nodiscard]] inline std::shared_ptr<XmlElement> MakeForgetfulTree()
{
    return {&Lasting<std::deque<XmlElement>>().emplace_back(), [](XmlElement* tree) { Empty(*tree); }};
}

} // namespace TinyHost
