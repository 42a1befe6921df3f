// Every row of every panel that shows properties, read by bound names over real styles.

#include "host/data_binding/ID_CString.h"
#include "host/utils/Utf8.h"
#include "tests/panels/PanelFixture.h"
#include "tests/panels/PanelRows.h"

using OvxUtils::Any;
using State = ActivePropertyState;

namespace PanelTests
{

namespace
{

/// A panel, and a named style "Accent" whose parent is the named style "Base". Objects inherit from "Accent".
class EveryRow : public PanelFixture, public testing::WithParamInterface<PanelRowSample>
{
protected:
    void SetHere(Styles::Style* whole, const Any& value) { Set(whole, row.category, row.key, value); }

    RowAnswers ReadOver(const std::vector<Styles::Style*>& targets)
    {
        SetTargets(panel, targets);
        return ReadRow(panel, row.property);
    }

    const PanelRowSample& row = GetParam();
    BaseStylePropertiesDatasource& panel = OpenPanel(row.module, row.className);
    Styles::Style* base = document.AddNamed(L"Base");
    Styles::Style* accent = document.AddNamed(L"Accent", base);
    Styles::Style* object = document.AddObject(accent);
    Styles::Style* otherObject = document.AddObject(accent);
};

TEST_P(EveryRow, ShowsALocalValue)
{
    SetHere(object, row.value);

    const RowAnswers answers = ReadOver({object});

    EXPECT_EQ(answers, (RowAnswers{.value = row.value, .state = State::Overridden, .origin = L"local"}));
}

TEST_P(EveryRow, ShowsAnInheritedValueAndTheStyleThatSetsIt)
{
    SetHere(base, row.value);

    const RowAnswers answers = ReadOver({object});

    EXPECT_EQ(answers, (RowAnswers{.value = row.value,
                                   .state = State::Inherited,
                                   .origin = L"style:Base",
                                   .parentValue = row.value}));
}

TEST_P(EveryRow, ShowsTheDefaultWhereNoStyleSetsAValue)
{
    SetHere(document.GetDefaults(), row.value);

    const RowAnswers answers = ReadOver({object});

    EXPECT_EQ(
        answers,
        (RowAnswers{
            .value = row.value, .state = State::Inherited, .origin = L"default", .parentValue = row.value}));
}

TEST_P(EveryRow, ShowsNothingWhereNothingIsSet)
{
    const RowAnswers answers = ReadOver({object});

    EXPECT_EQ(answers, (RowAnswers{.state = State::Inherited}));
}

TEST_P(EveryRow, ShowsTheParentsValueBehindALocalOne)
{
    SetHere(accent, row.otherValue);
    SetHere(object, row.value);

    const RowAnswers answers = ReadOver({object});

    EXPECT_EQ(answers, (RowAnswers{.value = row.value,
                                   .state = State::Overridden,
                                   .origin = L"local",
                                   .parentValue = row.otherValue}));
}

TEST_P(EveryRow, ShowsNoValueForTargetsThatDiffer)
{
    SetHere(object, row.value);
    SetHere(otherObject, row.otherValue);

    const RowAnswers answers = ReadOver({object, otherObject});

    EXPECT_EQ(answers, (RowAnswers{.state = State::Overridden, .ambiguous = 1, .origin = L"local"}));
}

TEST_P(EveryRow, ShowsNoValueWhenASecondTargetHasNone)
{
    SetHere(object, row.value);

    const RowAnswers answers = ReadOver({object, otherObject});

    EXPECT_EQ(answers, (RowAnswers{.state = State::Ambiguous, .ambiguous = 1}));
}

TEST_P(EveryRow, ShowsNoValueWhenTheFirstTargetHasNone)
{
    SetHere(otherObject, row.value);

    const RowAnswers answers = ReadOver({object, otherObject});

    EXPECT_EQ(answers, (RowAnswers{.state = State::Ambiguous, .ambiguous = 1}));
}

TEST_P(EveryRow, ShowsNoValueWhenItIsForcedAmbiguous)
{
    SetHere(object, row.value);
    SetHere(otherObject, row.value);
    SetTargetsForcing(panel, {object, otherObject}, row.category, {Key(row.category), Key(row.key)});

    const RowAnswers answers = ReadRow(panel, row.property);

    EXPECT_EQ(answers, (RowAnswers{.state = State::Overridden, .ambiguous = 1, .origin = L"local"}));
}

TEST_P(EveryRow, ShowsAValueWhenAnotherRowIsForcedAmbiguous)
{
    SetHere(object, row.value);
    SetHere(otherObject, row.value);
    SetTargetsForcing(panel, {object, otherObject}, row.category, {Key(row.category), Key(L"another")});

    const RowAnswers answers = ReadRow(panel, row.property);

    EXPECT_EQ(answers, (RowAnswers{.value = row.value, .state = State::Overridden, .origin = L"local"}));
}

TEST_P(EveryRow, ShowsItsStateAsAnIcon)
{
    SetHere(object, row.value);
    SetTargets(panel, {object});
    const Any request(ID_CString{row.key, L""});

    panel.WriteAny(L"PropertyIcon", request);

    EXPECT_EQ(request.Get<ID_CString>().result, OvxStringT(L"OverriddenImage"));
}

TEST_P(EveryRow, CanBeReadAndWritten)
{
    EXPECT_TRUE(panel.HasProperty(row.property));
    EXPECT_TRUE(panel.IsWritableProperty(row.property));
}

INSTANTIATE_TEST_SUITE_P(OfThePanels, EveryRow, testing::ValuesIn(AllRows()),
                         [](const testing::TestParamInfo<PanelRowSample>& row)
                         { return OvxUtils::ToUtf8(row.param.property); });

} // namespace

} // namespace PanelTests
