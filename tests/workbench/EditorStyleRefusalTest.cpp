// Picks from the list of styles for which a panel does nothing, and the reason that is told.

#include "tests/workbench/RecordedAnswers.h"
#include "tests/workbench/StyleDrawings.h"

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using Workbench::EditError;
using Workbench::PickById;
using Workbench::PickByMoreId;
using Workbench::PickByName;
using Workbench::PickNone;
using Workbench::StylePick;
using Workbench::UsageError;

namespace WorkbenchTests
{
namespace
{

/// The error of a pick that must change nothing.
template <class Error>
std::string Refusal(OpenEditor& open, const wchar_t* panel, const StylePick& pick)
{
    const std::string before = open.Dump();
    const std::size_t steps = open.editor.GetStepCount();
    std::string message = "no error";
    try
    {
        open.editor.Restyle(panel, pick);
    }
    catch (const Error& error)
    {
        message = error.what();
    }
    EXPECT_EQ(open.Dump(), before);
    EXPECT_EQ(open.editor.GetStepCount(), steps);
    return message;
}

} // namespace

TEST(ARefusedPick, SaysThatTheStyleIsInForce)
{
    OpenEditor open(NumberedStyles(3, "S1"));
    open.Select(L"name:Two");

    EXPECT_EQ(Refusal<EditError>(open, L"style", PickByName{L"S2"}),
              "style stays as it is on name:Two when \"S2\" is picked: the first target inherits from it "
              "already, and the list compares with that one");
}

TEST(ARefusedPick, LeavesFurtherObjectsAloneWhenTheFirstHasTheStyle)
{
    OpenEditor open(NumberedStyles(3, "S1"));

    EXPECT_THAT(Refusal<EditError>(open, L"style", PickById{1}),
                HasSubstr("the list compares with that one"));

    EXPECT_EQ(StyleOf(open, L"name:Two"), L"S2");
}

TEST(ARefusedPick, SaysThatTheFirstTargetHasNoStyle)
{
    OpenEditor open(NumberedStyles(3));

    EXPECT_EQ(Refusal<EditError>(open, L"style", PickNone{}),
              "style stays as it is on all when no style is picked: the first target inherits from no style");
}

TEST(ARefusedPick, SaysThatOnlyTheWholeOfTheFirstTargetHasAStyle)
{
    OpenEditor open(FourBoxes());
    open.Select(L"name:B");

    EXPECT_THAT(
        Refusal<EditError>(open, L"fill", PickNone{}),
        EndsWith("the first target inherits from \"Base\" as a whole, and from no style that this panel "
                 "lists"));
}

TEST(ARefusedPick, SaysWhatTheListMakesOfAnAmpersand)
{
    OpenEditor open(NumberedStyles(3).Named("style:name='A_26_B' style:display-name='A&amp;B'"));
    open.Select(L"name:One");
    const std::string reason =
        "its name holds \"&\", which the list doubles, and no style has the doubled name";

    EXPECT_EQ(Refusal<EditError>(open, L"style", PickByName{L"A&B"}),
              "style stays as it is on name:One when \"A&B\" is picked: " + reason);
    EXPECT_THAT(Refusal<EditError>(open, L"style", PickById{4}), EndsWith(reason));
}

TEST(ARefusedPick, SaysThatAStyleWithAnAmpersandIsInForce)
{
    FlatDrawing drawing = NumberedStyles(3, "A_26_B");
    OpenEditor open(drawing.Named("style:name='A_26_B' style:display-name='A&amp;B'"));
    open.Select(L"name:One");

    EXPECT_THAT(Refusal<EditError>(open, L"style", PickByName{L"A&B"}),
                HasSubstr("the first target inherits from it already"));
}

TEST(ARefusedPick, WouldMakeANamedStyleInheritFromItself)
{
    OpenEditor open(FourBoxes());
    open.Select(L"sheet:Base");

    EXPECT_EQ(Refusal<EditError>(open, L"style", PickByName{L"Accent"}),
              "\"Accent\" cannot be picked on sheet:Base: it is, or inherits from, the first target, which "
              "would inherit from itself");
    EXPECT_THAT(Refusal<EditError>(open, L"style", PickByName{L"Base"}), HasSubstr("inherit from itself"));
}

TEST(ARefusedPick, WouldMakeANamedStyleInheritFromItselfByTheFurtherStyles)
{
    OpenEditor open(NumberedStyles(30).Named("style:name='Child' style:parent-style-name='S1'"));
    open.Select(L"sheet:S1");

    EXPECT_EQ(Refusal<EditError>(open, L"style", PickByName{L"Child"}),
              "style stays as it is on sheet:S1 when \"Child\" is picked: it is, or inherits from, the style "
              "that is selected, which would inherit from itself");
    EXPECT_THAT(Refusal<EditError>(open, L"style", PickByMoreId{30}), HasSubstr("inherit from itself"));
}

TEST(ARefusedPick, WouldLetDefaultStylesInherit)
{
    OpenEditor open(NumberedStyles(3));
    open.Select(L"defaults");

    EXPECT_EQ(Refusal<EditError>(open, L"style", PickByName{L"S1"}),
              "style stays as it is on defaults when \"S1\" is picked: default styles inherit from nothing");
    EXPECT_THAT(Refusal<EditError>(open, L"style", PickNone{}), EndsWith("inherit from nothing"));
}

TEST(ARefusedPick, NamesTheStylesOfThePanelForAnUnknownOne)
{
    OpenEditor open(NumberedStyles(2));

    EXPECT_EQ(Refusal<UsageError>(open, L"style", PickByName{L"S9"}),
              "there is no style \"S9\"; expected one of \"S1\", \"S2\"");
    EXPECT_EQ(Refusal<UsageError>(open, L"outline", PickByName{L"S9"}),
              "there is no style \"S9\"; expected nothing, as the panel outline has no styles");
}

TEST(ARefusedPick, NamesTheCategoryOfAStyleOfAnotherOne)
{
    OpenEditor open(NumberedFills(2));

    EXPECT_EQ(Refusal<UsageError>(open, L"style", PickByName{L"S1"}),
              "the style \"S1\" is one for fill; expected nothing, as the panel style has no styles");
}

TEST(ARefusedPick, TakesMenuEscapesForNoName)
{
    OpenEditor open(NumberedStyles(3).Named("style:name='A_26_B' style:display-name='A&amp;B'"));

    EXPECT_THAT(Refusal<UsageError>(open, L"style", PickByName{L"A&&B"}), HasSubstr("there is no style"));
    EXPECT_THAT(Refusal<UsageError>(open, L"style", PickByName{L""}), HasSubstr("there is no style \"\""));
    EXPECT_THAT(Refusal<UsageError>(open, L"style", PickByName{L"No Style"}), HasSubstr("there is no style"));
}

TEST(ARefusedPick, TakesTheEntryThatLeadsOnForNoName)
{
    OpenEditor open(NumberedStyles(19));

    EXPECT_THAT(Refusal<UsageError>(open, L"style", PickByName{L"More Styles..."}),
                HasSubstr("there is no style \"More Styles...\""));
}

TEST(ARefusedPick, TellsWhichIdsThereAre)
{
    OpenEditor open(NumberedStyles(19));

    EXPECT_EQ(Refusal<UsageError>(open, L"style", PickById{11}),
              "the list of the panel style has no id 11; expected one from 0 to 10");
    EXPECT_EQ(Refusal<UsageError>(open, L"style", PickByMoreId{8}),
              "the list of the panel style has no id 8; expected one from 9 to 18");
    EXPECT_EQ(Refusal<UsageError>(open, L"fill", PickByMoreId{9}),
              "the list of the panel fill has no id 9; expected nothing, as it is empty");
}

TEST(ARefusedPick, SaysThatNobodyChoseAStyleInTheDialog)
{
    OpenEditor open(NumberedStyles(19));

    EXPECT_THAT(Refusal<EditError>(open, L"style", PickById{10}), EndsWith(": no style was chosen"));
}

TEST(ARefusedPick, NeedsTargetsOfThePanel)
{
    OpenEditor open(NumberedFills(2));
    open.Select(L"sheet:S1");

    EXPECT_EQ(Refusal<EditError>(open, L"outline", PickById{0}),
              "outline cannot be edited on sheet:S1: nothing that is selected belongs to this panel");
}

TEST(ARefusedPick, NeedsAPanel)
{
    OpenEditor open(NumberedStyles(2));

    EXPECT_THAT(Refusal<UsageError>(open, L"scent", PickById{1}), HasSubstr("scent"));
}

TEST(AnEntryThatLeadsOn, AsksWhoeverAnswersTheDialogs)
{
    OpenEditor open(NumberedStyles(19));
    open.Select(L"name:One");
    RecordedAnswers answers;
    answers.styleChoices = {2};
    const Workbench::AnswersInPlace inPlace(open.GetSession().GetDialogs(), &answers);

    const Workbench::Restyled restyled = open.editor.Restyle(L"style", PickById{10});

    EXPECT_THAT(answers.asked, ElementsAre("style of 10"));
    EXPECT_EQ(restyled.style, L"S12");
}

TEST(APickByName, AsksNobody)
{
    OpenEditor open(NumberedStyles(19));
    RecordedAnswers answers;
    const Workbench::AnswersInPlace inPlace(open.GetSession().GetDialogs(), &answers);

    open.editor.Restyle(L"style", PickByName{L"S15"});

    EXPECT_THAT(answers.asked, IsEmpty());
}

} // namespace WorkbenchTests
