#include "host/style_model/SubStyle.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

using Styles::Style;
using Styles::SubStyle;

TEST(SubStyle, RefersToNothingAtFirst)
{
    EXPECT_EQ(static_cast<Style*>(SubStyle()), nullptr);
}

TEST(SubStyle, ConvertsToTheStyleThatItRefersTo)
{
    Style style;

    const SubStyle reference(&style);
    const SubStyle copy = reference; // NOLINT(performance-unnecessary-copy-initialization)

    EXPECT_EQ(static_cast<Style*>(copy), &style);
}

TEST(SubStyle, IsMadeForEachStyleInOrder)
{
    Style first;
    Style second;

    const std::vector<SubStyle> references = Styles::StylesToSubStyles({&second, nullptr, &first});

    ASSERT_EQ(references.size(), 3u);
    EXPECT_EQ(static_cast<Style*>(references[0]), &second);
    EXPECT_EQ(static_cast<Style*>(references[1]), nullptr);
    EXPECT_EQ(static_cast<Style*>(references[2]), &first);
}

TEST(SubStyle, GivesBackEachStyleInOrder)
{
    Style first;
    Style second;

    const std::vector<Style*> styles =
        Styles::SubStylesToStyles({SubStyle(&second), SubStyle(), SubStyle(&first)});

    EXPECT_EQ(styles, (std::vector<Style*>{&second, nullptr, &first}));
}

TEST(SubStyle, IsMadeForNothingFromAnEmptyList)
{
    EXPECT_TRUE(Styles::StylesToSubStyles({}).empty());
    EXPECT_TRUE(Styles::SubStylesToStyles({}).empty());
}

} // namespace
