// What people see: layout, language, colours.

#include "tests/cli/ToolDrawings.h"
#include "tests/cli/ToolProcess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using CliTests::DrawingOnDisk;
using CliTests::OutputKind;
using CliTests::RunTool;
using CliTests::ToolProcess;
using CliTests::ToolResult;
using testing::HasSubstr;
using testing::Not;

namespace
{

const std::string kEscape = "\x1B[";

/// One rectangle that sets its colour and inherits its type.
FlatDrawing Box()
{
    return FlatDrawing()
        .Named("style:name='Base'", "<style:graphic-properties draw:fill='solid'/>")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'",
                   "<style:graphic-properties draw:fill-color='#3366cc' draw:opacity='70%'/>")
        .Page("<draw:rect draw:name='Box' draw:style-name='gr1'/>");
}

class InspectForPeople : public testing::Test
{
protected:
    [[nodiscard]] ToolProcess Inspect(const std::vector<std::string>& options = {}) const
    {
        std::vector<std::string> arguments = {"inspect", drawing.GetFile(), "--panel", "fill"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return ToolProcess(arguments);
    }

    DrawingOnDisk drawing{Box()};
};

} // namespace

TEST_F(InspectForPeople, HasALineForEachRow)
{
    EXPECT_EQ(Inspect().Run().output, drawing.GetFile() + ": 1/1 rect \"Box\": Base\n"
                                                          "\n"
                                                          "Fill: Base\n"
                                                          "  ○  Type          Colour   inherited from Base\n"
                                                          "  ●  Colour        #3366cc  local\n"
                                                          "  ●  Transparency  30 %     local\n"
                                                          "  ○  Gradient      not set  inherited\n"
                                                          "  ○  Hatching      not set  inherited\n"
                                                          "  ○  Bitmap        not set  inherited\n");
}

TEST_F(InspectForPeople, SpeaksTheLanguageThatIsAskedFor)
{
    EXPECT_EQ(Inspect({"--lang", "de"}).Run().output, drawing.GetFile() +
                                                          ": 1/1 rect \"Box\": Base\n"
                                                          "\n"
                                                          "Füllung: Base\n"
                                                          "  ○  Art          Farbe          geerbt von Base\n"
                                                          "  ●  Farbe        #3366cc        lokal\n"
                                                          "  ●  Transparenz  30 %           lokal\n"
                                                          "  ○  Farbverlauf  nicht gesetzt  geerbt\n"
                                                          "  ○  Schraffur    nicht gesetzt  geerbt\n"
                                                          "  ○  Bild         nicht gesetzt  geerbt\n");
}

TEST_F(InspectForPeople, SpeaksTheLanguageOfTheLocale)
{
    EXPECT_THAT(Inspect().With("LANG", "de_AT.UTF-8").Run().output, HasSubstr("Füllung: Base"));
    EXPECT_THAT(Inspect().With("LANG", "de_AT.UTF-8").With("LC_ALL", "C").Run().output,
                HasSubstr("Fill: Base"));
    EXPECT_THAT(Inspect().With("LANG", "xx_YY").Run().output, HasSubstr("Fill: Base"));
}

TEST_F(InspectForPeople, IsInColourOnATerminal)
{
    const ToolResult result = Inspect().To(OutputKind::Terminal).Run();

    EXPECT_THAT(result.output, HasSubstr(kEscape + "1mFill: Base" + kEscape + "0m"));
    EXPECT_THAT(result.output, HasSubstr(kEscape + "32mlocal" + kEscape + "0m"));
    EXPECT_THAT(result.output, HasSubstr(kEscape + "36minherited from Base" + kEscape + "0m"));
}

TEST_F(InspectForPeople, HasNoColoursWhenThePersonWantsNone)
{
    EXPECT_THAT(Inspect().To(OutputKind::Terminal).With("NO_COLOR", "1").Run().output,
                Not(HasSubstr(kEscape)));
    EXPECT_THAT(Inspect().To(OutputKind::Terminal).With("TERM", "dumb").Run().output,
                Not(HasSubstr(kEscape)));
}

TEST_F(InspectForPeople, HasNoColoursInFilesAndPipes)
{
    EXPECT_THAT(Inspect().Run().output, Not(HasSubstr(kEscape)));
}

TEST_F(InspectForPeople, SpeaksEnglishToProgramsUnlessToldOtherwise)
{
    const ToolResult english = Inspect({"--json"}).With("LANG", "de_DE.UTF-8").Run();
    const ToolResult german = Inspect({"--json", "--lang", "de"}).Run();

    EXPECT_THAT(english.output, HasSubstr(R"("label":"Colour")"));
    EXPECT_THAT(german.output, HasSubstr(R"("label":"Farbe")"));
    EXPECT_THAT(german.output, HasSubstr(R"("title":"Füllung: Base")"));
    EXPECT_THAT(german.output,
                HasSubstr(R"("tooltip":"Hier gesetzt, überschreibt die übergeordnete Vorlage")"));
}

TEST(InspectEachForPeople, SeparatesTheObjectsByAnEmptyLine)
{
    const DrawingOnDisk drawing(FlatDrawing().Page("<draw:rect/><draw:line/>"));

    const ToolResult result = RunTool({"inspect", drawing.GetFile(), "--each", "--panel", "style"});

    EXPECT_EQ(result.output,
              drawing.GetFile() + ": 1/1 rect\n\nStyle\n  ·  Parent style  not set  no parent\n\n" +
                  drawing.GetFile() + ": 1/2 line\n\nStyle\n  ·  Parent style  not set  no parent\n");
}

TEST(InspectForPeopleOnStrangeNames, KeepsEachRowOnItsLine)
{
    const DrawingOnDisk drawing(FlatDrawing()
                                    .Named("style:name='A' style:display-name='Line&#10;&#9;break'")
                                    .Automatic("graphic", "style:name='gr1' style:parent-style-name='A'", "")
                                    .Page("<draw:rect draw:name='one&#10;two' draw:style-name='gr1'/>"));

    const ToolResult result = RunTool({"inspect", drawing.GetFile(), "--panel", "style"});

    EXPECT_THAT(result.output, HasSubstr(": 1/1 rect \"one\uFFFDtwo\": A\n"));
    EXPECT_THAT(result.output, HasSubstr("Style: Line\uFFFD\uFFFDbreak\n"));
}
