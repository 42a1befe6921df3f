#include "apps/workbench/SelectionSearch.h"

#include "apps/workbench/SelectionError.h"
#include "tests/reference_host/document/FlatDrawing.h"
#include "tests/reference_host/document/SheetFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;
using Workbench::FindSelection;
using Workbench::ParseSelector;
using Workbench::Selection;
using Workbench::SelectorScope;
using Workbench::TargetHandover;

namespace
{

/// Two pages: two rectangles and a group that holds an ellipse and a group with a line; and a circle.
FlatDrawing Sketch()
{
    return FlatDrawing()
        .Named("style:name='Base'")
        .Named("style:name='Mid_20_One' style:display-name='Middle' style:parent-style-name='Base'")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'", "")
        .Automatic("graphic", "style:name='gr2' style:parent-style-name='Mid_20_One'", "")
        .Page("<draw:rect draw:name='Box 1' draw:style-name='gr1'/>"
              "<draw:rect draw:name='Box 2' draw:style-name='gr2'/>"
              "<draw:g draw:name='Pair'><draw:ellipse draw:style-name='gr1'/>"
              "<draw:g><draw:line draw:name='Edge' draw:style-name='gr2'/></draw:g></draw:g>")
        .Page("<draw:circle draw:name='Box, round' draw:style-name='gr1'/>");
}

class SearchForASelection : public testing::Test
{
protected:
    void Use(const FlatDrawing& drawing) { opened = drawing.Open(); }

    Selection Find(const wchar_t* selector)
    {
        return FindSelection(*opened.drawing, TargetHandover(*opened.drawing), ParseSelector(selector));
    }

    std::vector<OvxStringT> IdsOf(const wchar_t* selector)
    {
        std::vector<OvxStringT> ids;
        for (const ReferenceHost::DrawingObject* object : Find(selector).objects)
            ids.push_back(object->GetId());
        return ids;
    }

    /// The error of a selector, without the file in front.
    std::string ErrorOf(const wchar_t* selector)
    {
        try
        {
            static_cast<void>(Find(selector));
        }
        catch (const Workbench::SelectionError& error)
        {
            const std::string file = opened.drawing->GetPath().string() + ": ";
            const std::string text = error.what();
            return text.starts_with(file) ? text.substr(file.size()) : "the file is missing: " + text;
        }
        return "no error";
    }

    OpenedDrawing opened = Sketch().Open();
};

} // namespace

TEST_F(SearchForASelection, FindsAllObjectsInDocumentOrderAndNoGroups)
{
    EXPECT_THAT(IdsOf(L"all"), ElementsAre(L"1/1", L"1/2", L"1/3/1", L"1/3/2/1", L"2/1"));
}

TEST_F(SearchForASelection, FindsTheObjectsOfAPage)
{
    EXPECT_THAT(IdsOf(L"page:2"), ElementsAre(L"2/1"));
}

TEST_F(SearchForASelection, FindsObjectsByName)
{
    EXPECT_THAT(IdsOf(L"name:Box ?"), ElementsAre(L"1/1", L"1/2"));
    EXPECT_THAT(IdsOf(L"name:Box[,]*"), ElementsAre(L"2/1"));
    EXPECT_THAT(IdsOf(L"name:"), ElementsAre(L"1/3/1", L"1/3/2/1"));
}

TEST_F(SearchForASelection, FindsObjectsByTheNameAndTheDisplayNameOfTheirStyle)
{
    EXPECT_THAT(IdsOf(L"style:Mid One"), ElementsAre(L"1/2", L"1/3/2/1"));
    EXPECT_THAT(IdsOf(L"style:Middle"), ElementsAre(L"1/2", L"1/3/2/1"));
    EXPECT_THAT(IdsOf(L"style:B*"), ElementsAre(L"1/1", L"1/3/1", L"2/1"));
}

TEST_F(SearchForASelection, FindsObjectsByKind)
{
    EXPECT_THAT(IdsOf(L"kind:*l*e"), ElementsAre(L"1/3/1", L"1/3/2/1", L"2/1"));
}

TEST_F(SearchForASelection, FindsAnObjectByItsId)
{
    EXPECT_THAT(IdsOf(L"id:1/3/2/1"), ElementsAre(L"1/3/2/1"));
}

TEST_F(SearchForASelection, TakesTheMembersForAGroup)
{
    EXPECT_THAT(IdsOf(L"id:1/3"), ElementsAre(L"1/3/1", L"1/3/2/1"));
    EXPECT_THAT(IdsOf(L"id:1/3/2"), ElementsAre(L"1/3/2/1"));
    EXPECT_THAT(IdsOf(L"name:Pair"), ElementsAre(L"1/3/1", L"1/3/2/1"));
    EXPECT_THAT(IdsOf(L"kind:group"), ElementsAre(L"1/3/1", L"1/3/2/1"));
}

TEST_F(SearchForASelection, JoinsTermsInDocumentOrderAndFindsEachObjectOnce)
{
    EXPECT_THAT(IdsOf(L"page:2,kind:rect,name:Box 2"), ElementsAre(L"1/1", L"1/2", L"2/1"));
}

TEST_F(SearchForASelection, FindsNamedStylesWithoutObjects)
{
    const Selection selection = Find(L"sheet:Mid One");

    EXPECT_EQ(selection.scope, SelectorScope::Sheet);
    EXPECT_EQ(selection.styleName, L"Mid One");
    EXPECT_EQ(selection.selector, L"sheet:Mid One");
    EXPECT_THAT(selection.objects, IsEmpty());
}

TEST_F(SearchForASelection, AlwaysFindsTheDefaults)
{
    EXPECT_EQ(Find(L"defaults").scope, SelectorScope::Defaults);
}

TEST_F(SearchForASelection, MayFindNothingForAllInAnEmptyDrawing)
{
    Use(FlatDrawing().Page(""));

    EXPECT_THAT(IdsOf(L"all"), IsEmpty());
}

TEST_F(SearchForASelection, SaysWhatThereIsWhenNothingFits)
{
    EXPECT_EQ(ErrorOf(L"name:Bax*"),
              "nothing fits the selector \"name:Bax*\"; expected one of the names \"Box 1\", "
              "\"Box 2\", \"Pair\", \"Edge\", \"Box, round\"");
    EXPECT_EQ(ErrorOf(L"style:Top"),
              "nothing fits the selector \"style:Top\"; expected one of the styles \"Base\", "
              "\"Mid One\", \"Middle\"");
    EXPECT_EQ(ErrorOf(L"kind:path"),
              "nothing fits the selector \"kind:path\"; expected one of the kinds \"rect\", "
              "\"group\", \"ellipse\", \"line\", \"circle\"");
    EXPECT_EQ(ErrorOf(L"page:3"),
              "nothing fits the selector \"page:3\"; expected one of the pages \"1\", \"2\"");
    EXPECT_EQ(ErrorOf(L"id:3/1"),
              "nothing fits the selector \"id:3/1\"; expected one of the ids \"1/1\", \"1/2\", "
              "\"1/3\", \"1/3/1\", \"1/3/2\", \"1/3/2/1\", \"2/1\"");
    EXPECT_EQ(ErrorOf(L"sheet:Middle"),
              "nothing fits the selector \"sheet:Middle\"; expected one of the styles "
              "\"Base\", \"Mid One\"");
}

TEST_F(SearchForASelection, SaysWhatThereIsForEachFieldThatWasAsked)
{
    EXPECT_EQ(ErrorOf(L"kind:path,page:7"),
              "nothing fits the selector \"kind:path,page:7\"; expected one of the "
              "pages \"1\", \"2\", or one of the kinds \"rect\", \"group\", "
              "\"ellipse\", \"line\", \"circle\"");
}

TEST_F(SearchForASelection, SaysTheFirstTwentyOfMany)
{
    std::string shapes;
    for (int i = 1; i <= 23; ++i)
        shapes += "<draw:rect draw:name='R" + std::to_string(i) + "'/>";
    Use(FlatDrawing().Page(shapes));

    EXPECT_THAT(ErrorOf(L"name:x"), testing::EndsWith("\"R19\", \"R20\" and 3 more"));
}

TEST_F(SearchForASelection, SaysWhenThereIsNothingToFind)
{
    Use(FlatDrawing().Page(""));

    EXPECT_EQ(ErrorOf(L"kind:rect"),
              "nothing fits the selector \"kind:rect\"; expected \"all\", as the drawing has "
              "nothing that such a term fits");
    EXPECT_EQ(ErrorOf(L"sheet:Base"),
              "nothing fits the selector \"sheet:Base\"; expected \"all\", as the drawing has "
              "no named styles");
}

TEST_F(SearchForASelection, SplitsObjectsIntoSelectionsThatFindThemAgain)
{
    const std::vector<Selection> single = SplitByObject(Find(L"kind:rect"));

    ASSERT_THAT(single, testing::SizeIs(2));
    EXPECT_EQ(single[0].selector, L"id:1/1");
    EXPECT_THAT(single[1].objects, ElementsAre(opened.Object(L"1/2")));
    EXPECT_THAT(Find(single[1].selector.c_str()).objects, ElementsAre(opened.Object(L"1/2")));
}

TEST_F(SearchForASelection, KeepsStylesTogether)
{
    const std::vector<Selection> single = SplitByObject(Find(L"defaults"));

    ASSERT_THAT(single, testing::SizeIs(1));
    EXPECT_EQ(single[0].scope, SelectorScope::Defaults);
}

TEST_F(SearchForASelection, FindsStylesOfSheetsAndOffersThem)
{
    const SheetFolder folder;
    folder.Write("house.fodg", HouseSheet());
    folder.Write("drawing.fodg", LinkedDrawing());
    opened = folder.Open("drawing.fodg");

    EXPECT_EQ(Find(L"sheet:House Box").styleName, L"House Box");
    EXPECT_THAT(IdsOf(L"style:House*"), ElementsAre(L"1/1"));
    EXPECT_EQ(ErrorOf(L"sheet:Box"), "nothing fits the selector \"sheet:Box\"; expected one of the styles "
                                     "\"Note\", \"House Base\", \"House Box\", \"House Ink\"");
}
