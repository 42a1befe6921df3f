#include "apps/workbench/TargetHandover.h"

#include "apps/workbench/SelectionSearch.h"
#include "host/style_model/CategoryNames.h"
#include "tests/reference_host/document/FlatDrawing.h"
#include "tests/reference_host/document/SheetFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;
using Workbench::HandedTargets;
using Workbench::NamedStyleFacts;
using Workbench::PanelDescription;
using Workbench::TargetHandover;
using Workbench::TargetKind;

namespace
{

/// A data source that remembers what is handed in.
class RecordingPanel final : public BaseStylePropertiesDatasource
{
public:
    RecordingPanel() { FinishConstruction(); }

    using BaseStylePropertiesDatasource::SetTargetStyle;

    void SetTargetStyle(const std::vector<Styles::Style*>& newStyles, bool isDefault,
                        const Styles::PropertyPath& path,
                        const std::set<Styles::PropertyPath>& force) override
    {
        calls.emplace_back("targets");
        styles = newStyles;
        BaseStylePropertiesDatasource::SetTargetStyle(newStyles, isDefault, path, force);
    }

    void SetObjectStyles(const std::map<Styles::Style*, std::size_t>& newObjects) override
    {
        calls.emplace_back("objects");
        objects = newObjects;
        BaseStylePropertiesDatasource::SetObjectStyles(newObjects);
    }

    std::vector<std::string> calls;
    std::vector<Styles::Style*> styles;
    std::map<Styles::Style*, std::size_t> objects;

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override { return Styles::FillStyleCategoryName; }
};

PanelDescription PanelFor(TargetKind targets, const wchar_t* category = L"fill")
{
    PanelDescription description;
    description.category = category;
    description.targets = targets;
    return description;
}

class HandingIn : public testing::Test
{
protected:
    HandedTargets HandIn(const wchar_t* selector, const PanelDescription& description)
    {
        const auto selection = FindSelection(*opened.drawing, handover, Workbench::ParseSelector(selector));
        return handover.HandIn(panel, description, selection);
    }

    [[nodiscard]] ReferenceHost::DrawingObject& Object(const wchar_t* id) const { return *opened.Object(id); }

    [[nodiscard]] std::size_t NumberOf(const wchar_t* id) const
    {
        return reinterpret_cast<std::size_t>(&Object(id));
    }

    /// A rectangle without text, and one with two paragraphs, the second of two runs; and a named style.
    OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='Base'")
            .Automatic("text", "style:name='T1'", "<style:text-properties fo:font-weight='bold'/>")
            .Page("<draw:rect draw:style-name='Base'/><draw:rect><text:p>a</text:p>"
                  "<text:p>b<text:span text:style-name='T1'>c</text:span></text:p></draw:rect>")
            .Open();
    TargetHandover handover{*opened.drawing};
    RecordingPanel panel;
};

} // namespace

TEST_F(HandingIn, GivesTheStylesOfObjectsToPanelsOfObjects)
{
    HandIn(L"all", PanelFor(TargetKind::Objects));

    EXPECT_THAT(panel.styles, ElementsAre(Object(L"1/1").GetStyle(), Object(L"1/2").GetStyle()));
    EXPECT_THAT(panel.objects, UnorderedElementsAre(Pair(Object(L"1/1").GetStyle(), NumberOf(L"1/1")),
                                                    Pair(Object(L"1/2").GetStyle(), NumberOf(L"1/2"))));
}

TEST_F(HandingIn, GivesParagraphsToPanelsOfParagraphsAndObjectsWithoutTextForThemselves)
{
    HandIn(L"all", PanelFor(TargetKind::Paragraphs));

    auto& paragraphs = Object(L"1/2").GetParagraphs();
    EXPECT_THAT(panel.styles, ElementsAre(Object(L"1/1").GetStyle(), paragraphs.at(0).GetStyle(),
                                          paragraphs.at(1).GetStyle()));
    EXPECT_EQ(panel.objects.at(paragraphs.at(1).GetStyle()), NumberOf(L"1/2"));
}

TEST_F(HandingIn, GivesRunsToPanelsOfRuns)
{
    HandIn(L"id:1/2", PanelFor(TargetKind::Runs));

    auto& runs = Object(L"1/2").GetRuns();
    EXPECT_THAT(panel.styles,
                ElementsAre(runs.at(0).GetStyle(), runs.at(1).GetStyle(), runs.at(2).GetStyle()));
}

TEST_F(HandingIn, GivesObjectsBeforeTheTargetsThatArriveWithANotification)
{
    HandIn(L"all", PanelFor(TargetKind::Objects));

    EXPECT_THAT(panel.calls, ElementsAre("objects", "targets"));
}

TEST_F(HandingIn, TellsWhatThePanelHolds)
{
    const HandedTargets handed = HandIn(L"all", PanelFor(TargetKind::Objects));

    EXPECT_TRUE(handed.hasTargets);
    EXPECT_FALSE(handed.isDefaults);
    EXPECT_EQ(handed.styleName, L"");
}

TEST_F(HandingIn, GivesTheDefaultStyleAsSuch)
{
    const HandedTargets handed = HandIn(L"defaults", PanelFor(TargetKind::Runs));

    EXPECT_THAT(panel.styles, ElementsAre(&opened.drawing->GetDefaultStyle()));
    EXPECT_THAT(panel.objects, IsEmpty());
    EXPECT_TRUE(handed.isDefaults);
    EXPECT_EQ(handed.styleName, L"");
}

TEST_F(HandingIn, GivesANamedStyleItself)
{
    const HandedTargets handed = HandIn(L"sheet:Base", PanelFor(TargetKind::Runs));

    EXPECT_THAT(panel.styles, ElementsAre(opened.Named(L"Base")));
    EXPECT_THAT(panel.objects, IsEmpty());
    EXPECT_FALSE(handed.isDefaults);
    EXPECT_EQ(handed.styleName, L"Base");
}

TEST_F(HandingIn, ReplacesWhatWasHandedInBefore)
{
    HandIn(L"all", PanelFor(TargetKind::Objects));

    HandIn(L"id:1/1", PanelFor(TargetKind::Objects));

    EXPECT_EQ(panel.GetNumTargetStyles(), 1U);
    EXPECT_EQ(panel.objects.size(), 1U);
}

TEST(HandingInANamedStyleOfOneCategory, ReachesPanelsOfThatCategoryOnly)
{
    const OpenedDrawing opened = FlatDrawing().Named("style:name='Ink' sp:category='fill'").Page("").Open();
    const TargetHandover handover(*opened.drawing);
    const auto selection = FindSelection(*opened.drawing, handover, Workbench::ParseSelector(L"sheet:Ink"));
    RecordingPanel fill;
    RecordingPanel outline;

    const HandedTargets toFill = handover.HandIn(fill, PanelFor(TargetKind::Objects, L"fill"), selection);
    const HandedTargets toOutline =
        handover.HandIn(outline, PanelFor(TargetKind::Objects, L"outline"), selection);

    EXPECT_EQ(toFill.styleName, L"Ink");
    EXPECT_FALSE(toOutline.hasTargets);
}

TEST(NamedStyleOfAnObject, IsTheParentOfItsStyle)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='Mid_20_One'")
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='Mid_20_One'", "")
            .Page("<draw:rect draw:style-name='gr1'/><draw:g><draw:rect/></draw:g>")
            .Open();
    const TargetHandover handover(*opened.drawing);

    EXPECT_EQ(handover.NamedStyleOf(*opened.Object(L"1/1")), L"Mid One");
    EXPECT_EQ(handover.NamedStyleOf(*opened.Object(L"1/2")), L"");
    EXPECT_EQ(handover.NamedStyleOf(*opened.Object(L"1/2/1")), L"");
}

TEST(AncestorsOfANamedStyle, StandNearestFirst)
{
    const OpenedDrawing opened = FlatDrawing()
                                     .Named("style:name='standard'")
                                     .Named("style:name='Base' style:parent-style-name='standard'")
                                     .Named("style:name='Accent' style:parent-style-name='Base'")
                                     .Page("")
                                     .Open();
    const TargetHandover handover(*opened.drawing);

    EXPECT_THAT(handover.AncestorsOf(L"Accent"), ElementsAre(L"Base", L"standard"));
    EXPECT_THAT(handover.AncestorsOf(L"standard"), IsEmpty());
    EXPECT_THAT(handover.AncestorsOf(L"unknown"), IsEmpty());
}

TEST(NamedStyles, AreDescribedInTheOrderOfTheSheet)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='Base'")
            .Named("style:name='Mid_20_One' style:display-name='Middle' style:parent-style-name='Base'",
                   "<style:graphic-properties draw:stroke='none' draw:fill-color='#ff0000'/>"
                   "<style:text-properties fo:font-size='12pt'/>")
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='Mid_20_One'", "")
            .Page("<draw:rect draw:style-name='gr1'/><draw:g><draw:line draw:style-name='gr1'/></draw:g>")
            .Open();

    const auto facts = TargetHandover(*opened.drawing).DescribeNamedStyles();

    ASSERT_THAT(facts, testing::SizeIs(2));
    EXPECT_EQ(facts[0].name, L"Base");
    EXPECT_EQ(facts[0].parent, L"");
    EXPECT_EQ(facts[0].users, 0U);
    EXPECT_THAT(facts[0].own, IsEmpty());
    EXPECT_EQ(facts[1].name, L"Mid One");
    EXPECT_EQ(facts[1].displayName, L"Middle");
    EXPECT_EQ(facts[1].parent, L"Base");
    EXPECT_EQ(facts[1].category, L"style");
    EXPECT_THAT(facts[1].own, ElementsAre(L"character.size", L"fill.color", L"outline.type"));
    EXPECT_EQ(facts[1].users, 2U);
    EXPECT_FALSE(facts[1].isExternal);
}

namespace
{

class StylesOfASheet : public testing::Test
{
protected:
    StylesOfASheet()
    {
        folder.Write("house.fodg", HouseSheet());
        folder.Write("drawing.fodg", LinkedDrawing());
        opened = folder.Open("drawing.fodg");
    }

    SheetFolder folder;
    OpenedDrawing opened;
};

} // namespace

TEST_F(StylesOfASheet, AreDescribedBehindThoseOfTheDrawing)
{
    const auto facts = TargetHandover(*opened.drawing).DescribeNamedStyles();

    ASSERT_THAT(facts, testing::SizeIs(4));
    EXPECT_EQ(facts[0].name, L"Note");
    EXPECT_FALSE(facts[0].isExternal);
    EXPECT_EQ(facts[0].sheet, L"");
    EXPECT_EQ(facts[0].parent, L"House Base");
    EXPECT_EQ(facts[0].parentSheet, L"House");
    EXPECT_EQ(facts[2].name, L"House Box");
    EXPECT_EQ(facts[2].displayName, L"Box of the house");
    EXPECT_TRUE(facts[2].isExternal);
    EXPECT_EQ(facts[2].sheet, L"House");
    EXPECT_EQ(facts[2].parent, L"House Base");
    EXPECT_EQ(facts[2].users, 1U);
    EXPECT_EQ(facts[3].category, L"fill");
}

TEST_F(StylesOfASheet, AreNamedAsWhatObjectsInheritFrom)
{
    const TargetHandover handover(*opened.drawing);

    EXPECT_EQ(handover.NamedStyleOf(*opened.Object(L"1/1")), L"House Box");
    EXPECT_THAT(handover.AncestorsOf(L"House Box"), ElementsAre(L"House Base"));
    EXPECT_THAT(handover.AncestorsOf(L"Note"), ElementsAre(L"House Base"));
    EXPECT_EQ(handover.CategoryOf(L"House Ink"), L"fill");
}

TEST_F(StylesOfASheet, AreHandedInByTheirNames)
{
    const TargetHandover handover(*opened.drawing);
    const auto selection =
        FindSelection(*opened.drawing, handover, Workbench::ParseSelector(L"sheet:House Box"));
    RecordingPanel panel;

    const HandedTargets handed = handover.HandIn(panel, PanelFor(TargetKind::Objects), selection);

    EXPECT_THAT(panel.styles, ElementsAre(opened.drawing->FindStyle(L"House Box")));
    EXPECT_EQ(handed.styleName, L"House Box");
    EXPECT_THAT(handover.ParentsOfTargets(panel), ElementsAre(L"House Base"));
}

TEST_F(StylesOfASheet, AreMeantOnlyWhereTheDrawingHasNoneOfTheName)
{
    FlatDrawing drawing = LinkedDrawing();
    folder.Write("drawing.fodg", drawing.Named("style:name='House_20_Box'"));
    const OpenedDrawing hiding = folder.Open("drawing.fodg");
    const TargetHandover handover(*hiding.drawing);

    EXPECT_THAT(handover.GetExternalStyleNames(), ElementsAre(L"House Base", L"House Ink"));
    const auto facts = handover.DescribeNamedStyles();
    ASSERT_THAT(facts, testing::SizeIs(5));
    EXPECT_EQ(facts[1].users, 1U);
    EXPECT_EQ(facts[3].displayName, L"House Box");
    EXPECT_EQ(facts[3].users, 0U);
}

TEST_F(StylesOfASheet, AreReadOnlyWithoutALink)
{
    folder.Write("editing.fodg", EditingDrawing());
    const OpenedDrawing editing = folder.Open("editing.fodg");

    EXPECT_EQ(TargetHandover(*opened.drawing).ReadOnlySheetOf(L"House Box"), L"House");
    EXPECT_EQ(TargetHandover(*opened.drawing).ReadOnlySheetOf(L"Note"), L"");
    EXPECT_EQ(TargetHandover(*opened.drawing).ReadOnlySheetOf(L"unknown"), L"");
    EXPECT_EQ(TargetHandover(*editing.drawing).ReadOnlySheetOf(L"House Box"), L"");
}

TEST_F(HandingIn, TellsTheStylesThatTargetsInheritFromOnceEach)
{
    HandIn(L"all", PanelFor(TargetKind::Objects));

    EXPECT_THAT(handover.ParentsOfTargets(panel), ElementsAre(L"Base"));
}

TEST_F(HandingIn, TellsNoStylesForTargetsThatInheritFromNone)
{
    HandIn(L"sheet:Base", PanelFor(TargetKind::Objects));

    EXPECT_THAT(handover.ParentsOfTargets(panel), IsEmpty());
}

TEST(CategoryOfANamedStyle, IsStyleForAWholeOne)
{
    const OpenedDrawing opened =
        FlatDrawing().Named("style:name='Base'").Named("style:name='Ink' sp:category='fill'").Page("").Open();
    const TargetHandover handover(*opened.drawing);

    EXPECT_EQ(handover.CategoryOf(L"Base"), L"style");
    EXPECT_EQ(handover.CategoryOf(L"Ink"), L"fill");
    EXPECT_EQ(handover.CategoryOf(L"unknown"), L"");
}

TEST(CategoryOfGroups, IsTheOneThatGroupsOnDefaultStylesLandIn)
{
    EXPECT_TRUE(TargetHandover::IsCategoryOfGroups(L"fill"));
    EXPECT_FALSE(TargetHandover::IsCategoryOfGroups(L"outline"));
}

TEST(HostCategories, AreTheFiveOfEveryDrawing)
{
    for (const wchar_t* category : {L"style", L"fill", L"outline", L"paragraph", L"character"})
        EXPECT_TRUE(TargetHandover::IsHostCategory(category));
    EXPECT_FALSE(TargetHandover::IsHostCategory(L"shadow"));
}
