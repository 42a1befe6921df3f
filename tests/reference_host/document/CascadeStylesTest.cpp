#include "tests/reference_host/document/FlatDrawing.h"

#include "reference_host/style_model/StyleHosting.h"

#include "host/style_model/CategoryNames.h"

#include <gmock/gmock.h>

using ReferenceHost::LiveStyleCount;

namespace
{

FlatDrawing TwoRectangles()
{
    return FlatDrawing()
        .Automatic("graphic", "style:name='gr1'", "<style:graphic-properties draw:fill='none'/>")
        .Page("<draw:rect draw:style-name='gr1'><text:p>a</text:p></draw:rect>"
              "<draw:rect draw:style-name='gr1'><text:p>b</text:p></draw:rect>");
}

TEST(CascadeStyles, AreNotMadeBeforeTheyAreAskedFor)
{
    const std::size_t before = LiveStyleCount();

    const OpenedDrawing opened = TwoRectangles().Open();

    // The default style alone, with its four substyles.
    EXPECT_EQ(LiveStyleCount(), before + 5);
}

TEST(CascadeStyles, AreMadeOnceForEachObjectAndUnit)
{
    const OpenedDrawing opened = TwoRectangles().Open();
    ReferenceHost::DrawingObject* const object = opened.Object(L"1/2");

    EXPECT_EQ(object->GetStyle(), object->GetStyle());
    EXPECT_EQ(object->GetRuns()[0].GetStyle(), object->GetRuns()[0].GetStyle());
    EXPECT_NE(object->GetRuns()[0].GetStyle(), object->GetParagraphs()[0].GetStyle());
}

TEST(CascadeStyles, GoWithTheirDrawing)
{
    const std::size_t before = LiveStyleCount();
    {
        const OpenedDrawing opened = TwoRectangles().Named("style:name='A'").Open();
        for (ReferenceHost::DrawingObject& object : opened.drawing->GetObjects())
            ASSERT_NE(object.GetRuns()[0].GetStyle(), object.GetStyle());
        ASSERT_GT(LiveStyleCount(), before);
    }

    EXPECT_EQ(LiveStyleCount(), before);
}

TEST(CascadeStyles, FollowTheNamedStyleThatTheyInheritFrom)
{
    const OpenedDrawing opened =
        FlatDrawing().Named("style:name='A'").Page("<draw:rect draw:style-name='A'/>").Open();
    Styles::Style* const style = opened.Object(L"1/1")->GetStyle();

    opened.Named(L"A")
        ->GetSubstyle(Styles::FillStyleCategoryName, false)
        ->SetProperty(Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(L"color")),
                      OvxUtils::Any(CLR_COLORSPEC::FromRgb({1, 2, 3})));

    EXPECT_EQ(EffectiveOf(style, "fill.color"), "#010203");
}

} // namespace
