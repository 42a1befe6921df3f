// Whether the targets agree on a value, and what is forced to count as ambiguous whatever they hold.

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/CategoryNames.h"
#include "tests/datasource/support/HostedTest.h"

namespace
{

using namespace Styles;
using OvxUtils::Any;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class ForcedAmbiguity : public HostedTest
{
};

TEST_F(ForcedAmbiguity, IsWhatLiesUnderThePathRelativeToIt)
{
    panel.ImportForceAmbiguous(
        Path({L"fill"}), {Path({L"fill", L"color"}), Path({L"fill", L"type"}), Path({L"outline", L"width"})});

    EXPECT_THAT(panel.GetAmbiguousForce(), UnorderedElementsAre(Path({L"color"}), Path({L"type"})));
}

TEST_F(ForcedAmbiguity, IsFoundAmongManyOtherPathsWhateverTheirOrder)
{
    std::set<PropertyPath> forced = {Path({L"fill", L"gradient", L"start"}), Path({L"fill", L"color"})};
    for (int number = 0; number < 200; ++number)
        forced.insert({Key(OvxStringT::Format(L"other %d", number).c_str()), Key(L"color")});

    panel.ImportForceAmbiguous(Path({L"fill"}), forced);

    EXPECT_THAT(panel.GetAmbiguousForce(),
                UnorderedElementsAre(Path({L"color"}), Path({L"gradient", L"start"})));
}

TEST_F(ForcedAmbiguity, LeavesOutWhatOnlyBeginsLikeThePath)
{
    panel.ImportForceAmbiguous(Path({L"fill", L"gradient"}),
                               {Path({L"fill", L"gradient", L"start"}), Path({L"fill", L"type"})});

    EXPECT_THAT(panel.GetAmbiguousForce(), ElementsAre(Path({L"start"})));
}

TEST_F(ForcedAmbiguity, IsEverythingWhenThePathItselfIsForced)
{
    panel.ImportForceAmbiguous(Path({L"fill"}), {Path({L"fill"}), Path({L"fill", L"color"})});

    EXPECT_THAT(panel.GetAmbiguousForce(), ElementsAre(PropertyPath()));
}

TEST_F(ForcedAmbiguity, IsEverythingWhenAPrefixOfThePathIsForced)
{
    panel.ImportForceAmbiguous(Path({L"frame", L"shadow", L"fill"}),
                               {Path({L"frame"}), Path({L"frame", L"shadow", L"fill", L"color"})});

    EXPECT_THAT(panel.GetAmbiguousForce(), ElementsAre(PropertyPath()));
}

TEST_F(ForcedAmbiguity, IsEverythingWhenTheEmptyPathIsForced)
{
    panel.ImportForceAmbiguous(Path({L"frame", L"fill"}),
                               {PropertyPath(), Path({L"frame", L"fill", L"color"})});

    EXPECT_THAT(panel.GetAmbiguousForce(), ElementsAre(PropertyPath()));
}

TEST_F(ForcedAmbiguity, IsEachPathAsItIsUnderTheEmptyPath)
{
    panel.ImportForceAmbiguous(PropertyPath(), {Path({L"fill", L"color"}), Path({L"type"})});

    EXPECT_THAT(panel.GetAmbiguousForce(), UnorderedElementsAre(Path({L"fill", L"color"}), Path({L"type"})));
}

TEST_F(ForcedAmbiguity, IsNothingWhereNothingLiesUnderThePath)
{
    panel.ImportForceAmbiguous(Path({L"fill", L"color"}), {Path({L"outline"}), Path({L"fill", L"type"})});

    EXPECT_THAT(panel.GetAmbiguousForce(), IsEmpty());
}

TEST_F(ForcedAmbiguity, TakesAKeyAsThePathOfThatKey)
{
    panel.ImportForceAmbiguous(FillStyleCategoryName, {Path({L"fill", L"color"})});

    EXPECT_THAT(panel.GetAmbiguousForce(), ElementsAre(Path({L"color"})));
}

TEST_F(ForcedAmbiguity, GrowsWithEachImport)
{
    panel.ImportForceAmbiguous(Path({L"fill"}), {Path({L"fill", L"color"})});

    panel.ImportForceAmbiguous(Path({L"outline"}),
                               {Path({L"outline", L"color"}), Path({L"outline", L"width"})});

    EXPECT_THAT(panel.GetAmbiguousForce(), UnorderedElementsAre(Path({L"color"}), Path({L"width"})));
}

TEST_F(ForcedAmbiguity, KeepsItsPathsWhenEverythingIsForcedLater)
{
    panel.ImportForceAmbiguous(Path({L"fill"}), {Path({L"fill", L"color"})});

    panel.ImportForceAmbiguous(Path({L"fill"}), {PropertyPath()});

    EXPECT_THAT(panel.GetAmbiguousForce(), UnorderedElementsAre(Path({L"color"}), PropertyPath()));
}

TEST_F(ForcedAmbiguity, IsNothingOnceItIsCleared)
{
    panel.ImportForceAmbiguous(Path({L"fill"}), {PropertyPath()});

    panel.ClearForceAmbiguous();

    EXPECT_THAT(panel.GetAmbiguousForce(), IsEmpty());
}

/// Targets whose fill substyles hold the given values for the colour; an empty value is none.
class Ambiguity : public HostedTest
{
protected:
    std::vector<Style*> Holding(const std::vector<Any>& values)
    {
        std::vector<Style*> targets;
        for (const Any& value : values)
        {
            Style& whole = styles.WithFill("target");
            FillOf(whole).SetProperty(kColor, value);
            targets.push_back(&whole);
        }
        return targets;
    }

    void Force(const PropertyPath& path) { panel.ImportForceAmbiguous(PropertyPath(), {path}); }

    const PropertyKey kColor = Key(L"color");
    const Any red{CLR_COLORSPEC::FromRgb({255, 0, 0})};
    const Any blue{CLR_COLORSPEC::FromRgb({0, 0, 255})};
    const Any none{};
};

TEST_F(Ambiguity, NeverHoldsForOneTargetWhateverIsForced)
{
    Target(panel, Holding({red}));
    Force(PropertyPath());
    Force(Path({L"color"}));

    EXPECT_FALSE(panel.IsAmbiguous());
    EXPECT_FALSE(panel.IsAmbiguous(kColor));
    EXPECT_FALSE(panel.IsAmbiguous(Path({L"gradient", L"start"})));
}

TEST_F(Ambiguity, NeverHoldsForOneNullTarget)
{
    Target(panel, {nullptr});
    Force(PropertyPath());

    EXPECT_FALSE(panel.IsAmbiguous());
}

TEST_F(Ambiguity, HoldsWithoutTargetsWhenItIsForced)
{
    Force(PropertyPath());

    EXPECT_TRUE(panel.IsAmbiguous());
    EXPECT_TRUE(panel.IsAmbiguous(kColor));
}

TEST_F(Ambiguity, DoesNotHoldWithoutTargetsUnlessItIsForced)
{
    EXPECT_FALSE(panel.IsAmbiguous());
    EXPECT_FALSE(panel.IsAmbiguous(kColor));
}

TEST_F(Ambiguity, HoldsForAForcedPathAlthoughTheTargetsAgree)
{
    Target(panel, Holding({red, red}));
    Force(Path({L"color"}));

    EXPECT_TRUE(panel.IsAmbiguous(kColor));
    EXPECT_FALSE(panel.IsAmbiguous(Key(L"type")));
}

TEST_F(Ambiguity, HoldsBelowAForcedPath)
{
    Target(panel, Holding({red, red}));
    Force(Path({L"gradient"}));

    EXPECT_TRUE(panel.IsAmbiguous(Path({L"gradient", L"start", L"color"})));
}

TEST_F(Ambiguity, DoesNotHoldAboveAForcedPath)
{
    Target(panel, Holding({red, red}));
    Force(Path({L"gradient", L"start"}));

    EXPECT_FALSE(panel.IsAmbiguous(Key(L"gradient")));
    EXPECT_FALSE(panel.IsAmbiguous());
}

TEST_F(Ambiguity, HoldsForEverythingBelowTheForcedEmptyPath)
{
    Target(panel, Holding({red, red}));
    Force(PropertyPath());

    EXPECT_TRUE(panel.IsAmbiguous());
    EXPECT_TRUE(panel.IsAmbiguous(kColor));
    EXPECT_TRUE(panel.IsAmbiguous(Path({L"gradient", L"start"})));
}

TEST_F(Ambiguity, OfTheEmptyPathHoldsOnlyWhenItIsForced)
{
    Target(panel, Holding({red, blue}));

    EXPECT_FALSE(panel.IsAmbiguous());
    EXPECT_FALSE(panel.IsAmbiguous(PropertyPath()));
    EXPECT_THAT(log.LinesOf({"panel.GetNumTargetStyles"}), IsEmpty()) << "no target is looked at";
}

/// The values of some targets, and whether these disagree.
struct AmbiguityRow
{
    const char* name;
    std::vector<Any> values;
    bool isAmbiguous;
};

Any Red()
{
    return Any(CLR_COLORSPEC::FromRgb({255, 0, 0}));
}

Any Blue()
{
    return Any(CLR_COLORSPEC::FromRgb({0, 0, 255}));
}

class AmbiguityOfValues : public Ambiguity, public testing::WithParamInterface<AmbiguityRow>
{
};

TEST_P(AmbiguityOfValues, FollowsTheFirstValueThatIsNotEmpty)
{
    Target(panel, Holding(GetParam().values));

    EXPECT_EQ(panel.IsAmbiguous(Path({L"color"})), GetParam().isAmbiguous);
    EXPECT_EQ(panel.IsAmbiguous(Key(L"color")), GetParam().isAmbiguous);
}

INSTANTIATE_TEST_SUITE_P(
    Table, AmbiguityOfValues,
    testing::Values(AmbiguityRow{"EmptyThenRed", {Any(), Red()}, false},
                    AmbiguityRow{"RedThenEmpty", {Red(), Any()}, true},
                    AmbiguityRow{"RedThenRed", {Red(), Red()}, false},
                    AmbiguityRow{"RedThenBlue", {Red(), Blue()}, true},
                    AmbiguityRow{"EmptyThenEmpty", {Any(), Any()}, false},
                    AmbiguityRow{"EmptyThenRedThenRed", {Any(), Red(), Red()}, false},
                    AmbiguityRow{"EmptyThenRedThenEmpty", {Any(), Red(), Any()}, true},
                    AmbiguityRow{"EmptyThenRedThenBlue", {Any(), Red(), Blue()}, true},
                    AmbiguityRow{"RedThenRedThenBlue", {Red(), Red(), Blue()}, true},
                    AmbiguityRow{"NumberThenNumber", {Any(1), Any(1)}, false},
                    AmbiguityRow{"NumberThenAnotherNumber", {Any(1), Any(2)}, true},
                    AmbiguityRow{"NumberThenText", {Any(1), Any(OvxStringT(L"1"))}, true},
                    AmbiguityRow{"NumberThenKey", {Any(1), Any(Key(L"1"))}, true},
                    AmbiguityRow{"TextThenKey", {Any(OvxStringT(L"solid")), Any(Key(L"solid"))}, true},
                    AmbiguityRow{"KeyThenKey", {Any(Key(L"solid")), Any(Key(L"solid"))}, false},
                    AmbiguityRow{"KeyThenAnotherKey", {Any(Key(L"solid")), Any(Key(L"hatch"))}, true},
                    AmbiguityRow{"TextThenText", {Any(OvxStringT(L"a")), Any(OvxStringT(L"a"))}, false}),
    [](const auto& row) { return row.param.name; });

TEST_F(Ambiguity, ComparesWhatIsInheritedToo)
{
    Style& base = styles.WithFill("base");
    FillOf(base).SetProperty(kColor, red);
    Style& inheriting = styles.WithFill("inheriting", &base);
    std::vector<Style*> targets = Holding({red});
    targets.push_back(&inheriting);

    Target(panel, targets);

    EXPECT_FALSE(panel.IsAmbiguous(kColor));
}

TEST_F(Ambiguity, PassesOverNullTargets)
{
    std::vector<Style*> targets = Holding({red, red});
    targets.insert(targets.begin() + 1, nullptr);

    Target(panel, targets);

    EXPECT_FALSE(panel.IsAmbiguous(kColor)) << "a null target between them has no value to disagree by";
}

TEST_F(Ambiguity, ComparesAtTheEndOfAPathThroughSubstyles)
{
    std::vector<Style*> targets = Holding({red, red});
    FillOf(*targets[0]).SetPathProperty(Path({L"gradient", L"start", L"color"}), Any(red));
    FillOf(*targets[1]).SetPathProperty(Path({L"gradient", L"start", L"color"}), Any(blue));

    Target(panel, targets);

    EXPECT_TRUE(panel.IsAmbiguous(Path({L"gradient", L"start", L"color"})));
}

TEST_F(Ambiguity, PassesOverTargetsWithoutASubstyleOnThePath)
{
    std::vector<Style*> targets = Holding({red, red, red});
    FillOf(*targets[0]).SetPathProperty(Path({L"gradient", L"start", L"color"}), Any(red));
    FillOf(*targets[2]).SetPathProperty(Path({L"gradient", L"start", L"color"}), Any(red));

    Target(panel, targets);

    EXPECT_FALSE(panel.IsAmbiguous(Path({L"gradient", L"start", L"color"})))
        << "unlike an empty value, a missing substyle does not disagree";
}

TEST_F(Ambiguity, AsksForNumberAndStylesThroughTheVirtualOperationsBeforeEachStep)
{
    Target(panel, Holding({blue, red}));
    const std::vector<Style*> others = Holding({red, none, red});
    std::size_t count = 2;
    panel.countsTargetStyles = [&count] { return count; };
    panel.givesTargetStyle = [&](std::size_t index)
    {
        count = 3;
        return index == 1 ? nullptr : &FillOf(*others[index]);
    };
    log.Clear();

    EXPECT_FALSE(panel.IsAmbiguous(kColor));

    EXPECT_THAT(log.LinesOf({"panel."}), ElementsAre("panel.GetNumTargetStyles()", "panel.GetTargetStyle(0)",
                                                     "panel.GetNumTargetStyles()", "panel.GetTargetStyle(1)",
                                                     "panel.GetNumTargetStyles()", "panel.GetTargetStyle(2)",
                                                     "panel.GetNumTargetStyles()"));
}

TEST_F(Ambiguity, CountsTheTargetsThemselvesWhenItAsksWhetherThereIsOne)
{
    Target(panel, Holding({red}));
    Force(Path({L"color"}));
    panel.countsTargetStyles = [] { return 2U; };

    EXPECT_FALSE(panel.IsAmbiguous(kColor));
}

TEST_F(Ambiguity, StopsAtTheFirstTargetThatDisagrees)
{
    Target(panel, Holding({red, blue, red}));
    log.Clear();

    EXPECT_TRUE(panel.IsAmbiguous(kColor));

    EXPECT_THAT(log.LinesOf({"panel.GetTargetStyle"}),
                ElementsAre("panel.GetTargetStyle(0)", "panel.GetTargetStyle(1)"));
}

TEST_F(Ambiguity, ComparesWithTheValueAsItWasWhenItWasRead)
{
    const std::vector<Style*> targets = Holding({red, red});
    Target(panel, targets);
    panel.givesTargetStyle = [&](std::size_t index)
    {
        if (index == 1)
            FillOf(*targets[0]).SetProperty(kColor, blue);
        return &FillOf(*targets[index]);
    };

    EXPECT_FALSE(panel.IsAmbiguous(kColor))
        << "asking for the second target changed where the first value lay";
}

TEST_F(Ambiguity, SurvivesThatTheFirstTargetsStyleGoesWhileTheSecondIsAskedFor)
{
    std::vector<Style*> targets = Holding({red, red});
    Target(panel, targets);
    panel.givesTargetStyle = [&](std::size_t index)
    {
        if (index == 1)
            targets[0]->SetSubstyle(FillStyleCategoryName, nullptr);
        return &FillOf(*targets[index]);
    };

    EXPECT_FALSE(panel.IsAmbiguous(kColor));
}

TEST_F(Ambiguity, MakesAMissingSubstyleOfTheCategory)
{
    Style& bare = styles.Whole("bare");
    std::vector<Style*> targets = Holding({red});
    targets.push_back(&bare);
    Target(panel, targets);
    bare.SetSubstyle(FillStyleCategoryName, nullptr);

    EXPECT_TRUE(panel.IsAmbiguous(kColor));

    EXPECT_NE(bare.GetSubstyle(FillStyleCategoryName, false), nullptr);
}

} // namespace
