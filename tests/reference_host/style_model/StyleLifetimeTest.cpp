#include "host/style_model/Style.h"

#include "host/style_model/CategoryNames.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/style_model/StyleMaking.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

// Who survives whom.
namespace
{

using ReferenceHost::LiveStyleCount;
using Styles::Style;

TEST(StyleLifetime, CountsTheStylesThatLiveWithTheirSubstyles)
{
    const std::size_t before = LiveStyleCount();
    {
        const auto whole = MakeWhole();
        EXPECT_EQ(LiveStyleCount(), before + 3);

        const Style copy(*whole);
        EXPECT_EQ(LiveStyleCount(), before + 6);
    }

    EXPECT_EQ(LiveStyleCount(), before);
}

TEST(StyleLifetime, LeavesNoStyleBehindAfterAssignmentsAndReplacements)
{
    const std::size_t before = LiveStyleCount();
    {
        const auto whole = MakeWhole();
        const auto other = MakeWhole();
        *whole = *other;
        whole->SetSubstyle(Key(L"fill"), other.get());
        whole->SetSubstyle(Key(L"fill"), nullptr);
        whole->SetProperties({Path({L"fill"})}, other.get());
    }

    EXPECT_EQ(LiveStyleCount(), before);
}

TEST(StyleLifetime, ClearsTheParentOfEveryChildOfAStyleThatGoes)
{
    auto parent = std::make_unique<Style>();
    Style first(parent.get(), Styles::StyleCategoryName);
    Style second(parent.get(), Styles::StyleCategoryName);
    const Style copy(first);

    parent.reset();

    EXPECT_EQ(first.GetParent(), nullptr);
    EXPECT_EQ(second.GetParent(), nullptr);
    EXPECT_EQ(copy.GetParent(), nullptr);
    EXPECT_TRUE(first.GetProperty(Key(L"color")).IsEmpty());
}

TEST(StyleLifetime, ClearsNoParentOfAChildThatWentElsewhereBefore)
{
    auto parent = std::make_unique<Style>();
    Style other;
    std::vector<std::unique_ptr<Style>> children;
    for (int i = 0; i < 5; ++i)
        children.push_back(std::make_unique<Style>(parent.get(), Styles::StyleCategoryName));

    children[2]->SetParent(&other);
    children[0].reset();
    children[4]->SetParent(nullptr);
    parent.reset();

    EXPECT_EQ(children[1]->GetParent(), nullptr);
    EXPECT_EQ(children[2]->GetParent(), &other);
    EXPECT_EQ(children[3]->GetParent(), nullptr);
}

TEST(StyleLifetime, ClearsTheParentOfWhatInheritsFromASubstyleThatGoes)
{
    Style style;
    Style child(&Sub(style, L"fill"), Styles::FillStyleCategoryName);

    style.SetSubstyle(Key(L"fill"), nullptr);

    EXPECT_EQ(child.GetParent(), nullptr);
}

TEST(StyleLifetime, EndsTheFallbackWhenTheDefaultsGo)
{
    auto defaults = std::make_unique<Style>();
    defaults->SetProperty(Key(L"hidden"), Number(9));
    Style style;
    ReferenceHost::SetDefaultStyle(style, defaults.get());

    defaults.reset();

    EXPECT_EQ(ReferenceHost::GetDefaultStyle(style), nullptr);
    EXPECT_TRUE(style.GetProperty(Key(L"hidden")).IsEmpty());
}

TEST(StyleLifetime, TakesAStyleApartThatIsItsOwnSubstylesParent)
{
    auto style = MakeWhole();
    Sub(*style, L"fill").SetParent(style.get());
    Sub(*style, L"outline").SetParent(&Sub(*style, L"fill"));
    const std::size_t before = LiveStyleCount();

    style.reset();

    EXPECT_EQ(LiveStyleCount(), before - 3);
}

} // namespace
