// Presets as an editor keeps and drops them.

#include "apps/workbench/RowPlace.h"
#include "tests/workbench/EditorFixture.h"
#include "tests/workbench/RecordedAnswers.h"
#include "tests/workbench/ScratchConfiguration.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Workbench::AnswersInPlace;
using Workbench::EditError;
using Workbench::UsageError;

namespace WorkbenchTests
{
namespace
{

constexpr bool kReplace = true;

/// The editor on FourBoxes(), with presets in a folder of the test and somebody to ask.
class KeepingAPreset : public testing::Test
{
protected:
    [[nodiscard]] std::vector<OvxStringT> Names(const wchar_t* panel = L"fill")
    {
        std::vector<OvxStringT> names;
        for (const Workbench::PresetReport& preset : editor.ListPresets(panel))
            names.push_back(preset.name);
        return names;
    }

    /// The red part of the colour that a preset shows.
    [[nodiscard]] int RedOf(std::size_t preset)
    {
        return editor.ListPresets(L"fill").at(preset).picture.value().fill.colour.value().red;
    }

    /// Keeps the box B, which is red, as "Warm".
    void KeepWarm()
    {
        open.Select(L"name:B");
        editor.AddPreset(L"fill", L"Warm", std::nullopt);
    }

    ScratchConfiguration configuration;
    OpenEditor open{FourBoxes()};
    Workbench::Editor& editor = open.editor;
    RecordedAnswers person;
    AnswersInPlace inPlace{open.GetSession().GetDialogs(), &person};
};

using DroppingAPreset = KeepingAPreset;

} // namespace

TEST_F(KeepingAPreset, TakesTheFirstObject)
{
    open.Select(L"name:B,name:C");

    EXPECT_FALSE(editor.AddPreset(L"fill", L"Warm", std::nullopt));

    EXPECT_THAT(Names(), ElementsAre(L"Warm"));
    EXPECT_EQ(RedOf(0), 0xff);
    EXPECT_THAT(person.asked, IsEmpty());
}

TEST_F(KeepingAPreset, TakesTheDefaultStyles)
{
    open.Select(L"defaults");

    editor.AddPreset(L"fill", L"Grey", std::nullopt);

    EXPECT_EQ(RedOf(0), 0xcc);
}

TEST_F(KeepingAPreset, ChangesNothingInTheDrawing)
{
    const std::string before = open.Dump();

    KeepWarm();

    EXPECT_EQ(open.Dump(), before);
    EXPECT_EQ(editor.GetStepCount(), 0U);
    EXPECT_THAT(open.Changes(), IsEmpty());
}

TEST_F(KeepingAPreset, ReplacesOneOfThatNameWhenItMay)
{
    KeepWarm();
    open.Select(L"name:C");

    EXPECT_TRUE(editor.AddPreset(L"fill", L"Warm", kReplace));

    EXPECT_THAT(Names(), ElementsAre(L"Warm"));
    EXPECT_EQ(RedOf(0), 0x00);
    EXPECT_THAT(person.asked, IsEmpty());
}

TEST_F(KeepingAPreset, LeavesOneOfThatNameWhenItMayNot)
{
    KeepWarm();
    open.Select(L"name:C");

    EXPECT_EQ(
        open.ErrorOf([&] { editor.AddPreset(L"fill", L"Warm", !kReplace); }),
        "the preset \"Warm\" of the panel fill was left as it is: it is there already, and was not to be "
        "replaced");

    EXPECT_EQ(RedOf(0), 0xff);
    EXPECT_THAT(person.asked, IsEmpty());
}

TEST_F(KeepingAPreset, AsksWhetherToReplaceWhenNothingIsSaid)
{
    KeepWarm();
    open.Select(L"name:C");
    person.confirmations = {false, true};

    EXPECT_THROW(editor.AddPreset(L"fill", L"Warm", std::nullopt), EditError);
    EXPECT_EQ(RedOf(0), 0xff);
    EXPECT_TRUE(editor.AddPreset(L"fill", L"Warm", std::nullopt));

    EXPECT_EQ(RedOf(0), 0x00);
    EXPECT_THAT(person.asked, ElementsAre("A preset of this name exists already. Replace it?",
                                          "A preset of this name exists already. Replace it?"));
}

TEST_F(KeepingAPreset, TellsNamesApartByUpperAndLowerCase)
{
    KeepWarm();

    EXPECT_FALSE(editor.AddPreset(L"fill", L"warm", std::nullopt));

    EXPECT_THAT(Names(), SizeIs(2));
}

TEST_F(KeepingAPreset, KeepsAnyName)
{
    for (const wchar_t* name : {L"../../escape", L"a&b <\"c\">", L"Größe 100 %", L".", L"line\nbreak"})
        EXPECT_FALSE(editor.AddPreset(L"fill", name, std::nullopt));

    EXPECT_THAT(Names(), testing::UnorderedElementsAre(L"../../escape", L"a&b <\"c\">", L"Größe 100 %", L".",
                                                       L"line\nbreak"));
    EXPECT_THAT(configuration.PresetFiles(), SizeIs(5));
}

TEST_F(KeepingAPreset, NeedsAName)
{
    EXPECT_EQ(open.ErrorOf([&] { editor.AddPreset(L"fill", L"", std::nullopt); }),
              "the name of a preset is empty; expected a text");
    EXPECT_THROW(editor.AddPreset(L"fill", L"", std::nullopt), UsageError);
}

TEST_F(KeepingAPreset, IsNotForNamedStyles)
{
    open.Select(L"sheet:Base");

    EXPECT_EQ(open.ErrorOf([&] { editor.AddPreset(L"fill", L"Warm", std::nullopt); }),
              "the preset \"Warm\" cannot be made from sheet:Base: presets are made from objects and default "
              "styles");
    EXPECT_THAT(configuration.PresetFiles(), IsEmpty());
}

TEST_F(KeepingAPreset, TellsWhatKeptItFromBeingWritten)
{
    configuration.Obstruct();
    open.Select(L"name:B");

    EXPECT_THAT(open.ErrorOf([&] { editor.AddPreset(L"fill", L"Warm", std::nullopt); }),
                HasSubstr((configuration.GetPath() / "presets").string()));

    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(KeepingAPreset, IsPossibleAgainOnceNothingStandsInTheWay)
{
    configuration.Obstruct();
    EXPECT_THROW(KeepWarm(), EditError);
    std::filesystem::remove(configuration.GetPath() / "presets");

    KeepWarm();

    EXPECT_THAT(Names(), ElementsAre(L"Warm"));
}

TEST_F(DroppingAPreset, LeavesTheOthers)
{
    KeepWarm();
    editor.AddPreset(L"fill", L"Cold", std::nullopt);

    editor.DeletePreset(L"fill", L"Warm");

    EXPECT_THAT(Names(), ElementsAre(L"Cold"));
    EXPECT_THAT(configuration.PresetFiles(), SizeIs(1));
}

TEST_F(DroppingAPreset, AsksNobody)
{
    KeepWarm();

    editor.DeletePreset(L"fill", L"Warm");

    EXPECT_THAT(person.asked, IsEmpty());
}

TEST_F(DroppingAPreset, DoesNotGiveItToTheSelection)
{
    for (const wchar_t* selector : {L"all", L"defaults", L"sheet:Base"})
    {
        KeepWarm();
        open.Select(selector);
        const std::string before = open.Dump();

        editor.DeletePreset(L"fill", L"Warm");

        EXPECT_EQ(open.Dump(), before);
    }

    EXPECT_EQ(editor.GetStepCount(), 0U);
    EXPECT_THAT(open.Changes(), IsEmpty());
}

TEST_F(DroppingAPreset, LeavesTheSelectionInForce)
{
    KeepWarm();
    open.Select(L"name:A");

    editor.DeletePreset(L"fill", L"Warm");
    open.Set(L"fill.color", L"black");

    EXPECT_EQ(open.ValueOf(L"name:A", L"fill.color"), "#000000");
    EXPECT_EQ(open.ValueOf(L"name:B", L"fill.color"), "#ff0000");
}

TEST_F(DroppingAPreset, SelectsNone)
{
    KeepWarm();

    editor.DeletePreset(L"fill", L"Warm");

    const auto& panel = *Workbench::FindPanel(open.GetSession().GetPanels(), L"fill").panel;
    EXPECT_EQ(panel.GetBoundNames().Read<int>(L"DeletePresetEnabled"), 0);
}

TEST_F(DroppingAPreset, OfAnotherProcessThatIsGoneAlreadyLeavesNothing)
{
    KeepWarm();
    std::filesystem::remove(configuration.PresetFiles().at(0));

    editor.DeletePreset(L"fill", L"Warm");

    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(DroppingAPreset, IsNotPossibleInAGroup)
{
    KeepWarm();
    editor.BeginGroup();

    EXPECT_THAT(open.ErrorOf([&] { editor.DeletePreset(L"fill", L"Warm"); }),
                HasSubstr("end the group first"));
    EXPECT_THAT(open.ErrorOf([&] { static_cast<void>(editor.DescribePreset(L"fill", L"Warm")); }),
                HasSubstr("end the group first"));

    EXPECT_THAT(Names(), ElementsAre(L"Warm"));
}

} // namespace WorkbenchTests
