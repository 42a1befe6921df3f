// What is written to a row: every row of every panel, and the colour of the fill panel for what holds however
// many targets there are.

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/CategoryNames.h"
#include "host/utils/Utf8.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/panels/PanelFixture.h"
#include "tests/panels/PanelRows.h"

#include <string>

using OvxUtils::Any;
using State = ActivePropertyState;
using testing::Each;
using testing::IsEmpty;
using testing::Values;

namespace PanelTests
{

namespace
{

/// A panel over objects that inherit from "Accent".
class WritingARow : public PanelFixture, public testing::WithParamInterface<PanelRowSample>
{
protected:
    RowAnswers Write(const std::vector<Styles::Style*>& targets, const Any& value)
    {
        SetTargets(panel, targets);
        panel.WriteAny(row.property, value);
        return ReadRow(panel, row.property);
    }

    const PanelRowSample& row = GetParam();
    BaseStylePropertiesDatasource& panel = OpenPanel(row.module, row.className);
    Styles::Style* accent = document.AddNamed(L"Accent");
    std::vector<Styles::Style*> objects = document.AddObjects(2, accent);
};

INSTANTIATE_TEST_SUITE_P(OfThePanels, WritingARow, testing::ValuesIn(AllRows()),
                         [](const testing::TestParamInfo<PanelRowSample>& row)
                         { return OvxUtils::ToUtf8(row.param.property); });

TEST_P(WritingARow, MakesTheValueLocalOnAllTargets)
{
    const RowAnswers answers = Write(objects, row.value);

    EXPECT_EQ(answers, (RowAnswers{.value = row.value, .state = State::Overridden, .origin = L"local"}));
}

TEST_P(WritingARow, TakesTheLocalValueAwayWhenItIsEmpty)
{
    Set(accent, row.category, row.key, row.otherValue);
    Write(objects, row.value);

    const RowAnswers answers = Write(objects, Any());

    EXPECT_EQ(answers, (RowAnswers{.value = row.otherValue,
                                   .state = State::Inherited,
                                   .origin = L"style:Accent",
                                   .parentValue = row.otherValue}));
}

TEST_P(WritingARow, ReachesANamedStyleWithoutAParent)
{
    const RowAnswers answers = Write({accent}, row.value);

    EXPECT_EQ(answers, (RowAnswers{.value = row.value, .origin = L"local"}));
}

TEST_P(WritingARow, ReachesTheDefaultStyle)
{
    panel.SetTargetStyle({document.GetDefaults()}, true, Styles::PropertyPath(), {});

    panel.WriteAny(row.property, row.value);

    EXPECT_EQ(document.GetDefaults()->GetPathProperty({Key(row.category), Key(row.key)}), row.value);
}

TEST_P(WritingARow, DoesNothingWithoutTargets)
{
    Write({}, row.value);

    EXPECT_EQ(document.GetHistory().GetStepCount(), 0U);
}

const Styles::PropertyPath& FillColourPath()
{
    static const Styles::PropertyPath path{Styles::FillStyleCategoryName, Key(L"color")};
    return path;
}

/// The fill panel over objects of which every second inherits from "Other" and the rest from "Accent".
class WritingToTargets : public PanelFixture, public testing::WithParamInterface<std::size_t>
{
protected:
    WritingToTargets()
    {
        for (std::size_t index = 1; index < objects.size(); index += 2)
            objects[index]->SetParent(other);
        Set(accent, L"fill", L"color", blue);
        Set(other, L"fill", L"color", red);
        stepsBefore = document.GetHistory().GetStepCount();
    }

    void Write(const Any& value)
    {
        SetTargets(panel, objects);
        panel.WriteAny(L"FillColor", value);
    }

    [[nodiscard]] std::vector<Any> Shown() const
    {
        std::vector<Any> shown;
        for (const Styles::Style* object : objects)
            shown.push_back(object->GetPathProperty(FillColourPath()));
        return shown;
    }

    /// The steps that a test made, without the fixture's own.
    [[nodiscard]] std::size_t CountSteps() { return document.GetHistory().GetStepCount() - stepsBefore; }

    const Any blue = Colour(0x0000ff);
    const Any red = Colour(0xff0000);
    BaseStylePropertiesDatasource& panel = OpenPanel(L"fill", L"FillPanelDatasource");
    Styles::Style* accent = document.AddNamed(L"Accent");
    Styles::Style* other = document.AddNamed(L"Other");
    std::vector<Styles::Style*> objects = document.AddObjects(GetParam(), accent);
    std::size_t stepsBefore = 0;
};

INSTANTIATE_TEST_SUITE_P(Count, WritingToTargets, Values(1, 2, 3, 500, 501, 10'000),
                         [](const auto& count) { return std::to_string(count.param); });

TEST_P(WritingToTargets, MakesAValueLocalThatEqualsTheInheritedOne)
{
    Write(blue);

    for (const Styles::Style* object : objects)
        EXPECT_TRUE(object->DoesOverridePathProperty(FillColourPath()));
}

TEST_P(WritingToTargets, IsOneStepForAnyNumber)
{
    Write(Colour(0x123456));

    EXPECT_EQ(CountSteps(), 1U);
}

TEST_P(WritingToTargets, NotifiesNobody)
{
    SetTargets(panel, objects);
    std::vector<OvxStringT> heard;
    for (const OvxStringT& name : panel.GetNames())
        panel.AddListener(name, [&](const OvxStringT& changed) { heard.push_back(changed); });

    panel.WriteAny(L"FillColor", Colour(0x123456));

    EXPECT_THAT(heard, IsEmpty());
}

TEST_P(WritingToTargets, GivesEachItsOwnParentsValueWhenItIsReverted)
{
    const std::vector<Any> before = Shown();
    Write(Colour(0x123456));
    panel.Write<OvxStringT>(L"ActiveIdentifier", L"color");

    panel.Invoke(L"OnRevertToParent");

    EXPECT_EQ(Shown(), before);
    for (const Styles::Style* object : objects)
        EXPECT_FALSE(object->DoesOverridePathProperty(FillColourPath()));
}

TEST_P(WritingToTargets, KeepsTheLinkThatTheyShareWhenAColourLooksTheSame)
{
    Write(PaletteColour(L"Sea", 0x2a6f97));

    Write(Colour(0x2a6f97));

    EXPECT_THAT(Shown(), Each(PaletteColour(L"Sea", 0x2a6f97)));
}

TEST_P(WritingToTargets, MakesALinkLocalThatIsInheritedWhenAColourLooksTheSame)
{
    Set(accent, L"fill", L"color", PaletteColour(L"Sea", 0x2a6f97));
    Set(other, L"fill", L"color", PaletteColour(L"Sea", 0x2a6f97));

    Write(Colour(0x2a6f97));

    EXPECT_THAT(Shown(), Each(PaletteColour(L"Sea", 0x2a6f97)));
    EXPECT_TRUE(objects.back()->DoesOverridePathProperty(FillColourPath()));
}

TEST_P(WritingToTargets, EndsTheLinkWithAnotherColour)
{
    Write(PaletteColour(L"Sea", 0x2a6f97));

    Write(Colour(0x2a6f98));

    EXPECT_THAT(Shown(), Each(Colour(0x2a6f98)));
}

TEST_P(WritingToTargets, TakesAnotherLinkInPlaceOfOne)
{
    Write(PaletteColour(L"Sea", 0x2a6f97));

    Write(PaletteColour(L"Lake", 0x2a6f97));

    EXPECT_THAT(Shown(), Each(PaletteColour(L"Lake", 0x2a6f97)));
}

TEST_P(WritingToTargets, IsTakenBackByUndoAndBroughtBackByRedo)
{
    const std::vector<Any> before = Shown();
    Write(Colour(0x123456));

    document.GetHistory().Undo();
    EXPECT_EQ(Shown(), before);
    document.GetHistory().Redo();
    EXPECT_THAT(Shown(), Each(Colour(0x123456)));
}

TEST_P(WritingToTargets, LeavesNothingOfADragThatIsCancelled)
{
    const std::vector<Any> before = Shown();
    SetTargets(panel, objects);

    panel.StartGroupModify();
    for (const std::uint32_t colour : {0x111111U, 0x222222U, 0x333333U})
        panel.WriteAny(L"FillColor", Colour(colour));
    panel.EndGroupModify(false);

    EXPECT_EQ(Shown(), before);
    EXPECT_EQ(CountSteps(), 0U);
}

TEST_P(WritingToTargets, IsOneStepForADrag)
{
    SetTargets(panel, objects);

    panel.StartGroupModify();
    for (const std::uint32_t colour : {0x111111U, 0x222222U, 0x333333U})
        panel.WriteAny(L"FillColor", Colour(colour));
    panel.EndGroupModify(true);

    EXPECT_THAT(Shown(), Each(Colour(0x333333)));
    EXPECT_EQ(CountSteps(), 1U);
}

TEST_P(WritingToTargets, LeavesNoStyleBehind)
{
    SetTargets(panel, objects);
    const std::size_t before = ReferenceHost::LiveStyleCount();

    panel.WriteAny(L"FillColor", Colour(0x123456));
    panel.WriteAny(L"FillColor", Any());

    EXPECT_EQ(ReferenceHost::LiveStyleCount(), before);
}

} // namespace

} // namespace PanelTests
