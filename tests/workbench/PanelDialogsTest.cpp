// Dialogs as panels open them, led through their bound names.

#include "apps/workbench/PanelDialogs.h"

#include "apps/workbench/RowPlace.h"
#include "host/ui_list/WCmnUI_List.h"
#include "tests/workbench/RecordedAnswers.h"
#include "tests/workbench/ScratchConfiguration.h"
#include "tests/workbench/StyleDrawings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Workbench::AnswersInPlace;
using Workbench::DialogEnd;
using Workbench::Panel;
using Workbench::PanelDialogs;
using Workbench::StyleList;
using Workbench::StyleListPart;

namespace WorkbenchTests
{
namespace
{

const std::string kReplaceQuestion = "A preset of this name exists already. Replace it?";

Panel& PanelCalled(OpenEditor& open, const wchar_t* name)
{
    return *Workbench::FindPanel(open.GetSession().GetPanels(), name).panel;
}

class TheAddPresetDialog : public testing::Test
{
protected:
    TheAddPresetDialog() { dialogs.SetAnswers(&answers); }

    void Invoke(const wchar_t* command) { PanelCalled(open, L"fill").GetBoundNames().Invoke(command); }

    [[nodiscard]] std::vector<OvxStringT> Presets()
    {
        const auto list = PanelCalled(open, L"fill").GetBoundNames().Read<WCmnUI_List>(L"PresetList");
        std::vector<OvxStringT> names;
        for (std::size_t position = 0; position < list.GetCount(); ++position)
            names.push_back(list.GetItem(position)->GetText());
        return names;
    }

    ScratchConfiguration configuration;
    RecordedAnswers answers;
    OpenEditor open{FourBoxes()};
    PanelDialogs& dialogs = open.GetSession().GetDialogs();
};

/// The dialogs of a session on a drawing, whose entries are picked on the box One.
class TheMoreStylesDialog : public testing::Test
{
protected:
    void Pick(OpenEditor& open, const wchar_t* panel, unsigned id)
    {
        open.Select(L"name:One");
        PanelDialogs& dialogs = open.GetSession().GetDialogs();
        const AnswersInPlace inPlace(dialogs, &answers);
        const StyleList list = open.editor.ListStyles(panel, StyleListPart::Main);
        dialogs.PickStyle(PanelCalled(open, panel), list.entries.at(id));
        end = dialogs.TakeLastEnd();
    }

    RecordedAnswers answers;
    DialogEnd end = DialogEnd::NotShown;
};

} // namespace

TEST_F(TheAddPresetDialog, TakesTheNameThatIsAnswered)
{
    answers.names = {L"Warm"};

    Invoke(L"OnAddPreset");

    EXPECT_THAT(answers.asked, ElementsAre("name [New Preset]"));
    EXPECT_THAT(Presets(), ElementsAre(L"Warm"));
    EXPECT_EQ(dialogs.TakeLastEnd(), DialogEnd::Accepted);
}

TEST_F(TheAddPresetDialog, AsksAgainAfterAnEmptyName)
{
    answers.names = {L"", L"Warm"};

    Invoke(L"OnAddPreset");

    EXPECT_THAT(answers.asked, ElementsAre("name [New Preset]", "name []"));
    EXPECT_THAT(Presets(), ElementsAre(L"Warm"));
}

TEST_F(TheAddPresetDialog, AsksForAnotherNameWhenOneIsNotToBeReplaced)
{
    answers.names = {L"Warm"};
    Invoke(L"OnAddPreset");
    answers = RecordedAnswers();
    answers.names = {L"Warm", L"Cold"};
    answers.confirmations = {false};

    Invoke(L"OnAddPreset");

    EXPECT_THAT(answers.asked, ElementsAre("name [New Preset]", kReplaceQuestion, "name [Warm]"));
    EXPECT_THAT(Presets(), ElementsAre(L"Cold", L"Warm"));
}

TEST_F(TheAddPresetDialog, ReplacesWhatItIsToldTo)
{
    answers.names = {L"Warm", L"Warm"};
    answers.confirmations = {true};
    Invoke(L"OnAddPreset");

    Invoke(L"OnAddPreset");

    EXPECT_THAT(Presets(), ElementsAre(L"Warm"));
    EXPECT_EQ(dialogs.TakeLastEnd(), DialogEnd::Accepted);
}

TEST_F(TheAddPresetDialog, KeepsNothingWhenItIsGivenUp)
{
    Invoke(L"OnAddPreset");

    EXPECT_THAT(answers.asked, SizeIs(1));
    EXPECT_THAT(Presets(), IsEmpty());
    EXPECT_EQ(dialogs.TakeLastEnd(), DialogEnd::GivenUp);
}

TEST_F(TheAddPresetDialog, IsGivenUpWhereNobodyAnswers)
{
    dialogs.SetAnswers(nullptr);

    Invoke(L"OnAddPreset");

    EXPECT_THAT(Presets(), IsEmpty());
    EXPECT_EQ(dialogs.TakeLastEnd(), DialogEnd::GivenUp);
}

TEST_F(TheAddPresetDialog, TellsItsEndOnce)
{
    Invoke(L"OnAddPreset");
    static_cast<void>(dialogs.TakeLastEnd());

    EXPECT_EQ(dialogs.TakeLastEnd(), DialogEnd::NotShown);
}

TEST_F(TheMoreStylesDialog, IsNotShownForAnEntryThatAppliesAStyle)
{
    OpenEditor open(NumberedStyles(19));

    Pick(open, L"style", 4);

    EXPECT_EQ(StyleOf(open, L"name:One"), L"S4");
    EXPECT_THAT(answers.asked, IsEmpty());
    EXPECT_EQ(end, DialogEnd::NotShown);
}

TEST_F(TheMoreStylesDialog, IsShownForAPanelThatOpensNoneItself)
{
    OpenEditor open(NumberedStyles(19));
    answers.styleChoices = {3};

    Pick(open, L"style", 10);

    EXPECT_THAT(answers.asked, ElementsAre("style of 10"));
    EXPECT_EQ(StyleOf(open, L"name:One"), L"S13");
    EXPECT_EQ(end, DialogEnd::Accepted);
}

TEST_F(TheMoreStylesDialog, IsShownOnceForAPanelThatOpensItsOwn)
{
    OpenEditor open(NumberedFills(19));
    answers.styleChoices = {3, 4};

    Pick(open, L"fill", 10);

    EXPECT_THAT(answers.asked, ElementsAre("style of 10"));
    EXPECT_EQ(open.ValueOf(L"fill.color"), "#000023");
    EXPECT_EQ(end, DialogEnd::Accepted);
}

TEST_F(TheMoreStylesDialog, AppliesTheFirstOfTheFurtherStylesToo)
{
    OpenEditor open(NumberedStyles(19));
    answers.styleChoices = {0};

    Pick(open, L"style", 10);

    EXPECT_EQ(StyleOf(open, L"name:One"), L"S10");
}

TEST_F(TheMoreStylesDialog, ChangesNothingWhenItIsGivenUp)
{
    OpenEditor styles(NumberedStyles(19, "S1"));
    Pick(styles, L"style", 10);
    EXPECT_EQ(StyleOf(styles, L"name:One"), L"S1");
    EXPECT_EQ(end, DialogEnd::GivenUp);
    styles.End();

    OpenEditor fills(NumberedFills(19));
    Pick(fills, L"fill", 10);
    EXPECT_EQ(fills.ValueOf(L"fill.color"), "-");
    EXPECT_EQ(end, DialogEnd::GivenUp);
}

TEST(AnswersInPlaceTest, GiveWayToThoseBefore)
{
    PanelDialogs dialogs;
    RecordedAnswers first;
    RecordedAnswers second;
    dialogs.SetAnswers(&first);
    {
        const AnswersInPlace inPlace(dialogs, &second);
        EXPECT_EQ(dialogs.GetAnswers(), &second);
    }

    EXPECT_EQ(dialogs.GetAnswers(), &first);
}

TEST(PanelDialogsTest, AnswerNoWhereNobodyAnswers)
{
    PanelDialogs dialogs;

    EXPECT_EQ(dialogs.Confirm(L"Replace it?", 36), ReferenceHost::kAnswerNo);
}

TEST(PanelDialogsTest, AnswerAsTheyAreTold)
{
    PanelDialogs dialogs;
    RecordedAnswers answers;
    answers.confirmations = {true, false};
    dialogs.SetAnswers(&answers);

    EXPECT_EQ(dialogs.Confirm(L"Replace it?", 36), ReferenceHost::kAnswerYes);
    EXPECT_EQ(dialogs.Confirm(L"Replace it?", 36), ReferenceHost::kAnswerNo);
}

TEST(PanelDialogsTest, PassOverKeysWithoutADialog)
{
    PanelDialogs dialogs;
    RecordedAnswers answers;
    dialogs.SetAnswers(&answers);

    dialogs.ShowDialog(L"unknown", nullptr);
    dialogs.ShowDialog(L"494d1725-676f-484b-9453-fe7fb1958759", nullptr);
    dialogs.ShowDialog(L"0f6cfc84-8a1f-9182-4a02-21556f4ad8f8", nullptr);

    EXPECT_THAT(answers.asked, IsEmpty());
    EXPECT_EQ(dialogs.TakeLastEnd(), DialogEnd::NotShown);
}

} // namespace WorkbenchTests
