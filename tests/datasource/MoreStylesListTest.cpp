// The list of styles that do not fit into the drop-down, and the dialog that shows it.

#include "tests/datasource/support/StyleListTest.h"
#include "tests/host_pieces/HostPieces.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;

class MoreStylesList : public StyleListTest
{
protected:
    std::vector<std::string> Effects() const
    {
        return log.LinesOf({"source.Apply", "source.SetParent", "dialogs."});
    }
};

TEST_F(MoreStylesList, GoesOnWhereTheMainListEnds)
{
    NameFills(20);
    Target(panel, {&ObjectWithFill()});
    static_cast<void>(panel.GetStyleResourceList());

    const WXmlNode list = panel.GetNewStyleList();

    EXPECT_EQ(Column(list, L"@styleName").size(), 11U);
    EXPECT_EQ(ToText(list.GetChildren().front()),
              "<itemData type='statusText' text='S10' styleName='S10' enable='true' guid='' "
              "placeholderCommandID='9'>");
    EXPECT_EQ(AttributeOf(list, 10, L"@placeholderCommandID"), L"19");
}

TEST_F(MoreStylesList, LeavesOutTheCurrentStyleBeyondTheLimit)
{
    NameFills(20);
    Target(panel, {&ObjectWithFill(fills[11])});
    static_cast<void>(panel.GetStyleResourceList());

    const WXmlNode list = panel.GetNewStyleList();

    EXPECT_EQ(AttributeOf(list, 1, L"@styleName"), L"S11");
    EXPECT_EQ(AttributeOf(list, 2, L"@styleName"), L"S13");
    EXPECT_EQ(AttributeOf(list, 2, L"@placeholderCommandID"), L"11");
}

TEST_F(MoreStylesList, CountsTheCurrentStyleBeforeTheLimit)
{
    NameFills(20);
    Target(panel, {&ObjectWithFill(fills[0])});
    static_cast<void>(panel.GetStyleResourceList());

    EXPECT_EQ(AttributeOf(panel.GetNewStyleList(), 0, L"@styleName"), L"S10");
}

TEST_F(MoreStylesList, LeavesAmpersandsAsTheyAre)
{
    NameFills(18);
    NameInSheet(L"A&B", styles.OfCategory("ab", FillStyleCategoryName));
    Target(panel, {&ObjectWithFill()});
    static_cast<void>(panel.GetStyleResourceList());

    EXPECT_EQ(Column(panel.GetNewStyleList(), L"@text").back(), L"A&B");
}

TEST_F(MoreStylesList, IsNotFilteredByWhatInheritsFromTheTarget)
{
    NameFills(18);
    Style& child = styles.OfCategory("child", FillStyleCategoryName, fills[0]);
    NameInSheet(L"Child", child);
    NameFills(1);
    Target(panel, {fills[0]});
    static_cast<void>(panel.GetStyleResourceList());

    EXPECT_THAT(Column(panel.GetNewStyleList(), L"@styleName"), testing::Contains(OvxStringT(L"Child")));
}

TEST_F(MoreStylesList, BeginsBehindTheEighteenthNameWhenNothingOverflowed)
{
    NameFills(18);
    Target(panel, {&ObjectWithFill()});
    static_cast<void>(panel.GetStyleResourceList());

    EXPECT_THAT(panel.GetNewStyleList().GetChildren(), IsEmpty());
}

TEST_F(MoreStylesList, IsBuiltOnceForEachMainList)
{
    NameFills(20);
    Target(panel, {&ObjectWithFill()});
    static_cast<void>(panel.GetStyleResourceList());
    const WXmlNode first = panel.GetNewStyleList();

    EXPECT_EQ(panel.GetNewStyleList(), first);
    static_cast<void>(panel.GetStyleResourceList());
    EXPECT_FALSE(panel.GetNewStyleList() == first);
}

TEST_F(MoreStylesList, EndsWhereTheFirstTargetIsAskedForAndMissing)
{
    NameFills(20);
    static_cast<void>(panel.GetStyleResourceList());

    EXPECT_THAT(panel.GetNewStyleList().GetChildren(), IsEmpty());
}

TEST_F(MoreStylesList, IsEmptyWithoutASourceOrASheet)
{
    NameFills(20);
    Target(panel, {&ObjectWithFill()});
    source.sheet = nullptr;

    EXPECT_EQ(ToText(panel.GetNewStyleList()), "<placeholderData>");
    static_cast<void>(panel.GetStyleResourceList());
    app.source = nullptr;
    EXPECT_EQ(ToText(panel.GetNewStyleList()), "<placeholderData>");
}

TEST_F(MoreStylesList, AppliesItsFirstIdAtOnceAndOpensTheDialogForTheOthers)
{
    NameFills(20);
    Target(panel, {&ObjectWithFill()});
    static_cast<void>(panel.GetStyleResourceList());
    static_cast<void>(panel.GetNewStyleList());
    log.Clear();

    panel.SetApplyStyleResource(9);
    panel.SetApplyStyleResource(10);

    EXPECT_THAT(Effects(), ElementsAre("source.ApplyStyle(S10, reserved=false)",
                                       "dialogs.ShowDialog(494d1725-676f-484b-9453-fe7fb1958759, context)"));
}

TEST_F(MoreStylesList, ForgetsWhatWasChosenWhenItIsBuilt)
{
    NameFills(20);
    Target(panel, {&ObjectWithFill()});
    panel.SetCurrentListStyleItem(AnyItem());

    static_cast<void>(panel.GetNewStyleList());

    EXPECT_EQ(panel.Read<int>(L"BaseStylePropertiesDatasourceOkEnabled"), 0);
    EXPECT_FALSE(panel.Read<WXmlNode>(L"CurrentListStyleItem").IsValid());
}

TEST_F(MoreStylesList, EnablesOkOnceAnItemIsChosenAndTellsListeners)
{
    panel.ListenTo({L"BaseStylePropertiesDatasourceOkEnabled"});

    panel.Write<WXmlNode>(L"CurrentListStyleItem", AnyItem());

    EXPECT_EQ(panel.GetBaseStylePropertiesDatasourceOkEnabled(), 1);
    EXPECT_THAT(log.LinesOf({"notify"}), ElementsAre("notify BaseStylePropertiesDatasourceOkEnabled"));
}

TEST_F(MoreStylesList, AppliesTheChosenItemAndClosesTheDialogOnOk)
{
    NameFills(20);
    Target(panel, {&ObjectWithFill()});
    static_cast<void>(panel.GetStyleResourceList());
    panel.SetCurrentListStyleItem(panel.GetNewStyleList().GetChildren().at(4));
    log.Clear();

    panel.Invoke(L"OnBaseStylePropertiesDatasourceOk");

    EXPECT_THAT(Effects(), ElementsAre("source.ApplyStyle(S14, reserved=false)",
                                       "dialogs.CloseDialog(494d1725-676f-484b-9453-fe7fb1958759, 2, 0)"));
}

TEST_F(MoreStylesList, OnlyClosesTheDialogOnOkWithoutASheet)
{
    NameFills(20);
    Target(panel, {&ObjectWithFill(fills[0])});
    static_cast<void>(panel.GetStyleResourceList());
    panel.SetCurrentListStyleItem(panel.GetNewStyleList().GetChildren().at(4));
    source.sheet = nullptr;
    log.Clear();

    panel.OnBaseStylePropertiesDatasourceOk();

    EXPECT_THAT(Effects(), ElementsAre("dialogs.CloseDialog(494d1725-676f-484b-9453-fe7fb1958759, 2, 0)"));
}

TEST_F(MoreStylesList, DoesNothingOnOkWhileNoItemIsChosen)
{
    NameFills(20);
    Target(panel, {&ObjectWithFill()});
    log.Clear();

    panel.OnBaseStylePropertiesDatasourceOk();

    EXPECT_THAT(Effects(), IsEmpty());
}

TEST_F(MoreStylesList, KnowsObjectPropertiesByTheCurrentContext)
{
    EXPECT_EQ(panel.Read<WCmnUI_Guid>(L"PropertyPanelStateIdentifier"), WCmnUI_Guid(L"State.ObjectStyles"));

    HostPieces::UserInterface userInterface;
    userInterface.SetObjectPropertiesContext(&context);

    EXPECT_EQ(panel.GetPropertyPanelStateIdentifier(), WCmnUI_Guid(L"State.ObjectProperties"));
}

} // namespace
