#pragma once

#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>

namespace ReferenceHost
{

/// Hashes a name without making a text of it first.
struct NameHash
{
    using is_transparent = void;

    // Two characters at a time: names are looked up for each read, write and notification, and the standard
    // hash of a text would be most of the cost (the benchmarks bound_text_read and notification_other). Names
    // are the program's own: nobody chooses them for their hashes.
    std::size_t operator()(OvxStringViewT name) const noexcept
    {
        constexpr std::uint64_t kMixer = 0x9e3779b97f4a7c15U;
        const std::size_t pairs = name.size() / 2;
        std::uint64_t hash = name.size();
        for (std::size_t i = 0; i < pairs; ++i)
            hash = (hash ^ (Bits(name[2 * i]) | Bits(name[2 * i + 1]) << 32U)) * kMixer;
        if (name.size() % 2 != 0)
            hash = (hash ^ Bits(name.back())) * kMixer;
        return static_cast<std::size_t>(hash ^ (hash >> 32U));
    }

private:
    static std::uint64_t Bits(wchar_t character) noexcept { return static_cast<std::uint32_t>(character); }
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
