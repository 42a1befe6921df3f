#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace LibraryModel
{

/// The element of a list of styles with its entries, each a list of attributes in order.
struct PlainTree
{
    using Attributes = std::vector<std::pair<std::string, std::string>>;

    PlainTree() { ++liveCount; }

    PlainTree(const PlainTree&) = delete;
    PlainTree& operator=(const PlainTree&) = delete;

    ~PlainTree() { --liveCount; }

    std::vector<Attributes> entries;

    static inline std::size_t liveCount = 0;
};

/// A handle to a list or to one of its entries, which keeps the list alive; or to nothing.
struct PlainNode
{
    std::shared_ptr<PlainTree> tree; ///< Null for an invalid handle.
    int entry = -1;                  ///< -1 for the list itself.

    [[nodiscard]] static PlainNode NewList() { return {std::make_shared<PlainTree>(), -1}; }

    /// The value of an attribute; empty when it is missing.
    [[nodiscard]] std::string Attribute(const std::string& name) const
    {
        if (tree == nullptr || entry < 0)
            return {};
        for (const auto& [attribute, value] : tree->entries.at(static_cast<std::size_t>(entry)))
        {
            if (attribute == name)
                return value;
        }
        return {};
    }

    /// As start tags.
    [[nodiscard]] std::string Text() const;
};

/// One entry of a preset list.
struct PlainItem
{
    std::string text;
    int index = -1;

    friend bool operator==(const PlainItem&, const PlainItem&) = default;
};

using PlainList = std::vector<PlainItem>;

} // namespace LibraryModel
