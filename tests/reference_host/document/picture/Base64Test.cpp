#include "reference_host/document/picture/Base64.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using ReferenceHost::DecodeBase64;

TEST(Base64, DecodesWholeGroups)
{
    EXPECT_EQ(DecodeBase64("c3R5bGVz"), "styles");
}

TEST(Base64, DecodesOneAndTwoBytesBehindTheLastGroup)
{
    EXPECT_EQ(DecodeBase64("c3R5bA=="), "styl");
    EXPECT_EQ(DecodeBase64("c3R5bGU="), "style");
}

TEST(Base64, PassesOverBlanksAndLineBreaks)
{
    EXPECT_EQ(DecodeBase64("\n  c3R5\r\n  bGVz\t"), "styles");
}

TEST(Base64, EndsAtWhatIsNoneOfItsCharacters)
{
    EXPECT_EQ(DecodeBase64("c3R5*bGVz"), "sty");
}

TEST(Base64, GivesBytesOfAllValues)
{
    EXPECT_EQ(DecodeBase64("/+8A"), std::string("\xFF\xEF\0", 3));
}

} // namespace
