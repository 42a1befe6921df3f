#pragma once

#include "host/style_model/PropertyKey.h"
#include "host/utils/Any.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace Styles
{

/// A property that a style sets itself.
struct OwnProperty
{
    PropertyKey key;
    OvxUtils::Any value; ///< Never empty.
};

/// The properties that one style sets itself, ordered by key.
///
/// Keys that were made one after another have texts that stand side by side in the pool: their addresses
/// number them, and those of one category seldom reach over more than 64. Then a bit for each, counted from
/// the first key that is set, tells what is set without a look at the properties, and the bits before it tell
/// where it stands. Keys further apart are searched for.
class OwnProperties
{
public:
    using Entries = std::vector<OwnProperty>;

    OwnProperties() = default;
    OwnProperties(const OwnProperties&) = default;
    OwnProperties& operator=(const OwnProperties&) = default;

    /// Leaves the other empty, as assigning does.
    OwnProperties(OwnProperties&& other) noexcept { Exchange(other); }

    OwnProperties& operator=(OwnProperties&& other) noexcept
    {
        OwnProperties taken(std::move(other));
        Exchange(taken);
        return *this;
    }

    ~OwnProperties() = default;

    void Exchange(OwnProperties& other) noexcept
    {
        std::swap(present, other.present);
        std::swap(firstAddress, other.firstAddress);
        entries.swap(other.entries);
    }

    /// What the bits tell of a property.
    enum class Presence
    {
        Unset,
        Set,
        Unknown ///< It has to be searched for.
    };

    /// Tells whether a property is set without looking at the properties.
    [[nodiscard]] Presence Look(const PropertyKey& key) const noexcept
    {
        const std::uintptr_t distance = DistanceFromFirst(key);
        if (distance < kBits)
            return (present >> distance & 1U) != 0 ? Presence::Set : Presence::Unset;
        return firstAddress == kFarFromAll ? Presence::Unknown : Presence::Unset;
    }

    /// The value of a property that Look() does not call unset, and only of such a one; null when it is not
    /// set. Valid until the properties change.
    [[nodiscard]] const OvxUtils::Any* Search(const PropertyKey& key) const noexcept;

    /// The value of a property; null when it is not set. Valid until the properties change.
    [[nodiscard]] const OvxUtils::Any* Find(const PropertyKey& key) const noexcept
    {
        return Look(key) == Presence::Unset ? nullptr : Search(key);
    }

    /// Sets a property to a value that is not empty.
    void Set(const PropertyKey& key, OvxUtils::Any value);

    /// Removes a property; does nothing when it is not set. Its room stays.
    void Remove(const PropertyKey& key) noexcept;

    /// Changes the value of a property for another; an empty one stands for none. A property that is set by
    /// it must have room.
    void Exchange(const PropertyKey& key, OvxUtils::Any& value) noexcept;

    /// A copy with as much room as this has.
    [[nodiscard]] OwnProperties CopyWithRoom() const;

    /// Makes room for as many as `other` has room for.
    void MakeRoomOf(const OwnProperties& other) { entries.reserve(other.entries.capacity()); }

    /// Makes room for `further` more than there is room for.
    void AddRoom(std::size_t further) { entries.reserve(entries.capacity() + further); }

    [[nodiscard]] const OwnProperty& operator[](std::size_t index) const { return entries[index]; }

    [[nodiscard]] Entries::const_iterator begin() const noexcept { return entries.begin(); }

    [[nodiscard]] Entries::const_iterator end() const noexcept { return entries.end(); }

    [[nodiscard]] std::size_t size() const noexcept { return entries.size(); }

    [[nodiscard]] bool empty() const noexcept { return entries.empty(); }

private:
    static constexpr std::uintptr_t kBits = 64;

    /// No text stands here, nor within 64 texts of it; nor does the empty key's null.
    static constexpr std::uintptr_t kFarFromAll = ~(UINTPTR_MAX / 2);

    [[nodiscard]] static std::uintptr_t AddressOf(const PropertyKey& key) noexcept
    {
        return reinterpret_cast<std::uintptr_t>(key.GetPooled().GetIdentity());
    }

    /// In texts. Far more than the bits for a key before the first, and for any key while the keys are
    /// scattered.
    [[nodiscard]] std::uintptr_t DistanceFromFirst(const PropertyKey& key) const noexcept
    {
        return (AddressOf(key) - firstAddress) / sizeof(StringPool::Text);
    }

    /// Where a property is, or would be put.
    struct Place
    {
        std::ptrdiff_t index;
        bool isSet;
    };

    [[nodiscard]] Place FindPlace(const PropertyKey& key) const noexcept;
    void Insert(std::ptrdiff_t index, const PropertyKey& key, OvxUtils::Any value);
    void Erase(std::ptrdiff_t index) noexcept;
    void Index() noexcept;

    std::uint64_t present = 0; ///< A bit for each key, by its distance from the first; none while scattered.
    std::uintptr_t firstAddress = 0; ///< Of the first key's text; kFarFromAll while scattered.
    Entries entries;                 ///< Ordered by key.
};

} // namespace Styles
