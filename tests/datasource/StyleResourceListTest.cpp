// The drop-down of styles: what it offers, in which form, and what picking an entry does.

#include "host/resources/Resources.h"
#include "tests/datasource/support/ShownTexts.h"
#include "tests/datasource/support/StyleListTest.h"
#include "tests/host_pieces/HostPieces.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;

class StyleResourceList : public StyleListTest
{
};

TEST_F(StyleResourceList, IsEmptyWithoutATarget)
{
    NameFills(3);

    EXPECT_EQ(ToText(panel.GetStyleResourceList()), "<placeholderData>");
}

TEST_F(StyleResourceList, IsEmptyWithoutASourceOrASheet)
{
    Target(panel, {&ObjectWithFill()});

    source.sheet = nullptr;
    EXPECT_EQ(ToText(panel.GetStyleResourceList()), "<placeholderData>");
    app.source = nullptr;
    EXPECT_EQ(ToText(panel.GetStyleResourceList()), "<placeholderData>");
}

TEST_F(StyleResourceList, BeginsWithTheEntryForNoStyle)
{
    Target(panel, {&ObjectWithFill()});

    EXPECT_EQ(ToText(panel.GetStyleResourceList()), "<placeholderData>"
                                                    "<itemData type='statusText' styleName='' text='" +
                                                        Describe(ShownTexts::Of(ShownTexts::kNoStyle)) +
                                                        "' check='true' enable='true' guid='' "
                                                        "placeholderCommandID='0'>");
}

TEST_F(StyleResourceList, OffersANamedStyleToHaveNoParent)
{
    Style& named = styles.OfCategory("named", FillStyleCategoryName);
    NameInSheet(L"Named", named);
    Target(panel, {&named});

    EXPECT_EQ(AttributeOf(panel.GetStyleResourceList(), 0, L"@text"), ShownTexts::Of(ShownTexts::kNoParent));
}

TEST_F(StyleResourceList, WritesTheTextOfAStyleBeforeItsName)
{
    NameFills(1);
    Target(panel, {&ObjectWithFill()});

    EXPECT_EQ(ToText(panel.GetStyleResourceList().GetChildren().at(1)),
              "<itemData type='statusText' text='S1' styleName='S1' check='false' enable='true' guid='' "
              "placeholderCommandID='1'>");
}

TEST_F(StyleResourceList, ChecksTheParentOfTheFirstTargetAlone)
{
    NameFills(3);
    Target(panel, {&ObjectWithFill(fills[1])});

    EXPECT_THAT(Column(panel.GetStyleResourceList(), L"@check"),
                ElementsAre(L"false", L"false", L"true", L"false"));
}

TEST_F(StyleResourceList, OffersNeitherTheTargetNorWhatInheritsFromIt)
{
    NameFills(2);
    Style& child = styles.OfCategory("child", FillStyleCategoryName, fills[0]);
    NameInSheet(L"Child", child);
    Style& grandchild = styles.OfCategory("grandchild", FillStyleCategoryName, &child);
    NameInSheet(L"Grandchild", grandchild);
    Target(panel, {fills[0]});

    EXPECT_THAT(Column(panel.GetStyleResourceList(), L"@styleName"), ElementsAre(L"", L"S2"));
}

TEST_F(StyleResourceList, KeepsTheParentWithoutAskingWhatItDependsOn)
{
    NameFills(2);
    fills[1]->SetParent(fills[0]);
    Target(panel, {fills[1]});

    EXPECT_THAT(Column(panel.GetStyleResourceList(), L"@styleName"), ElementsAre(L"", L"S1"));
}

TEST_F(StyleResourceList, PassesOverANameThatTheSheetCannotFind)
{
    NameFills(2);
    Target(panel, {&ObjectWithFill()});
    sheet.unresolvedNames = {L"S1"};

    EXPECT_THAT(Column(panel.GetStyleResourceList(), L"@styleName"), ElementsAre(L"", L"S2"));
}

TEST_F(StyleResourceList, LooksEachNameUpOnce)
{
    NameFills(4);
    Target(panel, {&ObjectWithFill()});
    log.Clear();

    static_cast<void>(panel.GetStyleResourceList());

    EXPECT_EQ(log.LinesOf({"sheet.GetStyle("}).size(), 4U);
}

TEST_F(StyleResourceList, HoldsEighteenNamesWithoutOverflow)
{
    NameFills(18);
    Target(panel, {&ObjectWithFill()});

    const std::vector<OvxStringT> ids = Column(panel.GetStyleResourceList(), L"@placeholderCommandID");

    EXPECT_EQ(ids.size(), 19U);
    EXPECT_EQ(ids.back(), L"18");
}

TEST_F(StyleResourceList, ShowsNineOfNineteenAndTheEntryForMore)
{
    NameFills(19);
    Target(panel, {&ObjectWithFill()});

    const OvxStringT more = ShownTexts::Of(ShownTexts::kMoreStyles);

    const WXmlNode list = panel.GetStyleResourceList();

    EXPECT_THAT(Column(list, L"@styleName"),
                ElementsAre(L"", L"S1", L"S2", L"S3", L"S4", L"S5", L"S6", L"S7", L"S8", L"S9", more));
    EXPECT_EQ(ToText(list.GetChildren().back()), "<itemData type='statusText' text='" + Describe(more) +
                                                     "' styleName='" + Describe(more) +
                                                     "' placeholderCommandID='10'>");
}

TEST_F(StyleResourceList, HoldsAllNamesAgainWhenNoMoreThanEighteenAreLeft)
{
    NameFills(19);
    Target(panel, {&ObjectWithFill()});
    static_cast<void>(panel.GetStyleResourceList());
    sheet.entries.pop_back();

    const std::vector<OvxStringT> ids = Column(panel.GetStyleResourceList(), L"@placeholderCommandID");

    EXPECT_EQ(ids.size(), 19U);
    EXPECT_EQ(ids.back(), L"18");
}

TEST_F(StyleResourceList, ShowsTheCurrentStyleFromBeyondTheLimit)
{
    NameFills(19);
    Target(panel, {&ObjectWithFill(fills[14])});

    const WXmlNode list = panel.GetStyleResourceList();

    EXPECT_EQ(AttributeOf(list, 10, L"@styleName"), L"S15");
    EXPECT_EQ(AttributeOf(list, 10, L"@placeholderCommandID"), L"10");
    EXPECT_EQ(AttributeOf(list, 11, L"@placeholderCommandID"), L"11");
}

TEST_F(StyleResourceList, CountsWhatIsOfferedAndNotWhatTheSheetHolds)
{
    NameFills(19);
    Target(panel, {fills[0]});

    EXPECT_EQ(panel.GetStyleResourceList().GetChildren().size(), 19U);
}

TEST_F(StyleResourceList, DoublesAmpersandsInTextAndName)
{
    NameInSheet(L"A&B", styles.OfCategory("ab", FillStyleCategoryName));
    Target(panel, {&ObjectWithFill()});

    const WXmlNode list = panel.GetStyleResourceList();

    EXPECT_EQ(AttributeOf(list, 1, L"@text"), L"A&&B");
    EXPECT_EQ(AttributeOf(list, 1, L"@styleName"), L"A&&B");
}

TEST_F(StyleResourceList, NeverChecksANameWithAnAmpersand)
{
    Style& both = styles.OfCategory("ab", FillStyleCategoryName);
    NameInSheet(L"A&B", both);
    Target(panel, {&ObjectWithFill(&both)});

    EXPECT_THAT(Column(panel.GetStyleResourceList(), L"@check"), ElementsAre(L"false", L"false"));
}

TEST_F(StyleResourceList, HoldsTheMemoryOfOneListHoweverOftenItIsOpened)
{
    NameFills(30);
    Target(panel, {&ObjectWithFill()});
    static_cast<void>(panel.GetStyleResourceList());
    const auto treesBefore = HostPieces::CountLiveXmlTrees();
    if (!treesBefore)
        GTEST_SKIP() << "the host does not count them";

    for (int opened = 0; opened < 10'000; ++opened)
    {
        log.Clear();
        static_cast<void>(panel.Read<WXmlNode>(L"StyleResourceList"));
    }

    EXPECT_EQ(HostPieces::CountLiveXmlTrees(), treesBefore);
}

TEST_F(StyleResourceList, IsACommandWhoseIdReadsZero)
{
    EXPECT_EQ(panel.Read<unsigned>(L"ApplyStyleResource"), 0U);
}

class PickingAStyle : public StyleListTest
{
protected:
    /// Builds the main list and forgets what that asked.
    void Open()
    {
        static_cast<void>(panel.GetStyleResourceList());
        log.Clear();
    }

    std::vector<std::string> Effects() const
    {
        return log.LinesOf(
            {"source.Apply", "source.SetParent", "source.Replace", "panel.SetNoParent", "dialogs."});
    }
};

TEST_F(PickingAStyle, AppliesItToObjects)
{
    NameFills(2);
    Target(panel, {&ObjectWithFill()});
    Open();

    panel.Write<unsigned>(L"ApplyStyleResource", 2U);

    EXPECT_THAT(Effects(), ElementsAre("source.ApplyStyle(S2, reserved=false)"));
}

TEST_F(PickingAStyle, MakesItTheParentOfANamedStyle)
{
    NameFills(2);
    Target(panel, {fills[0]});
    Open();

    panel.SetApplyStyleResource(1);

    EXPECT_THAT(Effects(), ElementsAre("source.SetParent(target=S1, parent=S2, reserved=true)"));
}

TEST_F(PickingAStyle, DoesNothingForTheCurrentOne)
{
    NameFills(2);
    Target(panel, {&ObjectWithFill(fills[1])});
    Open();

    panel.SetApplyStyleResource(2);

    EXPECT_THAT(Effects(), IsEmpty());
}

TEST_F(PickingAStyle, DoesNothingForTheCurrentOneFromBeyondTheLimit)
{
    NameFills(19);
    Target(panel, {&ObjectWithFill(fills[14])});
    Open();

    panel.SetApplyStyleResource(10);

    EXPECT_THAT(Effects(), IsEmpty()) << "the entry for more has the id 11";
}

TEST_F(PickingAStyle, DoesNothingForAnUnknownId)
{
    NameFills(2);
    Target(panel, {&ObjectWithFill()});
    Open();

    panel.SetApplyStyleResource(3);
    panel.SetApplyStyleResource(0xFFFFFFFFU);

    EXPECT_THAT(Effects(), IsEmpty());
}

TEST_F(PickingAStyle, RemovesTheParentByTheEntryForNoStyle)
{
    NameFills(2);
    fills[1]->SetParent(fills[0]);
    Target(panel, {fills[1]});
    Open();

    panel.SetApplyStyleResource(0);

    ASSERT_EQ(Effects().size(), 2U);
    EXPECT_EQ(Effects().front(), "panel.SetNoParent(source, S2)");
}

TEST_F(PickingAStyle, FindsNoStyleByAnEscapedName)
{
    NameInSheet(L"A&B", styles.OfCategory("ab", FillStyleCategoryName));
    Target(panel, {&ObjectWithFill()});
    Open();

    panel.SetApplyStyleResource(1);

    EXPECT_THAT(Effects(), IsEmpty());
    EXPECT_EQ(log.LinesOf({"sheet.GetStyle("}), std::vector<std::string>{"sheet.GetStyle(A&&B)"});
}

TEST_F(PickingAStyle, OpensTheDialogOfTheCategoryBeyondTheMainList)
{
    NameFills(19);
    Target(panel, {&ObjectWithFill()});
    Open();

    panel.SetApplyStyleResource(10);

    EXPECT_THAT(Effects(), ElementsAre("dialogs.ShowDialog(494d1725-676f-484b-9453-fe7fb1958759, context)"));
}

TEST_F(PickingAStyle, OpensNoDialogForACategoryWithoutOne)
{
    panel.category = Key(L"shadow");
    for (int number = 1; number <= 19; ++number)
        NameInSheet(Numbered(number).c_str(), styles.OfCategory("shadow", Key(L"shadow")));
    Target(panel, {&styles.OfCategory("target", Key(L"shadow"))});
    Open();

    panel.SetApplyStyleResource(10);

    EXPECT_THAT(Effects(), IsEmpty());
}

TEST_F(PickingAStyle, OpensNothingWithoutADialogService)
{
    NameFills(19);
    Target(panel, {&ObjectWithFill()});
    Open();

    context.dialogs = nullptr;
    panel.SetApplyStyleResource(10);
    panel.SetDataSourceProvider(nullptr);
    panel.SetApplyStyleResource(10);

    EXPECT_THAT(Effects(), IsEmpty());
}

TEST_F(PickingAStyle, AsksNothingWithoutASheet)
{
    NameFills(2);
    Target(panel, {&ObjectWithFill()});
    Open();
    source.sheet = nullptr;

    panel.SetApplyStyleResource(1);

    EXPECT_THAT(Effects(), IsEmpty());
}

struct CategoryDialog
{
    PropertyKey category;
    const char* dialog;
};

TEST_F(PickingAStyle, HasADialogForEachOfFourCategories)
{
    for (const CategoryDialog& each :
         {CategoryDialog{OutlineStyleCategoryName, "0b965e6d-2a66-4c2f-a255-3f788991c9dc"},
          CategoryDialog{FillStyleCategoryName, "494d1725-676f-484b-9453-fe7fb1958759"},
          CategoryDialog{GetParagraphStyleCategoryName(), "fb799669-a363-408d-bf0a-b2d3ea840de3"},
          CategoryDialog{GetCharacterStyleCategoryName(), "ead5c24a-060b-44d8-acf5-1d8df2e00d17"}})
    {
        panel.category = each.category;
        panel.SetCurrentListStyleItem(AnyItem());
        log.Clear();

        panel.OnBaseStylePropertiesDatasourceOk();

        EXPECT_THAT(Effects(), ElementsAre("dialogs.CloseDialog(" + std::string(each.dialog) + ", 2, 0)"));
    }
}

} // namespace
