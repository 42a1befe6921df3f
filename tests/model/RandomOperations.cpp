#include "tests/model/RandomOperations.h"

#include <array>

namespace LibraryModel
{

namespace
{

struct WeightedGroup
{
    std::size_t weight;
    const Makers& (*makers)();
};

constexpr std::array<WeightedGroup, 8> kGroups = {{{26, TargetMakers},
                                                   {16, StyleMakers},
                                                   {20, WritingMakers},
                                                   {14, CommandMakers},
                                                   {12, ListMakers},
                                                   {8, PresetMakers},
                                                   {9, HostMakers},
                                                   {3, SheetMakers}}};

/// One of these, as often as its weight says.
template <class Choices>
const auto& OneByWeight(Dice& dice, const Choices& choices)
{
    std::size_t sum = 0;
    for (const auto& choice : choices)
        sum += choice.weight;
    std::size_t left = dice.Below(sum);
    auto chosen = choices.begin();
    for (; left >= chosen->weight; ++chosen)
        left -= chosen->weight;
    return *chosen;
}

/// What differs from sequence to sequence from the start: parents, categories, and what panels are about.
const Makers& OpeningMakers()
{
    static const Makers makers = {{14, SetParent},
                                  {3, ChangeCategory},
                                  {3, SetIdentifier},
                                  {2, OfferPresets},
                                  {1, MoveToExternalSheet}};
    return makers;
}

constexpr std::size_t kOpeningSteps = 25;

} // namespace

Sequence RandomSequence(Dice& dice, std::size_t steps)
{
    Sequence sequence = Preparation();
    for (std::size_t step = 0; step < kOpeningSteps; ++step)
    {
        sequence.push_back(OneByWeight(dice, OpeningMakers()).make(dice));
        sequence.back().isRead = false;
    }
    for (std::size_t step = 0; step < steps; ++step)
    {
        const Makers& makers = OneByWeight(dice, kGroups).makers();
        sequence.push_back(OneByWeight(dice, makers).make(dice));
        sequence.back().isRead = !dice.Percent(25);
    }
    return sequence;
}

} // namespace LibraryModel
