// What becomes of style sheets outside a drawing when it is edited and saved.

#include "tests/reference_host/document/DrawingPackage.h"
#include "tests/reference_host/document/SavedDrawing.h"
#include "tests/reference_host/document/SheetFolder.h"

#include "reference_host/history/History.h"

#include "host/style_model/CategoryNames.h"

#include <gmock/gmock.h>

#include <chrono>

using ReferenceHost::DocumentError;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

namespace fs = std::filesystem;

class SavedSheets : public testing::Test
{
protected:
    SavedSheets()
    {
        folder.Write("house.fodg", HouseSheet());
        Open(EditingDrawing());
    }

    void Open(const FlatDrawing& drawing)
    {
        folder.Write("drawing.fodg", drawing);
        opened = folder.Open("drawing.fodg");
    }

    [[nodiscard]] Styles::Style* External(const wchar_t* name) const
    {
        return opened.drawing->FindStyle(name);
    }

    void EditTheSheet() { Set(External(L"House Box"), "fill.color", ColourValue(0x12, 0x34, 0x56)); }

    std::vector<fs::path> Save(const std::string& target, bool keepBackup = false)
    {
        ReferenceHost::SaveOptions options;
        options.keepBackup = keepBackup;
        return opened.drawing->Save(folder.PathOf(target), options, opened.warnings);
    }

    /// What saving fails with; empty when it does not.
    std::string ErrorOfSaving(const std::string& target)
    {
        try
        {
            Save(target);
        }
        catch (const DocumentError& error)
        {
            return error.what();
        }
        return {};
    }

    SheetFolder folder;
    OpenedDrawing opened;
};

} // namespace

TEST_F(SavedSheets, StayAsTheyAreWithoutAnEdit)
{
    const fs::path sheet = folder.PathOf("house.fodg");
    const auto before = fs::last_write_time(sheet) - std::chrono::hours(1);
    fs::last_write_time(sheet, before);
    static_cast<void>(opened.Object(L"1/1")->GetStyle());

    EXPECT_THAT(Save("drawing.fodg"), IsEmpty());

    EXPECT_EQ(folder.Bytes("drawing.fodg"), EditingDrawing().Text());
    EXPECT_EQ(folder.Bytes("house.fodg"), HouseSheet().Text());
    EXPECT_EQ(fs::last_write_time(sheet), before);
}

TEST_F(SavedSheets, TakeTheEditsOfTheirStylesAndNothingElse)
{
    EditTheSheet();

    EXPECT_THAT(Save("drawing.fodg"), ElementsAre(folder.PathOf("house.fodg")));

    EXPECT_EQ(folder.Bytes("drawing.fodg"), EditingDrawing().Text());
    EXPECT_EQ(Difference(HouseSheet().Text(), folder.Bytes("house.fodg")), "00aa00 -> 123456");
    EXPECT_THAT(opened.warnings, IsEmpty());
    const OpenedDrawing again = folder.Open("drawing.fodg");
    EXPECT_EQ(EffectiveOf(again.Object(L"1/1")->GetStyle(), "fill.color"), "#123456");
}

TEST_F(SavedSheets, MayBePackages)
{
    folder.WriteBytes("house.otg", PackageOf(HouseSheet()));
    Open(FlatDrawing().Styles(LinkTo("house.otg", "sp:name='House' sp:editable='true'")).Page(""));
    EditTheSheet();

    Save("drawing.fodg");

    const OpenedDrawing again = folder.Open("house.otg");
    EXPECT_EQ(OwnOf(again.Named(L"House Box"), "fill.color"), "#123456");
    EXPECT_EQ(again.ParentOf(again.Named(L"House Box")), L"House Base");
}

TEST_F(SavedSheets, AreLeftAloneWhenAllIsUndone)
{
    EditTheSheet();
    EXPECT_EQ(opened.drawing->GetHistory().GetStepCount(), 1U);
    EXPECT_TRUE(opened.drawing->GetHistory().Undo());

    EXPECT_EQ(OwnOf(External(L"House Box"), "fill.color"), "#00aa00");
    EXPECT_THAT(Save("drawing.fodg"), IsEmpty());
    EXPECT_EQ(folder.Bytes("house.fodg"), HouseSheet().Text());
}

TEST_F(SavedSheets, GoBackWhenWhatWasSavedIsUndone)
{
    EditTheSheet();
    Save("drawing.fodg");
    opened.drawing->GetHistory().Undo();

    EXPECT_THAT(Save("drawing.fodg"), ElementsAre(folder.PathOf("house.fodg")));

    EXPECT_EQ(folder.Bytes("house.fodg"), HouseSheet().Text());
}

TEST_F(SavedSheets, KeepABackupAsTheDrawingDoes)
{
    EditTheSheet();

    Save("drawing.fodg", true);

    EXPECT_EQ(folder.Bytes("house.fodg~"), HouseSheet().Text());
    EXPECT_EQ(folder.Bytes("drawing.fodg~"), EditingDrawing().Text());
}

TEST_F(SavedSheets, StayInTheirPlaceWhenTheDrawingGoesElsewhere)
{
    EditTheSheet();

    Save("other/place/copy.fodg");

    EXPECT_THAT(Difference(EditingDrawing().Text(), folder.Bytes("other/place/copy.fodg")),
                testing::Eq(" -> ../../"));
    EXPECT_EQ(folder.Bytes("drawing.fodg"), EditingDrawing().Text());
    const OpenedDrawing copy = folder.Open("other/place/copy.fodg");
    EXPECT_THAT(copy.warnings, IsEmpty());
    EXPECT_EQ(EffectiveOf(copy.Object(L"1/1")->GetStyle(), "fill.color"), "#123456");
}

TEST_F(SavedSheets, AreFoundFromPackagesElsewhereToo)
{
    folder.WriteBytes("drawing.odg", PackageOf(EditingDrawing()));
    opened = folder.Open("drawing.odg");

    Save("other/copy.odg");

    const OpenedDrawing copy = folder.Open("other/copy.odg");
    EXPECT_THAT(copy.warnings, IsEmpty());
    EXPECT_THAT(copy.drawing->GetExternalSheetNames(), ElementsAre(L"House"));
}

TEST_F(SavedSheets, ThatAreMissingAreStillMeantFromElsewhere)
{
    fs::remove(folder.PathOf("house.fodg"));
    opened = folder.Open("drawing.fodg");
    Save("other/copy.fodg");
    folder.Write("house.fodg", HouseSheet());

    const OpenedDrawing copy = folder.Open("other/copy.fodg");

    EXPECT_THAT(copy.warnings, IsEmpty());
    EXPECT_EQ(EffectiveOf(copy.Object(L"1/1")->GetStyle(), "fill.color"), "#00aa00");
}

TEST_F(SavedSheets, AreNotReplacedByTheDrawing)
{
    EXPECT_THAT(ErrorOfSaving("house.fodg"), HasSubstr("this is a style sheet of the drawing"));

    EXPECT_EQ(folder.Bytes("house.fodg"), HouseSheet().Text());
}

TEST_F(SavedSheets, StayAsTheyAreWhenTheDrawingCannotBeWritten)
{
    EditTheSheet();
    fs::create_directory(folder.PathOf("taken.fodg"));

    EXPECT_THAT(ErrorOfSaving("taken.fodg"), HasSubstr("the drawing cannot be saved"));

    EXPECT_EQ(folder.Bytes("house.fodg"), HouseSheet().Text());
}

TEST_F(SavedSheets, AreRefusedWhenSomebodyElseHasChangedThem)
{
    EditTheSheet();
    const std::string others = HouseSheet().Text() + "<!-- theirs -->";
    folder.WriteBytes("house.fodg", others);
    Set(opened.Object(L"1/1")->GetStyle(), "fill.color", ColourValue(1, 2, 3));

    EXPECT_THAT(ErrorOfSaving("drawing.fodg"), HasSubstr("house.fodg: the style sheet has been changed by "
                                                         "somebody else since it was opened"));

    EXPECT_EQ(folder.Bytes("house.fodg"), others);
    EXPECT_EQ(folder.Bytes("drawing.fodg"), EditingDrawing().Text());
}

TEST_F(SavedSheets, WithFurtherNamesAreRefusedBeforeAnythingIsWritten)
{
    EditTheSheet();
    Set(opened.Object(L"1/1")->GetStyle(), "fill.color", ColourValue(1, 2, 3));
    fs::create_hard_link(folder.PathOf("house.fodg"), folder.PathOf("second.fodg"));

    EXPECT_THAT(ErrorOfSaving("drawing.fodg"), HasSubstr("house.fodg: the file has further names"));

    EXPECT_EQ(folder.Bytes("house.fodg"), HouseSheet().Text());
    EXPECT_EQ(folder.Bytes("drawing.fodg"), EditingDrawing().Text());
}

TEST_F(SavedSheets, StayAsTheyAreWhenTheDrawingIsRefused)
{
    EditTheSheet();
    folder.WriteBytes("drawing.fodg", "theirs");

    EXPECT_THAT(ErrorOfSaving("drawing.fodg"), HasSubstr("drawing.fodg: the drawing has been changed by"));

    EXPECT_EQ(folder.Bytes("house.fodg"), HouseSheet().Text());
    EXPECT_EQ(folder.Bytes("drawing.fodg"), "theirs");
}

TEST_F(SavedSheets, AreReplacedByForce)
{
    EditTheSheet();
    folder.WriteBytes("house.fodg", "theirs");

    opened.drawing->Save(folder.PathOf("drawing.fodg"), {.force = true}, opened.warnings);

    EXPECT_EQ(Difference(HouseSheet().Text(), folder.Bytes("house.fodg")), "00aa00 -> 123456");
}

TEST_F(SavedSheets, MayBeChangedByOthersAsLongAsTheyAreNotEdited)
{
    folder.WriteBytes("house.fodg", HouseSheet().Text() + "<!-- theirs -->");
    Set(opened.Object(L"1/1")->GetStyle(), "fill.color", ColourValue(1, 2, 3));

    EXPECT_THAT(Save("drawing.fodg"), IsEmpty());
}

TEST_F(SavedSheets, ThatMayNotBeEditedAreNeverWritten)
{
    Open(LinkedDrawing());
    EditTheSheet();

    EXPECT_THAT(Save("drawing.fodg"), IsEmpty());

    EXPECT_EQ(folder.Bytes("house.fodg"), HouseSheet().Text());
}

TEST_F(SavedSheets, ChangeParentsWithinThemselves)
{
    External(L"House Box")->SetParent(nullptr);

    Save("drawing.fodg");

    EXPECT_THAT(Difference(HouseSheet().Text(), folder.Bytes("house.fodg")),
                HasSubstr("style:parent-style-name='House_20_Base'"));
    const OpenedDrawing again = folder.Open("drawing.fodg");
    EXPECT_EQ(again.drawing->FindStyle(L"House Box")->GetParent(), nullptr);
}

TEST_F(SavedSheets, AreNamedByTheShapesAndStylesThatGetTheirs)
{
    opened.Object(L"1/2")->GetStyle()->SetParent(External(L"House Base"));
    opened.Named(L"Note")->SetParent(External(L"House Box"));
    opened.drawing->AddStyle(Styles::StyleCategoryName, L"New")->SetParent(External(L"House Box"));

    Save("drawing.fodg");

    const OpenedDrawing again = folder.Open("drawing.fodg");
    const auto parentOf = [&](const Styles::Style* style)
    { return again.drawing->FindStyleName(style->GetParent()); };
    EXPECT_THAT(again.warnings, IsEmpty());
    EXPECT_EQ(parentOf(again.Object(L"1/2")->GetStyle()), L"House Base");
    EXPECT_EQ(parentOf(again.Named(L"Note")), L"House Box");
    EXPECT_EQ(parentOf(again.Named(L"New")), L"House Box");
}

TEST_F(SavedSheets, AreNamedBySubstylesThatGetTheirs)
{
    Styles::Style* const whole = opened.Object(L"1/2")->GetStyle();
    whole->GetSubstyle(Styles::FillStyleCategoryName, false)->SetParent(External(L"House Ink"));

    Save("drawing.fodg");

    const OpenedDrawing again = folder.Open("drawing.fodg");
    EXPECT_EQ(EffectiveOf(again.Object(L"1/2")->GetStyle(), "fill.color"), "#111111");
    EXPECT_EQ(OwnOf(again.Object(L"1/2")->GetStyle(), "fill.color"), "-");
}

TEST_F(SavedSheets, KeepTheirNamesForThemselves)
{
    EXPECT_EQ(opened.drawing->AddStyle(Styles::StyleCategoryName, L"House Box"), nullptr);
    EXPECT_FALSE(opened.drawing->RenameStyle(L"Note", L"House Box"));
    EXPECT_EQ(opened.drawing->GetStyleSheet().GetUnusedStyleName(L"House Box"), L"House Box 2");
}

TEST_F(SavedSheets, CannotBeNamedWhereTheDrawingHidesTheirStyle)
{
    FlatDrawing drawing = EditingDrawing();
    drawing.Named("style:name='House_20_Box'");
    Open(drawing);
    Styles::Style* const hidden = opened.drawing->FindExternalSheet(L"House")->GetStyle(L"House Box");
    opened.Object(L"1/2")->GetStyle()->SetParent(hidden);
    opened.Named(L"Note")->SetParent(hidden);

    Save("drawing.fodg");

    EXPECT_THAT(opened.warnings,
                ElementsAre(HasSubstr("style \"Note\": its parent is no style that the drawing can name"),
                            HasSubstr("object 1/2: its parent is no style of the drawing")));
}

TEST_F(SavedSheets, TellWhatTheirFilesCannotHold)
{
    Set(External(L"House Box"), "fill.color",
        OvxUtils::Any(CLR_COLORSPEC::FromResource(L"Sea", {0x12, 0x34, 0x56})));

    Save("drawing.fodg");

    EXPECT_THAT(opened.warnings, ElementsAre(testing::StartsWith(folder.PathOf("house.fodg").string() +
                                                                 ": style \"House Box\": its fill.color")));
    EXPECT_EQ(Difference(HouseSheet().Text(), folder.Bytes("house.fodg")), "00aa00 -> 123456");
}
