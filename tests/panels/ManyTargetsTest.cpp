// What holds for a row however many targets there are. The row is the colour of the fill panel; every other
// row has the same source of answers.

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/CategoryNames.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/panels/PanelFixture.h"

#include <algorithm>
#include <set>
#include <string>

using OvxUtils::Any;
using State = ActivePropertyState;
using testing::Values;

namespace PanelTests
{

namespace
{

const Styles::PropertyPath& FillColourPath()
{
    static const Styles::PropertyPath path{Styles::FillStyleCategoryName, Key(L"color")};
    return path;
}

/// The fill panel over objects that inherit from the named style "Accent".
class FillColour : public PanelFixture, public testing::WithParamInterface<std::size_t>
{
protected:
    static void SetColour(Styles::Style* whole, const Any& value) { Set(whole, L"fill", L"color", value); }

    void SetColours(const Any& value)
    {
        for (Styles::Style* object : objects)
            SetColour(object, value);
    }

    RowAnswers ReadOver(const std::vector<Styles::Style*>& targets)
    {
        SetTargets(panel, targets);
        return ReadRow(panel, L"FillColor");
    }

    /// Reads every property that there is, as the tool does.
    void ReadEverything()
    {
        for (const OvxStringT& name : panel.GetNames())
        {
            if (panel.HasProperty(name))
                static_cast<void>(panel.ReadAny(name));
        }
    }

    BaseStylePropertiesDatasource& panel = OpenPanel(L"fill", L"FillPanelDatasource");
    Styles::Style* accent = document.AddNamed(L"Accent");
    Styles::Style* other = document.AddNamed(L"Other");
    std::vector<Styles::Style*> objects = document.AddObjects(GetParam(), accent);
    const Any blue = Colour(0x0000ff);
    const Any red = Colour(0xff0000);
};

/// For what holds for one target too.
class FillColourOfTargets : public FillColour
{
};

/// For what takes two.
class FillColourOfSeveralTargets : public FillColour
{
};

std::string CountOf(const testing::TestParamInfo<std::size_t>& info)
{
    return std::to_string(info.param);
}

INSTANTIATE_TEST_SUITE_P(Count, FillColourOfTargets, Values(1, 2, 3, 500, 501, 10'000), CountOf);
INSTANTIATE_TEST_SUITE_P(Count, FillColourOfSeveralTargets, Values(2, 3, 500, 501, 10'000), CountOf);

TEST_P(FillColourOfTargets, IsShownWhenTheyShareALocalValue)
{
    SetColours(blue);

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers, (RowAnswers{.value = blue, .state = State::Overridden, .origin = L"local"}));
}

TEST_P(FillColourOfTargets, IsShownWithTheStyleTheyInheritItFrom)
{
    SetColour(accent, blue);

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers,
              (RowAnswers{
                  .value = blue, .state = State::Inherited, .origin = L"style:Accent", .parentValue = blue}));
}

TEST_P(FillColourOfTargets, IsShownAsTheDefaultWhenNothingElseSetsIt)
{
    SetColour(document.GetDefaults(), blue);

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(
        answers,
        (RowAnswers{.value = blue, .state = State::Inherited, .origin = L"default", .parentValue = blue}));
}

TEST_P(FillColourOfTargets, StaysLocalWhenItEqualsTheInheritedOne)
{
    SetColour(accent, blue);
    SetColours(blue);

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(
        answers,
        (RowAnswers{.value = blue, .state = State::Overridden, .origin = L"local", .parentValue = blue}));
}

TEST_P(FillColourOfTargets, IsEmptyAndNotAmbiguousWhenNothingSetsIt)
{
    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers, (RowAnswers{.state = State::Inherited}));
}

TEST_P(FillColourOfTargets, NamesThePaletteEntryTheyShare)
{
    const Any brand = PaletteColour(L"Brand Blue", 0x0000ff);
    SetColours(brand);

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(
        answers,
        (RowAnswers{.value = brand, .state = State::Overridden, .origin = L"local", .link = L"Brand Blue"}));
}

TEST_P(FillColourOfTargets, KeepsItsLinkWhenEverythingIsRead)
{
    SetColours(PaletteColour(L"Brand Blue", 0x0000ff));
    SetTargets(panel, objects);

    ReadEverything();

    EXPECT_EQ(objects.back()->GetPathProperty(FillColourPath()).Get<CLR_COLORSPEC>().GetModel(), 28);
}

TEST_P(FillColourOfTargets, MakesNoOverrideAndNoStyleWhenEverythingIsRead)
{
    SetColour(accent, blue);
    SetTargets(panel, objects);
    const std::size_t stylesBefore = ReferenceHost::LiveStyleCount();

    ReadEverything();

    EXPECT_EQ(ReferenceHost::LiveStyleCount(), stylesBefore);
    for (const Styles::Style* object : objects)
        EXPECT_TRUE(Styles::GetOverriddenPropertyPaths(*object).empty());
}

TEST_P(FillColourOfTargets, IsAnnouncedOnceAndOnlyWithWhatTheTargetsDecide)
{
    std::vector<OvxStringT> heard;
    for (const OvxStringT& name : panel.GetNames())
        panel.AddListener(name, [&](const OvxStringT& changed) { heard.push_back(changed); });

    SetTargets(panel, objects);

    // Six rows of seven properties, the title, and sixteen names of every panel.
    EXPECT_THAT(heard, testing::SizeIs(6 * 7 + 17));
    EXPECT_EQ(heard.front(), OvxStringT(L"SectionTitle"));
    EXPECT_EQ(std::count(heard.begin(), heard.end(), OvxStringT(L"FillColor")), 1);
    EXPECT_EQ(std::set<OvxStringT>(heard.begin(), heard.end()).size(), heard.size());
}

TEST_P(FillColourOfTargets, IsEmptyAfterTheyWereTakenAwayAndDeleted)
{
    SetColours(blue);
    SetTargets(panel, objects);

    SetTargets(panel, {});
    document.RemoveObjects();

    EXPECT_EQ(ReadRow(panel, L"FillColor"), RowAnswers());
}

TEST_P(FillColourOfSeveralTargets, IsNotShownWhenTheLastDiffers)
{
    SetColours(blue);
    SetColour(objects.back(), red);

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers, (RowAnswers{.state = State::Overridden, .ambiguous = 1, .origin = L"local"}));
}

TEST_P(FillColourOfSeveralTargets, IsNotShownWhenTheLastHasNone)
{
    SetColours(blue);
    SetColour(objects.back(), Any());

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers, (RowAnswers{.state = State::Ambiguous, .ambiguous = 1}));
}

TEST_P(FillColourOfSeveralTargets, IsNotShownWhenTheFirstHasNone)
{
    SetColours(blue);
    SetColour(objects.front(), Any());

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers, (RowAnswers{.state = State::Ambiguous, .ambiguous = 1}));
}

TEST_P(FillColourOfSeveralTargets, IsNotShownWhenOnlyTheLastHasOne)
{
    SetColour(objects.back(), blue);

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers, (RowAnswers{.state = State::Ambiguous, .ambiguous = 1}));
}

TEST_P(FillColourOfSeveralTargets, IsShownWithoutOriginWhenTheyAgreeInTheValueAlone)
{
    SetColour(accent, blue);
    SetColour(objects.back(), blue);

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers, (RowAnswers{.value = blue, .state = State::Ambiguous, .parentValue = blue}));
}

TEST_P(FillColourOfSeveralTargets, IsShownWithoutOriginWhenTwoStylesGiveTheSameValue)
{
    SetColour(accent, blue);
    SetColour(other, blue);
    objects.back()->SetParent(other);

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers, (RowAnswers{.value = blue, .state = State::Inherited, .parentValue = blue}));
}

TEST_P(FillColourOfSeveralTargets, IsNotShownAndHasNoParentValueWhenTheirStylesDiffer)
{
    SetColour(accent, blue);
    SetColour(other, red);
    objects.back()->SetParent(other);

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers, (RowAnswers{.state = State::Inherited, .ambiguous = 1}));
}

TEST_P(FillColourOfSeveralTargets, HasNoParentValueWhenTheirStylesDifferBehindOneLocalValue)
{
    SetColour(accent, blue);
    SetColour(other, red);
    objects.back()->SetParent(other);
    SetColours(Colour(0x00ff00));

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers,
              (RowAnswers{.value = Colour(0x00ff00), .state = State::Overridden, .origin = L"local"}));
}

TEST_P(FillColourOfSeveralTargets, NamesNoPaletteEntryWhenOneHasTheSameLookWithoutALink)
{
    SetColours(PaletteColour(L"Brand Blue", 0x0000ff));
    SetColour(objects.back(), blue);

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers, (RowAnswers{.state = State::Overridden, .ambiguous = 1, .origin = L"local"}));
}

TEST_P(FillColourOfSeveralTargets, IsNotShownWhenItsWholeCategoryIsForcedAmbiguous)
{
    SetColours(blue);
    SetTargetsForcing(panel, objects, L"fill", {Styles::FillStyleCategoryName});

    const RowAnswers answers = ReadRow(panel, L"FillColor");

    EXPECT_EQ(answers, (RowAnswers{.state = State::Overridden, .ambiguous = 1, .origin = L"local"}));
}

using FillColourOfOneTarget = PanelFixture;

TEST_F(FillColourOfOneTarget, IsShownWhateverIsForced)
{
    auto& panel = OpenPanel(L"fill", L"FillPanelDatasource");
    Styles::Style* object = document.AddObject(nullptr);
    Set(object, L"fill", L"color", Colour(0x0000ff));

    SetTargetsForcing(panel, {object}, L"fill", {Styles::FillStyleCategoryName});

    EXPECT_EQ(ReadRow(panel, L"FillColor"), (RowAnswers{.value = Colour(0x0000ff), .origin = L"local"}));
}

TEST_F(FillColourOfOneTarget, PassesOverTargetsThatAreNull)
{
    auto& panel = OpenPanel(L"fill", L"FillPanelDatasource");
    Styles::Style* object = document.AddObject(document.AddNamed(L"Accent"));
    Set(object, L"fill", L"color", Colour(0x0000ff));

    SetTargets(panel, {object, nullptr});

    EXPECT_EQ(ReadRow(panel, L"FillColor"),
              (RowAnswers{.value = Colour(0x0000ff), .state = State::AmbiguousParent, .origin = L"local"}));
}

using FillColourOfNoTarget = PanelFixture;

TEST_F(FillColourOfNoTarget, IsEmpty)
{
    auto& panel = OpenPanel(L"fill", L"FillPanelDatasource");

    SetTargets(panel, {});

    EXPECT_EQ(ReadRow(panel, L"FillColor"), RowAnswers());
}

TEST_F(FillColourOfNoTarget, IsAmbiguousWhenItIsForced)
{
    auto& panel = OpenPanel(L"fill", L"FillPanelDatasource");

    SetTargetsForcing(panel, {}, L"fill", FillColourPath());

    EXPECT_EQ(ReadRow(panel, L"FillColor"), RowAnswers{.ambiguous = 1});
}

} // namespace

} // namespace PanelTests
