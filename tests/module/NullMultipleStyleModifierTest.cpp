#include "module/NullMultipleStyleModifier.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/PooledString.h"
#include "tests/host_pieces/HostPieces.h"
#include "tests/module/VirtualSlot.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <utility>

namespace
{

using HostPieces::CountLiveStyles;
using Styles::PropertyKey;
using Styles::Style;

PropertyKey ColorKey()
{
    return PropertyKey(Styles::PooledString<Styles::StringPool>(L"color"));
}

/// A change of one value in the fill substyle: two live styles.
std::unique_ptr<Style> FillColorChange()
{
    auto change = std::make_unique<Style>();
    change->SetPathProperty({Styles::FillStyleCategoryName, ColorKey()}, OvxUtils::Any(3));
    return change;
}

class NullModifier : public testing::Test
{
protected:
    IMultipleStyleModifier& modifier = NullMultipleStyleModifier::GetInstance();
};

TEST_F(NullModifier, IsOneObject)
{
    EXPECT_EQ(&NullMultipleStyleModifier::GetInstance(), &modifier);
}

TEST_F(NullModifier, EndsTheChangeStyle)
{
    const std::size_t before = CountLiveStyles();
    auto change = FillColorChange();
    ASSERT_EQ(CountLiveStyles(), before + 2);

    modifier.Modify({}, {}, {{Styles::FillStyleCategoryName, ColorKey()}}, std::move(change), {}, false, true,
                    nullptr);

    EXPECT_EQ(CountLiveStyles(), before);
}

TEST_F(NullModifier, TakesNoChangeStyle)
{
    const std::size_t before = CountLiveStyles();

    modifier.Modify({nullptr}, {}, {}, nullptr, {}, false, false, nullptr);

    EXPECT_EQ(CountLiveStyles(), before);
}

TEST_F(NullModifier, WritesNothingToTheTargets)
{
    Style target;
    target.SetProperty(ColorKey(), OvxUtils::Any(1));

    modifier.Begin();
    modifier.Modify({&target}, {{&target, 7}}, {{Styles::FillStyleCategoryName, ColorKey()}, {ColorKey()}},
                    FillColorChange(), {{ColorKey()}}, false, true, nullptr);
    modifier.End();

    EXPECT_EQ(target.GetProperty(ColorKey()), OvxUtils::Any(1));
    EXPECT_EQ(target.GetOwnPropertyCount(), 1U);
    EXPECT_EQ(target.GetSubstyle(Styles::FillStyleCategoryName, false), nullptr);
}

TEST_F(NullModifier, NeedsNoBalance)
{
    modifier.End();
    modifier.Begin();

    EXPECT_EQ(&NullMultipleStyleModifier::GetInstance(), &modifier);
}

TEST(MultipleStyleModifier, BeginsEndsAndModifiesInThisOrderAfterTheDestructor)
{
    EXPECT_EQ(VirtualSlot(&IMultipleStyleModifier::Begin), 2U);
    EXPECT_EQ(VirtualSlot(&IMultipleStyleModifier::End), 3U);
    EXPECT_EQ(VirtualSlot(&IMultipleStyleModifier::Modify), 4U);
}

} // namespace
