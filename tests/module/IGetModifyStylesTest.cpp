#include "module/IGetModifyStyles.h"

#include "tests/module/VirtualSlot.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>

namespace
{

/// Holds one mark, to show what an assignment through the interface takes along.
class MarkedStyles final : public IGetModifyStyles
{
public:
    explicit MarkedStyles(int initialMark) : mark(initialMark) {}

    void ModifyStyles(std::unique_ptr<Styles::Style> /*values*/,
                      const Styles::PropertyPaths* /*overridePaths*/) const override
    {
    }

    Styles::Style* GetTargetStyle(std::size_t /*index*/) const override { return nullptr; }

    std::size_t GetNumTargetStyles() const override { return 0; }

    bool HasTargets() const override { return false; }

    int mark;
};

TEST(GetModifyStyles, IsAssignedByReturningItself)
{
    MarkedStyles left(1);
    const MarkedStyles right(2);
    IGetModifyStyles& target = left;
    const IGetModifyStyles& source = right;

    IGetModifyStyles& result = (target = source);

    EXPECT_EQ(&result, &target);
    EXPECT_EQ(left.mark, 1) << "the interface holds nothing to assign";
}

TEST(GetModifyStyles, IsPubliclyAssignable)
{
    EXPECT_TRUE(std::is_copy_assignable_v<IGetModifyStyles>);
    EXPECT_TRUE(
        (std::is_same_v<decltype(std::declval<IGetModifyStyles&>() = std::declval<const IGetModifyStyles&>()),
                        IGetModifyStyles&>));
}

TEST(GetModifyStyles, IsNeverDestroyedThroughTheInterface)
{
    EXPECT_FALSE(std::is_destructible_v<IGetModifyStyles>);
    EXPECT_FALSE(std::has_virtual_destructor_v<IGetModifyStyles>);
    EXPECT_TRUE(std::is_destructible_v<MarkedStyles>);
}

TEST(GetModifyStyles, IsAnAbstractClassWithoutFields)
{
    EXPECT_TRUE(std::is_abstract_v<IGetModifyStyles>);
    EXPECT_EQ(sizeof(IGetModifyStyles), sizeof(void*));
}

TEST(GetModifyStyles, ModifiesThenGivesThenCountsThenTellsWhetherThereAreTargets)
{
    EXPECT_EQ(VirtualSlot(&IGetModifyStyles::ModifyStyles), 0U);
    EXPECT_EQ(VirtualSlot(&IGetModifyStyles::GetTargetStyle), 1U);
    EXPECT_EQ(VirtualSlot(&IGetModifyStyles::GetNumTargetStyles), 2U);
    EXPECT_EQ(VirtualSlot(&IGetModifyStyles::HasTargets), 3U);
}

} // namespace
