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

    constexpr PropertyKey(PooledString<StringPool> pooled) : name(pooled) {}

    /// The key without a name. Usable from any static initialiser.
    static const PropertyKey Empty;

    [[nodiscard]] OvxStringT GetString() const { return name.GetString(); }

    [[nodiscard]] const PooledString<StringPool>& GetPooled() const noexcept { return name; }

    friend bool operator==(const PropertyKey&, const PropertyKey&) = default;
    friend std::strong_ordering operator<=>(const PropertyKey&, const PropertyKey&) = default;

private:
    PooledString<StringPool> name;
};

} // namespace Styles

template <>
struct std::hash<Styles::PropertyKey>
{
    std::size_t operator()(const Styles::PropertyKey& key) const noexcept
    {
        return std::hash<const void*>()(key.GetPooled().GetIdentity());
    }
};
