// The library beside a second, naive model of it: random sequences of operations must leave no difference.
// STYLEPROPERTIES_MODEL_STEPS and STYLEPROPERTIES_MODEL_SEED in the environment ask for longer and other
// runs.

#include "tests/model/RandomOperations.h"
#include "tests/model/Comparison.h"
#include "tests/model/Shrinking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>

using namespace LibraryModel;

namespace
{

/// Sequences start anew after so many steps.
constexpr std::size_t kStepsOfASequence = 200;

/// A run is shared out, so that the parts can run side by side.
constexpr std::size_t kParts = 4;

/// The seeds of one part lie so far from those of the next.
constexpr std::uint64_t kSeedsOfAPart = 1'000'000;

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
           (last.has_value() ? last->message : "    and agree when it is run once more");
}

std::string NameOfPart(const testing::TestParamInfo<std::size_t>& part)
{
    static const std::array<const char*, kParts> names = {"First", "Second", "Third", "Fourth"};
    return names.at(part.param);
}

class RandomOperations : public testing::TestWithParam<std::size_t>
{
};

} // namespace

TEST_P(RandomOperations, LeaveTheLibraryAsItsModelExpects)
{
    const std::uint64_t steps = Setting("STYLEPROPERTIES_MODEL_STEPS", 20'000) / kParts;
    std::uint64_t seed = Setting("STYLEPROPERTIES_MODEL_SEED", 1) + GetParam() * kSeedsOfAPart;
    std::cout << steps << " random steps from seed " << seed << " on\n";

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

INSTANTIATE_TEST_SUITE_P(InParts, RandomOperations, testing::Range<std::size_t>(0, kParts), NameOfPart);
