#include "tests/reference_host/document/SavedDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"
#include "tests/reference_host/document/ZipBuilder.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

using OvxUtils::Any;
using ReferenceHost::DocumentError;
using ReferenceHost::Drawing;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace
{

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> NamesIn(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    return names;
}

OpenedDrawing OpenBytes(const std::string& bytes)
{
    const ScratchFolder folder;
    OpenedDrawing opened;
    opened.drawing = Drawing::Open(folder.Write("drawing.odg", bytes), opened.warnings);
    return opened;
}

/// A text with everything that XML allows to be written in more than one way.
std::string OddText()
{
    std::string text = OneRectangle("<style:graphic-properties\r\n\tdraw:fill-color\n= '#111111'/>").Text();
    const std::string page = "<draw:page>";
    text.replace(text.find(page), page.size(),
                 "<!-- <draw:rect/> --><?pi <draw:rect/> ?><draw:page  draw:name = 'it&apos;s &#x41;&quot;' >"
                 "<draw:rect><text:p>\r\n<![CDATA[</draw:rect>]]>&lt;</text:p ></draw:rect\n>");
    return "\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?>\r\n<!-- first -->" + text +
           "\r\n<!-- last -->\r\n";
}

/// A package with a picture, whose mimetype comes first.
ZipBuilder Package(const FlatDrawing& drawing)
{
    ZipBuilder builder;
    builder.Add("mimetype", "application/vnd.oasis.opendocument.graphics");
    builder.Add("Pictures/1.png", std::string(300, 'p'), ZipBuilder::Packing::Deflated);
    builder.Add("content.xml", drawing.ContentText(), ZipBuilder::Packing::Deflated);
    builder.Add("styles.xml", drawing.StylesText(), ZipBuilder::Packing::Deflated);
    builder.Add(
        "META-INF/manifest.xml",
        "<m:manifest xmlns:m='urn:oasis:names:tc:opendocument:xmlns:manifest:1.0'>\n"
        " <m:file-entry m:full-path='/' m:media-type='application/vnd.oasis.opendocument.graphics'/>\n"
        "</m:manifest>");
    return builder;
}

FlatDrawing Small()
{
    return OneRectangle("<style:graphic-properties draw:fill-color='#111111'/>").Named("style:name='Base'");
}

TEST(SavedDrawings, AreTheBytesThatWereReadWithoutAnEdit)
{
    OpenedDrawing opened = OpenText(OddText());
    static_cast<void>(opened.Object(L"1/1")->GetRuns()[0].GetStyle());
    static_cast<void>(opened.Object(L"1/2")->GetStyle());

    EXPECT_EQ(Saved(opened), OddText());
}

TEST(SavedDrawings, DifferInTheEditedStartTagAlone)
{
    OpenedDrawing opened = OpenText(OddText());
    Set(opened.Object(L"1/2")->GetStyle(), "fill.color", ColourValue(0x11, 0x22, 0x11));

    EXPECT_EQ(Difference(OddText(), Saved(opened)), "11 -> 22");
}

TEST(SavedDrawings, MayBeEditedAndSavedAgain)
{
    OpenedDrawing opened = OpenText(OddText());
    Set(opened.Object(L"1/2")->GetStyle(), "fill.color", ColourValue(0x11, 0x22, 0x11));
    OpenedDrawing again = OpenText(Saved(opened));
    Set(again.Object(L"1/2")->GetStyle(), "fill.color", ColourValue(0x11, 0x11, 0x11));

    EXPECT_EQ(Saved(again), OddText());
}

TEST(SavedDrawings, AreTheShippedSample)
{
    std::vector<std::string> warnings;
    const auto drawing = Drawing::Open(SAMPLE_DRAWING, warnings);
    for (ReferenceHost::DrawingObject& object : drawing->GetObjects())
        static_cast<void>(object.GetStyle());

    EXPECT_EQ(drawing->Serialise(warnings), BytesOf(SAMPLE_DRAWING));
    EXPECT_THAT(warnings, IsEmpty());
}

TEST(SavedPackages, AreTheBytesThatWereReadWithoutAnEdit)
{
    const std::string bytes = Package(Small()).Build();
    OpenedDrawing opened = OpenBytes(bytes);
    static_cast<void>(opened.Object(L"1/1")->GetStyle());

    EXPECT_EQ(Saved(opened), bytes);
}

TEST(SavedPackages, ChangeTheEditedEntryAlone)
{
    const std::string bytes = Package(Small()).Build();
    OpenedDrawing opened = OpenBytes(bytes);
    Set(opened.Object(L"1/1")->GetStyle(), "fill.color", ColourValue(0x11, 0x22, 0x11));

    const std::string saved = Saved(opened);

    const std::size_t content = bytes.find("content.xml") - 30;
    const std::size_t styles = bytes.find("styles.xml") - 30;
    EXPECT_THAT(saved, StartsWith(bytes.substr(0, content)));
    EXPECT_THAT(saved, HasSubstr(bytes.substr(styles, bytes.find("PK\x01\x02") - styles)));
    const OpenedDrawing again = OpenBytes(saved);
    EXPECT_EQ(OwnOf(again.Object(L"1/1")->GetStyle(), "fill.color"), "#112211");
}

TEST(SavedPackages, HoldNamedStylesBesideTheContent)
{
    OpenedDrawing opened = OpenBytes(Package(Small()).Build());
    Set(opened.Named(L"Base"), "fill.color", ColourValue(1, 2, 3));

    const OpenedDrawing again = OpenBytes(Saved(opened));

    EXPECT_EQ(OwnOf(again.Named(L"Base"), "fill.color"), "#010203");
}

TEST(SavedPackages, GetMetadataWithAnEntryInTheManifest)
{
    OpenedDrawing opened = OpenBytes(Package(Small()).Build());
    opened.drawing->DefinePaletteColour(L"Sea", {1, 2, 3});

    const std::string saved = Saved(opened);

    EXPECT_THAT(saved, HasSubstr("meta.xml"));
    OpenedDrawing again = OpenBytes(saved);
    EXPECT_TRUE(again.drawing->FindPaletteColour(L"Sea").has_value());
    EXPECT_THAT(opened.warnings, IsEmpty());
    EXPECT_EQ(Saved(again), saved);
}

TEST(SavedFiles, ReplaceTheOldOneAndKeepABackup)
{
    const ScratchFolder folder;
    const fs::path file = folder.Write("x.fodg", Small().Text());
    std::vector<std::string> warnings;
    const auto drawing = Drawing::Open(file, warnings);
    Set(drawing->GetObjects()[0].GetStyle(), "fill.color", ColourValue(1, 2, 3));

    drawing->Save(file, {.keepBackup = true}, warnings);

    EXPECT_EQ(BytesOf(file), drawing->Serialise(warnings));
    EXPECT_EQ(BytesOf(folder.GetPath() / "x.fodg~"), Small().Text());
    EXPECT_THAT(NamesIn(folder.GetPath()), testing::UnorderedElementsAre("x.fodg", "x.fodg~"));
}

TEST(SavedFiles, AreRefusedWithOneErrorThatNamesThem)
{
    const ScratchFolder folder;
    const fs::path file = folder.Write("x.fodg", Small().Text());
    std::vector<std::string> warnings;
    const auto drawing = Drawing::Open(file, warnings);

    try
    {
        drawing->Save(folder.GetPath() / "nowhere" / "y.fodg", {}, warnings);
        FAIL() << "saved into a folder that does not exist";
    }
    catch (const DocumentError& error)
    {
        EXPECT_THAT(error.GetWhere(), HasSubstr("nowhere/y.fodg"));
        EXPECT_THAT(error.GetProblem(), HasSubstr("cannot be saved"));
    }
}

} // namespace
