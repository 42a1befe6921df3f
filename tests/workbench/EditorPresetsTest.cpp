// Presets as an editor lists, shows and applies them.

#include "apps/workbench/RowPlace.h"
#include "tests/workbench/EditorFixture.h"
#include "tests/workbench/ScratchConfiguration.h"

#include "host/utils/Utf8.h"

#include <fstream>

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Workbench::EditError;
using Workbench::PresetReport;
using Workbench::RowReport;
using Workbench::UsageError;

namespace WorkbenchTests
{
namespace
{

/// The editor on FourBoxes(), with presets in a folder of the test.
class PresetsOfAnEditor : public testing::Test
{
protected:
    /// Keeps the first object of a selection as a preset; the selection stays all objects.
    void Keep(const wchar_t* panel, const wchar_t* name, const wchar_t* selector)
    {
        open.Select(selector);
        open.editor.AddPreset(panel, name, std::nullopt);
        open.Select(L"all");
    }

    [[nodiscard]] std::vector<OvxStringT> Names(const wchar_t* panel)
    {
        std::vector<OvxStringT> names;
        for (const PresetReport& preset : open.editor.ListPresets(panel))
            names.push_back(preset.name);
        return names;
    }

    /// Applies a preset, and expects one step that can be undone and done again exactly.
    void ApplyInOneStep(const wchar_t* panel, const wchar_t* name)
    {
        const std::size_t steps = editor.GetStepCount();
        const std::string before = open.Dump();
        editor.ApplyPreset(panel, name);
        const std::string after = open.Dump();
        EXPECT_EQ(editor.GetStepCount(), steps + 1);
        EXPECT_TRUE(editor.Undo());
        EXPECT_EQ(open.Dump(), before);
        EXPECT_TRUE(editor.Redo());
        EXPECT_EQ(open.Dump(), after);
    }

    /// The rows that a preset sets, each "color #ff0000".
    [[nodiscard]] std::vector<std::string> RowsOf(const wchar_t* panel, const wchar_t* name)
    {
        std::vector<std::string> rows;
        for (const RowReport& row : editor.DescribePreset(panel, name).rows)
        {
            const auto* text = std::get_if<OvxStringT>(&row.value);
            rows.push_back(
                OvxUtils::ToUtf8(row.description->identifier) + " " +
                (text == nullptr ? std::to_string(std::get<int>(row.value)) : OvxUtils::ToUtf8(*text)));
        }
        return rows;
    }

    ScratchConfiguration configuration;
    OpenEditor open{FourBoxes()};
    Workbench::Editor& editor = open.editor;
};

} // namespace

TEST_F(PresetsOfAnEditor, AreNoneAtFirst)
{
    EXPECT_THAT(editor.ListPresets(L"fill"), IsEmpty());
    EXPECT_THAT(editor.ListPresets(L"outline"), IsEmpty());
}

TEST_F(PresetsOfAnEditor, AreListedByTheirNames)
{
    Keep(L"fill", L"walnut", L"name:A");
    Keep(L"fill", L"Amber", L"name:B");
    Keep(L"fill", L"Zinc", L"name:C");

    EXPECT_THAT(Names(L"fill"), ElementsAre(L"Amber", L"walnut", L"Zinc"));
}

TEST_F(PresetsOfAnEditor, BelongToOnePanel)
{
    Keep(L"fill", L"Amber", L"name:B");
    Keep(L"outline", L"Thick", L"name:A");

    EXPECT_THAT(Names(L"fill"), ElementsAre(L"Amber"));
    EXPECT_THAT(Names(L"outline"), ElementsAre(L"Thick"));
}

TEST_F(PresetsOfAnEditor, HaveAPicture)
{
    Keep(L"fill", L"Amber", L"name:B");

    const std::vector<PresetReport> presets = editor.ListPresets(L"fill");

    ASSERT_THAT(presets, SizeIs(1));
    ASSERT_TRUE(presets[0].picture);
    ASSERT_TRUE(presets[0].picture->fill.colour);
    EXPECT_EQ(presets[0].picture->fill.colour->red, 0xff);
    EXPECT_EQ(presets[0].picture->outline.widthInHundredthMm, 200);
}

TEST_F(PresetsOfAnEditor, AreThoseOfEveryDrawing)
{
    Keep(L"fill", L"Amber", L"name:B");
    open.End();

    OpenEditor other(FlatDrawing().Page("<draw:rect draw:name='Box'/>"));
    other.editor.ApplyPreset(L"fill", L"Amber");

    EXPECT_EQ(other.ValueOf(L"fill.color"), "#ff0000");
}

TEST_F(PresetsOfAnEditor, ShowTheRowsThatTheySet)
{
    Keep(L"fill", L"Amber", L"name:B");
    Keep(L"outline", L"Thick", L"name:A");

    EXPECT_THAT(RowsOf(L"fill", L"Amber"), ElementsAre("color #ff0000"));
    EXPECT_THAT(RowsOf(L"outline", L"Thick"), ElementsAre("width 350"));
}

TEST_F(PresetsOfAnEditor, ShowNothingOfWhatTheDefaultStylesSet)
{
    open.End();
    OpenEditor other(FlatDrawing().Page("<draw:rect draw:name='Box'/>"));
    other.editor.AddPreset(L"fill", L"Silent", std::nullopt);
    other.End();
    OpenEditor grey(FourBoxes());

    EXPECT_THAT(grey.editor.DescribePreset(L"fill", L"Silent").rows, IsEmpty());
    EXPECT_EQ(grey.ValueOf(L"defaults", L"fill.color"), "#cccccc");
}

TEST_F(PresetsOfAnEditor, LetEverythingBeInheritedThatTheyDoNotSet)
{
    open.End();
    OpenEditor other(FlatDrawing().Page("<draw:rect draw:name='Box'/>"));
    other.editor.AddPreset(L"fill", L"Silent", std::nullopt);
    other.End();
    OpenEditor boxes(FourBoxes());
    boxes.Select(L"name:B");

    boxes.editor.ApplyPreset(L"fill", L"Silent");

    EXPECT_EQ(boxes.ValueOf(L"fill.color"), "#3366cc");
    EXPECT_EQ(boxes.Row(L"fill.color").state, ActivePropertyState::Inherited);
}

TEST_F(PresetsOfAnEditor, ChangeNothingWhenTheyAreShown)
{
    Keep(L"fill", L"Amber", L"name:B");
    const std::string before = open.Dump();

    static_cast<void>(editor.DescribePreset(L"fill", L"Amber"));

    EXPECT_EQ(open.Dump(), before);
    EXPECT_EQ(editor.GetStepCount(), 0U);
    EXPECT_FALSE(editor.Undo());
    EXPECT_THAT(open.Changes(), IsEmpty());
}

TEST_F(PresetsOfAnEditor, AreNotSelectedByBeingShown)
{
    Keep(L"fill", L"Amber", L"name:B");
    open.Select(L"defaults");

    static_cast<void>(editor.DescribePreset(L"fill", L"Amber"));

    const auto& panel = *Workbench::FindPanel(open.GetSession().GetPanels(), L"fill").panel;
    EXPECT_EQ(panel.GetBoundNames().Read<int>(L"DeletePresetEnabled"), 0);
}

TEST_F(PresetsOfAnEditor, LeaveWhatCanBeDoneAgainWhenTheyAreShown)
{
    Keep(L"fill", L"Amber", L"name:B");
    open.Set(L"fill.color", L"black");
    editor.Undo();

    static_cast<void>(editor.DescribePreset(L"fill", L"Amber"));

    EXPECT_TRUE(editor.Redo());
    EXPECT_EQ(open.ValueOf(L"fill.color"), "#000000");
}

TEST_F(PresetsOfAnEditor, AreAppliedToAllObjectsInOneStep)
{
    Keep(L"fill", L"Amber", L"name:B");

    ApplyInOneStep(L"fill", L"Amber");

    for (const wchar_t* object : {L"name:A", L"name:B", L"name:C", L"name:D"})
        EXPECT_EQ(open.ValueOf(object, L"fill.color"), "#ff0000");
    EXPECT_EQ(open.ValueOf(L"sheet:Base", L"fill.color"), "#3366cc");
}

TEST_F(PresetsOfAnEditor, LeaveOtherCategoriesOfTheObjectsAlone)
{
    Keep(L"fill", L"Amber", L"name:B");
    open.Select(L"name:A");

    ApplyInOneStep(L"fill", L"Amber");

    EXPECT_EQ(open.ValueOf(L"outline.width"), "350");
    EXPECT_EQ(open.Row(L"fill.color").state, ActivePropertyState::Overridden);
}

TEST_F(PresetsOfAnEditor, AreAppliedToTheDefaultStylesInOneStep)
{
    Keep(L"fill", L"Amber", L"name:B");
    open.Select(L"defaults");

    ApplyInOneStep(L"fill", L"Amber");

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#ff0000");
}

TEST_F(PresetsOfAnEditor, TellWhatTheyChanged)
{
    Keep(L"fill", L"Amber", L"name:B");
    open.Select(L"name:D");

    editor.ApplyPreset(L"fill", L"Amber");

    EXPECT_THAT(open.Changes(), ElementsAre("1/4 fill.color #3366cc -> #ff0000 Overridden"));
}

TEST_F(PresetsOfAnEditor, ArePartOfTheStepOfAGroup)
{
    Keep(L"fill", L"Amber", L"name:B");
    editor.BeginGroup();

    editor.ApplyPreset(L"fill", L"Amber");
    open.Set(L"outline.width", L"1mm");
    editor.EndGroup(true);

    EXPECT_EQ(editor.GetStepCount(), 1U);
    EXPECT_EQ(open.ValueOf(L"fill.color"), "#ff0000");
}

TEST_F(PresetsOfAnEditor, AreForObjectsAndDefaultStylesAlone)
{
    Keep(L"fill", L"Amber", L"name:B");
    open.Select(L"sheet:Base");
    const std::string before = open.Dump();

    EXPECT_EQ(
        open.ErrorOf([&] { editor.ApplyPreset(L"fill", L"Amber"); }),
        "the preset \"Amber\" cannot be applied on sheet:Base: presets are for objects and default styles");
    EXPECT_THROW(editor.ApplyPreset(L"fill", L"Amber"), EditError);

    EXPECT_EQ(open.Dump(), before);
    EXPECT_EQ(editor.GetStepCount(), 0U);
}

TEST_F(PresetsOfAnEditor, NeedTheDefinitionsThatTheyName)
{
    open.End();
    OpenEditor dotted(
        FlatDrawing()
            .Styles("<draw:hatch draw:name='Dots' draw:style='single' draw:color='#000000' "
                    "draw:distance='0.1cm' draw:rotation='0'/>")
            .Automatic("graphic", "style:name='gr1'",
                       "<style:graphic-properties draw:fill='hatch' draw:fill-hatch-name='Dots'/>")
            .Page("<draw:rect draw:name='Box' draw:style-name='gr1'/>"));
    dotted.editor.AddPreset(L"fill", L"Dotted", std::nullopt);
    dotted.End();
    OpenEditor plain(FourBoxes());
    const std::string before = plain.Dump();

    EXPECT_EQ(
        OpenEditor::ErrorOf([&] { plain.editor.ApplyPreset(L"fill", L"Dotted"); }),
        "the preset \"Dotted\" cannot be applied: it names the hatch \"Dots\", which the drawing does not "
        "define");

    EXPECT_EQ(plain.Dump(), before);
    EXPECT_EQ(plain.editor.GetStepCount(), 0U);
}

TEST_F(PresetsOfAnEditor, AreKnownByTheirNames)
{
    EXPECT_EQ(open.ErrorOf([&] { editor.ApplyPreset(L"fill", L"Amber"); }),
              "the panel fill has no preset \"Amber\"; expected nothing, as it has none");
    Keep(L"fill", L"Amber", L"name:B");
    Keep(L"fill", L"Zinc", L"name:C");

    EXPECT_EQ(open.ErrorOf([&] { editor.ApplyPreset(L"fill", L"amber"); }),
              "the panel fill has no preset \"amber\"; expected one of \"Amber\", \"Zinc\"");
    EXPECT_THROW(static_cast<void>(editor.DescribePreset(L"fill", L"amber")), UsageError);
    EXPECT_THROW(editor.DeletePreset(L"fill", L"amber"), UsageError);
}

TEST_F(PresetsOfAnEditor, AreOfferedBySomePanelsAlone)
{
    const std::string refusal = "the panel \"style\" has no presets; expected one of \"fill\", \"outline\"";

    EXPECT_EQ(open.ErrorOf([&] { static_cast<void>(editor.ListPresets(L"style")); }), refusal);
    EXPECT_EQ(open.ErrorOf([&] { static_cast<void>(editor.DescribePreset(L"style", L"x")); }), refusal);
    EXPECT_EQ(open.ErrorOf([&] { editor.ApplyPreset(L"style", L"x"); }), refusal);
    EXPECT_EQ(open.ErrorOf([&] { editor.AddPreset(L"style", L"x", std::nullopt); }), refusal);
    EXPECT_EQ(open.ErrorOf([&] { editor.DeletePreset(L"style", L"x"); }), refusal);
    EXPECT_THROW(static_cast<void>(editor.ListPresets(L"style")), UsageError);
}

TEST_F(PresetsOfAnEditor, ArePassedOverWithOneWarningWhenTheyAreDamaged)
{
    Keep(L"fill", L"Amber", L"name:B");
    Keep(L"fill", L"Zinc", L"name:C");
    open.End();
    ASSERT_THAT(configuration.PresetFiles(), SizeIs(2));
    const std::filesystem::path damaged = configuration.PresetFiles()[0];
    std::ofstream(damaged) << "no preset";
    OpenEditor again(FourBoxes());

    const std::vector<PresetReport> presets = again.editor.ListPresets(L"fill");
    again.editor.ApplyPreset(L"fill", L"Zinc");

    ASSERT_THAT(presets, SizeIs(1));
    EXPECT_EQ(presets[0].name, L"Zinc");
    EXPECT_THAT(again.GetSession().TakePresetWarnings(),
                ElementsAre(AllOf(HasSubstr(damaged.filename().string()))));
    EXPECT_THAT(again.GetSession().TakePresetWarnings(), IsEmpty());
    EXPECT_TRUE(std::filesystem::exists(damaged));
}

} // namespace WorkbenchTests
