#include "tests/reference_host/document/picture/ShownDrawing.h"

#include "host/utils/Utf8.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/// Bullets on the first level, letters on the second.
constexpr const char* kStyle =
    R"(<text:list-style style:name="L"><text:list-level-style-bullet text:level="1" text:bullet-char="*">)"
    R"(<style:list-level-properties text:space-before="1mm" text:min-label-width="5mm"/>)"
    R"(<style:text-properties fo:font-size="45%"/></text:list-level-style-bullet>)"
    R"x(<text:list-level-style-number text:level="2" style:num-format="a" style:num-suffix=")">)x"
    R"(<style:list-level-properties text:list-level-position-and-space-mode="label-alignment">)"
    R"(<style:list-level-label-alignment fo:margin-left="2cm" fo:text-indent="-8mm"/>)"
    R"(</style:list-level-properties></text:list-level-style-number></text:list-style>)";

/// A list style whose one level has numbers.
std::string Numbers(const std::string& attributes)
{
    return R"(<text:list-style style:name="L"><text:list-level-style-number text:level="1" )" + attributes +
           "/></text:list-style>";
}

ShownDrawing ShowText(const std::string& styles, const std::string& text)
{
    return ShownDrawing(FlatDrawing().Automatic(styles).Page("<draw:rect>" + text + "</draw:rect>").Open());
}

std::vector<std::string> TextsOf(const ShownDrawing& drawing)
{
    std::vector<std::string> texts;
    for (const ReferenceHost::ListLabel& label : drawing.Shape().labels)
        texts.push_back(OvxUtils::ToUtf8(label.text));
    return texts;
}

/// A list of so many items with a paragraph each.
std::string Items(int count)
{
    std::string text = R"(<text:list text:style-name="L">)";
    for (int item = 0; item < count; ++item)
        text += "<text:list-item><text:p>x</text:p></text:list-item>";
    return text + "</text:list>";
}

TEST(ListLabels, AreMissingWithoutLists)
{
    EXPECT_THAT(ShowText(kStyle, "<text:p>a</text:p>").Shape().labels, IsEmpty());
}

TEST(ListLabels, StandBeforeTheFirstParagraphOfEachItem)
{
    const ShownDrawing drawing = ShowText(
        kStyle, "<text:p>before</text:p>"
                R"(<text:list text:style-name="L"><text:list-item><text:p>a</text:p><text:p>b</text:p>)"
                "<text:list><text:list-item><text:p>c</text:p></text:list-item>"
                "<text:list-item><text:p>d</text:p></text:list-item></text:list></text:list-item>"
                "<text:list-header><text:p>e</text:p></text:list-header></text:list>");

    EXPECT_THAT(TextsOf(drawing), ElementsAre("", "*", "", "a)", "b)", ""));
}

TEST(ListLabels, TellWhereTheyStandInBothForms)
{
    const ShownDrawing drawing =
        ShowText(kStyle, R"(<text:list text:style-name="L"><text:list-item><text:p>a</text:p><text:list>)"
                         "<text:list-item><text:p>b</text:p></text:list-item></text:list></text:list-item>"
                         "</text:list>");

    const auto& labels = drawing.Shape().labels;
    ASSERT_EQ(labels.size(), 2U);
    EXPECT_DOUBLE_EQ(labels[0].indent, 600);
    EXPECT_DOUBLE_EQ(labels[0].room, 500);
    EXPECT_DOUBLE_EQ(labels[0].sizeShare, 0.45);
    EXPECT_DOUBLE_EQ(labels[1].indent, 2000);
    EXPECT_DOUBLE_EQ(labels[1].room, 800);
}

TEST(ListLabels, CountInRomanNumbers)
{
    EXPECT_THAT(TextsOf(ShowText(Numbers(R"(style:num-format="i" text:start-value="8")"), Items(3))),
                ElementsAre("viii", "ix", "x"));
}

TEST(ListLabels, CountOnBehindTheLastLetter)
{
    EXPECT_THAT(TextsOf(ShowText(Numbers(R"(style:num-format="A" text:start-value="26")"), Items(2))),
                ElementsAre("Z", "AA"));
}

TEST(ListLabels, AreEmptyForAStyleThatIsMissing)
{
    EXPECT_THAT(TextsOf(ShowText("", Items(1))), ElementsAre(""));
}

} // namespace
