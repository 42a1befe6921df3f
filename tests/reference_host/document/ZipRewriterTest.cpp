#include "reference_host/document/ZipRewriter.h"

#include "reference_host/document/DocumentError.h"
#include "reference_host/document/ZipArchive.h"
#include "tests/reference_host/document/ZipBuilder.h"

#include <gmock/gmock.h>

using ReferenceHost::DocumentError;
using ReferenceHost::RewriteZip;
using ReferenceHost::ZipArchive;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{

using Packing = ZipBuilder::Packing;

ZipBuilder SomeEntries()
{
    ZipBuilder builder;
    builder.Add("mimetype", "a type").Add("first.xml", std::string(5000, 'a'), Packing::Deflated);
    builder.Add("picture.bin", "\x01\x02\x03").Add("last.xml", "old", Packing::Deflated);
    return builder;
}

/// An archive with a comment at its end.
std::string WithComment(std::string archive, const std::string& comment)
{
    archive[archive.size() - 2] = static_cast<char>(comment.size());
    return archive + comment;
}

TEST(RewrittenArchives, AreTheSameBytesWithoutAChange)
{
    const std::string archive = WithComment(SomeEntries().Build(), "kept");

    EXPECT_EQ(RewriteZip(archive, {}, "x.odg"), archive);
}

TEST(RewrittenArchives, HoldTheNewContents)
{
    const std::string archive = WithComment(SomeEntries().Build(), "kept");
    const std::string text(3000, 'n');

    const std::string rewritten = RewriteZip(archive, {{"first.xml", text}}, "x.odg");

    const ZipArchive opened(rewritten, "x.odg");
    EXPECT_EQ(opened.Read("first.xml"), text);
    EXPECT_EQ(opened.Read("picture.bin"), "\x01\x02\x03");
    EXPECT_EQ(opened.Read("last.xml"), "old");
    EXPECT_TRUE(rewritten.ends_with("kept"));
}

TEST(RewrittenArchives, KeepTheBytesOfOtherEntries)
{
    const std::string archive = SomeEntries().Build();
    const std::size_t first = archive.find("PK\x03\x04", 4);
    const std::size_t picture = archive.find("PK\x03\x04", first + 4);
    const std::size_t directory = archive.find("PK\x01\x02");

    const std::string rewritten = RewriteZip(archive, {{"first.xml", "new"}}, "x.odg");

    EXPECT_THAT(rewritten, StartsWith(archive.substr(0, first)));
    EXPECT_THAT(rewritten, HasSubstr(archive.substr(picture, directory - picture)));
}

TEST(RewrittenArchives, GetNewEntriesBehindTheOthers)
{
    const std::string archive = SomeEntries().Build();

    const std::string rewritten = RewriteZip(archive, {{"meta.xml", "metadata"}}, "x.odg");

    const ZipArchive opened(rewritten, "x.odg");
    EXPECT_EQ(opened.Read("meta.xml"), "metadata");
    EXPECT_THAT(rewritten, StartsWith(archive.substr(0, archive.find("PK\x01\x02"))));
}

TEST(RewrittenArchives, AreRefusedWhenTheirDirectoryIsDamaged)
{
    std::string archive = SomeEntries().Build();
    archive[archive.find("PK\x01\x02")] = 'X';

    EXPECT_THROW(static_cast<void>(RewriteZip(archive, {{"first.xml", "new"}}, "x.odg")), DocumentError);
}

} // namespace
