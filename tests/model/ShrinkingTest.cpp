// Failing sequences become short ones.

#include "tests/model/Shrinking.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using namespace LibraryModel;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

Operation Named(const std::string& text)
{
    return Do(
        text, [](LibraryWorld&) {}, [](PlainWorld&) {});
}

Sequence Numbered(int count)
{
    Sequence sequence;
    for (int i = 0; i < count; ++i)
        sequence.push_back(Named(std::to_string(i)));
    return sequence;
}

std::vector<std::string> TextsOf(const Sequence& sequence)
{
    std::vector<std::string> texts;
    for (const Operation& operation : sequence)
        texts.push_back(operation.text);
    return texts;
}

bool Contains(const Sequence& sequence, const std::string& text)
{
    return std::ranges::any_of(sequence, [&text](const Operation& step) { return step.text == text; });
}

} // namespace

TEST(ShrunkSequences, KeepTheStepsThatTheFailureNeedsInTheirOrder)
{
    const auto fails = [](const Sequence& sequence)
    { return Contains(sequence, "3") && Contains(sequence, "17") && Contains(sequence, "40"); };

    const Sequence shortest = Shrink(Numbered(50), fails);

    EXPECT_THAT(TextsOf(shortest), ElementsAre("3", "17", "40"));
}

TEST(ShrunkSequences, LoseStepsThatCanGoOnlyAfterLaterOnes)
{
    // While "7" is there it needs "2", which comes before it.
    const auto fails = [](const Sequence& sequence)
    { return Contains(sequence, "9") && (!Contains(sequence, "7") || Contains(sequence, "2")); };

    const Sequence shortest = Shrink(Numbered(10), fails);

    EXPECT_THAT(TextsOf(shortest), ElementsAre("9"));
}

TEST(ShrunkSequences, AreEmptyForWhatFailsAnyway)
{
    const Sequence shortest = Shrink(Numbered(5), [](const Sequence&) { return true; });

    EXPECT_THAT(shortest, IsEmpty());
}

TEST(ShrunkSequences, AreToldOneStepALine)
{
    Sequence sequence = {Named("first();"), Named("second();")};
    sequence.back().isRead = false;

    EXPECT_EQ(TextOf(sequence), "    first();\n    second(); // and nothing is read\n");
}
