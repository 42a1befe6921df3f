#include "reference_host/document/DrawingFile.h"

#include "tests/reference_host/document/ScratchFolder.h"
#include "tests/reference_host/document/ZipBuilder.h"

#include <gmock/gmock.h>

#include <fstream>

using ReferenceHost::DocumentError;
using ReferenceHost::DrawingFile;
using ReferenceHost::DrawingForm;
using ReferenceHost::ReadDrawingFile;
using testing::HasSubstr;

namespace
{

const std::string kDrawingType = "application/vnd.oasis.opendocument.graphics";

DocumentError ErrorOf(const std::filesystem::path& file)
{
    try
    {
        static_cast<void>(ReadDrawingFile(file));
    }
    catch (const DocumentError& error)
    {
        return error;
    }
    return {"", "", ""};
}

class DrawingFileErrors : public testing::Test
{
protected:
    [[nodiscard]] DocumentError ErrorOfBytes(std::string_view bytes) const
    {
        return ErrorOf(folder.Write("x.odg", bytes));
    }

    ScratchFolder folder;
};

TEST_F(DrawingFileErrors, NameAMissingFile)
{
    const std::filesystem::path missing = folder.GetPath() / "missing.fodg";

    const DocumentError error = ErrorOf(missing);

    EXPECT_EQ(error.GetProblem(), "the file does not exist");
    EXPECT_EQ(error.GetWhere(), missing.string());
}

TEST_F(DrawingFileErrors, NameAFileBelowAFile)
{
    const DocumentError error = ErrorOf(folder.Write("file", "x") / "below.fodg");

    EXPECT_EQ(error.GetProblem(), "the file does not exist");
}

TEST_F(DrawingFileErrors, TellADirectory)
{
    EXPECT_EQ(ErrorOf(folder.GetPath()).GetProblem(), "this is a directory");
}

TEST_F(DrawingFileErrors, TellWhatIsNoRegularFile)
{
    EXPECT_EQ(ErrorOf("/dev/null").GetProblem(), "this is no regular file");
}

TEST_F(DrawingFileErrors, TellAnEmptyFile)
{
    EXPECT_EQ(ErrorOfBytes("").GetProblem(), "the file is empty");
}

TEST_F(DrawingFileErrors, TellTheReasonOfTheSystem)
{
    const DocumentError error =
        ReferenceHost::CannotRead("x.fodg", std::make_error_code(std::errc::permission_denied));

    EXPECT_EQ(error.GetProblem(), "the file cannot be read (Permission denied)");
    EXPECT_EQ(error.GetExpected(), "a file that may be read");
}

TEST_F(DrawingFileErrors, TellAFileThatMayNotBeRead)
{
    const std::filesystem::path file = folder.Write("secret.fodg", "<a/>");
    std::filesystem::permissions(file, std::filesystem::perms::none);
    if (std::ifstream(file).good())
        GTEST_SKIP() << "this user may read everything";

    EXPECT_THAT(ErrorOf(file).GetProblem(), HasSubstr("cannot be read"));
}

TEST_F(DrawingFileErrors, TellAFileBeyondTheLimit)
{
    const std::filesystem::path file = folder.Write("big.fodg", "<a/>");
    std::filesystem::resize_file(file, (192ULL << 20U) + 1); // Sparse: it takes no room on the disk.

    EXPECT_EQ(ErrorOf(file).GetProblem(), "the file is larger than 192 MiB");
}

TEST_F(DrawingFileErrors, TellWhatIsNeitherArchiveNorXml)
{
    EXPECT_EQ(ErrorOfBytes("\x89PNG").GetProblem(), "this is neither a zip archive nor XML");
}

TEST_F(DrawingFileErrors, TellAnArchiveOfAnotherKind)
{
    const DocumentError error = ErrorOfBytes(ZipBuilder().Add("readme.txt", "x").Build());

    EXPECT_EQ(error.GetProblem(), "this is a zip archive with other contents");
}

TEST_F(DrawingFileErrors, TellADrawingWithoutContent)
{
    const DocumentError error = ErrorOfBytes(ZipBuilder().Add("mimetype", kDrawingType).Build());

    EXPECT_EQ(error.GetProblem(), "there is no entry content.xml");
}

TEST_F(DrawingFileErrors, TellContentThatIsProtectedByAPassword)
{
    const std::string manifest =
        "<m:manifest xmlns:m='urn:oasis:names:tc:opendocument:xmlns:manifest:1.0'>"
        "<m:file-entry m:full-path='/' m:media-type='application/vnd.oasis.opendocument.graphics'/>"
        "<m:file-entry m:full-path='content.xml' m:media-type='text/xml'><m:encryption-data/></m:file-entry>"
        "</m:manifest>";

    const DocumentError error = ErrorOfBytes(ZipBuilder()
                                                 .Add("mimetype", kDrawingType)
                                                 .Add("META-INF/manifest.xml", manifest)
                                                 .Add("content.xml", "\x8F\x01")
                                                 .Build());

    EXPECT_EQ(error.GetProblem(), "the entry is encrypted");
    EXPECT_THAT(error.GetWhere(), HasSubstr("x.odg, content.xml"));
}

struct OtherKind
{
    const char* mediaType;
    const char* problem;
};

class OtherDocuments : public DrawingFileErrors, public testing::WithParamInterface<OtherKind>
{
};

TEST_P(OtherDocuments, AreCalledByTheirKind)
{
    const DocumentError error =
        ErrorOfBytes(ZipBuilder().Add("mimetype", GetParam().mediaType).Add("content.xml", "<a/>").Build());

    EXPECT_EQ(error.GetProblem(), GetParam().problem);
    EXPECT_EQ(error.GetExpected(), "an OpenDocument drawing (.fodg, .odg or .otg)");
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, OtherDocuments,
    testing::Values(OtherKind{"application/vnd.oasis.opendocument.presentation", "this is a presentation"},
                    OtherKind{"application/vnd.oasis.opendocument.text", "this is a text document"},
                    OtherKind{"application/vnd.oasis.opendocument.spreadsheet", "this is a spreadsheet"},
                    OtherKind{"application/vnd.oasis.opendocument.chart", "this is a chart"},
                    OtherKind{"application/vnd.oasis.opendocument.formula", "this is a formula"},
                    OtherKind{"application/vnd.oasis.opendocument.image", "this is an image document"},
                    OtherKind{"application/vnd.oasis.opendocument.base", "this is a database"},
                    OtherKind{"application/vnd.oasis.opendocument.text-master", "this is a master document"},
                    OtherKind{"application/vnd.oasis.opendocument.presentation-template",
                              "this is a template for presentations"},
                    OtherKind{"application/epub+zip", "this is a file of the type \"application/epub+zip\""},
                    OtherKind{"application/vnd.oasis.opendocument.hologram",
                              "this is a file of the type \"application/vnd.oasis.opendocument.hologram\""}));

TEST(DrawingFiles, KeepTheirBytesAndTheirTexts)
{
    const ScratchFolder folder;
    const std::string bytes = ZipBuilder()
                                  .Add("mimetype", kDrawingType)
                                  .Add("content.xml", "<content/>", ZipBuilder::Packing::Deflated)
                                  .Add("styles.xml", "<styles/>")
                                  .Add("meta.xml", "<meta/>")
                                  .Build();

    const DrawingFile file = ReadDrawingFile(folder.Write("x.odg", bytes));

    EXPECT_EQ(file.form, DrawingForm::Zipped);
    EXPECT_EQ(file.bytes, bytes);
    EXPECT_EQ(file.content, "<content/>");
    EXPECT_EQ(file.styles, "<styles/>");
    EXPECT_EQ(file.meta, "<meta/>");
}

TEST(DrawingFiles, AreToldByTheirContentAndNotByTheirName)
{
    const ScratchFolder folder;

    EXPECT_EQ(ReadDrawingFile(folder.Write("flat.odg", " \n<a/>")).form, DrawingForm::Flat);
    EXPECT_EQ(ReadDrawingFile(
                  folder.Write(
                      "zipped.fodg",
                      ZipBuilder().Add("mimetype", kDrawingType + "\n").Add("content.xml", "<a/>").Build()))
                  .form,
              DrawingForm::Zipped);
}

TEST(DrawingFiles, MayBeTemplates)
{
    const ScratchFolder folder;
    const std::string bytes =
        ZipBuilder().Add("mimetype", kDrawingType + "-template").Add("content.xml", "<a/>").Build();

    EXPECT_TRUE(ReadDrawingFile(folder.Write("x.otg", bytes)).isTemplate);
}

TEST(DrawingFiles, MayLeaveTheirTypeToTheManifest)
{
    const ScratchFolder folder;
    const std::string manifest =
        "<m:manifest xmlns:m='urn:oasis:names:tc:opendocument:xmlns:manifest:1.0'><m:file-entry "
        "m:full-path='/'"
        " m:media-type='application/vnd.oasis.opendocument.graphics-template'/></m:manifest>";
    const std::string bytes =
        ZipBuilder().Add("content.xml", "<a/>").Add("META-INF/manifest.xml", manifest).Build();

    EXPECT_TRUE(ReadDrawingFile(folder.Write("x.odg", bytes)).isTemplate);
}

TEST(DrawingFiles, MayHaveAManifestWithADoctype)
{
    const ScratchFolder folder;
    const std::string bytes = ZipBuilder()
                                  .Add("mimetype", kDrawingType)
                                  .Add("META-INF/manifest.xml", "<!DOCTYPE manifest><manifest/>")
                                  .Add("content.xml", "<a/>")
                                  .Build();

    EXPECT_EQ(ReadDrawingFile(folder.Write("x.odg", bytes)).content, "<a/>");
}

} // namespace
