#include "module/Constants.h"

#include <gtest/gtest.h>

namespace
{

TEST(DialogKey, OfTheFillDialogIsItsGuid)
{
    EXPECT_EQ(kFillDialogKey, L"494d1725-676f-484b-9453-fe7fb1958759");
}

TEST(DialogKey, OfTheOutlineDialogIsItsGuid)
{
    EXPECT_EQ(kOutlineDialogKey, L"0b965e6d-2a66-4c2f-a255-3f788991c9dc");
}

TEST(DialogKey, OfTheParagraphDialogIsItsGuid)
{
    EXPECT_EQ(kParagraphDialogKey, L"fb799669-a363-408d-bf0a-b2d3ea840de3");
}

TEST(DialogKey, OfTheCharacterDialogIsItsGuid)
{
    EXPECT_EQ(kCharacterDialogKey, L"ead5c24a-060b-44d8-acf5-1d8df2e00d17");
}

TEST(DialogKey, OfTheAddPresetDialogIsItsGuid)
{
    EXPECT_EQ(kAddPresetDialogKey, L"0f6cfc84-8a1f-9182-4a02-21556f4ad8f8");
}

} // namespace
