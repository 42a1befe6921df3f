#include "reference_host/document/DocumentError.h"

#include <gtest/gtest.h>

using ReferenceHost::DocumentError;

namespace
{

TEST(DocumentError, SaysWhereWhatAndWhatWasExpected)
{
    const DocumentError error("the file is empty", "x.fodg", "a drawing");

    EXPECT_STREQ(error.what(), "x.fodg: the file is empty; expected a drawing");
    EXPECT_EQ(error.GetWhere(), "x.fodg");
    EXPECT_EQ(error.GetProblem(), "the file is empty");
    EXPECT_EQ(error.GetExpected(), "a drawing");
}

TEST(DocumentError, StaysOnOneLine)
{
    const DocumentError error("no\nvalue", "a\r\nb.fodg", "c");

    EXPECT_STREQ(error.what(), "a  b.fodg: no value; expected c");
}

} // namespace
