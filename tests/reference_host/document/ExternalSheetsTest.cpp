// What a drawing takes from style sheets outside it when it is opened.

#include "tests/reference_host/document/DrawingPackage.h"
#include "tests/reference_host/document/SavedDrawing.h"
#include "tests/reference_host/document/SheetFolder.h"

#include "reference_host/history/History.h"
#include "reference_host/style_model/StyleHosting.h"

#include <gmock/gmock.h>

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace
{

class StylesOfSheets : public testing::Test
{
protected:
    OpenedDrawing Open(const FlatDrawing& drawing)
    {
        folder.Write("drawing.fodg", drawing);
        return folder.Open("drawing.fodg");
    }

    static Styles::Style* External(const OpenedDrawing& opened, const wchar_t* name)
    {
        return opened.drawing->FindExternalSheet(L"House")->GetStyle(name);
    }

    static std::wstring ParentOf(const OpenedDrawing& opened, const Styles::Style* style)
    {
        return opened.drawing->FindStyleName(style->GetParent()).Wide();
    }

    SheetFolder folder;
};

/// Opening a drawing whose one link cannot be followed: shape 1/1 goes without its parent.
class SheetsThatCannotBeUsed : public StylesOfSheets
{
protected:
    /// The one warning about the sheet, without the folder. Other warnings are about the missing parents.
    std::string WarningFor(const std::string& reference)
    {
        const FlatDrawing linking = FlatDrawing().Styles(LinkTo(reference, "sp:name='House'")).Page("");
        const OpenedDrawing opened = Open(linking);
        EXPECT_THAT(opened.warnings, testing::SizeIs(1));
        EXPECT_THAT(opened.drawing->GetExternalSheetNames(), IsEmpty());
        std::string warning = opened.warnings.empty() ? std::string() : opened.warnings.front();
        const std::string place = folder.PathOf("").string();
        for (auto at = warning.find(place); at != std::string::npos; at = warning.find(place))
            warning.erase(at, place.size());
        return warning;
    }
};

} // namespace

TEST_F(StylesOfSheets, AreTheParentsOfShapesAndNamedStyles)
{
    folder.Write("house.fodg", HouseSheet());

    const OpenedDrawing opened = Open(LinkedDrawing());

    EXPECT_THAT(opened.warnings, IsEmpty());
    EXPECT_EQ(ParentOf(opened, opened.Object(L"1/1")->GetStyle()), L"House Box");
    EXPECT_EQ(ParentOf(opened, opened.Named(L"Note")), L"House Base");
    EXPECT_EQ(EffectiveOf(opened.Object(L"1/1")->GetStyle(), "fill.color"), "#00aa00");
    EXPECT_EQ(EffectiveOf(opened.Object(L"1/2")->GetStyle(), "outline.width"), "100");
}

TEST_F(StylesOfSheets, AreExternalAndReadOnlyWithoutALink)
{
    folder.Write("house.fodg", HouseSheet());

    const OpenedDrawing opened = Open(LinkedDrawing());

    const Styles::Style* const box = External(opened, L"House Box");
    EXPECT_TRUE(box->IsExternal());
    EXPECT_EQ(box->GetExternalStyleSheetName(), L"House");
    EXPECT_EQ(box->GetExternalLink(), L"");
    EXPECT_FALSE(opened.Named(L"Note")->IsExternal());
}

TEST_F(StylesOfSheets, CarryTheReferenceAsTheirLinkWhenTheyMayBeEdited)
{
    folder.Write("house.fodg", HouseSheet());

    const OpenedDrawing opened = Open(EditingDrawing());

    EXPECT_EQ(External(opened, L"House Box")->GetExternalLink(), L"house.fodg");
}

TEST_F(StylesOfSheets, StandInTheirOwnSheetOnly)
{
    folder.Write("house.fodg", HouseSheet());

    const OpenedDrawing opened = Open(LinkedDrawing());

    EXPECT_THAT(opened.drawing->GetStyleSheet().GetNames(), ElementsAre(L"Note"));
    EXPECT_THAT(opened.drawing->GetExternalSheetNames(), ElementsAre(L"House"));
    EXPECT_THAT(opened.drawing->FindExternalSheet(L"House")->GetNames(),
                ElementsAre(L"House Base", L"House Box", L"House Ink"));
    EXPECT_EQ(opened.drawing->FindExternalSheet(L"unknown"), nullptr);
    EXPECT_EQ(opened.drawing->FindStyle(L"House Box"), External(opened, L"House Box"));
    EXPECT_EQ(opened.drawing->FindStyle(L"unknown"), nullptr);
    EXPECT_EQ(opened.drawing->GetDisplayName(L"House Box"), L"Box of the house");
}

TEST_F(StylesOfSheets, FallBackToTheDefaultStyleOfTheDrawing)
{
    folder.Write("house.fodg", HouseSheet());

    const OpenedDrawing opened = Open(LinkedDrawing());

    EXPECT_EQ(EffectiveOf(opened.Object(L"1/1")->GetStyle(), "outline.type"), "dash");
    EXPECT_EQ(EffectiveOf(External(opened, L"House Box"), "outline.type"), "dash");
    EXPECT_EQ(EffectiveOf(opened.Object(L"1/1")->GetStyle(), "fill.transparency"), "-");
}

TEST_F(StylesOfSheets, KeepTheValuesThatTheirFileGivesThem)
{
    folder.Write("house.fodg", FlatDrawing()
                                   .Defaults("<style:text-properties fo:font-size='20pt'/>")
                                   .Named("style:name='Small'", "<style:text-properties fo:font-size='50%'/>")
                                   .Page(""));

    const OpenedDrawing opened = Open(FlatDrawing()
                                          .Styles(LinkTo("house.fodg", "sp:name='House'"))
                                          .Defaults("<style:text-properties fo:font-size='40pt'/>")
                                          .Named("style:name='Own' style:parent-style-name='Small'")
                                          .Page(""));

    EXPECT_EQ(OwnOf(External(opened, L"Small"), "character.size"), "100");
    EXPECT_EQ(EffectiveOf(opened.Named(L"Own"), "character.size"), "100");
}

TEST_F(StylesOfSheets, ComeFromPackagesToo)
{
    folder.WriteBytes("house.otg", PackageOf(HouseSheet()));
    FlatDrawing drawing =
        FlatDrawing()
            .Styles(LinkTo("house.otg", "sp:name='House'"))
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='House_20_Box'", "")
            .Page("<draw:rect draw:style-name='gr1'/>");
    folder.WriteBytes("drawing.odg", PackageOf(drawing));

    const OpenedDrawing opened = folder.Open("drawing.odg");

    EXPECT_THAT(opened.warnings, IsEmpty());
    EXPECT_EQ(EffectiveOf(opened.Object(L"1/1")->GetStyle(), "fill.color"), "#00aa00");
}

TEST_F(StylesOfSheets, GiveWayToThoseOfTheDrawing)
{
    folder.Write("house.fodg", HouseSheet());
    FlatDrawing drawing = LinkedDrawing();
    drawing.Named("style:name='House_20_Box'", "<style:graphic-properties draw:fill-color='#abcdef'/>");

    const OpenedDrawing opened = Open(drawing);

    EXPECT_EQ(opened.Object(L"1/1")->GetStyle()->GetParent(), opened.Named(L"House Box"));
    EXPECT_EQ(opened.drawing->FindStyle(L"House Box"), opened.Named(L"House Box"));
    EXPECT_EQ(EffectiveOf(opened.Object(L"1/1")->GetStyle(), "fill.color"), "#abcdef");
    EXPECT_EQ(opened.drawing->FindStyleName(External(opened, L"House Box")), L"House Box");
}

TEST_F(StylesOfSheets, AreLookedUpInTheOrderOfTheLinks)
{
    folder.Write("first.fodg", FlatDrawing().Named("style:name='Both'").Page(""));
    folder.Write("second.fodg", FlatDrawing().Named("style:name='Both'").Named("style:name='Late'").Page(""));

    const OpenedDrawing opened = Open(FlatDrawing()
                                          .Styles(LinkTo("first.fodg") + LinkTo("second.fodg"))
                                          .Named("style:name='A' style:parent-style-name='Both'")
                                          .Named("style:name='B' style:parent-style-name='Late'")
                                          .Page(""));

    EXPECT_EQ(opened.Named(L"A")->GetParent()->GetExternalStyleSheetName(), L"first.fodg");
    EXPECT_EQ(opened.Named(L"B")->GetParent()->GetExternalStyleSheetName(), L"second.fodg");
}

TEST_F(StylesOfSheets, OfOneCategoryAreTheParentsOfSubstyles)
{
    folder.Write("house.fodg", HouseSheet());

    const OpenedDrawing opened =
        Open(FlatDrawing()
                 .Styles(LinkTo("house.fodg", "sp:name='House'"))
                 .Automatic("graphic", "style:name='gr1' sp:fill-parent-style-name='House_20_Ink'", "")
                 .Named("style:name='Tint' sp:category='fill' sp:parent-style-name='House_20_Ink'")
                 .Page("<draw:rect draw:style-name='gr1'/>"));

    EXPECT_THAT(opened.warnings, IsEmpty());
    EXPECT_EQ(EffectiveOf(opened.Object(L"1/1")->GetStyle(), "fill.color"), "#111111");
    EXPECT_EQ(opened.Named(L"Tint")->GetParent(), External(opened, L"House Ink"));
}

TEST_F(StylesOfSheets, MayBeNamedByShapesDirectly)
{
    folder.Write("house.fodg", HouseSheet());

    const OpenedDrawing opened = Open(FlatDrawing()
                                          .Styles(LinkTo("house.fodg", "sp:name='House'"))
                                          .Page("<draw:rect draw:style-name='House_20_Box'/>"));

    EXPECT_THAT(opened.warnings, IsEmpty());
    EXPECT_EQ(ParentOf(opened, opened.Object(L"1/1")->GetStyle()), L"House Box");
}

TEST_F(StylesOfSheets, AreTheParentsOfTextStyles)
{
    folder.Write("house.fodg", FlatDrawing()
                                   .Styles("<style:style style:family='paragraph' style:name='Prose'>"
                                           "<style:text-properties fo:font-size='20pt'/></style:style>")
                                   .Page(""));

    const OpenedDrawing opened =
        Open(FlatDrawing()
                 .Styles(LinkTo("house.fodg"))
                 .Automatic("paragraph", "style:name='P1' style:parent-style-name='Prose'", "")
                 .Page("<draw:rect><text:p text:style-name='P1'>text</text:p></draw:rect>"));

    EXPECT_THAT(opened.warnings, IsEmpty());
    EXPECT_EQ(EffectiveOf(opened.Object(L"1/1")->GetRuns()[0].GetStyle(), "character.size"), "200");
}

TEST_F(StylesOfSheets, AreNotTheStandardOfShapesThatNameNone)
{
    folder.Write("house.fodg", FlatDrawing().Named("style:name='standard'").Page(""));

    const OpenedDrawing opened = Open(FlatDrawing().Styles(LinkTo("house.fodg")).Page("<draw:rect/>"));

    EXPECT_EQ(opened.Object(L"1/1")->GetStyle()->GetParent(), nullptr);
}

TEST_F(StylesOfSheets, ReferToThePaletteOfTheirOwnFile)
{
    folder.Write(
        "house.fodg",
        FlatDrawing()
            .Meta("<meta:user-defined meta:name='styleprops:palette:Sea'>#2a6f97</meta:user-defined>")
            .Named("style:name='Water'", "<style:graphic-properties draw:fill-color='#2a6f97' "
                                         "sp:fill-color-resource='Sea'/>")
            .Page(""));

    const OpenedDrawing opened = Open(FlatDrawing().Styles(LinkTo("house.fodg", "sp:name='House'")).Page(""));

    EXPECT_THAT(opened.warnings, IsEmpty());
    EXPECT_EQ(EffectiveOf(External(opened, L"Water"), "fill.color"), "#2a6f97@Sea");
    EXPECT_THAT(opened.drawing->GetPalette(), IsEmpty());
}

TEST_F(StylesOfSheets, DoNotOutliveTheDrawing)
{
    folder.Write("house.fodg", HouseSheet());
    const std::size_t before = ReferenceHost::LiveStyleCount();
    {
        const OpenedDrawing opened = Open(EditingDrawing());
        Set(External(opened, L"House Box"), "fill.color", ColourValue(1, 2, 3));
        opened.drawing->GetHistory().Undo();
    }

    EXPECT_EQ(ReferenceHost::LiveStyleCount(), before);
}

TEST_F(StylesOfSheets, BringTheWarningsOfTheirFile)
{
    folder.Write("house.fodg",
                 FlatDrawing().Named("style:name='Lost' style:parent-style-name='None'").Page(""));

    const OpenedDrawing opened = Open(FlatDrawing().Styles(LinkTo("house.fodg")).Page(""));

    EXPECT_THAT(opened.warnings,
                ElementsAre(AllOf(StartsWith(folder.PathOf("house.fodg").string()),
                                  HasSubstr("style \"Lost\": its parent \"None\" does not exist"))));
}

TEST_F(SheetsThatCannotBeUsed, AreReportedWithDrawingSheetAndReason)
{
    EXPECT_EQ(WarningFor("house.fodg"), "drawing.fodg, style sheet \"House\": house.fodg: the file does not "
                                        "exist; expected an OpenDocument drawing; its styles are missing");
}

TEST_F(SheetsThatCannotBeUsed, AreThoseOfOtherMachines)
{
    EXPECT_THAT(WarningFor("https://example.org/house.odg"),
                HasSubstr("\"https://example.org/house.odg\": the link leads to no file of this machine"));
}

TEST_F(SheetsThatCannotBeUsed, AreDamagedOrSomethingElse)
{
    folder.WriteBytes("damaged.fodg", HouseSheet().Text().substr(0, 900));
    folder.WriteBytes("text.txt", "house");

    EXPECT_THAT(WarningFor("damaged.fodg"), StartsWith("drawing.fodg, style sheet \"House\": damaged.fodg"));
    EXPECT_THAT(WarningFor("text.txt"), HasSubstr("text.txt: "));
    EXPECT_THAT(WarningFor("."), HasSubstr("this is a directory"));
    EXPECT_THAT(WarningFor(""), HasSubstr("the link is empty"));
}

TEST_F(SheetsThatCannotBeUsed, AreTheDrawingItself)
{
    EXPECT_THAT(WarningFor("./drawing.fodg"), HasSubstr("this is the drawing itself"));
}

TEST_F(SheetsThatCannotBeUsed, LeaveTheDrawingItsBytes)
{
    OpenedDrawing opened = Open(LinkedDrawing());
    static_cast<void>(opened.Object(L"1/1")->GetStyle());
    static_cast<void>(opened.Object(L"1/2")->GetStyle());

    EXPECT_EQ(Saved(opened), LinkedDrawing().Text());
}

TEST_F(StylesOfSheets, ComeOnceForEachNameAndFile)
{
    folder.Write("house.fodg", HouseSheet());
    folder.Write("other.fodg", HouseSheet());

    const OpenedDrawing opened =
        Open(FlatDrawing()
                 .Styles(LinkTo("house.fodg", "sp:name='House'") + LinkTo("other.fodg", "sp:name='House'") +
                         LinkTo("./house.fodg", "sp:name='Again'"))
                 .Page(""));

    EXPECT_THAT(opened.drawing->GetExternalSheetNames(), ElementsAre(L"House"));
    EXPECT_THAT(opened.warnings, ElementsAre(HasSubstr("another style sheet of the drawing has this name"),
                                             HasSubstr("the drawing names this file twice")));
}

TEST_F(StylesOfSheets, LeadToNoFurtherSheets)
{
    folder.Write("house.fodg", HouseSheet().Styles(LinkTo("more.fodg", "sp:name='More'")));
    folder.Write("more.fodg", FlatDrawing().Named("style:name='Far'").Page(""));

    const OpenedDrawing opened = Open(LinkedDrawing());

    EXPECT_EQ(opened.drawing->FindStyle(L"Far"), nullptr);
    EXPECT_THAT(opened.warnings,
                ElementsAre(HasSubstr("style sheet \"More\": links in style sheets are not followed")));
}
