#include "reference_host/document/ZipArchive.h"

#include "reference_host/document/DocumentError.h"
#include "tests/reference_host/document/ZipBuilder.h"

#include <gmock/gmock.h>

#include <functional>

using ReferenceHost::DocumentError;
using ReferenceHost::ZipArchive;
using testing::HasSubstr;
using Packing = ZipBuilder::Packing;

namespace
{

constexpr std::uint32_t kMib = 1U << 20U;

DocumentError ErrorOf(const std::function<void()>& action)
{
    try
    {
        action();
    }
    catch (const DocumentError& error)
    {
        return error;
    }
    return {"", "", ""};
}

DocumentError ErrorOfOpening(const std::string& bytes)
{
    return ErrorOf([&] { ZipArchive(bytes, "x.odg"); });
}

DocumentError ErrorOfReading(const std::string& bytes, const std::string& entry)
{
    const ZipArchive archive(bytes, "x.odg");
    return ErrorOf([&] { static_cast<void>(archive.Read(entry)); });
}

TEST(ZipArchive, ReadsStoredAndDeflatedEntries)
{
    const std::string bytes = ZipBuilder().Add("a", "stored").Add("b", "deflated", Packing::Deflated).Build();
    const ZipArchive archive(bytes, "x.odg");

    EXPECT_EQ(archive.Read("a"), "stored");
    EXPECT_EQ(archive.Read("b"), "deflated");
}

TEST(ZipArchive, KnowsItsEntries)
{
    const std::string bytes = ZipBuilder().Add("a", "x").Build();
    const ZipArchive archive(bytes, "x.odg");

    EXPECT_TRUE(archive.Contains("a"));
    EXPECT_FALSE(archive.Contains("b"));
}

TEST(ZipArchive, NamesAMissingEntry)
{
    const DocumentError error = ErrorOfReading(ZipBuilder().Add("a", "x").Build(), "content.xml");

    EXPECT_EQ(error.GetProblem(), "there is no entry content.xml");
    EXPECT_EQ(error.GetWhere(), "x.odg");
}

TEST(ZipArchive, RefusesBytesThatAreNoArchive)
{
    const DocumentError error = ErrorOfOpening("PK\x03\x04 and nothing more");

    EXPECT_THAT(error.GetProblem(), HasSubstr("the archive cannot be read"));
    EXPECT_EQ(error.GetWhere(), "x.odg");
}

TEST(ZipArchive, RefusesAWrongChecksum)
{
    const DocumentError error =
        ErrorOfReading(ZipBuilder().Add("content.xml", "text").ClaimChecksum(1).Build(), "content.xml");

    EXPECT_EQ(error.GetProblem(), "the entry is damaged (CRC error)");
    EXPECT_EQ(error.GetWhere(), "x.odg, content.xml");
}

TEST(ZipArchive, RefusesBytesThatCannotBeUnpacked)
{
    std::string bytes = ZipBuilder().Add("content.xml", std::string(1000, 'x'), Packing::Deflated).Build();
    bytes[30 + 11] = '\xFF'; // The first packed byte, behind the header and the name.

    const DocumentError error = ErrorOfReading(bytes, "content.xml");

    EXPECT_THAT(error.GetProblem(), HasSubstr("the entry is damaged"));
    EXPECT_EQ(error.GetWhere(), "x.odg, content.xml");
}

TEST(ZipArchive, RefusesAnEncryptedEntry)
{
    const DocumentError error = ErrorOfReading(
        ZipBuilder().Add("content.xml", "0123456789abcdef").ClaimEncryption().Build(), "content.xml");

    EXPECT_EQ(error.GetProblem(), "the entry is encrypted");
    EXPECT_EQ(error.GetWhere(), "x.odg, content.xml");
}

TEST(ZipArchive, RefusesAWayOfPackingThatNobodyKnows)
{
    const DocumentError error =
        ErrorOfReading(ZipBuilder().Add("content.xml", "text").ClaimMethod(77).Build(), "content.xml");

    EXPECT_THAT(error.GetProblem(), HasSubstr("the entry cannot be unpacked"));
    EXPECT_EQ(error.GetWhere(), "x.odg, content.xml");
}

TEST(ZipArchive, RefusesTwoEntriesOfOneName)
{
    const DocumentError error =
        ErrorOfReading(ZipBuilder().Add("content.xml", "a").Add("content.xml", "b").Build(), "content.xml");

    EXPECT_EQ(error.GetProblem(), "the entry content.xml is there twice");
}

TEST(ZipArchive, RefusesAnEntryThatAnnouncesMoreThanTheLimit)
{
    const DocumentError error = ErrorOfOpening(ZipBuilder().Add("big", "x").ClaimSize(193 * kMib).Build());

    EXPECT_EQ(error.GetProblem(), "there are more than 192 MiB unpacked");
    EXPECT_EQ(error.GetWhere(), "x.odg, big");
}

TEST(ZipArchive, RefusesEntriesThatAnnounceMoreThanTheLimitTogether)
{
    ZipBuilder builder;
    for (int entry = 0; entry < 8; ++entry)
        builder.Add("part" + std::to_string(entry), std::string(kMib, 'x')).ClaimSize(25 * kMib);

    const DocumentError error = ErrorOfOpening(builder.Build());

    EXPECT_EQ(error.GetProblem(), "there are more than 192 MiB unpacked");
    EXPECT_EQ(error.GetWhere(), "x.odg");
}

TEST(ZipArchive, RefusesARatioBeyondTheLimit)
{
    const DocumentError error = ErrorOfOpening(ZipBuilder().Add("big", "x").ClaimSize(33 * kMib).Build());

    EXPECT_EQ(error.GetProblem(), "it is packed to less than one part in 200");
    EXPECT_EQ(error.GetWhere(), "x.odg, big");
}

TEST(ZipArchive, AllowsAnyRatioOfLittle)
{
    const std::string text(2 * kMib, ' ');
    const std::string bytes = ZipBuilder().Add("blanks", text, Packing::Deflated).Build();
    ASSERT_LT(bytes.size() * 200, text.size());

    EXPECT_EQ(ZipArchive(bytes, "x.odg").Read("blanks").size(), text.size());
}

TEST(ZipArchive, RefusesAnEntryThatUnpacksToMoreThanItAnnounces)
{
    const std::string text(kMib, ' ');
    const std::string bytes = ZipBuilder().Add("bomb", text, Packing::Deflated).ClaimSize(1000).Build();

    const DocumentError error = ErrorOfReading(bytes, "bomb");

    EXPECT_EQ(error.GetProblem(), "the entry is damaged (it holds more than the archive announces)");
    EXPECT_EQ(error.GetWhere(), "x.odg, bomb");
}

TEST(ZipArchive, RefusesAnEntryThatUnpacksToLessThanItAnnounces)
{
    const DocumentError error = ErrorOfReading(ZipBuilder().Add("a", "text").ClaimSize(5).Build(), "a");

    EXPECT_THAT(error.GetProblem(), HasSubstr("the entry is damaged"));
}

TEST(ZipArchive, RefusesEntriesThatShareTheirBytes)
{
    constexpr std::size_t kOffset = 42;
    std::string bytes = ZipBuilder().Add("a", "text").Add("b", "text").Build();
    bytes.replace(bytes.rfind("PK\x01\x02") + kOffset, 4, std::string(4, '\0'));

    try
    {
        const ZipArchive archive(bytes, "x.odg");
        FAIL() << "opened";
    }
    catch (const DocumentError& error)
    {
        EXPECT_EQ(error.GetProblem(), "the entry shares its bytes with another");
    }
}

TEST(ZipArchive, ReadsAnEmptyEntry)
{
    const std::string bytes = ZipBuilder().Add("a", "").Build();

    EXPECT_EQ(ZipArchive(bytes, "x.odg").Read("a"), "");
}

} // namespace
