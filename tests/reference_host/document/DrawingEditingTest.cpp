#include "reference_host/document/Drawing.h"

#include "host/style_model/CategoryNames.h"
#include "reference_host/history/History.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/document/DrawingDump.h"
#include "tests/reference_host/document/FlatDrawing.h"

#include <gmock/gmock.h>

using ReferenceHost::LiveStyleCount;
using Styles::Style;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

Styles::PropertyKey Key(const wchar_t* text)
{
    return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

/// A drawing with named styles and a palette that everything refers to.
class DrawingEditing : public testing::Test
{
protected:
    [[nodiscard]] std::vector<std::string> Dump() { return DumpOf(*opened.drawing); }

    [[nodiscard]] Style* StyleOf(const std::wstring& id) { return opened.Object(id)->GetStyle(); }

    OpenedDrawing opened =
        FlatDrawing()
            .Meta("<meta:user-defined meta:name='styleprops:palette:Sea'>#000080</meta:user-defined>"
                  "<meta:user-defined meta:name='styleprops:palette:Sun'>#ffcc00</meta:user-defined>")
            .Defaults("<style:graphic-properties draw:fill-color='#000080' sp:fill-color-resource='Sea'/>"
                      "<style:text-properties fo:font-size='12pt'/>")
            .Named("style:name='Base' style:display-name='The Base'",
                   "<style:graphic-properties draw:fill-color='#000080' sp:fill-color-resource='Sea'"
                   " svg:stroke-color='#ffcc00' sp:stroke-color-resource='Sun'/>")
            .Named("style:name='Small' style:parent-style-name='Base'",
                   "<style:text-properties fo:font-size='20pt'/>")
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='Small'",
                       "<style:graphic-properties draw:fill-color='#000080' sp:fill-color-resource='Sea'/>"
                       "<style:text-properties fo:font-size='50%'/>")
            .Automatic("text", "style:name='T1'",
                       "<style:text-properties fo:color='#000080' sp:color-resource='Sea'/>")
            .Page("<draw:rect draw:style-name='gr1'>"
                  "<text:p>one <text:span text:style-name='T1'>two</text:span></text:p></draw:rect>"
                  "<draw:rect draw:style-name='Base'/>")
            .Open();
    ReferenceHost::Drawing& drawing = *opened.drawing;
    ReferenceHost::History& history = drawing.GetHistory();
};

} // namespace

TEST_F(DrawingEditing, AddsAWholeStyleWithItsSubstylesAndDefaults)
{
    Style* const added = drawing.AddStyle(Styles::StyleCategoryName, L"New");

    ASSERT_NE(added, nullptr);
    EXPECT_EQ(drawing.GetStyleSheet().GetNames().back(), OvxStringT(L"New"));
    EXPECT_NE(added->GetSubstyle(Key(L"outline"), false), nullptr);
    EXPECT_EQ(EffectiveOf(added, "fill.color"), "#000080@Sea");
    EXPECT_THAT(AllOwnOf(added), IsEmpty());
}

TEST_F(DrawingEditing, AddsAStyleOfOneCategory)
{
    const Style* const added = drawing.AddStyle(Styles::FillStyleCategoryName, L"Glow");

    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->GetCategoryName(), Styles::FillStyleCategoryName);
    EXPECT_EQ(added->GetProperty(Key(L"color")),
              OvxUtils::Any(CLR_COLORSPEC::FromResource(L"Sea", {0, 0, 0x80})));
}

TEST_F(DrawingEditing, RefusesNamesThatAreEmptyOrTakenAndUnknownCategories)
{
    EXPECT_EQ(drawing.AddStyle(Styles::StyleCategoryName, L"Base"), nullptr);
    EXPECT_EQ(drawing.AddStyle(Styles::StyleCategoryName, L""), nullptr);
    EXPECT_EQ(drawing.AddStyle(Key(L"shadow"), L"New"), nullptr);
    EXPECT_FALSE(drawing.RenameStyle(L"Base", L"Small"));
    EXPECT_FALSE(drawing.RenameStyle(L"Base", L""));
    EXPECT_FALSE(drawing.RenameStyle(L"Unknown", L"New"));

    EXPECT_EQ(history.GetStepCount(), 0U);
}

TEST_F(DrawingEditing, RefusesNamesThatNoFileCanHold)
{
    EXPECT_EQ(drawing.AddStyle(Styles::StyleCategoryName, L"Bell\a"), nullptr);
    EXPECT_FALSE(drawing.RenameStyle(L"Base", L"\x0e"));
    EXPECT_FALSE(drawing.DefinePaletteColour(L"Deep\x01", {1, 2, 3}));

    EXPECT_EQ(history.GetStepCount(), 0U);
}

TEST_F(DrawingEditing, TakesAddedStylesBackWithAllThatRefersToThem)
{
    const std::vector<std::string> before = Dump();
    history.Open(L"Create");
    Style* const added = drawing.AddStyle(Styles::StyleCategoryName, L"New");
    added->SetParent(opened.Named(L"Base"));
    added->SetPathProperty({Key(L"fill"), Key(L"transparency")}, OvxUtils::Any(30));
    StyleOf(L"1/2")->SetParent(added);
    history.Close();
    const std::vector<std::string> after = Dump();

    history.Undo();
    const std::vector<std::string> undone = Dump();
    history.Redo();

    EXPECT_EQ(undone, before);
    EXPECT_EQ(Dump(), after);
    EXPECT_EQ(opened.Named(L"New"), added);
}

TEST_F(DrawingEditing, HearsNothingOfAnAddedStyleThatIsTakenBack)
{
    Style* const added = drawing.AddStyle(Styles::StyleCategoryName, L"New");
    history.Undo();

    added->SetPathProperty({Key(L"fill"), Key(L"transparency")}, OvxUtils::Any(30));

    EXPECT_FALSE(history.CanUndo());
    EXPECT_TRUE(history.CanRedo());
}

TEST_F(DrawingEditing, FreesAnAddedStyleThatCanNoLongerBeRedone)
{
    static_cast<void>(Dump());
    drawing.AddStyle(Styles::FillStyleCategoryName, L"First");
    const std::size_t before = LiveStyleCount();
    drawing.AddStyle(Styles::StyleCategoryName, L"New");
    history.Undo();
    ASSERT_GT(LiveStyleCount(), before);

    StyleOf(L"1/2")->SetPathProperty({Key(L"fill"), Key(L"transparency")}, OvxUtils::Any(30));
    ASSERT_FALSE(history.CanRedo());

    EXPECT_EQ(LiveStyleCount(), before);
}

TEST_F(DrawingEditing, RenamesAStyleAndShowsTheNewName)
{
    const Style* const base = opened.Named(L"Base");

    EXPECT_TRUE(drawing.RenameStyle(L"Base", L"Foundation"));

    EXPECT_EQ(opened.Named(L"Foundation"), base);
    EXPECT_EQ(opened.Named(L"Base"), nullptr);
    EXPECT_EQ(drawing.GetDisplayName(L"Foundation"), OvxStringT(L"Foundation"));
    EXPECT_EQ(opened.ParentOf(opened.Named(L"Small")), L"Foundation");
}

TEST_F(DrawingEditing, TakesANewNameBack)
{
    const std::vector<std::string> before = Dump();
    drawing.RenameStyle(L"Base", L"Foundation");
    const std::vector<std::string> after = Dump();

    history.Undo();
    const std::vector<std::string> undone = Dump();
    history.Redo();

    EXPECT_EQ(undone, before);
    EXPECT_EQ(Dump(), after);
}

TEST_F(DrawingEditing, AddsPaletteEntriesBehindAllOthers)
{
    EXPECT_TRUE(drawing.DefinePaletteColour(L"Moss", {1, 2, 3}));

    EXPECT_EQ(drawing.GetPalette().back().name, OvxStringT(L"Moss"));
    EXPECT_EQ(drawing.FindPaletteColour(L"Moss"), (CLR_COLORSPEC::Rgb{1, 2, 3}));
    EXPECT_EQ(history.GetStepCount(), 1U);
}

TEST_F(DrawingEditing, GivesTheNewLookOfAnEntryToAllThatReferToIt)
{
    drawing.DefinePaletteColour(L"Sea", {0, 0, 0xff});

    EXPECT_EQ(OwnOf(&drawing.GetDefaultStyle(), "fill.color"), "#0000ff@Sea");
    EXPECT_EQ(OwnOf(opened.Named(L"Base"), "fill.color"), "#0000ff@Sea");
    EXPECT_EQ(OwnOf(opened.Named(L"Base"), "outline.color"), "#ffcc00@Sun");
    EXPECT_EQ(OwnOf(StyleOf(L"1/1"), "fill.color"), "#0000ff@Sea");
    EXPECT_EQ(OwnOf(opened.Object(L"1/1")->GetRuns()[1].GetStyle(), "character.color"), "#0000ff@Sea");
    EXPECT_EQ(history.GetStepCount(), 1U);
}

TEST_F(DrawingEditing, MakesOnlyTheStylesThatReferToAnEntry)
{
    const std::size_t before = LiveStyleCount();

    drawing.DefinePaletteColour(L"Sun", {1, 1, 1});

    // What depends on inherited values is worked out before the first change: three styles with their four
    // substyles.
    EXPECT_EQ(LiveStyleCount(), before + 15);
    EXPECT_EQ(OwnOf(opened.Named(L"Base"), "outline.color"), "#010101@Sun");
}

TEST_F(DrawingEditing, TakesPaletteEntriesBack)
{
    const std::vector<std::string> before = Dump();
    history.Open(L"Palette");
    drawing.DefinePaletteColour(L"Sea", {0, 0, 0xff});
    drawing.DefinePaletteColour(L"Moss", {1, 2, 3});
    history.Close();
    const std::vector<std::string> after = Dump();

    history.Undo();
    const std::vector<std::string> undone = Dump();
    history.Redo();

    EXPECT_EQ(undone, before);
    EXPECT_EQ(Dump(), after);
}

TEST_F(DrawingEditing, RecordsNothingForAnEntryThatLooksTheSameOrHasNoName)
{
    EXPECT_FALSE(drawing.DefinePaletteColour(L"Sea", {0, 0, 0x80}));
    EXPECT_FALSE(drawing.DefinePaletteColour(L"", {0, 0, 0x80}));

    EXPECT_EQ(history.GetStepCount(), 0U);
}

TEST_F(DrawingEditing, LeavesStylesThatAreMadeLaterAsTheFileHasThem)
{
    opened.Named(L"Small")->SetPathProperty({Key(L"character"), Key(L"size")}, OvxUtils::Any(400));

    EXPECT_EQ(OwnOf(opened.Object(L"1/1")->GetRuns()[0].GetStyle(), "character.size"), "100");
}

TEST_F(DrawingEditing, SavesAPartOfAnInheritedValueAsItWasWhenThatChanges)
{
    opened.Named(L"Small")->SetPathProperty({Key(L"character"), Key(L"size")}, OvxUtils::Any(400));
    ASSERT_TRUE(history.CanUndo());
    std::vector<std::string> warnings;

    const OpenedDrawing reopened = OpenText(drawing.Serialise(warnings));

    EXPECT_THAT(DumpOf(*reopened.drawing), testing::ElementsAreArray(Dump()));
}

TEST_F(DrawingEditing, SavesAPartOfAnInheritedValueAsItIsWhenAnotherChanges)
{
    std::vector<std::string> warnings;
    opened.Named(L"Small")->SetPathProperty({Key(L"fill"), Key(L"transparency")}, OvxUtils::Any(30));
    ASSERT_TRUE(history.CanUndo());

    EXPECT_NE(drawing.Serialise(warnings).find("fo:font-size='50%'"), std::string::npos);
}

TEST_F(DrawingEditing, HearsNothingWhileStylesAreMade)
{
    static_cast<void>(Dump());

    EXPECT_FALSE(history.CanUndo());
}

TEST_F(DrawingEditing, LeavesNoStylesBehind)
{
    const std::size_t before = LiveStyleCount();
    {
        const OpenedDrawing other = FlatDrawing().Named("style:name='A'").Page("<draw:rect/>").Open();
        ReferenceHost::Drawing& edited = *other.drawing;
        edited.AddStyle(Styles::StyleCategoryName, L"New");
        edited.AddStyle(Styles::FillStyleCategoryName, L"Glow");
        edited.GetHistory().Undo();
        other.Object(L"1/1")->GetStyle()->SetParent(other.Named(L"New"));
    }

    EXPECT_EQ(LiveStyleCount(), before);
}
