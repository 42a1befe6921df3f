// What commands tell of lists and presets, for people and for programs.

#include "apps/cli/AnswerReport.h"

#include "reference_host/resources/Language.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using Cli::AnswerToJson;
using Cli::AnswerToText;
using Cli::Colouring;
using Cli::EditAnswer;
using Cli::LayOut;
using Workbench::PresetReport;
using Workbench::Restyled;
using Workbench::RowDescription;
using Workbench::StyleList;
using Workbench::StyleListEntry;
using Workbench::StyleListPart;

namespace
{

std::string Text(const EditAnswer& answer)
{
    return LayOut(AnswerToText(answer, {}), Colouring::Off);
}

std::string Json(const EditAnswer& answer)
{
    return AnswerToJson(answer).dump();
}

StyleListEntry Entry(unsigned id, const wchar_t* text, const wchar_t* styleName, bool isChecked = false)
{
    StyleListEntry entry;
    entry.id = id;
    entry.text = text;
    entry.styleName = styleName;
    entry.isChecked = isChecked;
    return entry;
}

StyleList MainList()
{
    return {{Entry(0, L"No Style", L""), Entry(1, L"A&&B", L"A&&B"), Entry(2, L"Sea", L"Sea", true),
             Entry(3, L"More Styles...", L"More Styles...")},
            true};
}

PresetReport RedPreset()
{
    PresetReport preset;
    preset.name = L"Warm";
    preset.picture.emplace();
    preset.picture->fill.category = L"fill";
    preset.picture->fill.type = L"solid";
    preset.picture->fill.colour = CLR_COLORSPEC::Rgb{0xff, 0, 0};
    preset.picture->fill.transparency = 30;
    preset.picture->outline.category = L"outline";
    preset.picture->outline.type = L"dash";
    preset.picture->outline.definition = L"Fine";
    preset.picture->outline.colour = CLR_COLORSPEC::Rgb{0, 0, 0xff};
    preset.picture->outline.widthInHundredthMm = 150;
    return preset;
}

/// A preset that sets a colour, and one that sets nothing.
class ShownPresets : public testing::Test
{
protected:
    ShownPresets()
    {
        colour.identifier = L"color";
        colour.property = L"FillColor";
        colour.label = L"Colour";
        warm.panel = L"fill";
        warm.name = L"Warm";
        warm.report.rows.resize(1);
        warm.report.rows[0].description = &colour;
        warm.report.rows[0].value = OvxStringT(L"#ff0000");
        silent.panel = L"fill";
        silent.name = L"Silent";
    }

    RowDescription colour;
    Cli::ShownPreset warm;
    Cli::ShownPreset silent;
};

} // namespace

TEST(StyleListReport, HasIdCheckAndTextOfEachEntry)
{
    EXPECT_EQ(Text({0, MainList()}), "0     No Style\n"
                                     "1     A&B\n"
                                     "2  ✓  Sea\n"
                                     "3     More Styles...\n");
}

TEST(StyleListReport, HasTheNamesOfFurtherStylesAsTheyAre)
{
    const StyleList list{{Entry(9, L"A&&B", L"A&&B")}, false, StyleListPart::More};

    EXPECT_EQ(Text({0, list}), "9     A&&B\n");
}

TEST(StyleListReport, SaysWhenThereIsNothing)
{
    EXPECT_EQ(Text({0, StyleList()}), "nothing to show\n");
    EXPECT_EQ(Json({0, StyleList()}), R"({"entries":[],"more":false})");
}

TEST(StyleListReport, HasEveryFieldInOrder)
{
    EXPECT_EQ(Json({0, MainList()}),
              R"({"entries":[{"id":0,"text":"No Style","styleName":"","check":false},)"
              R"({"id":1,"text":"A&&B","styleName":"A&&B","check":false},)"
              R"({"id":2,"text":"Sea","styleName":"Sea","check":true},)"
              R"({"id":3,"text":"More Styles...","styleName":"More Styles...","check":false}],"more":true})");
}

TEST(RestyleReport, TellsTheStyleInForce)
{
    EXPECT_EQ(Text({0, Restyled{L"Sea", false}}), "Style: Sea\n");
    EXPECT_EQ(Json({0, Restyled{L"Sea", false}}), R"({"restyled":"Sea","firstTargetOnly":false})");
}

TEST(RestyleReport, SaysThatNoStyleActsOnTheFirstObjectAlone)
{
    EXPECT_EQ(Text({0, Restyled{{}, true}}),
              "Style: none\nOnly the first object of the selection was changed.\n");
    EXPECT_EQ(Json({0, Restyled{{}, true}}), R"({"restyled":null,"firstTargetOnly":true})");
}

TEST(PresetListReport, DescribesThePictureOfEachPreset)
{
    PresetReport unreadable;
    unreadable.name = L"Lost";

    EXPECT_EQ(Text({0, Cli::ListedPresets{L"fill", {RedPreset(), unreadable}}}),
              "Warm  Colour #ff0000 30 % transparent  Dashed Fine #0000ff 1.5 mm\n"
              "Lost\n");
}

TEST(PresetListReport, ShowsNoColourWhereTheTypeHasNone)
{
    PresetReport preset = RedPreset();
    preset.picture->fill.type = L"gradient";
    preset.picture->fill.definition = L"Dawn";
    preset.picture->fill.transparency = 0;
    preset.picture->outline.type = L"none";

    EXPECT_EQ(Text({0, Cli::ListedPresets{L"fill", {preset}}}), "Warm  Gradient Dawn  None\n");
}

TEST(PresetListReport, SaysThatThereAreNone)
{
    EXPECT_EQ(Text({0, Cli::ListedPresets{L"fill", {}}}), "fill: no presets\n");
    EXPECT_EQ(Json({0, Cli::ListedPresets{L"fill", {}}}), R"({"panel":"fill","presets":[]})");
}

TEST(PresetListReport, HasEveryFieldInOrder)
{
    PresetReport unreadable;
    unreadable.name = L"Lost";

    EXPECT_EQ(
        Json({0, Cli::ListedPresets{L"fill", {RedPreset(), unreadable}}}),
        R"({"panel":"fill","presets":[{"name":"Warm","picture":{)"
        R"("fill":{"type":"solid","definition":null,"color":"#ff0000","transparency":30,"width":0},)"
        R"("outline":{"type":"dash","definition":"Fine","color":"#0000ff","transparency":0,"width":150}}},)"
        R"({"name":"Lost","picture":null}]})");
}

TEST_F(ShownPresets, HaveALineForEachRowThatTheySet)
{
    EXPECT_EQ(Text({0, warm}), "Warm\n  Colour  #ff0000\n");
    EXPECT_EQ(Json({0, warm}), R"({"panel":"fill","preset":"Warm","rows":[{"identifier":"color",)"
                               R"("property":"FillColor","label":"Colour","value":"#ff0000"}]})");
}

TEST_F(ShownPresets, SayThatTheySetNothing)
{
    EXPECT_EQ(Text({0, silent}), "Silent\n  sets nothing here\n");
    EXPECT_EQ(Json({0, silent}), R"({"panel":"fill","preset":"Silent","rows":[]})");
}

TEST(PresetReports, TellWhatWasAddedReplacedAndDeleted)
{
    EXPECT_EQ(Text({0, Cli::AddedPreset{L"fill", L"Warm", false}}), "New preset: Warm\n");
    EXPECT_EQ(Text({0, Cli::AddedPreset{L"fill", L"Warm", true}}), "Replaced preset: Warm\n");
    EXPECT_EQ(Text({0, Cli::DeletedPreset{L"fill", L"Warm"}}), "Deleted preset: Warm\n");
    EXPECT_EQ(Json({0, Cli::AddedPreset{L"fill", L"Warm", true}}),
              R"({"panel":"fill","added":"Warm","replaced":true})");
    EXPECT_EQ(Json({0, Cli::DeletedPreset{L"fill", L"Warm"}}), R"({"panel":"fill","deleted":"Warm"})");
}

TEST(PresetReports, FollowTheLanguageInForce)
{
    ReferenceHost::SetLanguage("de");
    const std::string added = Text({0, Cli::AddedPreset{L"fill", L"Warm", false}});
    const std::string first = Text({0, Restyled{{}, true}});
    ReferenceHost::SetLanguage("en");

    EXPECT_EQ(added, "Neue Voreinstellung: Warm\n");
    EXPECT_EQ(first, "Vorlage: keine\nNur das erste Objekt der Auswahl wurde geändert.\n");
}
