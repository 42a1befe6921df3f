// Whether the first target has anything to inherit from, and when that is found out.

#include "host/style_model/CategoryNames.h"
#include "tests/datasource/support/HostedTest.h"

namespace
{

using namespace Styles;

class HasParent : public HostedTest
{
protected:
    bool HoldsFor(const std::vector<Style*>& targets)
    {
        Target(panel, targets);
        return panel.Private_HasParent();
    }

    Style& base = styles.WithFill("base");
    Style& box = styles.WithFill("box", &base);
    Style& orphan = styles.WithFill("orphan");
};

TEST_F(HasParent, DoesNotHoldWithoutTargets)
{
    EXPECT_FALSE(HoldsFor({}));
}

TEST_F(HasParent, DoesNotHoldForANullFirst)
{
    EXPECT_FALSE(HoldsFor({nullptr, &box}));
}

TEST_F(HasParent, DoesNotHoldWithoutAStyleOfTheCategory)
{
    panel.givesTargetStyle = [](std::size_t) { return nullptr; };

    EXPECT_FALSE(HoldsFor({&styles.Whole("bare", &base)}));
}

TEST_F(HasParent, HoldsForASubstyleWhoseOwnersParentHasOneOfTheCategory)
{
    EXPECT_TRUE(HoldsFor({&box}));
    EXPECT_TRUE(HoldsFor({&FillOf(box)}));
}

TEST_F(HasParent, DoesNotHoldForASubstyleWhoseOwnersParentHasNoneOfTheCategory)
{
    EXPECT_FALSE(HoldsFor({&styles.WithFill("child", &styles.Whole("parentWithoutFill"))}));
}

TEST_F(HasParent, DoesNotHoldForASubstyleWhoseOwnerHasNoParent)
{
    EXPECT_FALSE(HoldsFor({&orphan}));
}

TEST_F(HasParent, HoldsForASubstyleWithAParentOfItsOwn)
{
    FillOf(orphan).SetParent(&FillOf(base));

    EXPECT_TRUE(HoldsFor({&orphan}));
}

TEST_F(HasParent, FollowsTheFirstTargetAlone)
{
    EXPECT_FALSE(HoldsFor({&orphan, &box}));
    EXPECT_TRUE(HoldsFor({&box, &orphan}));
}

TEST_F(HasParent, HoldsForAWholeStyleWithAParent)
{
    panel.category = StyleCategoryName;

    EXPECT_TRUE(HoldsFor({&box}));
    EXPECT_FALSE(HoldsFor({&orphan}));
}

TEST_F(HasParent, DoesNotHoldForAWholeStyleThroughAnOwner)
{
    panel.category = StyleCategoryName;
    base.GetSubstyleAndCreateIfMissing(StyleCategoryName, StyleCategoryName);
    Style* nested = box.GetSubstyleAndCreateIfMissing(StyleCategoryName, StyleCategoryName);

    EXPECT_FALSE(HoldsFor({nested})) << "of whole styles only a parent of their own counts";
}

// The value that is kept

TEST_F(HasParent, IsKeptUntilTheNextTargets)
{
    Target(panel, {&box});
    box.SetParent(nullptr);

    EXPECT_EQ(panel.GetActivePropertyState(L"color"), ActivePropertyState::Inherited) << "as it was found";

    Target(panel, {&box});

    EXPECT_EQ(panel.GetActivePropertyState(L"color"), ActivePropertyState::None) << "as it is found now";
}

TEST_F(HasParent, IsFoundAmongTheOwnTargetsBeforeSiblingsAreMerged)
{
    RecordingPanel sibling(log, "sibling");
    Target(sibling, {&box});
    panel.RegisterSiblingDS(&sibling);

    Target(panel, {&orphan}, /*isDefault=*/true);

    EXPECT_EQ(panel.GetTargetStyles().front(), &FillOf(box));
    EXPECT_EQ(panel.GetActivePropertyState(L"color"), ActivePropertyState::None)
        << "the own target has no parent, although the merged first one has";
}

TEST_F(HasParent, IsFoundAmongTheMergedTargetsWhenThereAreNoOwnOnes)
{
    RecordingPanel sibling(log, "sibling");
    Target(sibling, {&box});
    panel.RegisterSiblingDS(&sibling);

    Target(panel, {});

    EXPECT_EQ(panel.GetActivePropertyState(L"color"), ActivePropertyState::Inherited);
}

TEST_F(HasParent, CountsAsFoundWhileItIsBeingFound)
{
    panel.givesTargetStyle = [this](std::size_t) { return &FillOf(box); };
    std::optional<ActivePropertyState> seen;
    log.onLine = [&](const std::string& line)
    {
        // Once the shown style is known, the next question for the category is about what it inherits from.
        if (line != "panel.GetCategory()" || log.LinesOf({"panel.GetTargetStyle(0)"}).empty())
            return;
        log.onLine = nullptr;
        seen = panel.GetActivePropertyState(L"color");
    };

    Target(panel, {&box});

    EXPECT_EQ(seen, ActivePropertyState::None) << "the value from before, and no second search";
    EXPECT_EQ(panel.GetActivePropertyState(L"color"), ActivePropertyState::Inherited);
}

} // namespace
