#include "tests/reference_host/document/SavedDrawing.h"

#include "host/style_model/CategoryNames.h"

#include <gmock/gmock.h>

using OvxUtils::Any;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

FlatDrawing TwoStyles()
{
    return FlatDrawing()
        .Named("style:name='Base'", "<style:graphic-properties draw:fill-color='#111111'/>")
        .Named("style:name='Mid_20_One' style:display-name='Mid One' style:parent-style-name='Base'")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='Mid_20_One'", "")
        .Page("<draw:rect draw:style-name='gr1'/><draw:rect draw:style-name='Mid_20_One'/>");
}

TEST(NamedStyleEdits, ChangeTheStyleInPlace)
{
    OpenedDrawing opened = TwoStyles().Open();
    Set(opened.Named(L"Base"), "fill.color", ColourValue(0x22, 0x11, 0x11));

    EXPECT_EQ(Difference(TwoStyles().Text(), Saved(opened)), "11 -> 22");
}

TEST(NamedStyleEdits, TakeTheParentAway)
{
    OpenedDrawing opened = TwoStyles().Open();
    opened.Named(L"Mid One")->SetParent(nullptr);

    EXPECT_EQ(Difference(TwoStyles().Text(), Saved(opened)), " style:parent-style-name='Base' -> ");
}

TEST(NamedStyleEdits, AddNewStylesBehindTheOthers)
{
    OpenedDrawing opened = TwoStyles().Open();
    Styles::Style* const added = opened.drawing->AddStyle(Styles::StyleCategoryName, L"My \"new\" one");
    added->SetParent(opened.Named(L"Mid One"));
    Set(added, "character.weight", ChoiceValue(L"bold"));

    EXPECT_THAT(Saved(opened),
                HasSubstr("<style:style style:name=\"My_20__22_new_22__20_one\""
                          " style:display-name=\"My &quot;new&quot; one\" style:family=\"graphic\""
                          " style:parent-style-name=\"Mid_20_One\"><style:text-properties"
                          " fo:font-weight=\"bold\"/></style:style></office:styles>"));
    const OpenedDrawing again = Reopened(opened);
    EXPECT_EQ(again.ParentOf(again.Named(L"My \"new\" one")), L"Mid One");
}

TEST(NamedStyleEdits, AddStylesOfOneCategory)
{
    OpenedDrawing opened = TwoStyles().Open();
    Styles::Style* const outer = opened.drawing->AddStyle(Styles::FillStyleCategoryName, L"Outer");
    Styles::Style* const inner = opened.drawing->AddStyle(Styles::FillStyleCategoryName, L"Inner");
    inner->SetParent(outer);
    Set(outer, "fill.color", ColourValue(1, 2, 3));

    const OpenedDrawing again = Reopened(opened);

    EXPECT_EQ(again.Named(L"Inner")->GetCategoryName(), Styles::FillStyleCategoryName);
    EXPECT_EQ(again.ParentOf(again.Named(L"Inner")), L"Outer");
    EXPECT_EQ(EffectiveOf(again.Named(L"Inner"), "fill.color"), "-");
    EXPECT_EQ(again.Named(L"Inner")->GetProperty(
                  Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(L"color"))),
              ColourValue(1, 2, 3));
}

TEST(NamedStyleEdits, RenameAStyleAndAllThatRefersToIt)
{
    OpenedDrawing opened = TwoStyles().Open();
    opened.drawing->RenameStyle(L"Mid One", L"Middle_1");

    const std::string saved = Saved(opened);

    EXPECT_THAT(saved, HasSubstr("style:name='Middle_5f_1' style:display-name='Middle_1'"));
    EXPECT_THAT(saved, HasSubstr("style:name='gr1' style:parent-style-name='Middle_5f_1'"));
    EXPECT_THAT(saved, HasSubstr("<draw:rect draw:style-name='Middle_5f_1'/>"));
    EXPECT_THAT(OpenText(saved).warnings, IsEmpty());
}

TEST(NamedStyleEdits, RenameTheParentInACopyToo)
{
    FlatDrawing drawing = TwoStyles();
    drawing.Page("<draw:rect draw:style-name='gr1'/>");
    OpenedDrawing opened = drawing.Open();
    opened.drawing->RenameStyle(L"Mid One", L"Other");
    Set(opened.Object(L"2/1")->GetStyle(), "outline.width", Any(100));

    const OpenedDrawing again = Reopened(opened);

    EXPECT_EQ(again.ParentOf(again.Object(L"1/1")->GetStyle()), L"Other");
    EXPECT_EQ(again.ParentOf(again.Object(L"2/1")->GetStyle()), L"Other");
}

TEST(NamedStyleEdits, RenameAStyleThatIsThereTwice)
{
    FlatDrawing drawing = TwoStyles();
    drawing.Named("style:name='Base'");
    OpenedDrawing opened = drawing.Open();
    opened.drawing->RenameStyle(L"Base", L"Ground");

    const OpenedDrawing again = Reopened(opened);

    EXPECT_EQ(again.Named(L"Base"), nullptr);
    EXPECT_EQ(OwnOf(again.Named(L"Ground"), "fill.color"), "#111111");
}

TEST(DefaultStyleEdits, ChangeItInPlace)
{
    FlatDrawing drawing = TwoStyles();
    drawing.Defaults("<style:graphic-properties svg:stroke-width='1mm'/>");
    OpenedDrawing opened = drawing.Open();
    Set(&opened.drawing->GetDefaultStyle(), "outline.width", Any(200));

    EXPECT_EQ(Difference(drawing.Text(), Saved(opened)), "1 -> 2");
}

TEST(DefaultStyleEdits, InsertItBeforeTheNamedStyles)
{
    OpenedDrawing opened = TwoStyles().Open();
    Set(&opened.drawing->GetDefaultStyle(), "outline.width", Any(200));

    EXPECT_THAT(
        Saved(opened),
        HasSubstr("<office:styles><style:default-style style:family=\"graphic\"><style:graphic-properties"
                  " svg:stroke-width=\"2mm\"/></style:default-style><style:style"));
    EXPECT_EQ(OwnOf(&Reopened(opened).drawing->GetDefaultStyle(), "outline.width"), "200");
}

TEST(NamedStyleEdits, GiveTheBytesThatWereReadWhenTheyAreUndone)
{
    OpenedDrawing opened = TwoStyles().Open();
    Styles::Style* const base = opened.Named(L"Base");
    Set(base, "fill.color", ColourValue(1, 2, 3));
    Set(opened.Object(L"1/1")->GetStyle(), "outline.width", Any(5));
    Set(base, "fill.color", ColourValue(0x11, 0x11, 0x11));
    Set(opened.Object(L"1/1")->GetStyle(), "outline.width", Any());

    EXPECT_EQ(Saved(opened), TwoStyles().Text());
}

} // namespace
