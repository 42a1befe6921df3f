#include "apps/workbench/SettledAnswers.h"

#include "tests/workbench/RecordedAnswers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using Workbench::SettledAnswers;
using Workbench::StyleList;
using Workbench::StyleListEntry;
using WorkbenchTests::RecordedAnswers;

namespace
{

/// The entries 9, called Sea, and 10, called Sand.
StyleList TwoStyles()
{
    StyleListEntry sea;
    sea.id = 9;
    sea.styleName = L"Sea";
    StyleListEntry sand;
    sand.id = 10;
    sand.styleName = L"Sand";
    return {{sea, sand}, false};
}

} // namespace

TEST(SettledAnswersTest, GiveUpAndSayNoWithoutAnythingSettledAndNobodyToAsk)
{
    SettledAnswers answers;

    EXPECT_EQ(answers.NamePreset(L"New Preset"), std::nullopt);
    EXPECT_EQ(answers.ChooseStyle(TwoStyles()), std::nullopt);
    EXPECT_FALSE(answers.Confirm(L"Replace it?"));
}

TEST(SettledAnswersTest, AskOthersForWhatIsNotSettled)
{
    RecordedAnswers others;
    others.names = {L"Warm"};
    others.styleChoices = {1};
    others.confirmations = {true};
    SettledAnswers answers(&others);

    EXPECT_THAT(answers.NamePreset(L"New Preset"), Optional(OvxStringT(L"Warm")));
    EXPECT_THAT(answers.ChooseStyle(TwoStyles()), Optional(std::size_t{1}));
    EXPECT_TRUE(answers.Confirm(L"Replace it?"));
    EXPECT_THAT(others.asked, ElementsAre("name [New Preset]", "style of 2", "Replace it?"));
}

TEST(SettledAnswersTest, AskNobodyForWhatIsSettled)
{
    RecordedAnswers others;
    SettledAnswers answers(&others);
    answers.SettlePresetName(L"Warm");
    answers.SettleStyle(OvxStringT(L"Sand"));
    answers.SettleConfirmation(true);

    EXPECT_THAT(answers.NamePreset(L"New Preset"), Optional(OvxStringT(L"Warm")));
    EXPECT_THAT(answers.ChooseStyle(TwoStyles()), Optional(std::size_t{1}));
    EXPECT_TRUE(answers.Confirm(L"Replace it?"));
    EXPECT_THAT(others.asked, IsEmpty());
}

TEST(SettledAnswersTest, GiveANameOnce)
{
    RecordedAnswers others;
    others.names = {L"Other"};
    SettledAnswers answers(&others);
    answers.SettlePresetName(L"Warm");
    static_cast<void>(answers.NamePreset(L"New Preset"));

    EXPECT_EQ(answers.NamePreset(L"Warm"), std::nullopt);
    EXPECT_THAT(others.asked, IsEmpty());
}

TEST(SettledAnswersTest, ChooseAStyleByItsId)
{
    SettledAnswers answers;
    answers.SettleStyle(9U);

    EXPECT_THAT(answers.ChooseStyle(TwoStyles()), Optional(std::size_t{0}));
}

TEST(SettledAnswersTest, GiveUpWhenTheListDoesNotHoldTheStyle)
{
    RecordedAnswers others;
    others.styleChoices = {0};
    SettledAnswers byName(&others);
    byName.SettleStyle(OvxStringT(L"Moss"));
    SettledAnswers byId(&others);
    byId.SettleStyle(11U);

    EXPECT_EQ(byName.ChooseStyle(TwoStyles()), std::nullopt);
    EXPECT_EQ(byId.ChooseStyle(TwoStyles()), std::nullopt);
    EXPECT_THAT(others.asked, IsEmpty());
}

TEST(SettledAnswersTest, MaySettleOnNo)
{
    RecordedAnswers others;
    others.confirmations = {true};
    SettledAnswers answers(&others);
    answers.SettleConfirmation(false);

    EXPECT_FALSE(answers.Confirm(L"Replace it?"));
}
