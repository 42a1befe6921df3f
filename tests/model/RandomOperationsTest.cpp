// The library beside a second, naive model of it: random sequences of operations must leave no difference.

#include "tests/model/RandomOperations.h"
#include "tests/model/Comparison.h"
#include "tests/model/Shrinking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>

using namespace LibraryModel;

namespace
{

constexpr std::size_t kStepsOfASequence = 200;

/// A number that the environment gives, or else the one that every ordinary run uses.
std::uint64_t Setting(const char* name, std::uint64_t ordinary)
{
    const char* text = std::getenv(name);
    return text == nullptr ? ordinary : std::strtoull(text, nullptr, 10);
}

std::string Report(const Sequence& failing, std::uint64_t seed)
{
    const auto fails = [](const Sequence& sequence) { return FindDiscrepancy(sequence).has_value(); };
    const Sequence shortest = Shrink(failing, fails);
    const std::optional<Discrepancy> last = FindDiscrepancy(shortest);
    return "seed " + std::to_string(seed) + ": the library and its model differ after\n" + TextOf(shortest) +
           (last.has_value() ? last->message : "and agree when it is run once more");
}

} // namespace

TEST(RandomOperations, LeaveTheLibraryAsItsModelExpects)
{
    const std::uint64_t steps = Setting("STYLEPROPERTIES_MODEL_STEPS", 20'000);
    const std::uint64_t firstSeed = Setting("STYLEPROPERTIES_MODEL_SEED", 1);
    std::cout << steps << " random steps from seed " << firstSeed << " on\n";
    RecordProperty("seed", std::to_string(firstSeed));

    std::uint64_t seed = firstSeed;
    for (std::uint64_t done = 0; done < steps; done += kStepsOfASequence, ++seed)
    {
        Dice dice(seed);
        Sequence sequence = RandomSequence(dice, std::min<std::uint64_t>(kStepsOfASequence, steps - done));
        if (const std::optional<Discrepancy> found = FindDiscrepancy(sequence))
        {
            sequence.resize(found->step + 1);
            FAIL() << Report(sequence, seed);
        }
    }
}
