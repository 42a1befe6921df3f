#include "reference_host/utils/Immortal.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace
{

using ReferenceHost::Immortal;

TEST(Immortal, IsNeverDestroyed)
{
    EXPECT_TRUE(std::is_trivially_destructible_v<Immortal<std::shared_ptr<int>>>);
}

TEST(Immortal, HandsItsArgumentsToTheValue)
{
    Immortal<std::unique_ptr<int>> value(nullptr);

    *value = std::make_unique<int>(4);

    EXPECT_EQ(**value, 4);
    EXPECT_EQ(*value->get(), 4);
    value->reset();
}

} // namespace
