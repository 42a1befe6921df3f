#include "apps/workbench/ShapeLooks.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"
#include "reference_host/document/DrawingObject.h"
#include "tests/reference_host/document/FlatDrawing.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using Workbench::InsideLook;
using Workbench::LineLook;
using Workbench::LookReader;
using Workbench::ParagraphLook;
using Workbench::RunLook;
using Workbench::ShapeLook;

/// Two boxes with one automatic style over the named style "base".
FlatDrawing TwoBoxes(const std::string& named, const std::string& automatic = "",
                     const std::string& text = "<text:p>a</text:p>")
{
    const std::string box = R"(<draw:rect draw:style-name="gr1">)" + text + "</draw:rect>";
    return FlatDrawing()
        .Named(R"(style:name="base")", named)
        .Automatic("graphic", R"(style:name="gr1" style:parent-style-name="base")", automatic)
        .Page(box + box);
}

std::string Graphic(const std::string& attributes)
{
    return "<style:graphic-properties " + attributes + "/>";
}

ShapeLook LookOfFirst(const FlatDrawing& drawing)
{
    return LookReader().Read(*drawing.Open().Object(L"1/1"));
}

Styles::PropertyKey Key(const wchar_t* text)
{
    return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

TEST(ShapeLooks, AreInheritedAndOverridden)
{
    const ShapeLook look = LookOfFirst(TwoBoxes(
        Graphic(R"(draw:fill="solid" draw:fill-color="#102030" draw:opacity="70%" draw:stroke="solid")"
                R"( svg:stroke-width="1mm")"),
        Graphic(R"(draw:fill-color="#405060")")));

    EXPECT_EQ(look.inside.kind, InsideLook::Kind::Solid);
    EXPECT_EQ(look.inside.colour, (Workbench::LookColour{0x40, 0x50, 0x60}));
    EXPECT_EQ(look.inside.transparency, 30);
    EXPECT_EQ(look.line.kind, LineLook::Kind::Solid);
    EXPECT_EQ(look.line.width, 100);
}

TEST(ShapeLooks, NameWhatFillsThem)
{
    const ShapeLook look =
        LookOfFirst(TwoBoxes(Graphic(R"(draw:fill="gradient" draw:fill-gradient-name="Deep_20_Sea")"
                                     R"( draw:fill-hatch-name="Other")")));

    EXPECT_EQ(look.inside.kind, InsideLook::Kind::Gradient);
    EXPECT_EQ(look.inside.definition, OvxStringT(L"Deep Sea"));
}

TEST(ShapeLooks, HaveTheEndsAndCornersOfLines)
{
    const ShapeLook look = LookOfFirst(
        TwoBoxes(Graphic(R"(draw:stroke="dash" draw:stroke-dash="Fine" svg:stroke-linecap="square")"
                         R"( draw:stroke-linejoin="bevel" draw:marker-end="Arrow")")));

    EXPECT_EQ(look.line.kind, LineLook::Kind::Dashed);
    EXPECT_EQ(look.line.dash, OvxStringT(L"Fine"));
    EXPECT_EQ(look.line.cap, LineLook::Cap::Square);
    EXPECT_EQ(look.line.join, LineLook::Join::Bevel);
    EXPECT_EQ(look.line.startArrow, OvxStringT());
    EXPECT_EQ(look.line.endArrow, OvxStringT(L"Arrow"));
}

TEST(ShapeLooks, AreReadForEachParagraphAndRun)
{
    const ShapeLook look = LookOfFirst(
        TwoBoxes(
            "<style:text-properties fo:font-size=\"12pt\"/>", "",
            R"(<text:p>a<text:span text:style-name="T">b</text:span></text:p><text:p text:style-name="P"/>)")
            .Automatic("text", R"(style:name="T")", R"(<style:text-properties fo:font-weight="bold"/>)")
            .Automatic("paragraph", R"(style:name="P")",
                       R"(<style:paragraph-properties fo:text-align="end"/>)"));

    ASSERT_EQ(look.paragraphs.size(), 2U);
    ASSERT_EQ(look.runs.size(), 3U);
    EXPECT_EQ(look.paragraphs[0].align, ParagraphLook::Align::Start);
    EXPECT_EQ(look.paragraphs[1].align, ParagraphLook::Align::End);
    EXPECT_EQ(look.runs[0].size, 120);
    EXPECT_EQ(look.runs[0].weight, 400);
    EXPECT_EQ(look.runs[1].weight, 700);
}

TEST(ShapeLooks, HaveDefaultsWhereNothingIsSet)
{
    const ShapeLook look = LookOfFirst(FlatDrawing().Page("<draw:rect/>"));

    EXPECT_EQ(look.inside, InsideLook());
    EXPECT_EQ(look.line, LineLook());
}

TEST(ReadingLooks, MakesNoStyles)
{
    const OpenedDrawing opened = TwoBoxes(Graphic(R"(draw:fill="solid")")).Open();

    static_cast<void>(LookReader().Read(*opened.Object(L"1/1")));

    EXPECT_EQ(opened.Object(L"1/1")->FindStyle(), nullptr);
    EXPECT_EQ(opened.Object(L"1/1")->GetRuns().front().FindStyle(), nullptr);
}

TEST(ReadingLooks, TellsShapesApartThatTheFileGivesOneStyle)
{
    const OpenedDrawing opened = TwoBoxes(Graphic(R"(draw:fill="solid")")).Open();
    opened.Object(L"1/2")->GetStyle()->SetPathProperty({Styles::FillStyleCategoryName, Key(L"type")},
                                                       OvxUtils::Any(Key(L"none")));

    LookReader reader;

    EXPECT_EQ(reader.Read(*opened.Object(L"1/1")).inside.kind, InsideLook::Kind::Solid);
    EXPECT_EQ(reader.Read(*opened.Object(L"1/2")).inside.kind, InsideLook::Kind::None);
}

TEST(ReadingLooks, FollowsANamedStyleAfterForgetting)
{
    const OpenedDrawing opened = TwoBoxes(Graphic(R"(draw:fill="solid")")).Open();
    LookReader reader;
    ASSERT_EQ(reader.Read(*opened.Object(L"1/1")).inside.kind, InsideLook::Kind::Solid);

    opened.Named(L"base")->SetPathProperty({Styles::FillStyleCategoryName, Key(L"type")},
                                           OvxUtils::Any(Key(L"none")));
    reader.Forget();

    EXPECT_EQ(reader.Read(*opened.Object(L"1/1")).inside.kind, InsideLook::Kind::None);
}

} // namespace
