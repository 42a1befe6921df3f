// Flat drawings that mean harm: each has one outcome, and costs no more than any file may.

#include "tests/reference_host/document/hostile/HostileDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

using testing::HasSubstr;
using testing::StartsWith;

namespace
{

/// A large number in the long form of the tests, and a smaller one that still shows what grows too fast.
std::size_t Many(std::size_t inLongTests)
{
    constexpr std::size_t kShort = 20;
    return TakesLong() ? inLongTests : inLongTests / kShort;
}

std::string Number(std::size_t number)
{
    return std::to_string(number);
}

class HostileDrawings : public testing::Test
{
protected:
    /// What becomes of a drawing, at a bounded cost.
    [[nodiscard]] std::string OutcomeOf(const HostileDrawing& drawing) const
    {
        const std::filesystem::path file = folder.GetPath() / "x.fodg";
        drawing.WriteTo(file);
        return OutcomeOf(file);
    }

    [[nodiscard]] static std::string OutcomeOf(const std::filesystem::path& file)
    {
        const MeasuredRun run = OpenAndEdit(file);
        ExpectBounded(run);
        return run.answer;
    }

    /// A drawing whose only shape has an attribute with `count` bytes.
    [[nodiscard]] static HostileDrawing WithLongAttribute(const std::string& attribute, std::size_t count)
    {
        HostileDrawing drawing;
        drawing.page = [attribute, count](const HostileDrawing::Write& write)
        { write("<draw:rect " + attribute + "=\"" + std::string(count, 'x') + "\"/>"); };
        return drawing;
    }

    ScratchFolder folder;
};

} // namespace

TEST_F(HostileDrawings, WithEntitiesThatGrowAreRefused)
{
    HostileDrawing drawing;
    drawing.prologue = "<!DOCTYPE x [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">]>";
    drawing.page = Repeat(1, [](std::size_t) { return "<draw:rect draw:name='&b;'/>"; });

    EXPECT_THAT(OutcomeOf(drawing), HasSubstr("there is a DOCTYPE"));
}

TEST_F(HostileDrawings, WithEntitiesOutsideAreRefused)
{
    HostileDrawing drawing;
    drawing.prologue = "<!DOCTYPE x [<!ENTITY a SYSTEM \"file:///etc/passwd\">]>";

    EXPECT_THAT(OutcomeOf(drawing), HasSubstr("there is a DOCTYPE"));
}

TEST_F(HostileDrawings, ThatNestTooDeepAreRefused)
{
    HostileDrawing drawing;
    drawing.page = Repeat(200000, [](std::size_t) { return "<draw:g>"; });

    EXPECT_THAT(OutcomeOf(drawing), HasSubstr("nest deeper than 256"));
}

TEST_F(HostileDrawings, WithAnAttributeTwiceAreRefused)
{
    HostileDrawing drawing;
    drawing.page = Repeat(1, [](std::size_t) { return "<draw:rect draw:name='a' draw:name='b'/>"; });

    EXPECT_THAT(OutcomeOf(drawing), HasSubstr("draw:name stands there twice"));
}

TEST_F(HostileDrawings, WithAMillionAttributesAreRefused)
{
    HostileDrawing drawing;
    drawing.page = [](const HostileDrawing::Write& write)
    {
        write("<draw:rect");
        Repeat(Many(1000000), [](std::size_t number) { return " draw:a" + Number(number) + "='1'"; })(write);
        write("/>");
    };

    EXPECT_THAT(OutcomeOf(drawing), HasSubstr("the element has more than 1000 attributes"));
}

TEST_F(HostileDrawings, WithTooManyNamespacesAreRefused)
{
    HostileDrawing drawing;
    for (std::size_t number = 0; number < 500; ++number)
        drawing.rootAttributes += " xmlns:a" + Number(number) + "='u" + Number(number) + "'";

    EXPECT_THAT(OutcomeOf(drawing), HasSubstr("too many declarations of namespaces"));
}

TEST_F(HostileDrawings, WithParentsInACircleAreRepaired)
{
    HostileDrawing drawing;
    const std::size_t count = Many(100000);
    drawing.styles = Repeat(count,
                            [count](std::size_t number)
                            {
                                return "<style:style style:family='graphic' style:name='s" + Number(number) +
                                       "' style:parent-style-name='s" + Number((number + 1) % count) + "'/>";
                            });

    EXPECT_THAT(OutcomeOf(drawing), StartsWith("warning: style \"s"));
}

TEST_F(HostileDrawings, WithParentsThatReachTooDeepAreCut)
{
    HostileDrawing drawing;
    drawing.styles =
        Repeat(Many(100000),
               [](std::size_t number)
               {
                   return "<style:style style:family='graphic' style:name='s" + Number(number) + "'" +
                          (number == 0 ? "" : " style:parent-style-name='s" + Number(number - 1) + "'") +
                          "/>";
               });

    EXPECT_THAT(OutcomeOf(drawing), HasSubstr("it inherits from more than 255 styles"));
}

TEST_F(HostileDrawings, WithParentsThatAreMissingAreRepaired)
{
    HostileDrawing drawing;
    drawing.styles = Repeat(1,
                            [](std::size_t)
                            {
                                return "<style:style style:family='graphic' style:name='s' "
                                       "style:parent-style-name='gone'/>";
                            });

    EXPECT_THAT(OutcomeOf(drawing), HasSubstr("its parent \"gone\" does not exist"));
}

TEST_F(HostileDrawings, WithAMillionStylesAreRefused)
{
    HostileDrawing drawing;
    drawing.styles =
        Repeat(TakesLong() ? 1000000 : 100001, [](std::size_t number)
               { return "<style:style style:family='graphic' style:name='s" + Number(number) + "'/>"; });

    EXPECT_THAT(OutcomeOf(drawing), HasSubstr("there are more than"));
}

TEST_F(HostileDrawings, WithManyStylesAreRead)
{
    HostileDrawing drawing;
    drawing.styles =
        Repeat(Many(100000), [](std::size_t number)
               { return "<style:style style:family='graphic' style:name='s" + Number(number) + "'/>"; });
    drawing.page = Repeat(1, [](std::size_t) { return "<draw:rect/>"; });

    EXPECT_EQ(OutcomeOf(drawing), "success");
}

TEST_F(HostileDrawings, WithAMillionShapesAreRefused)
{
    HostileDrawing drawing;
    drawing.page = Repeat(TakesLong() ? 1000000 : 250001, [](std::size_t) { return "<draw:rect/>"; });

    EXPECT_THAT(OutcomeOf(drawing), HasSubstr("there are more than 250000 objects"));
}

TEST_F(HostileDrawings, WithManyShapesAreRead)
{
    HostileDrawing drawing;
    drawing.page = Repeat(Many(250000), [](std::size_t) { return "<draw:rect/>"; });

    EXPECT_EQ(OutcomeOf(drawing), "success");
}

TEST_F(HostileDrawings, WithManyParagraphsAreRead)
{
    HostileDrawing drawing;
    drawing.page = [](const HostileDrawing::Write& write)
    {
        write("<draw:rect>");
        Repeat(Many(250000), [](std::size_t) { return "<text:p>x</text:p>"; })(write);
        write("</draw:rect>");
    };

    EXPECT_EQ(OutcomeOf(drawing), "success");
}

TEST_F(HostileDrawings, WithAsManyElementsAsThereMayBeAreRead)
{
    HostileDrawing drawing;
    drawing.page = [](const HostileDrawing::Write& write)
    {
        write("<draw:rect/>");
        Repeat(Many(2900000), [](std::size_t) { return "<a/>"; })(write);
    };

    EXPECT_EQ(OutcomeOf(drawing), "success");
}

TEST_F(HostileDrawings, WithManyAutomaticStylesAreRead)
{
    HostileDrawing drawing;
    drawing.automatic =
        Repeat(Many(299000),
               [](std::size_t number)
               {
                   return "<style:style style:family='graphic' style:name='a" + Number(number) +
                          "'><style:graphic-properties draw:fill-color='#112233'/></style:style>";
               });
    drawing.page = Repeat(1, [](std::size_t) { return "<draw:rect draw:style-name='a0'/>"; });

    EXPECT_EQ(OutcomeOf(drawing), "success");
}

TEST_F(HostileDrawings, OfTinyElementsAloneAreRefused)
{
    if (!TakesLong())
        GTEST_SKIP() << "millions of elements take their time";
    HostileDrawing drawing;
    drawing.page = Repeat(4000000, [](std::size_t) { return "<a/>"; });

    EXPECT_THAT(OutcomeOf(drawing), HasSubstr("more than 3000000 elements, attributes and texts"));
}

TEST_F(HostileDrawings, WithAnAttributeOfAHundredMegabytesAreRefused)
{
    const std::string outcome = OutcomeOf(WithLongAttribute("draw:name", TakesLong() ? 100000000 : 17000000));

    EXPECT_THAT(outcome, HasSubstr("the value of draw:name is longer than 16 MiB"));
}

TEST_F(HostileDrawings, WithLongAttributesAreRead)
{
    EXPECT_EQ(OutcomeOf(WithLongAttribute("draw:name", Many(16000000))), "success");
    EXPECT_THAT(OutcomeOf(WithLongAttribute("draw:style-name", Many(16000000))),
                StartsWith("warning: style"));
    EXPECT_EQ(OutcomeOf(WithLongAttribute("svg:d", Many(16000000))), "success");
}

TEST_F(HostileDrawings, WithBytesThatAreNoTextAreRefused)
{
    HostileDrawing drawing;
    drawing.page = Repeat(1, [](std::size_t) { return "<draw:rect draw:name='\xC0\x80'/>"; });

    EXPECT_THAT(OutcomeOf(drawing), HasSubstr("bytes that are not UTF-8"));
}

TEST_F(HostileDrawings, WithNumbersThatAreNoneCountThemAsNotSet)
{
    for (const char* number : {"1e999cm", "NaNcm", "nan", "inf", "-inf", "99999999999999999999999cm",
                               "-99999999999999999999999cm", "0x10cm", "1e-999", "--5cm", "", "cm"})
    {
        HostileDrawing drawing;
        const std::string value = number;
        drawing.automatic =
            Repeat(1,
                   [&](std::size_t)
                   {
                       return "<style:style style:family='graphic' style:name='g'><style:graphic-properties "
                              "svg:stroke-width='" +
                              value + "' draw:opacity='" + value + "'/></style:style>";
                   });
        drawing.page = Repeat(1,
                              [&](std::size_t)
                              {
                                  return "<draw:rect draw:style-name='g' svg:x='" + value + "' svg:width='" +
                                         value + "' draw:transform='scale(" + value +
                                         ")' draw:corner-radius='" + value + "'/>";
                              });
        EXPECT_THAT(OutcomeOf(drawing), HasSubstr("is no value for")) << number;
    }
}

TEST_F(HostileDrawings, AreNoFoldersDevicesOrPipes)
{
    const std::filesystem::path pipe = folder.GetPath() / "pipe.fodg";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);

    EXPECT_THAT(OutcomeOf(folder.GetPath()), HasSubstr("this is a directory"));
    EXPECT_THAT(OutcomeOf(pipe), HasSubstr("this is no regular file"));
    EXPECT_THAT(OutcomeOf("/dev/zero"), HasSubstr("this is no regular file"));
}

TEST_F(HostileDrawings, ThatMayNotBeReadAreRefused)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root may read everything";
    const std::filesystem::path file = folder.Write("x.fodg", "<a/>");
    std::filesystem::permissions(file, std::filesystem::perms::none);

    EXPECT_THAT(OutcomeOf(file), HasSubstr("cannot be read"));
}

TEST_F(HostileDrawings, ThatWereCutOffAreRefused)
{
    HostileDrawing drawing;
    drawing.page = Repeat(400, [](std::size_t number)
                          { return "<draw:rect draw:name='" + Number(number) + "'>\n</draw:rect>"; });
    const std::filesystem::path file = folder.GetPath() / "x.fodg";
    drawing.WriteTo(file);
    const std::uintmax_t size = std::filesystem::file_size(file);
    ASSERT_GT(size, 10000U);

    for (std::uintmax_t length = size - size % 1000; length > 0; length -= 1000)
    {
        std::filesystem::resize_file(file, length);
        EXPECT_THAT(OutcomeOf(file), StartsWith("error: " + file.string())) << length;
    }
}
