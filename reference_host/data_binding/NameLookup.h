#pragma once

#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <functional>
#include <string_view>
#include <unordered_map>

namespace ReferenceHost
{

/// Hashes a name without making a text of it first.
struct NameHash
{
    using is_transparent = void;

    std::size_t operator()(OvxStringViewT name) const noexcept
    {
        return std::hash<std::wstring_view>()(name);
    }
};

/// Compares names without making texts of them first.
struct NameEqual
{
    using is_transparent = void;

    bool operator()(OvxStringViewT left, OvxStringViewT right) const noexcept
    {
        return std::wstring_view(left) == std::wstring_view(right);
    }
};

/// A map from names that a view can be looked up in.
template <class Value>
using NameMap = std::unordered_map<OvxStringT, Value, NameHash, NameEqual>;

} // namespace ReferenceHost
