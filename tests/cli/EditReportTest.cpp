#include "apps/cli/EditReport.h"

#include "reference_host/resources/Language.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using Cli::Colouring;
using Cli::EditResult;
using Cli::EditResultToJson;
using Cli::EditResultToText;
using testing::HasSubstr;
using testing::StartsWith;
using Workbench::Change;
using Workbench::NumberRange;
using Workbench::NumberUnit;
using Workbench::PanelDescription;
using Workbench::RowDescription;

namespace
{

/// The result of one change of a length, which tests change.
class EditedLength : public testing::Test
{
protected:
    EditedLength()
    {
        panels.resize(1);
        panels[0].name = L"outline";
        panels[0].rows.resize(1);
        panels[0].rows[0].identifier = L"width";
        panels[0].rows[0].range = NumberRange{NumberUnit::Millimetre, 0, 1000};
        result.file = "a.fodg";
        result.savedAs = "b.fodg";
        result.steps = 1;
        result.changes.push_back({L"1/4", L"outline.width", 50, 80, {}, {}, ActivePropertyState::Overridden});
    }

    [[nodiscard]] std::string Text() const { return EditResultToText(result, panels, Colouring::Off); }

    std::vector<PanelDescription> panels;
    EditResult result;
};

Change ColourChange()
{
    return {L"1/4",
            L"fill.color",
            OvxStringT(L"#ff0000"),
            OvxStringT(L"#3366cc"),
            {},
            {},
            ActivePropertyState::Overridden};
}

} // namespace

TEST_F(EditedLength, HasALineWithBothValuesInTheUnitOfTheRowAndTheState)
{
    EXPECT_EQ(Text(), "a.fodg: saved as b.fodg\n"
                      "  1/4  outline.width  0.5 mm  →  0.8 mm  local\n");
}

TEST_F(EditedLength, SaysWhereTheDrawingWent)
{
    result.savedAs = result.file;
    EXPECT_THAT(Text(), StartsWith("a.fodg: saved\n"));

    result.savedAs.clear();
    EXPECT_THAT(Text(), StartsWith("a.fodg: left as it was\n"));

    result.isDryRun = true;
    EXPECT_THAT(Text(), StartsWith("a.fodg: nothing saved (dry run)\n"));
}

TEST_F(EditedLength, SaysWhichStyleSheetsWereSaved)
{
    result.savedSheets = {"styles/house.fodg", "more.fodg"};

    EXPECT_THAT(Text(), StartsWith("a.fodg: saved as b.fodg\n"
                                   "styles/house.fodg: style sheet saved\n"
                                   "more.fodg: style sheet saved\n"));
}

TEST_F(EditedLength, SaysThatAValueWasOrIsNotSet)
{
    result.changes[0].from = {};
    result.changes[0].state = ActivePropertyState::None;

    EXPECT_THAT(Text(), HasSubstr("  1/4  outline.width  not set  →  0.8 mm  no parent\n"));
}

TEST_F(EditedLength, IsLeftOutWhereNothingSetsItBeforeAndAfter)
{
    result.changes.push_back({L"1/5", L"outline.width", {}, {}, {}, {}, ActivePropertyState::None});

    EXPECT_EQ(Text(), "a.fodg: saved as b.fodg\n"
                      "  1/4  outline.width  0.5 mm  →  0.8 mm  local\n");
}

TEST_F(EditedLength, FollowsTheLanguageInForce)
{
    ReferenceHost::SetLanguage("de");

    const std::string text = Text();
    ReferenceHost::SetLanguage("en");

    EXPECT_EQ(text, "a.fodg: gespeichert als b.fodg\n"
                    "  1/4  outline.width  0,5 mm  →  0,8 mm  lokal\n");
}

TEST_F(EditedLength, MaySimplyNotHaveChanged)
{
    result.changes.clear();

    EXPECT_EQ(Text(), "a.fodg: saved as b.fodg\n  nothing changed\n");
}

TEST_F(EditedLength, ShowsLinksAndEntriesOfThePaletteWithoutAState)
{
    result.changes = {{L"palette:Sea", L"color", {}, OvxStringT(L"#3366cc"), {}, {}, {}}, ColourChange()};
    result.changes[1].toLink = L"Sea";
    panels[0].name = L"fill";
    panels[0].rows[0] = RowDescription();
    panels[0].rows[0].identifier = L"color";

    EXPECT_EQ(Text(), "a.fodg: saved as b.fodg\n"
                      "  palette:Sea  color       not set  →  #3366cc\n"
                      "  1/4          fill.color  #ff0000  →  #3366cc (Sea)  local\n");
}

TEST_F(EditedLength, BeginsWithWhatTheCommandsTold)
{
    Workbench::Report report;
    report.selector = L"all";
    result.answers = {{1, Cli::CreatedStyle{L"Blue"}}, {2, report}, {3, Cli::OpenedStyle{L"Base"}}};

    EXPECT_THAT(Text(), StartsWith("New style: Blue\na.fodg: all\n\nOpened style: Base\na.fodg: saved as"));
}

TEST(EditResultForPrograms, HasEveryFieldInOrder)
{
    EditResult result;
    result.file = "a.fodg";
    result.steps = 1;
    result.changes = {ColourChange(),
                      {L"1/4", L"outline.width", {}, 80, {}, {}, ActivePropertyState::Inherited}};
    result.changes[0].toLink = L"Sea";

    EXPECT_EQ(EditResultToJson(result),
              "{\"file\": \"a.fodg\", \"changes\": [\n"
              R"({"id":"1/4","property":"fill.color","from":"#ff0000","to":"#3366cc","state":"Overridden",)"
              "\"fromLink\":null,\"toLink\":\"Sea\"},\n"
              R"({"id":"1/4","property":"outline.width","from":null,"to":80,"state":"Inherited",)"
              "\"fromLink\":null,\"toLink\":null}\n"
              "], \"steps\": 1}\n");
}

TEST(EditResultForPrograms, NamesTheStyleThatACommandMadeOrOpened)
{
    EditResult result;
    result.answers = {{0, Cli::CreatedStyle{L"Blue"}}};
    EXPECT_THAT(EditResultToJson(result), testing::EndsWith("], \"steps\": 0, \"created\": \"Blue\"}\n"));

    result.answers = {{0, Cli::OpenedStyle{L"Base"}}};
    EXPECT_THAT(EditResultToJson(result), testing::EndsWith("], \"steps\": 0, \"style\": \"Base\"}\n"));
}

TEST(EditResultForPrograms, NamesTheLineOfWhatAScriptTold)
{
    EditResult result;
    result.isScript = true;
    EXPECT_THAT(EditResultToJson(result), testing::EndsWith("\"steps\": 0, \"answers\": []}\n"));

    Workbench::Report report;
    report.selector = L"all";
    result.answers = {{2, Cli::CreatedStyle{L"Blue"}}, {5, report}};
    EXPECT_THAT(EditResultToJson(result),
                testing::EndsWith(R"("answers": [{"line":2,"created":"Blue"},{"line":5,"report":)"
                                  R"({"selection":{"selector":"all","targets":[]},"panels":[]}}]})"
                                  "\n"));
}
