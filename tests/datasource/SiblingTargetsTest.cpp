// Whose targets a data source shows besides its own.

#include "host/style_model/CategoryNames.h"
#include "tests/datasource/support/HostedTest.h"
#include "tests/datasource/support/RecordingContext.h"
#include "tests/host_pieces/HostPieces.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;

/// Two panels tied to the first, each with targets to give. Fill substyles are named after their owners.
class SiblingTargets : public HostedTest
{
protected:
    SiblingTargets()
    {
        panel.RegisterSiblingDS(&first);
        panel.RegisterSiblingDS(&second);
    }

    /// The panel's targets by name.
    std::string Shown() const { return log.NamesOfStyles(panel.GetTargetStyles()); }

    Style& own = styles.WithFill("own");
    Style& a = styles.WithFill("a");
    Style& b = styles.WithFill("b");
    Style& c = styles.WithFill("c");
    RecordingPanel first{log, "first"};
    RecordingPanel second{log, "second"};
};

TEST_F(SiblingTargets, FollowTheOwnOnesInTheOrderOfSiblingsAndThenOfTheirTargets)
{
    Target(first, {&b, &a});
    Target(second, {&c});

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, b.fill, a.fill, c.fill]");
    EXPECT_EQ(panel.GetNumTargetStyles(), 4U);
}

TEST_F(SiblingTargets, AreTheStylesThatTheSiblingShowsForThem)
{
    first.category = OutlineStyleCategoryName;
    Target(first, {&a});

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, a.outline]");
}

TEST_F(SiblingTargets, AreAskedThroughTheSiblingsOwnOperations)
{
    first.countsTargetStyles = [] { return 2U; };
    first.givesTargetStyle = [this](std::size_t index) { return index == 0 ? &c : &b; };

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, c, b]");
}

TEST_F(SiblingTargets, StandAloneWithoutOwnTargets)
{
    Target(first, {&a});

    Target(panel, {});

    EXPECT_EQ(Shown(), "[a.fill]");
    EXPECT_TRUE(panel.HasTargets());
}

TEST_F(SiblingTargets, AreMergedTwiceWhenTheSiblingIsRegisteredTwice)
{
    Target(first, {&a});
    panel.RegisterSiblingDS(&first);

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, a.fill, a.fill]");
}

TEST_F(SiblingTargets, ShowFromTheNextNewTargetsOn)
{
    panel.UnregisterSiblingDS(&first);
    Target(panel, {&own});
    Target(first, {&a});

    panel.RegisterSiblingDS(&first);

    EXPECT_EQ(Shown(), "[own]");
}

TEST_F(SiblingTargets, StayUntilTheNextNewTargetsWhenTheSiblingIsUnregistered)
{
    Target(first, {&a});
    Target(panel, {&own});

    panel.UnregisterSiblingDS(&first);

    EXPECT_EQ(Shown(), "[own, a.fill]");
}

TEST_F(SiblingTargets, AreGoneWithTheNextNewTargetsWhenTheSiblingIsUnregistered)
{
    Target(first, {&a});
    Target(panel, {&own});
    panel.UnregisterSiblingDS(&first);

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own]");
}

TEST_F(SiblingTargets, AreNotTakenFromASiblingOnDefaultStyles)
{
    Target(first, {&a}, /*isDefault=*/true);
    Target(second, {&b});

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, b.fill]");
}

TEST_F(SiblingTargets, AreNotTakenFromASiblingThatServesObjectProperties)
{
    RecordingContext context(log);
    HostPieces::UserInterface userInterface;
    userInterface.SetObjectPropertiesContext(&context);
    first.SetDataSourceProvider(&context);
    first.Complete();
    Target(first, {&a});
    Target(second, {&b});

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, b.fill]");
}

TEST_F(SiblingTargets, AreNotAskedForWhereTheSiblingIsPassedOver)
{
    Target(first, {&a}, /*isDefault=*/true);
    log.Clear();

    Target(panel, {&own});

    EXPECT_THAT(log.LinesOf({"first."}), IsEmpty());
}

TEST_F(SiblingTargets, AreTakenFromOthersWhenASiblingIsNull)
{
    panel.UnregisterSiblingDS(&first);
    panel.UnregisterSiblingDS(&second);
    panel.RegisterSiblingDS(nullptr);
    panel.RegisterSiblingDS(&second);
    Target(second, {&b});

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, b.fill]");
}

TEST_F(SiblingTargets, AreNotTakenFromTheDataSourceItself)
{
    panel.RegisterSiblingDS(&panel);
    Target(first, {&a});

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, a.fill]");
}

TEST_F(SiblingTargets, AreTheOnesMergedSoFarWhenSiblingsAreMutual)
{
    first.RegisterSiblingDS(&panel);
    Target(panel, {&own});

    Target(first, {&a});
    Target(panel, {&own});

    EXPECT_EQ(log.NamesOfStyles(first.GetTargetStyles()), "[a, own.fill]");
    EXPECT_EQ(Shown(), "[own, a.fill, own.fill]");
}

TEST_F(SiblingTargets, ThatAreNullAreLeftOut)
{
    Target(first, {nullptr, &a, nullptr});

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, a.fill]");
}

TEST_F(SiblingTargets, LeaveOwnNullTargetsInPlace)
{
    Target(first, {&a});

    Target(panel, {nullptr, &own, nullptr});

    EXPECT_EQ(Shown(), "[null, own, null, a.fill]");
}

TEST_F(SiblingTargets, AreCountedAnewAfterEachOne)
{
    std::size_t count = 1;
    first.countsTargetStyles = [&count] { return count; };
    first.givesTargetStyle = [&count, this](std::size_t index)
    {
        count = 3;
        return index == 1 ? nullptr : &a;
    };
    log.Clear();

    Target(panel, {&own});

    EXPECT_THAT(log.LinesOf({"first."}), ElementsAre("first.GetNumTargetStyles()", "first.GetTargetStyle(0)",
                                                     "first.GetNumTargetStyles()", "first.GetTargetStyle(1)",
                                                     "first.GetNumTargetStyles()", "first.GetTargetStyle(2)",
                                                     "first.GetNumTargetStyles()"));
    EXPECT_EQ(Shown(), "[own, a, a]");
}

TEST_F(SiblingTargets, AreNoLongerAskedForWhenTheirNumberShrinks)
{
    std::size_t count = 3;
    first.countsTargetStyles = [&count] { return count; };
    first.givesTargetStyle = [&count, this](std::size_t)
    {
        count = 1;
        return &a;
    };

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, a]");
}

TEST_F(SiblingTargets, TakeThePlaceOfOwnDefaultStyles)
{
    Target(first, {&a});

    Target(panel, {&own}, /*isDefault=*/true);

    EXPECT_EQ(Shown(), "[a.fill]");
    EXPECT_TRUE(panel.AreTargetsDefaultStyles());
}

TEST_F(SiblingTargets, LeaveOwnDefaultStylesWhenThereAreNone)
{
    Target(panel, {&own}, /*isDefault=*/true);

    EXPECT_EQ(Shown(), "[own]");
}

TEST_F(SiblingTargets, LeaveOwnDefaultStylesWhenAllOfThemAreNull)
{
    Target(first, {nullptr});

    Target(panel, {&own, &own}, /*isDefault=*/true);

    EXPECT_EQ(Shown(), "[own, own]");
}

TEST_F(SiblingTargets, NameTheStyleWhereTheyTakeThePlaceOfDefaultStyles)
{
    NameInSheet(L"A", a);
    first.category = StyleCategoryName;
    Target(first, {&a});

    Target(panel, {&own}, /*isDefault=*/true);

    EXPECT_EQ(panel.IsStyle(), 1);
}

TEST_F(SiblingTargets, LeaveTheStyleWithoutANameWhereTheyHaveNone)
{
    NameInSheet(L"Own", own);
    Target(first, {&a});

    Target(panel, {&own}, /*isDefault=*/true);

    EXPECT_EQ(panel.IsStyle(), 0) << "the own style is named, but it is not shown";
}

TEST_F(SiblingTargets, DoNotChangeTheTitle)
{
    Style& base = styles.WithFill("base");
    NameInSheet(L"Base", base);
    a.SetParent(&base);
    Target(first, {&a});

    Target(panel, {&own}, /*isDefault=*/true);

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill") << "the own style has no parent, only the sibling's has";
}

/// A sibling with character styles: one of that category, one held by such a style, and one that is neither.
class CharacterSiblingTargets : public SiblingTargets
{
protected:
    CharacterSiblingTargets()
    {
        first.countsTargetStyles = [] { return 3U; };
        first.givesTargetStyle = [this](std::size_t index) {
            return index == 0 ? &character : index == 1 ? &FillOf(character) : &FillOf(a);
        };
    }

    Style& character = styles.OfCategory("character", GetCharacterStyleCategoryName());
};

TEST_F(CharacterSiblingTargets, AreLeftOutWithWhatTheyHoldWhenTheSourceSaysSo)
{
    source.ignoresCharacterStyleSiblings = true;

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, a.fill]");
}

TEST_F(CharacterSiblingTargets, AreMergedWhenTheSourceDoesNotSaySo)
{
    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, character, character.fill, a.fill]");
}

TEST_F(CharacterSiblingTargets, AreMergedWithoutASource)
{
    source.ignoresCharacterStyleSiblings = true;
    app.source = nullptr;

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, character, character.fill, a.fill]");
}

TEST_F(CharacterSiblingTargets, StayAmongTheOwnTargets)
{
    source.ignoresCharacterStyleSiblings = true;

    Target(panel, {&character, &own});

    EXPECT_EQ(Shown(), "[character, own, a.fill]");
}

TEST_F(CharacterSiblingTargets, AreJudgedByTheOwnerAndNoFurther)
{
    source.ignoresCharacterStyleSiblings = true;
    Style& nested = FillOf(*FillOf(character).GetSubstyleAndCreateIfMissing(Key(L"frame"), Key(L"frame")));
    first.countsTargetStyles = [] { return 1U; };
    first.givesTargetStyle = [&nested](std::size_t) { return &nested; };

    Target(panel, {&own});

    EXPECT_EQ(Shown(), "[own, character.fill.frame.fill]");
}

} // namespace
