#pragma once

#include "host/Export.h"
#include "host/style_model/PooledString.h"
#include "host/style_model/StringPool.h"

#include <compare>
#include <cstddef>
#include <functional>

namespace Styles
{

/// Names a property or a category of styles.
///
/// One pointer wide. Keys made from equal texts are equal; they are ordered by identity, not by letters.
class STYLEPROPERTIES_HOST_API PropertyKey
{
public:
    constexpr PropertyKey() = default;

    /// The key of this name; a pooled text is a key by itself.
    constexpr PropertyKey(PooledString<StringPool> pooled) : name(pooled) {}

    /// The key without a name. Usable from any static initialiser.
    static const PropertyKey Empty;

    /// The name.
    [[nodiscard]] OvxStringT GetString() const { return name.GetString(); }

    /// The name in the pool, whose address is the identity of the key.
    [[nodiscard]] const PooledString<StringPool>& GetPooled() const noexcept { return name; }

    /// Equal when their names are.
    friend bool operator==(const PropertyKey&, const PropertyKey&) = default;
    /// By identity, not by letters.
    friend std::strong_ordering operator<=>(const PropertyKey&, const PropertyKey&) = default;

private:
    PooledString<StringPool> name;
};

} // namespace Styles

/// Hashes keys by identity, so that one value belongs to one run of the process.
template <>
struct std::hash<Styles::PropertyKey>
{
    /// The same for equal keys.
    std::size_t operator()(const Styles::PropertyKey& key) const noexcept
    {
        return std::hash<const void*>()(key.GetPooled().GetIdentity());
    }
};
