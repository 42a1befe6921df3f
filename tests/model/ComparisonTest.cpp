// What makes the two sides of a sequence differ: each kind of thing that is compared.

#include "tests/model/Comparison.h"

#include "tests/model/RandomOperations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace LibraryModel;
using testing::HasSubstr;

namespace
{

void DoNothing(LibraryWorld&)
{
}

/// The message about a sequence of this one step; empty when both sides are alike.
std::string DifferenceAfter(const Operation& operation)
{
    const std::optional<Discrepancy> found = FindDiscrepancy({operation});
    return found.has_value() ? found->message : "";
}

} // namespace

TEST(TheTwoSides, AreAlikeAfterThePreparation)
{
    EXPECT_FALSE(FindDiscrepancy(Preparation()).has_value());
}

TEST(TheTwoSides, DifferByAnAnswer)
{
    const Operation operation = Do(
        "answer", [](LibraryWorld&) { return std::string("two"); },
        [](PlainWorld&) { return std::string("one"); });

    EXPECT_THAT(DifferenceAfter(operation), HasSubstr("library: answers two"));
}

TEST(TheTwoSides, DifferByAnExceptionThatTheModelDoesNotExpect)
{
    const Operation operation = Do(
        "fail", [](LibraryWorld&) { throw std::runtime_error("no such thing"); }, [](PlainWorld&) {});

    EXPECT_THAT(DifferenceAfter(operation), HasSubstr("library: throws no such thing"));
}

TEST(TheTwoSides, DifferByACallOfTheHost)
{
    Operation operation =
        Do("expect a call", DoNothing, [](PlainWorld& world) { world.host.Record("source.BeginGroup()"); });
    operation.isRead = false;

    EXPECT_THAT(DifferenceAfter(operation), HasSubstr("model:   source.BeginGroup()"));
}

TEST(TheTwoSides, DifferByANotification)
{
    const Operation operation = Do(
        "notify", [](LibraryWorld& world) { world.Panel(1).UpdateListeners(L"PresetList"); },
        [](PlainWorld&) {});

    EXPECT_THAT(DifferenceAfter(operation), HasSubstr("library: panel1 notifies PresetList"));
}

TEST(TheTwoSides, DifferByABoundProperty)
{
    const Operation operation =
        Do("read", DoNothing, [](PlainWorld& world) { world.panels[2]->activeIdentifier = "color"; });

    EXPECT_THAT(DifferenceAfter(operation), HasSubstr("model:   ActiveIdentifier: color"));
}

TEST(TheTwoSides, DifferByAStyleThatLivesOn)
{
    std::unique_ptr<PlainStyle> left;
    Operation operation =
        Do("leak a style", DoNothing,
           [&left](PlainWorld&) { left = std::make_unique<PlainStyle>(LibraryModel::Key()); });
    operation.isRead = false;

    EXPECT_THAT(DifferenceAfter(operation), HasSubstr("model:   living: 37 styles"));
}

TEST(TheTwoSides, DifferByAListThatLivesOn)
{
    PlainNode left;
    Operation operation = Do("leak a list", DoNothing, [&left](PlainWorld&) { left = PlainNode::NewList(); });
    operation.isRead = false;

    EXPECT_THAT(DifferenceAfter(operation), HasSubstr("model:   living: 36 styles, 4 trees"));
}

TEST(TheTwoSides, AreLeftAloneByAStepThatNoHostTakes)
{
    Operation operation =
        Do("expect a call", DoNothing, [](PlainWorld& world) { world.host.Record("source.BeginGroup()"); });
    operation.isAllowed = [](const PlainWorld&) { return false; };

    EXPECT_EQ(DifferenceAfter(operation), "");
}
