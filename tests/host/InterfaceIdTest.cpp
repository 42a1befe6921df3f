#include "host/utils/InterfaceId.h"

#include <gtest/gtest.h>

namespace
{

TEST(InterfaceId, IsSixteenBytesAsTheyLieInMemory)
{
    EXPECT_EQ(sizeof(InterfaceId), 16u);
}

TEST(InterfaceId, EqualsOneOfTheSameBytes)
{
    const InterfaceId id{{1, 2, 3}};

    EXPECT_EQ(id, (InterfaceId{{1, 2, 3}}));
    EXPECT_NE(id, (InterfaceId{{1, 2, 3, 4}}));
    EXPECT_NE(id, InterfaceId{});
}

} // namespace
