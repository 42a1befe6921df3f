#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace LibraryModel
{

/// Chance, the same for the same seed on every machine.
class Dice
{
public:
    explicit Dice(std::uint64_t seed) : engine(seed) {}

    /// From 0 up to below `end`.
    std::size_t Below(std::size_t end) { return static_cast<std::size_t>(engine() % end); }

    /// True in so many of a hundred cases.
    bool Percent(std::size_t percent) { return Below(100) < percent; }

    template <class T>
    const T& One(const std::vector<T>& choices)
    {
        return choices[Below(choices.size())];
    }

private:
    std::mt19937_64 engine;
};

} // namespace LibraryModel
