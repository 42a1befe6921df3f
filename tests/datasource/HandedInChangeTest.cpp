// Changes that others made and hand in: as the style that holds them, or as a whole substyle.

#include "tests/datasource/support/WritingTest.h"

#include <algorithm>

namespace
{

using namespace Styles;
using OvxUtils::Any;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class HandedInChange : public WritingTest
{
protected:
    HandedInChange()
    {
        Target(panel, {&styles.WithFill("box")});
        log.Clear();
    }

    /// What the router was handed.
    std::vector<std::string> Routed() const { return log.LinesOf({"panel.ModifyStyles(paths"}); }
};

TEST_F(HandedInChange, IsRoutedAtThePathsOfWhatItSets)
{
    panel.ModifyStyles(Change(3), nullptr);

    EXPECT_THAT(Routed(),
                ElementsAre("panel.ModifyStyles(paths=[color], fill{color=3}, overridePaths=null)"));
}

TEST_F(HandedInChange, IsRoutedInTheOrderOfTheKeys)
{
    auto change = Change(3);
    change->SetProperty(Key(L"type"), Any(1));
    PropertyPaths expected = Paths({L"color", L"type"});
    std::sort(expected.begin(), expected.end());

    panel.ModifyStyles(std::move(change), nullptr);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=" + Describe(expected) +
                                      ", fill{color=3, type=1}, overridePaths=null)"));
}

TEST_F(HandedInChange, DoesNotListItsSubstyles)
{
    auto change = Change(3);
    change->SetPathProperty(Path({L"gradient", L"start"}), Any(1));

    panel.ModifyStyles(std::move(change), nullptr);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=3, gradient.start=1}, "
                                      "overridePaths=null)"));
}

TEST_F(HandedInChange, ListsOnlyWhatItSetsItself)
{
    auto base = Change(1);
    auto change = std::make_unique<Style>(base.get(), FillStyleCategoryName);
    change->SetProperty(Key(L"type"), Any(2));

    panel.ModifyStyles(std::move(change), nullptr);

    EXPECT_EQ(modifier.Last().paths, "[fill.type]");
}

TEST_F(HandedInChange, IsRoutedWithoutPathsWhereItSetsNothing)
{
    panel.ModifyStyles(std::make_unique<Style>(nullptr, FillStyleCategoryName), nullptr);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[], fill{}, overridePaths=null)"));
}

TEST_F(HandedInChange, ThatIsNullIsNotRouted)
{
    const PropertyPaths overridePaths = Paths({L"color"});

    panel.ModifyStyles(nullptr, &overridePaths);

    EXPECT_THAT(Routed(), IsEmpty());
    EXPECT_THAT(log.LinesOf({"modifier."}), IsEmpty());
}

TEST_F(HandedInChange, KeepsItsOverridePaths)
{
    const PropertyPaths overridePaths = Paths({L"type"});

    panel.ModifyStyles(Change(3), &overridePaths);

    EXPECT_THAT(Routed(),
                ElementsAre("panel.ModifyStyles(paths=[color], fill{color=3}, overridePaths=[type])"));
}

TEST_F(HandedInChange, KeepsItsOwnCategory)
{
    panel.ModifyStyles(Change(3, OutlineStyleCategoryName), nullptr);

    EXPECT_THAT(Routed(),
                ElementsAre("panel.ModifyStyles(paths=[color], outline{color=3}, overridePaths=null)"));
}

TEST_F(HandedInChange, IsRoutedWithoutTargets)
{
    Target(panel, {});
    panel.hasTargets = false;
    log.Clear();

    panel.ModifyStyles(Change(3), nullptr);

    EXPECT_THAT(Steps(), ElementsAre("panel.ModifyStyles", "modifier.Begin", "modifier.End"));
}

TEST_F(HandedInChange, ComesInThroughTheInterfaceForOthers)
{
    const IGetModifyStyles& modifies = panel;

    modifies.ModifyStyles(Change(3), nullptr);

    EXPECT_THAT(modifier.changes, SizeIs(1));
}

class HandedInSubstyle : public HandedInChange
{
protected:
    HandedInSubstyle() { gradient.SetProperty(Key(L"start"), Any(5)); }

    Style gradient{nullptr, Key(L"gradient")};
};

TEST_F(HandedInSubstyle, IsRoutedInAChangeOfThePanelWithItsKeyInFrontOfEveryPath)
{
    panel.ModifySubstyles(Paths({L"start", L"end"}), &gradient, Key(L"gradient"), nullptr);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[gradient.start, gradient.end], "
                                      "fill{gradient.start=5}, overridePaths=null)"));
}

TEST_F(HandedInSubstyle, TakesTheKeyInFrontOfTheOverridePathsToo)
{
    const PropertyPaths overridePaths = {Path({L"start"}), Path({L"stops", L"first"})};

    panel.ModifySubstyles({}, &gradient, Key(L"gradient"), &overridePaths);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[], fill{gradient.start=5}, "
                                      "overridePaths=[gradient.start, gradient.stops.first])"));
}

TEST_F(HandedInSubstyle, KeepsAnEmptyOverrideListApartFromNone)
{
    const PropertyPaths overridePaths;

    panel.ModifySubstyles(Paths({L"start"}), &gradient, Key(L"gradient"), &overridePaths);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[gradient.start], fill{gradient.start=5}, "
                                      "overridePaths=[])"));
}

TEST_F(HandedInSubstyle, LeavesTheListsOfItsCallerAlone)
{
    const PropertyPaths paths = Paths({L"start"});
    const PropertyPaths overridePaths = Paths({L"end"});

    panel.ModifySubstyles(paths, &gradient, Key(L"gradient"), &overridePaths);

    EXPECT_EQ(paths, Paths({L"start"}));
    EXPECT_EQ(overridePaths, Paths({L"end"}));
}

TEST_F(HandedInSubstyle, IsCopied)
{
    panel.ModifySubstyles(Paths({L"start"}), &gradient, Key(L"gradient"), nullptr);

    EXPECT_EQ(gradient.GetOwner(), nullptr);
    EXPECT_EQ(gradient.GetProperty(Key(L"start")), Any(5));
}

TEST_F(HandedInSubstyle, ThatIsNullResetsItsPaths)
{
    panel.ModifySubstyles(Paths({L"start"}), nullptr, Key(L"gradient"), nullptr);

    EXPECT_THAT(Routed(),
                ElementsAre("panel.ModifyStyles(paths=[gradient.start], fill{}, overridePaths=null)"));
}

TEST_F(HandedInSubstyle, IsRoutedWithoutTargets)
{
    Target(panel, {});
    panel.hasTargets = false;
    log.Clear();

    panel.ModifySubstyles(Paths({L"start"}), &gradient, Key(L"gradient"), nullptr);

    EXPECT_THAT(Routed(), SizeIs(1));
}

TEST_F(HandedInSubstyle, TravelsInAChangeOfTheDerivedCategory)
{
    panel.category = OutlineStyleCategoryName;

    panel.ModifySubstyles(Paths({L"start"}), &gradient, Key(L"dash"), nullptr);

    EXPECT_THAT(Routed(), ElementsAre("panel.ModifyStyles(paths=[dash.start], outline{dash.start=5}, "
                                      "overridePaths=null)"));
}

} // namespace
