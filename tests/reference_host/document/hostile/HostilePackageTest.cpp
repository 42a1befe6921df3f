// Packages that mean harm: each has one outcome, and costs no more than any file may.

#include "tests/reference_host/document/SavedDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"
#include "tests/reference_host/document/ZipBuilder.h"
#include "tests/reference_host/document/hostile/HostileDrawing.h"

#include <gmock/gmock.h>

#include <random>

using testing::HasSubstr;
using testing::StartsWith;

namespace
{

using Packing = ZipBuilder::Packing;

/// A drawing with a rectangle, the content.xml last.
ZipBuilder Package(const std::string& content)
{
    ZipBuilder builder;
    builder.Add("mimetype", "application/vnd.oasis.opendocument.graphics");
    builder.Add("content.xml", content, Packing::Deflated);
    return builder;
}

std::string Content()
{
    return OneRectangle("<style:graphic-properties draw:fill-color='#111111'/>").ContentText();
}

/// The place of a record's signature, counted from 0.
std::size_t FindRecord(const std::string& archive, const std::string& signature, std::size_t number)
{
    std::size_t place = archive.find(signature);
    for (; number > 0; --number)
        place = archive.find(signature, place + 1);
    return place;
}

/// Lets the directory lead an entry to the bytes of the first.
std::string WithSharedBytes(std::string archive, std::size_t entry)
{
    constexpr std::size_t kOffset = 42;
    return archive.replace(FindRecord(archive, "PK\x01\x02", entry) + kOffset, 4, std::string(4, '\0'));
}

class HostilePackages : public testing::Test
{
protected:
    /// What becomes of a package, at a bounded cost.
    [[nodiscard]] std::string OutcomeOf(const std::string& bytes) const
    {
        const MeasuredRun run = OpenAndEdit(folder.Write("x.odg", bytes));
        ExpectBounded(run);
        return run.answer;
    }

    ScratchFolder folder;
};

} // namespace

TEST_F(HostilePackages, ThatUnpackToFarMoreAreRefused)
{
    const std::size_t size = 100U << 20U;

    EXPECT_THAT(OutcomeOf(Package(std::string(size, ' ')).Build()), HasSubstr("less than one part in 200"));
    EXPECT_THAT(OutcomeOf(Package(std::string(size, ' ')).ClaimSize(1000).Build()),
                HasSubstr("content.xml: the entry is damaged"));
}

TEST_F(HostilePackages, ThatAnnounceMoreThanAllowedAreRefused)
{
    EXPECT_THAT(OutcomeOf(Package(Content()).ClaimSize(4000000000U).Build()), HasSubstr("more than 192 MiB"));
}

TEST_F(HostilePackages, WhoseEntriesShareBytesAreRefused)
{
    ZipBuilder builder = Package(Content());
    builder.Add("Pictures/a.png", "a").Add("Pictures/b.png", "b");

    EXPECT_THAT(OutcomeOf(WithSharedBytes(builder.Build(), 2)), HasSubstr("shares its bytes with another"));
}

TEST_F(HostilePackages, WhoseEntriesAreCalledLikePathsAreReadAndWriteNothingElse)
{
    ZipBuilder builder = Package(Content());
    builder.Add("../evil", "x")
        .Add("/tmp/styleproperties-evil", "x")
        .Add("a/../../evil", "x")
        .Add("C:\\evil", "x");

    EXPECT_EQ(OutcomeOf(builder.Build()), "success");

    EXPECT_FALSE(std::filesystem::exists(folder.GetPath().parent_path() / "evil"));
    EXPECT_FALSE(std::filesystem::exists("/tmp/styleproperties-evil"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.GetPath()), {}), 1);
}

TEST_F(HostilePackages, WithAnEntryTwiceAreRefused)
{
    EXPECT_THAT(OutcomeOf(Package(Content()).Add("content.xml", Content()).Build()),
                HasSubstr("is there twice"));
}

TEST_F(HostilePackages, WithAWrongChecksumAreRefused)
{
    EXPECT_THAT(OutcomeOf(Package(Content()).ClaimChecksum(1).Build()),
                HasSubstr("content.xml: the entry is damaged"));
}

TEST_F(HostilePackages, ThatAreEncryptedAreRefused)
{
    EXPECT_THAT(OutcomeOf(Package(Content()).ClaimEncryption().Build()), HasSubstr("the entry is encrypted"));
}

TEST_F(HostilePackages, WithEntitiesAreRefused)
{
    EXPECT_THAT(OutcomeOf(Package("<!DOCTYPE x [<!ENTITY a 'b'>]>" + Content()).Build()),
                HasSubstr("content.xml, line 1: there is a DOCTYPE"));
}

TEST_F(HostilePackages, ThatWereCutOffAreRefused)
{
    std::mt19937 random(7); // Bytes that do not pack.
    std::string picture(30000, '\0');
    for (char& byte : picture)
        byte = static_cast<char>(random() & 0xFFU);
    ZipBuilder builder = Package(Content());
    const std::string whole = builder.Add("Pictures/1.png", picture).Build();

    for (std::size_t length = 0; length < whole.size(); length += 1000)
        EXPECT_THAT(OutcomeOf(whole.substr(0, length)), StartsWith("error: ")) << length;
}
