// The picture and the tooltip of a row: questions that are asked by writing a bound property, and answered
// inside the value that was written.

#include "host/data_binding/ID_CString.h"
#include "tests/datasource/support/HostedTest.h"
#include "tests/datasource/support/ShownTexts.h"

#include <typeinfo>

namespace
{

using OvxUtils::Any;
using testing::ElementsAre;
using testing::IsEmpty;

using State = ActivePropertyState;

Any Question(const wchar_t* identifier)
{
    return Any(ID_CString{identifier, L"untouched"});
}

OvxStringT AnswerIn(const Any& question)
{
    return question.Get<ID_CString>().result;
}

/// What is shown for a state.
struct PresentationRow
{
    const char* name;
    State state;
    const wchar_t* image;
    const wchar_t* tooltipKey; ///< Null where the answer is left alone.
};

class StatePresentation : public HostedTest, public testing::WithParamInterface<PresentationRow>
{
};

TEST_P(StatePresentation, NamesThePicture)
{
    panel.state = GetParam().state;
    const Any question = Question(L"color");

    panel.SetPropertyIcon(question);

    EXPECT_EQ(AnswerIn(question), GetParam().image);
}

TEST_P(StatePresentation, GivesTheTooltip)
{
    panel.state = GetParam().state;
    const Any question = Question(L"color");

    panel.SetPropertyTooltip(question);

    const wchar_t* const key = GetParam().tooltipKey;
    EXPECT_EQ(AnswerIn(question), key == nullptr ? L"untouched" : ShownTexts::Of(key));
}

INSTANTIATE_TEST_SUITE_P(
    Table, StatePresentation,
    testing::Values(
        PresentationRow{"None", State::None, L"NoneImage", ShownTexts::kNothingToInheritFrom},
        PresentationRow{"Overridden", State::Overridden, L"OverriddenImage", ShownTexts::kOverridden},
        PresentationRow{"Inherited", State::Inherited, L"InheritedImage", ShownTexts::kInherited},
        PresentationRow{"Ambiguous", State::Ambiguous, L"AmbiguousImage", ShownTexts::kAmbiguous},
        PresentationRow{"AmbiguousParent", State::AmbiguousParent, L"AmbiguousImage", ShownTexts::kAmbiguous},
        PresentationRow{"BelowTheFirstState", static_cast<State>(-1), L"untouched", nullptr},
        PresentationRow{"BeyondTheLastState", static_cast<State>(5), L"untouched", nullptr}),
    [](const auto& row) { return row.param.name; });

TEST(ActivePropertyStates, AreNumberedInTheirOrder)
{
    EXPECT_EQ(static_cast<int>(State::None), 0);
    EXPECT_EQ(static_cast<int>(State::Overridden), 1);
    EXPECT_EQ(static_cast<int>(State::Inherited), 2);
    EXPECT_EQ(static_cast<int>(State::Ambiguous), 3);
    EXPECT_EQ(static_cast<int>(State::AmbiguousParent), 4);
}

/// A row's question under one of the two bound names.
class RowQuestion : public HostedTest, public testing::WithParamInterface<const wchar_t*>
{
protected:
    RowQuestion() { panel.state = State::Inherited; }

    OvxStringViewT Name() const { return GetParam(); }

    /// What a question for an inherited row is answered with.
    OvxStringT Expected() const
    {
        return Name() == L"PropertyIcon" ? L"InheritedImage" : ShownTexts::Of(ShownTexts::kInherited);
    }
};

TEST_P(RowQuestion, IsAnsweredForItsIdentifierByTheVirtualOperation)
{
    panel.SetActiveIdentifier(L"type");
    log.Clear();

    panel.Write<Any>(Name(), Question(L"gradient.start,color"));

    EXPECT_THAT(log.Lines(), ElementsAre("panel.GetActivePropertyState(gradient.start,color)"));
}

TEST_P(RowQuestion, IsAnsweredInTheCallersOwnValueWhenItIsWrittenAsAny)
{
    const Any question = Question(L"color");

    panel.Write<Any>(Name(), question);

    EXPECT_EQ(AnswerIn(question), Expected());
}

TEST_P(RowQuestion, IsAnsweredInTheCallersOwnValueWhenItIsWrittenUntyped)
{
    const Any question = Question(L"color");

    panel.WriteAny(Name(), question);

    EXPECT_EQ(AnswerIn(question), Expected());
}

TEST_P(RowQuestion, IsAnsweredInTheCallersOwnValueThroughTheDelegate)
{
    const Any question = Question(L"color");
    const DynamicDelegate* setter = panel.GetDynamicDelegate(L"put_" + Name());
    ASSERT_NE(setter, nullptr);

    setter->callback.Invoke(question);

    EXPECT_EQ(AnswerIn(question), Expected());
}

TEST_P(RowQuestion, KeepsItsIdentifier)
{
    const Any question = Question(L"color");

    panel.WriteAny(Name(), question);

    EXPECT_EQ(question.Get<ID_CString>().identifier, L"color");
}

TEST_P(RowQuestion, LeavesCopiesOfItAlone)
{
    const Any question = Question(L"color");
    const Any copy = question;

    panel.WriteAny(Name(), question);

    EXPECT_EQ(AnswerIn(copy), L"untouched");
}

TEST_P(RowQuestion, MayBeEmptyAndIsThenAskedOfNobody)
{
    panel.WriteAny(Name(), Any());

    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_P(RowQuestion, OfAnyOtherTypeIsABadCast)
{
    EXPECT_THROW(panel.Write<Any>(Name(), Any(7)), std::bad_cast);
    EXPECT_THROW(panel.WriteAny(Name(), Any(OvxStringT(L"color"))), std::bad_cast);
    EXPECT_THAT(log.Lines(), IsEmpty()) << "the state was not asked for";
}

TEST_P(RowQuestion, IsReadAsAnEmptyValue)
{
    panel.WriteAny(Name(), Question(L"color"));

    EXPECT_TRUE(panel.Read<Any>(Name()).IsEmpty());
    EXPECT_TRUE(panel.ReadAny(Name()).IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Name, RowQuestion, testing::Values(L"PropertyIcon", L"PropertyTooltip"),
                         [](const auto& row) { return Describe(OvxStringT(row.param)); });

class RowQuestions : public HostedTest
{
};

TEST_F(RowQuestions, AreAnsweredFromWhatTheTargetsHold)
{
    Styles::Style& base = styles.WithFill("base");
    Target(panel, {&styles.WithColor("box", 1, &base), &styles.WithFill("circle", &base)});
    const Any question = Question(L"color");

    panel.WriteAny(L"PropertyIcon", question);

    EXPECT_EQ(AnswerIn(question), L"AmbiguousImage");
}

} // namespace
