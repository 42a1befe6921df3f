#include "reference_host/document/TextSettling.h"

#include "host/style_model/CategoryNames.h"
#include "reference_host/history/History.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/document/DrawingDump.h"
#include "tests/reference_host/document/FlatDrawing.h"

#include <gmock/gmock.h>

using ReferenceHost::DrawingObject;
using ReferenceHost::TextUnit;
using Styles::Style;
using testing::ElementsAre;

namespace
{

Styles::PropertyKey Key(const wchar_t* text)
{
    return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

/// A rectangle with two paragraphs. Its text is 10pt large in the first, where one of two runs is red, and
/// 20pt in the second.
class SettledText : public testing::Test
{
protected:
    void Set(Style* whole, const wchar_t* category, const wchar_t* key, OvxUtils::Any value)
    {
        whole->SetPathProperty({Key(category), Key(key)}, std::move(value));
    }

    void Clear(Style* whole, const wchar_t* category, const wchar_t* key) { Set(whole, category, key, {}); }

    DrawingObject& Object() { return *opened.Object(L"1/1"); }

    Style* Paragraph(std::size_t index) { return Object().GetParagraphs()[index].GetStyle(); }

    Style* Run(std::size_t index) { return Object().GetRuns()[index].GetStyle(); }

    /// What object, paragraphs and runs set for a property, in this order.
    std::vector<std::string> Levels(const std::string& path)
    {
        std::vector<std::string> values{OwnOf(Object().GetStyle(), path)};
        for (TextUnit& paragraph : Object().GetParagraphs())
            values.push_back(OwnOf(paragraph.GetStyle(), path));
        for (TextUnit& run : Object().GetRuns())
            values.push_back(OwnOf(run.GetStyle(), path));
        return values;
    }

    OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='Base'", "<style:text-properties fo:font-size='14pt'/>")
            .Named("style:name='Other'")
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'",
                       "<style:graphic-properties draw:fill-color='#eeeeee'/>"
                       "<style:text-properties fo:font-size='10pt'/>")
            .Automatic("paragraph", "style:name='P1'", "<style:text-properties fo:font-size='20pt'/>")
            .Automatic("text", "style:name='T1'", "<style:text-properties fo:color='#cc0000'/>")
            .Page("<draw:rect draw:style-name='gr1'>"
                  "<text:p>one <text:span text:style-name='T1'>two</text:span></text:p>"
                  "<text:p text:style-name='P1'>three</text:p></draw:rect>")
            .Open();
    ReferenceHost::History& history = opened.drawing->GetHistory();
};

} // namespace

TEST_F(SettledText, IsReadFromItsLevels)
{
    EXPECT_THAT(Levels("character.size"), ElementsAre("100", "100", "200", "100", "100", "200"));
    EXPECT_THAT(Levels("character.color"), ElementsAre("-", "-", "-", "-", "#cc0000", "-"));
}

TEST_F(SettledText, FollowsItsObjectWhereItHadTheSameValue)
{
    history.Open(L"Size");
    Set(Object().GetStyle(), L"character", L"size", OvxUtils::Any(120));
    history.Close();

    EXPECT_THAT(Levels("character.size"), ElementsAre("120", "120", "200", "120", "120", "200"));
}

TEST_F(SettledText, FollowsItsObjectWhereNeitherHadAValue)
{
    history.Open(L"Weight");
    Set(Object().GetStyle(), L"character", L"weight", OvxUtils::Any(Key(L"bold")));
    history.Close();

    EXPECT_THAT(Levels("character.weight"), ElementsAre("bold", "bold", "bold", "bold", "bold", "bold"));
}

TEST_F(SettledText, FollowsItsObjectThatIsCleared)
{
    history.Open(L"Clear");
    Clear(Object().GetStyle(), L"character", L"size");
    history.Close();

    EXPECT_THAT(Levels("character.size"), ElementsAre("-", "-", "200", "-", "-", "200"));
}

TEST_F(SettledText, KeepsWhatWasWrittenToItInTheSameStep)
{
    history.Open(L"Sizes");
    Set(Run(0), L"character", L"size", OvxUtils::Any(300));
    Set(Object().GetStyle(), L"character", L"size", OvxUtils::Any(120));
    history.Close();

    EXPECT_THAT(Levels("character.size"), ElementsAre("120", "120", "200", "300", "120", "200"));
}

TEST_F(SettledText, FollowsItsParagraph)
{
    history.Open(L"Align");
    Set(Paragraph(0), L"paragraph", L"align", OvxUtils::Any(Key(L"end")));
    Set(Paragraph(1), L"character", L"size", OvxUtils::Any(240));
    history.Close();

    EXPECT_THAT(Levels("paragraph.align"), ElementsAre("-", "end", "-", "end", "end", "-"));
    EXPECT_THAT(Levels("character.size"), ElementsAre("100", "100", "240", "100", "100", "240"));
}

TEST_F(SettledText, TakesItsParagraphForNearerThanItsObject)
{
    history.Open(L"Sizes");
    Set(Paragraph(0), L"character", L"size", OvxUtils::Any(300));
    Set(Object().GetStyle(), L"character", L"size", OvxUtils::Any(120));
    history.Close();

    EXPECT_THAT(Levels("character.size"), ElementsAre("120", "300", "200", "300", "300", "200"));
}

TEST_F(SettledText, DoesNotFollowItsObjectPastAParagraphThatDiffers)
{
    Set(Run(2), L"character", L"size", OvxUtils::Any(100));
    history.Open(L"Size");
    Set(Object().GetStyle(), L"character", L"size", OvxUtils::Any(120));
    history.Close();

    EXPECT_EQ(Levels("character.size").back(), "100");
}

TEST_F(SettledText, TakesTheParentOfItsObject)
{
    history.Open(L"Parent");
    Object().GetStyle()->SetParent(opened.Named(L"Other"));
    history.Close();

    EXPECT_EQ(opened.ParentOf(Paragraph(1)), L"Other");
    EXPECT_EQ(opened.ParentOf(Run(2)), L"Other");
}

TEST_F(SettledText, GivesAParentToItsObjectAndAllOfItself)
{
    history.Open(L"Parent");
    Run(1)->SetParent(opened.Named(L"Other"));
    history.Close();

    EXPECT_EQ(opened.ParentOf(Object().GetStyle()), L"Other");
    EXPECT_EQ(opened.ParentOf(Paragraph(0)), L"Other");
    EXPECT_EQ(opened.ParentOf(Run(2)), L"Other");
}

TEST_F(SettledText, TakesTheParentsOfItsObjectsSubstylesOfText)
{
    Style* const heading = opened.drawing->AddStyle(Styles::GetCharacterStyleCategoryName(), L"Heading");
    Style* const glow = opened.drawing->AddStyle(Styles::FillStyleCategoryName, L"Glow");
    history.Open(L"Parents");
    Object().GetStyle()->GetSubstyle(Key(L"character"), false)->SetParent(heading);
    Object().GetStyle()->GetSubstyle(Key(L"fill"), false)->SetParent(glow);
    history.Close();

    EXPECT_EQ(Run(0)->GetSubstyle(Key(L"character"), false)->GetParent(), heading);
    EXPECT_EQ(Run(0)->GetSubstyle(Key(L"fill"), false)->GetParent(), nullptr);
}

TEST_F(SettledText, GivesTheParentOfASubstyleToItsObjectAndAllOfItself)
{
    Style* const heading = opened.drawing->AddStyle(Styles::GetCharacterStyleCategoryName(), L"Heading");
    history.Open(L"Parent");
    Run(1)->GetSubstyle(Key(L"character"), false)->SetParent(heading);
    history.Close();

    EXPECT_EQ(Object().GetStyle()->GetSubstyle(Key(L"character"), false)->GetParent(), heading);
    EXPECT_EQ(Run(2)->GetSubstyle(Key(L"character"), false)->GetParent(), heading);
}

TEST_F(SettledText, IsClearedOnAllLevelsAroundARun)
{
    history.Open(L"Revert");
    Clear(Run(0), L"character", L"size");
    history.Close();

    EXPECT_THAT(Levels("character.size"), ElementsAre("-", "-", "200", "-", "100", "200"));
}

TEST_F(SettledText, IsClearedOnTheLevelAroundAParagraph)
{
    history.Open(L"Revert");
    Clear(Paragraph(1), L"character", L"size");
    history.Close();

    // The run had the size of its paragraph, and the other paragraph keeps what was that of the object.
    EXPECT_THAT(Levels("character.size"), ElementsAre("-", "100", "-", "100", "100", "-"));
}

TEST_F(SettledText, KeepsFillAndOutlineApart)
{
    history.Open(L"Fill");
    Set(Object().GetStyle(), L"fill", L"color", OvxUtils::Any(CLR_COLORSPEC::FromRgb({1, 2, 3})));
    history.Close();

    EXPECT_THAT(Levels("fill.color"), ElementsAre("#010203", "-", "-", "-", "-", "-"));
}

TEST_F(SettledText, IsNotMadeForAChangeThatDoesNotConcernIt)
{
    Set(Object().GetStyle(), L"fill", L"color", OvxUtils::Any(CLR_COLORSPEC::FromRgb({1, 2, 3})));
    const std::size_t before = ReferenceHost::LiveStyleCount();

    ASSERT_TRUE(history.CanUndo());

    EXPECT_EQ(ReferenceHost::LiveStyleCount(), before);
}

TEST_F(SettledText, IsTakenBackAndBroughtBackWithItsStep)
{
    const std::vector<std::string> before = DumpOf(*opened.drawing);
    history.Open(L"Much");
    Set(Object().GetStyle(), L"character", L"size", OvxUtils::Any(120));
    Clear(Run(1), L"character", L"color");
    Object().GetStyle()->SetParent(opened.Named(L"Other"));
    history.Close();
    const std::vector<std::string> after = DumpOf(*opened.drawing);

    history.Undo();
    const std::vector<std::string> undone = DumpOf(*opened.drawing);
    history.Redo();

    EXPECT_NE(after, before);
    EXPECT_EQ(undone, before);
    EXPECT_EQ(DumpOf(*opened.drawing), after);
}

TEST_F(SettledText, IsNoReasonForAStepByItself)
{
    history.Open(L"There and back");
    Set(Object().GetStyle(), L"character", L"size", OvxUtils::Any(120));
    Set(Object().GetStyle(), L"character", L"size", OvxUtils::Any(100));

    EXPECT_FALSE(history.Close());
}
