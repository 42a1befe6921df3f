#include "reference_host/document/Drawing.h"

#include "tests/reference_host/document/FlatDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"
#include "tests/reference_host/document/ZipBuilder.h"

#include "host/style_model/CategoryNames.h"

#include <gmock/gmock.h>

#include <set>

using ReferenceHost::DocumentError;
using ReferenceHost::Drawing;
using ReferenceHost::DrawingForm;
using ReferenceHost::PropertyCodec;
using ReferenceHost::PropertyElement;
using ReferenceHost::PropertyMapping;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

const std::string kDrawingType = "application/vnd.oasis.opendocument.graphics";

DocumentError ErrorOf(const std::string& text, const std::string& name = "x.fodg")
{
    const ScratchFolder folder;
    std::vector<std::string> warnings;
    try
    {
        static_cast<void>(Drawing::Open(folder.Write(name, text), warnings));
    }
    catch (const DocumentError& error)
    {
        return error;
    }
    return {"", "", ""};
}

Styles::PropertyKey Key(const wchar_t* text)
{
    return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

/// A drawing with a named style, an automatic style and a rectangle.
FlatDrawing SmallDrawing()
{
    return FlatDrawing()
        .Fonts("<style:font-face style:name='F1' svg:font-family='Face'/>")
        .Named("style:name='Base'",
               "<style:graphic-properties draw:fill-color='#111111'/><style:text-properties "
               "style:font-name='F1'/>")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'",
                   "<style:graphic-properties svg:stroke-width='1mm'/>")
        .Page("<draw:rect draw:style-name='gr1'/>");
}

std::string Package(const FlatDrawing& drawing, const std::string& mediaType)
{
    return ZipBuilder()
        .Add("mimetype", mediaType)
        .Add("content.xml", drawing.ContentText(), ZipBuilder::Packing::Deflated)
        .Add("styles.xml", drawing.StylesText(), ZipBuilder::Packing::Deflated)
        .Build();
}

TEST(Drawing, ReadsAFlatFile)
{
    const OpenedDrawing opened = SmallDrawing().Open();

    EXPECT_EQ(opened.drawing->GetForm(), DrawingForm::Flat);
    EXPECT_EQ(opened.drawing->GetPath().filename(), "drawing.fodg");
    EXPECT_FALSE(opened.drawing->IsTemplate());
    EXPECT_EQ(opened.ParentOf(opened.Object(L"1/1")->GetStyle()), L"Base");
}

TEST(Drawing, ReadsAPackage)
{
    const OpenedDrawing opened = OpenText(Package(SmallDrawing(), kDrawingType));
    const Styles::Style* const style = opened.Object(L"1/1")->GetStyle();

    EXPECT_EQ(opened.drawing->GetForm(), DrawingForm::Zipped);
    EXPECT_EQ(opened.ParentOf(style), L"Base");
    EXPECT_EQ(OwnOf(style, "outline.width"), "100");
    EXPECT_EQ(EffectiveOf(style, "fill.color"), "#111111");
    EXPECT_EQ(EffectiveOf(style, "character.font"), "\"Face\"");
    EXPECT_THAT(opened.warnings, IsEmpty());
}

TEST(Drawing, ReadsATemplate)
{
    std::string flat = SmallDrawing().Text();
    flat.replace(flat.find(kDrawingType), kDrawingType.size(), kDrawingType + "-template");

    EXPECT_TRUE(OpenText(Package(SmallDrawing(), kDrawingType + "-template")).drawing->IsTemplate());
    EXPECT_TRUE(OpenText(flat).drawing->IsTemplate());
}

TEST(Drawing, ReadsAPackageWithoutStyles)
{
    const OpenedDrawing opened =
        OpenText(ZipBuilder()
                     .Add("mimetype", kDrawingType)
                     .Add("content.xml", FlatDrawing().Page("<draw:rect/>").ContentText())
                     .Build());

    EXPECT_THAT(opened.Ids(), ElementsAre(L"1/1"));
    EXPECT_THAT(opened.drawing->GetStyleSheet().GetNames(), IsEmpty());
}

TEST(Drawing, KeepsTheAutomaticStylesOfMasterPagesApart)
{
    const FlatDrawing drawing =
        FlatDrawing()
            .Automatic("graphic", "style:name='gr1'", "<style:graphic-properties draw:fill-color='#111111'/>")
            .Page("<draw:rect draw:style-name='gr1'/>");
    std::string styles = drawing.StylesText();
    const std::string end = "</office:document-styles>";
    styles.insert(styles.find(end),
                  "<office:automatic-styles><style:style style:family='graphic' style:name='gr1'>"
                  "<style:graphic-properties draw:fill-color='#222222'/></style:style>"
                  "</office:automatic-styles>");

    const OpenedDrawing opened = OpenText(ZipBuilder()
                                              .Add("mimetype", kDrawingType)
                                              .Add("content.xml", drawing.ContentText())
                                              .Add("styles.xml", styles)
                                              .Build());

    EXPECT_EQ(OwnOf(opened.Object(L"1/1")->GetStyle(), "fill.color"), "#111111");
    EXPECT_THAT(opened.warnings, IsEmpty());
}

TEST(Drawing, ResolvesPrefixesByTheirNamespaces)
{
    const OpenedDrawing opened = OpenText(
        "<o:document xmlns:o='urn:oasis:names:tc:opendocument:xmlns:office:1.0'"
        " xmlns:draw='urn:oasis:names:tc:opendocument:xmlns:style:1.0'>"
        "<o:styles><draw:style draw:family='graphic' draw:name='Base'><draw:graphic-properties"
        " xmlns:style='urn:oasis:names:tc:opendocument:xmlns:drawing:1.0' "
        "style:fill-color='#111111'/></draw:style>"
        "</o:styles><o:body><o:drawing>"
        "<page xmlns='urn:oasis:names:tc:opendocument:xmlns:drawing:1.0'"
        " xmlns:d='urn:oasis:names:tc:opendocument:xmlns:drawing:1.0'>"
        "<rect d:style-name='Base' name='no' d:name='yes'/></page></o:drawing></o:body></o:document>");

    EXPECT_EQ(opened.ParentOf(opened.Object(L"1/1")->GetStyle()), L"Base");
    EXPECT_EQ(opened.Object(L"1/1")->GetName(), OvxStringT(L"yes"));
    EXPECT_EQ(EffectiveOf(opened.Named(L"Base"), "fill.color"), "#111111");
}

TEST(Drawing, WithoutPagesIsEmpty)
{
    const OpenedDrawing opened = FlatDrawing().Open();

    EXPECT_THAT(opened.drawing->GetPages(), IsEmpty());
    EXPECT_THAT(opened.Ids(), IsEmpty());
}

TEST(Drawing, KeepsThePaletteInTheOrderOfTheFile)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Meta("<meta:user-defined meta:name='styleprops:palette:Sea'>#2a6f97</meta:user-defined>"
                  "<meta:user-defined meta:name='Author'>#000000</meta:user-defined>"
                  "<meta:user-defined meta:name='styleprops:palette:Gr&#252;n'> #588157 </meta:user-defined>")
            .Open();

    ASSERT_EQ(opened.drawing->GetPalette().size(), 2U);
    EXPECT_EQ(opened.drawing->GetPalette()[0].name, OvxStringT(L"Sea"));
    EXPECT_EQ(opened.drawing->GetPalette()[1].name, OvxStringT(L"Gr\u00fcn"));
    EXPECT_EQ(opened.drawing->FindPaletteColour(L"Sea"), (CLR_COLORSPEC::Rgb{0x2a, 0x6f, 0x97}));
    EXPECT_EQ(opened.drawing->FindPaletteColour(L"Author"), std::nullopt);
}

TEST(Drawing, ReportsPaletteEntriesThatAreNoColours)
{
    const OpenedDrawing opened =
        FlatDrawing()
            .Meta("<meta:user-defined meta:name='styleprops:palette:Sea'>blue</meta:user-defined>"
                  "<meta:user-defined meta:name='styleprops:palette:Sky'>#00aaff</meta:user-defined>"
                  "<meta:user-defined meta:name='styleprops:palette:Sky'>#00aafe</meta:user-defined>")
            .Open();

    EXPECT_EQ(opened.drawing->GetPalette().size(), 1U);
    EXPECT_THAT(opened.warnings,
                ElementsAre("palette entry \"Sea\": \"blue\" is no colour; it was left out",
                            "palette entry \"Sky\": it is there twice; the first one counts"));
}

TEST(Drawing, BuildsTheCategoriesOfExtensionsInEveryWholeStyle)
{
    PropertyMapping depth;
    depth.category = Key(L"shadow");
    depth.key = Key(L"depth");
    depth.element = PropertyElement::Graphic;
    depth.namespaceUri = "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0";
    depth.attribute = "shadow-offset-x";
    depth.codec = PropertyCodec::Length;
    const OpenedDrawing opened =
        FlatDrawing()
            .Named("style:name='A'", "<style:graphic-properties draw:shadow-offset-x='2mm'/>")
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='A'",
                       "<style:graphic-properties draw:shadow-offset-x='3mm'/>")
            .Page("<draw:rect draw:style-name='gr1'/><draw:rect draw:style-name='A'/>")
            .Open({depth});

    EXPECT_EQ(opened.drawing->GetCategories().back(), Key(L"shadow"));
    EXPECT_EQ(OwnOf(opened.Object(L"1/1")->GetStyle(), "shadow.depth"), "300");
    EXPECT_EQ(EffectiveOf(opened.Object(L"1/2")->GetStyle(), "shadow.depth"), "200");
    EXPECT_NE(opened.drawing->GetDefaultStyle().GetSubstyle(Key(L"shadow"), false), nullptr);
    EXPECT_EQ(GetStyleCategoryProperties(*opened.Named(L"A")->GetSubstyle(Key(L"shadow"), false)),
              std::set<Styles::PropertyKey>{Key(L"depth")});
}

TEST(Drawing, MakesThePropertiesOfItsCategoriesKnown)
{
    const OpenedDrawing opened = FlatDrawing().Named("style:name='A'").Open();

    const std::set<Styles::PropertyKey> keys =
        GetStyleCategoryProperties(*opened.Named(L"A")->GetSubstyle(Styles::FillStyleCategoryName, false));

    EXPECT_EQ(keys, (std::set<Styles::PropertyKey>{Key(L"type"), Key(L"color"), Key(L"transparency"),
                                                   Key(L"gradient"), Key(L"hatch"), Key(L"bitmap")}));
}

TEST(DrawingErrors, TellAPresentationInAFlatFile)
{
    std::string text = FlatDrawing().Text();
    text.replace(text.find(kDrawingType), kDrawingType.size(),
                 "application/vnd.oasis.opendocument.presentation");

    EXPECT_EQ(ErrorOf(text).GetProblem(), "this is a presentation");
}

TEST(DrawingErrors, TellTheBodyOfAnotherDocument)
{
    const auto withBody = [](const std::string& element)
    {
        return "<o:document xmlns:o='urn:oasis:names:tc:opendocument:xmlns:office:1.0'><o:body><o:" +
               element + "/></o:body></o:document>";
    };

    EXPECT_EQ(ErrorOf(withBody("text")).GetProblem(), "this is a text document");
    EXPECT_EQ(ErrorOf(withBody("presentation")).GetProblem(), "this is a presentation");
    EXPECT_EQ(ErrorOf(withBody("spreadsheet")).GetProblem(), "this is a spreadsheet");
    EXPECT_EQ(ErrorOf(withBody("hologram")).GetProblem(), "this is a document without a drawing in its body");
}

TEST(DrawingErrors, TellADocumentWithoutABody)
{
    const DocumentError error =
        ErrorOf("<o:document xmlns:o='urn:oasis:names:tc:opendocument:xmlns:office:1.0'/>");

    EXPECT_EQ(error.GetProblem(), "there is no body");
    EXPECT_EQ(error.GetExpected(), "<office:body> with <office:drawing>");
}

TEST(DrawingErrors, TellXmlOfAnotherKind)
{
    EXPECT_EQ(ErrorOf("<svg xmlns='http://www.w3.org/2000/svg'/>").GetProblem(),
              "this is XML with the root element <svg>");
}

TEST(DrawingErrors, NameTheEntryLineAndElement)
{
    const DocumentError error = ErrorOf(
        ZipBuilder().Add("mimetype", kDrawingType).Add("content.xml", "<a>\n<b c='1' c='2'/></a>").Build(),
        "x.odg");

    EXPECT_THAT(error.GetWhere(), HasSubstr("/x.odg, content.xml, line 2, <b>"));
    EXPECT_EQ(error.GetProblem(), "the attribute c stands there twice");
}

TEST(DrawingErrors, NameFlawedStyles)
{
    const DocumentError error = ErrorOf(ZipBuilder()
                                            .Add("mimetype", kDrawingType)
                                            .Add("content.xml", FlatDrawing().ContentText())
                                            .Add("styles.xml", "<!DOCTYPE x><x/>")
                                            .Build());

    EXPECT_THAT(error.GetWhere(), HasSubstr(", styles.xml, line 1"));
    EXPECT_EQ(error.GetProblem(), "there is a DOCTYPE");
}

TEST(DrawingErrors, TellAnEmptyContent)
{
    const DocumentError error =
        ErrorOf(ZipBuilder().Add("mimetype", kDrawingType).Add("content.xml", "").Build());

    EXPECT_EQ(error.GetProblem(), "the entry is empty");
}

} // namespace
