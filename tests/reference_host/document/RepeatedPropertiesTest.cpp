// Text styles that repeat graphic properties of their shapes, as some programs write them and believe them.

#include "tests/reference_host/document/SavedDrawing.h"

#include "host/style_model/CategoryNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using OvxUtils::Any;
using testing::HasSubstr;
using testing::IsEmpty;

/// Two rectangles with a colour of their own, whose text style repeats it and a width that they do not set.
FlatDrawing TwoRectangles()
{
    return FlatDrawing()
        .Automatic("graphic", "style:name='gr1'", "<style:graphic-properties draw:fill-color='#111111'/>")
        .Automatic(
            "paragraph", "style:name='P1'",
            "<x:graphic-properties xmlns:x='urn:extension' draw:fill-color='#111111' draw:opacity='50%'/>"
            "<style:text-properties fo:font-size='9pt'/>")
        .Page("<draw:rect draw:style-name='gr1' draw:text-style-name='P1'/>"
              "<draw:rect draw:style-name='gr1' draw:text-style-name='P1'><text:p>b</text:p></draw:rect>");
}

TEST(RepeatedProperties, FollowTheShapeInATextStyleOfItsOwn)
{
    OpenedDrawing opened = TwoRectangles().Open();

    Set(opened.Object(L"1/2")->GetStyle(), "fill.color", ColourValue(0xFF, 0, 0));
    const std::string saved = Saved(opened);

    EXPECT_THAT(saved, HasSubstr("<draw:rect draw:style-name='gr1' draw:text-style-name='P1'/>"));
    EXPECT_THAT(saved, HasSubstr("<draw:rect draw:style-name='gr2' draw:text-style-name='P2'>"));
    EXPECT_THAT(saved, HasSubstr("<style:style style:family=\"paragraph\" style:name='P2'>"
                                 "<x:graphic-properties xmlns:x='urn:extension' draw:fill-color='#ff0000' "
                                 "draw:opacity='50%'/>"));
}

TEST(RepeatedProperties, ChangeInPlaceWhereAllShapesOfTheTextStyleChange)
{
    OpenedDrawing opened = TwoRectangles().Open();

    for (const wchar_t* id : {L"1/1", L"1/2"})
        Set(opened.Object(id)->GetStyle(), "fill.color", ColourValue(0xFF, 0, 0));
    const std::string saved = Saved(opened);

    EXPECT_THAT(saved, testing::Not(HasSubstr("#111111")));
    EXPECT_THAT(saved, testing::Not(HasSubstr("P2")));
}

TEST(RepeatedProperties, GoWithTheOnesTheyRepeat)
{
    OpenedDrawing opened = TwoRectangles().Open();

    for (const wchar_t* id : {L"1/1", L"1/2"})
        Set(opened.Object(id)->GetStyle(), "fill.color", Any());
    const std::string saved = Saved(opened);

    EXPECT_THAT(saved, HasSubstr("<x:graphic-properties xmlns:x='urn:extension' draw:opacity='50%'/>"));
}

TEST(RepeatedProperties, StayWhereTheShapeChangesInSomethingElse)
{
    OpenedDrawing opened = TwoRectangles().Open();

    Set(opened.Object(L"1/1")->GetStyle(), "outline.width", Any(100));

    EXPECT_THAT(Saved(opened), testing::Not(HasSubstr("P2")));
}

TEST(RepeatedProperties, AreNoValuesOfTheShape)
{
    OpenedDrawing opened = TwoRectangles().Open();

    EXPECT_TRUE(opened.Object(L"1/1")
                    ->GetStyle()
                    ->GetPathProperty(
                        {Styles::FillStyleCategoryName,
                         Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(L"transparency"))})
                    .IsEmpty());
    EXPECT_THAT(opened.warnings, IsEmpty());
}

} // namespace
