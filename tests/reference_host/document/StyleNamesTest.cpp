#include "reference_host/document/StyleNames.h"

#include <gtest/gtest.h>

using ReferenceHost::CanBeSavedAsName;
using ReferenceHost::DecodeStyleName;

namespace
{

TEST(EncodedNames, HoldBlanksAsTheirCode)
{
    EXPECT_EQ(DecodeStyleName("Mid_20_One"), OvxStringT(L"Mid One"));
}

TEST(EncodedNames, HoldAnyCharacterThatNamesOfXmlCannot)
{
    EXPECT_EQ(DecodeStyleName("a_2f_b_28_c_29_"), OvxStringT(L"a/b(c)"));
    EXPECT_EQ(DecodeStyleName("Gr_fc_n"), OvxStringT(L"Gr\u00fcn"));
    EXPECT_EQ(DecodeStyleName("_1f600_"), OvxStringT(L"\U0001F600"));
    EXPECT_EQ(DecodeStyleName("5_20ac_"), OvxStringT(L"5\u20ac"));
    EXPECT_EQ(DecodeStyleName("_26_"), OvxStringT(L"&"));
}

TEST(EncodedNames, AcceptCodesInCapitalLetters)
{
    EXPECT_EQ(DecodeStyleName("a_2F_b"), OvxStringT(L"a/b"));
}

TEST(EncodedNames, HoldTheUnderscoreItself)
{
    EXPECT_EQ(DecodeStyleName("a_5f_b"), OvxStringT(L"a_b"));
    EXPECT_EQ(DecodeStyleName("a_5f_20_5f_b"), OvxStringT(L"a_20_b"));
}

TEST(EncodedNames, HoldADigitOnlyInFront)
{
    EXPECT_EQ(DecodeStyleName("_31_st"), OvxStringT(L"1st"));
    EXPECT_EQ(DecodeStyleName("x_31_y"), OvxStringT(L"x_31_y"));
}

TEST(PlainNames, KeepTheirUnderscores)
{
    EXPECT_EQ(DecodeStyleName("my_style"), OvxStringT(L"my_style"));
    EXPECT_EQ(DecodeStyleName("box_a_1"), OvxStringT(L"box_a_1"));
    EXPECT_EQ(DecodeStyleName("box_42_c"), OvxStringT(L"box_42_c"));
    EXPECT_EQ(DecodeStyleName("a__b_"), OvxStringT(L"a__b_"));
    EXPECT_EQ(DecodeStyleName("_1234567_"), OvxStringT(L"_1234567_"));
}

TEST(PlainNames, MayBeOutsideOfAscii)
{
    EXPECT_EQ(DecodeStyleName("Gr\xC3\xBCn"), OvxStringT(L"Gr\u00fcn"));
}

TEST(EncodedNames, NeverHoldSurrogatesOrControlCharacters)
{
    EXPECT_EQ(DecodeStyleName("a_d800_b"), OvxStringT(L"a_d800_b"));
    EXPECT_EQ(DecodeStyleName("a_1f_b"), OvxStringT(L"a_1f_b"));
}

TEST(Names, CanBeSavedWhenXmlAllowsTheirCharacters)
{
    for (const wchar_t* name :
         {L"Mid One", L"a_b & <c> \"d\"", L"line\nbreak\ttab", L"Gr\u00fcn", L"\U0001f600"})
        EXPECT_TRUE(CanBeSavedAsName(name));
}

TEST(Names, CannotBeSavedWithControlCharactersAndWhatIsNoCharacter)
{
    for (const std::wstring& name : {std::wstring(L"\x0e"), std::wstring(L"a\0b", 3),
                                     std::wstring(L"a\xFFFE"), std::wstring(L"\xD800 b")})
        EXPECT_FALSE(CanBeSavedAsName(OvxStringT(name)));
}

} // namespace
