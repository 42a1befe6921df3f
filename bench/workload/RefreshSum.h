#pragma once

#include <cstddef>
#include <optional>

namespace Bench
{

/// Where the values of all targets come from, in the numbers of the library's states.
enum class Origin
{
    None = 0,
    Overridden = 1,
    Inherited = 2,
    Ambiguous = 3,
    AmbiguousParent = 4
};

/// What a refresh found, folded into one number that depends on the order of the properties.
class RefreshSum
{
public:
    /// Takes what was found of the next property; no value when the targets disagree.
    void Add(Origin origin, std::optional<double> agreed)
    {
        ++properties;
        sum += static_cast<double>(properties) * (static_cast<double>(origin) + agreed.value_or(0.5));
    }

    [[nodiscard]] double Get() const { return sum; }

private:
    std::size_t properties = 0;
    double sum = 0.0;
};

} // namespace Bench
