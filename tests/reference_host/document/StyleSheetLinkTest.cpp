#include "reference_host/document/StyleSheetLink.h"

#include "tests/reference_host/document/ScratchFolder.h"

#include <gtest/gtest.h>

using ReferenceHost::MoveSheetReference;
using ReferenceHost::ResolveSheetReference;

namespace
{

namespace fs = std::filesystem;

/// The path that a reference leads to from the folder "work"; empty for none.
std::string PathOf(const char* reference)
{
    return ResolveSheetReference(reference, "work").value_or(fs::path()).string();
}

} // namespace

TEST(ReferencesToSheets, AreRelativeToTheFolder)
{
    EXPECT_EQ(PathOf("house.fodg"), "work/house.fodg");
    EXPECT_EQ(PathOf("../styles/house.odg"), "work/../styles/house.odg");
    EXPECT_EQ(ResolveSheetReference("house.fodg", ""), fs::path("house.fodg"));
}

TEST(ReferencesToSheets, MayBeAbsolute)
{
    EXPECT_EQ(PathOf("/styles/house.odg"), "/styles/house.odg");
}

TEST(ReferencesToSheets, MayBeUrlsOfThisMachine)
{
    EXPECT_EQ(PathOf("file:///styles/house.odg"), "/styles/house.odg");
    EXPECT_EQ(PathOf("FILE:/styles/house.odg"), "/styles/house.odg");
    EXPECT_EQ(PathOf("file://localhost/styles/house.odg"), "/styles/house.odg");
}

TEST(ReferencesToSheets, HoldCharactersByTheirCodes)
{
    EXPECT_EQ(PathOf("our%20house%25.fodg"), "work/our house%.fodg");
    EXPECT_EQ(PathOf("h%C3%A4user.fodg"), "work/h\xC3\xA4user.fodg");
}

TEST(ReferencesToSheets, KeepPercentSignsThatAreNoCodes)
{
    EXPECT_EQ(PathOf("50%.fodg"), "work/50%.fodg");
    EXPECT_EQ(PathOf("50%zz%+1"), "work/50%zz%+1");
    EXPECT_EQ(PathOf("50%4"), "work/50%4");
}

TEST(ReferencesToSheets, LeadToNoOtherMachine)
{
    for (const char* reference : {"http://example.org/house.odg", "HTTPS://example.org/house.odg",
                                  "//server/house.odg", "\\\\server\\house.odg", "file://server/house.odg",
                                  "file:////server/house.odg", "vnd.sun.star.expand:x", "data:,x"})
        EXPECT_EQ(ResolveSheetReference(reference, "work"), std::nullopt) << reference;
}

TEST(ReferencesToSheets, LeadNowhereWhenTheyNameNoFile)
{
    for (const char* reference : {"", "file:", "file:house.fodg", "file://", "a%00b"})
        EXPECT_EQ(ResolveSheetReference(reference, "work"), std::nullopt) << reference;
}

TEST(ReferencesToSheets, MayHaveColons)
{
    EXPECT_EQ(PathOf("a:b.fodg"), "work/a:b.fodg");
    EXPECT_EQ(PathOf("house%3Awide.fodg"), "work/house:wide.fodg");
    EXPECT_EQ(PathOf("our house: wide.fodg"), "work/our house: wide.fodg");
}

TEST(MovedReferences, LeadToTheSameFile)
{
    EXPECT_EQ(MoveSheetReference("house.fodg", "/work/a", "/work/b"), "../a/house.fodg");
    EXPECT_EQ(MoveSheetReference("../house.fodg", "/work/a", "/work/b/c"), "../../house.fodg");
    EXPECT_EQ(MoveSheetReference("b/house.fodg", "/work", "/work/b"), "house.fodg");
}

TEST(MovedReferences, StayWhereTheFolderDoesNotMatter)
{
    for (const char* reference :
         {"/styles/house.fodg", "file:///styles/house.fodg", "http://example.org/house.odg", ""})
        EXPECT_EQ(MoveSheetReference(reference, "/work/a", "/work/b"), reference);
}

TEST(MovedReferences, StayInOneFolder)
{
    EXPECT_EQ(MoveSheetReference("./x/../house.fodg", "/work/a", "/work/a"), "./x/../house.fodg");
    const ScratchFolder folder;
    const fs::path samePlace = folder.GetPath() / "." / "";
    EXPECT_EQ(MoveSheetReference("./house.fodg", folder.GetPath(), samePlace), "./house.fodg");
}

TEST(MovedReferences, EncodeWhatWouldBeReadAsSomethingElse)
{
    EXPECT_EQ(MoveSheetReference("our%20house.fodg", "/work/50%", "/work"), "50%25/our%20house.fodg");
    EXPECT_EQ(MoveSheetReference("a%3Ab%23%3F", "/work/a", "/work/a/b"), "../a%3Ab%23%3F");
}

TEST(MovedReferences, GoRoundFoldersThatAreLinks)
{
    const ScratchFolder folder;
    fs::create_directories(folder.GetPath() / "deep" / "real");
    fs::create_directory(folder.GetPath() / "work");
    fs::create_directory_symlink(folder.GetPath() / "deep" / "real", folder.GetPath() / "link");
    folder.Write("work/house.fodg", "x");

    const std::string moved =
        MoveSheetReference("house.fodg", folder.GetPath() / "work", folder.GetPath() / "link");

    EXPECT_EQ(moved, "../../work/house.fodg");
    EXPECT_TRUE(fs::exists(ResolveSheetReference(moved, folder.GetPath() / "link").value()));
}
