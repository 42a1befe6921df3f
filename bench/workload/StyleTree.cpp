#include "bench/workload/StyleTree.h"

#include <array>

namespace Bench
{

namespace
{

constexpr std::array<std::size_t, StyleTree::kObjectLevel> kNamedStyles{1, 3, 10};

} // namespace

std::size_t StyleTree::CountAt(std::size_t level) const
{
    return level < kNamedStyles.size() ? kNamedStyles[level] : objectCount;
}

std::size_t StyleTree::ParentOf(std::size_t level, std::size_t index) const
{
    return index % CountAt(level - 1);
}

std::optional<int> StyleTree::OwnValue(std::size_t level, std::size_t index, std::size_t property) const
{
    const std::size_t which = kind == Values::Agreeing ? 0 : index;
    const std::uint64_t hash = FixedHash((which * kLevels + level) * kProperties + property);
    const bool isSet = level == 0 || hash % 4 == 0;
    return isSet ? std::optional<int>(static_cast<int>((hash / 4) % 1'000'000)) : std::nullopt;
}

std::string StyleTree::NameOf(std::size_t property)
{
    const std::string number = std::to_string(property);
    return (property < 10 ? "Property0" : "Property") + number;
}

// The finaliser of splitmix64.
std::uint64_t FixedHash(std::uint64_t number)
{
    number += 0x9e3779b97f4a7c15U;
    number = (number ^ (number >> 30U)) * 0xbf58476d1ce4e5b9U;
    number = (number ^ (number >> 27U)) * 0x94d049bb133111ebU;
    return number ^ (number >> 31U);
}

} // namespace Bench
