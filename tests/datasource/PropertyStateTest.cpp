// Where the targets' values come from: own, inherited, or different among them.

#include "host/style_model/CategoryNames.h"
#include "tests/datasource/support/HostedTest.h"
#include "tests/host_pieces/HostPieces.h"

namespace
{

using namespace Styles;
using OvxUtils::Any;
using testing::ElementsAre;
using testing::IsEmpty;

using State = ActivePropertyState;

class PropertyState : public HostedTest
{
protected:
    /// The state over these targets, as the panel gives it.
    State StateOf(const std::vector<Style*>& targets, const wchar_t* identifier = L"color")
    {
        Target(panel, targets);
        log.Clear();
        return panel.GetActivePropertyState(identifier);
    }

    Style& base = styles.WithColor("base", 1);
    Style& overriding = styles.WithColor("overriding", 2, &base);
    Style& inheriting = styles.WithFill("inheriting", &base);
    Style& orphan = styles.WithColor("orphan", 3); ///< Has nothing to inherit from.
    Style& bare = styles.Whole("bare", &base);     ///< Has no fill substyle.
};

TEST_F(PropertyState, IsNoneWithoutTargets)
{
    EXPECT_EQ(StateOf({}), State::None);
}

TEST_F(PropertyState, IsNoneForEveryIdentifierWhileTheFirstHasNothingToInheritFrom)
{
    for (const wchar_t* identifier : {L"color", L"", L"style", L"*", L"type,color"})
        EXPECT_EQ(StateOf({&orphan, &overriding}, identifier), State::None) << identifier;
}

TEST_F(PropertyState, IsNoneForANullFirst)
{
    EXPECT_EQ(StateOf({nullptr, &overriding}), State::None);
}

TEST_F(PropertyState, IsNoneWhenTheFirstHasNoStyleOfTheCategory)
{
    panel.givesTargetStyle = [](std::size_t) { return nullptr; };

    EXPECT_EQ(StateOf({&bare, &overriding}), State::None);
}

TEST_F(PropertyState, IsOverriddenWhenTheOnlyTargetSetsTheProperty)
{
    EXPECT_EQ(StateOf({&overriding}), State::Overridden);
}

TEST_F(PropertyState, IsInheritedWhenTheOnlyTargetDoesNotSetTheProperty)
{
    EXPECT_EQ(StateOf({&inheriting}), State::Inherited);
    EXPECT_EQ(StateOf({&overriding}, L"type"), State::Inherited);
}

TEST_F(PropertyState, IsInheritedForAnEmptyIdentifier)
{
    EXPECT_EQ(StateOf({&overriding}, L""), State::Inherited);
}

TEST_F(PropertyState, IsOverriddenWhenEveryTargetSetsTheProperty)
{
    EXPECT_EQ(StateOf({&overriding, &overriding, &overriding}), State::Overridden);
}

TEST_F(PropertyState, IsInheritedWhenNoTargetSetsTheProperty)
{
    EXPECT_EQ(StateOf({&inheriting, &inheriting}), State::Inherited);
}

TEST_F(PropertyState, IsAmbiguousWhenTheTargetsDifferInEitherOrder)
{
    EXPECT_EQ(StateOf({&overriding, &inheriting}), State::Ambiguous);
    EXPECT_EQ(StateOf({&inheriting, &overriding}), State::Ambiguous);
}

TEST_F(PropertyState, IsAmbiguousParentForAFurtherNull)
{
    EXPECT_EQ(StateOf({&overriding, nullptr}), State::AmbiguousParent);
}

TEST_F(PropertyState, IsAmbiguousParentForAFurtherTargetWithoutAStyleOfTheCategory)
{
    EXPECT_EQ(StateOf({&overriding, &bare}), State::AmbiguousParent);
    EXPECT_EQ(bare.GetSubstyle(FillStyleCategoryName, false), nullptr) << "none was made for the question";
}

TEST_F(PropertyState, IsAmbiguousParentForAFurtherTargetWithNothingToInheritFrom)
{
    EXPECT_EQ(StateOf({&overriding, &orphan}), State::AmbiguousParent);
}

TEST_F(PropertyState, IsAmbiguousParentForAFurtherStyleWithoutAnOwner)
{
    EXPECT_EQ(StateOf({&overriding, &styles.OfCategory("alone", FillStyleCategoryName)}),
              State::AmbiguousParent);
}

TEST_F(PropertyState, TakesAFurtherStyleWithAParentOfItsOwn)
{
    Style& alone = styles.OfCategory("alone", FillStyleCategoryName, &FillOf(base));

    EXPECT_EQ(StateOf({&inheriting, &alone}), State::Inherited);
}

TEST_F(PropertyState, TakesAFurtherStyleWhoseOwnersParentHasNoneOfTheCategory)
{
    Style& child = styles.WithFill("child", &styles.Whole("parentWithoutFill"));

    EXPECT_EQ(StateOf({&inheriting, &child}), State::Inherited) << "only of the first is more asked";
}

TEST_F(PropertyState, IsDecidedByTheFirstTargetThatStandsOut)
{
    EXPECT_EQ(StateOf({&overriding, &inheriting, nullptr}), State::Ambiguous);
    EXPECT_EQ(StateOf({&overriding, nullptr, &inheriting}), State::AmbiguousParent);
    EXPECT_EQ(StateOf({&overriding, &overriding, &inheriting}), State::Ambiguous);
}

TEST_F(PropertyState, DoesNotTestTheFirstTargetAgainOnceItsParentWasFound)
{
    Target(panel, {&overriding, &overriding});

    overriding.SetParent(nullptr);

    EXPECT_EQ(panel.GetActivePropertyState(L"color"), State::AmbiguousParent) << "the second is tested";
}

TEST_F(PropertyState, StaysAfterTheOnlyTargetLostItsParent)
{
    Target(panel, {&overriding});

    overriding.SetParent(nullptr);

    EXPECT_EQ(panel.GetActivePropertyState(L"color"), State::Overridden);
}

TEST_F(PropertyState, TakesAFirstStyleThatWentForOneThatSetsNothing)
{
    Target(panel, {&overriding});

    overriding.SetSubstyle(FillStyleCategoryName, nullptr);

    EXPECT_EQ(panel.GetActivePropertyState(L"color"), State::Inherited);
    EXPECT_EQ(panel.GetActivePropertyState(L"style"), State::Inherited);
}

TEST_F(PropertyState, LooksAtTheTargetsThemselvesAndMakesNoSubstyles)
{
    Target(panel, {&overriding, &inheriting});
    const std::size_t stylesBefore = HostPieces::CountLiveStyles();
    log.Clear();

    static_cast<void>(panel.GetActivePropertyState(L"color"));

    EXPECT_THAT(log.LinesOf({"panel.GetTargetStyle", "panel.GetNumTargetStyles", "panel.HasTargets"}),
                IsEmpty());
    EXPECT_EQ(HostPieces::CountLiveStyles(), stylesBefore);
}

// Several paths

TEST_F(PropertyState, IsOverriddenWhenOneOfSeveralPathsIs)
{
    EXPECT_EQ(StateOf({&overriding}, L"type,gradient.start,color"), State::Overridden);
}

TEST_F(PropertyState, AsksForEachPathInTurnUntilOneIsOverridden)
{
    StateOf({&overriding}, L"type,gradient.*,color,hatch");

    EXPECT_THAT(log.LinesOf({"panel.DoesOverrideProperty"}),
                ElementsAre("panel.DoesOverrideProperty(overriding.fill, type)",
                            "panel.DoesOverrideProperty(overriding.fill, gradient.*)",
                            "panel.DoesOverrideProperty(overriding.fill, color)"));
}

TEST_F(PropertyState, FollowsAnOverridingPanelsAnswerForEachPath)
{
    panel.overrides = [this](Style* style, const PropertyPath&) { return style == &FillOf(inheriting); };

    EXPECT_EQ(StateOf({&inheriting}), State::Overridden);
    EXPECT_EQ(StateOf({&overriding}), State::Inherited);
    EXPECT_EQ(StateOf({&inheriting, &overriding}), State::Ambiguous);
}

TEST_F(PropertyState, CountsAPropertyAsOverriddenByTheStyleThatSetsItAndNoOther)
{
    EXPECT_TRUE(panel.DoesOverrideProperty(&FillOf(overriding), Path({L"color"})));
    EXPECT_TRUE(panel.DoesOverrideProperty(&overriding, Path({L"fill", L"color"})));
    EXPECT_FALSE(panel.DoesOverrideProperty(&FillOf(inheriting), Path({L"color"})));
    EXPECT_FALSE(panel.DoesOverrideProperty(nullptr, Path({L"color"})));
}

TEST_F(PropertyState, CountsNoPropertyAsOverriddenByAnEmptyIdentifier)
{
    panel.overrides = [](Style*, const PropertyPath&) { return true; };

    EXPECT_FALSE(panel.DoesOverrideProperties(&FillOf(overriding), L""));
    EXPECT_TRUE(panel.DoesOverrideProperties(&FillOf(overriding), L"type"));
}

// The whole style

TEST_F(PropertyState, OfTheWholeStyleIsOverriddenByAnyPropertyOfItsOwn)
{
    EXPECT_EQ(StateOf({&overriding}, L"style"), State::Overridden);
    EXPECT_EQ(StateOf({&inheriting}, L"style"), State::Inherited);
}

TEST_F(PropertyState, OfTheWholeStyleIsOverriddenByAPropertyOfASubstyle)
{
    FillOf(inheriting).SetPathProperty(Path({L"gradient", L"start", L"color"}), Any(1));

    EXPECT_EQ(StateOf({&inheriting}, L"style"), State::Overridden);
}

TEST_F(PropertyState, OfTheWholeStyleIsInheritedWhenAllSubstylesAreEmpty)
{
    FillOf(inheriting)
        .GetSubstyleAndCreateIfMissing(Key(L"gradient"), Key(L"gradient"))
        ->GetSubstyleAndCreateIfMissing(Key(L"start"), Key(L"start"));
    const std::size_t stylesBefore = HostPieces::CountLiveStyles();

    EXPECT_EQ(StateOf({&inheriting}, L"style"), State::Inherited);

    EXPECT_EQ(HostPieces::CountLiveStyles(), stylesBefore) << "the style keeps its empty substyles";
}

TEST_F(PropertyState, OfTheWholeStyleComparesFurtherTargetsByPropertiesOfTheirOwn)
{
    EXPECT_EQ(StateOf({&overriding, &overriding}, L"style"), State::Overridden);
    EXPECT_EQ(StateOf({&inheriting, &inheriting}, L"style"), State::Inherited);
    EXPECT_EQ(StateOf({&overriding, &inheriting}, L"style"), State::Ambiguous);
    EXPECT_EQ(StateOf({&inheriting, &overriding}, L"style"), State::Ambiguous);
}

TEST_F(PropertyState, OfTheWholeStyleDoesNotLookAtTheSubstylesOfFurtherTargets)
{
    Style& deep = styles.WithFill("deep", &base);
    FillOf(deep).SetPathProperty(Path({L"gradient", L"start"}), Any(1));

    EXPECT_EQ(StateOf({&inheriting, &deep}, L"style"), State::Inherited);
    EXPECT_EQ(StateOf({&deep, &deep}, L"style"), State::Ambiguous) << "the same style, asked twice";
}

TEST_F(PropertyState, OfTheWholeStyleIsAmbiguousParentAsForOneProperty)
{
    EXPECT_EQ(StateOf({&overriding, nullptr}, L"style"), State::AmbiguousParent);
    EXPECT_EQ(StateOf({&overriding, &bare}, L"style"), State::AmbiguousParent);
    EXPECT_EQ(StateOf({&overriding, &orphan}, L"style"), State::AmbiguousParent);
}

TEST_F(PropertyState, OfTheWholeStyleIsAskedForByThatVeryWord)
{
    EXPECT_EQ(StateOf({&overriding}, L"Style"), State::Inherited);
    EXPECT_THAT(log.LinesOf({"panel.DoesOverrideProperty"}),
                ElementsAre("panel.DoesOverrideProperty(overriding.fill, Style)"));
}

TEST_F(PropertyState, OfTheWholeStyleAsksForNoProperty)
{
    StateOf({&overriding, &overriding}, L"style");

    EXPECT_THAT(log.LinesOf({"panel.DoesOverrideProperty"}), IsEmpty());
}

} // namespace
