// The row of the style panel as it is written: targets get another parent, or none.

#include "host/style_model/CategoryNames.h"
#include "tests/panels/PanelFixture.h"

#include <string>
#include <typeinfo>

using OvxUtils::Any;
using testing::Values;

namespace PanelTests
{

namespace
{

class WritingTheParent : public PanelFixture
{
protected:
    void Write(const std::vector<Styles::Style*>& targets, const Any& value)
    {
        SetTargets(panel, targets);
        panel.WriteAny(L"StyleParent", value);
    }

    static const Any& ColourOf(const Styles::Style* style)
    {
        return style->GetPathProperty({Key(L"fill"), Key(L"color")});
    }

    const Any blue = Colour(0x0000ff);
    const Any red = Colour(0xff0000);
    BaseStylePropertiesDatasource& panel = OpenPanel(L"style", L"StylePanelDatasource");
    Styles::Style* base = document.AddNamed(L"Base");
    Styles::Style* accent = document.AddNamed(L"Accent", base);
};

class WritingTheParentOfTargets : public WritingTheParent, public testing::WithParamInterface<std::size_t>
{
protected:
    std::vector<Styles::Style*> objects = document.AddObjects(GetParam(), accent);
};

INSTANTIATE_TEST_SUITE_P(Count, WritingTheParentOfTargets, Values(1, 2, 3, 500, 501, 10'000),
                         [](const auto& count) { return std::to_string(count.param); });

TEST_P(WritingTheParentOfTargets, GivesAllOfThemTheStyleOfThatNameInOneStep)
{
    Write(objects, Text(L"Base"));

    for (const Styles::Style* object : objects)
        EXPECT_EQ(object->GetParent(), base);
    EXPECT_EQ(document.GetHistory().GetStepCount(), 1U);
}

TEST_P(WritingTheParentOfTargets, KeepsWhatTheyShowWhenItIsEmpty)
{
    Set(accent, L"fill", L"color", blue);

    Write(objects, Any());

    for (const Styles::Style* object : objects)
    {
        EXPECT_EQ(object->GetParent(), nullptr);
        EXPECT_EQ(ColourOf(object), blue);
        EXPECT_TRUE(object->DoesOverridePathProperty({Key(L"fill"), Key(L"color")}));
    }
}

TEST_F(WritingTheParent, TakesAnEmptyNameForNone)
{
    Styles::Style* object = document.AddObject(accent);

    Write({object}, Text(L""));

    EXPECT_EQ(object->GetParent(), nullptr);
}

TEST_F(WritingTheParent, LeavesTargetsWithoutOneAsTheyAreWhenItIsEmpty)
{
    Set(document.GetDefaults(), L"fill", L"color", blue);
    Styles::Style* object = document.AddObject(nullptr);

    Write({object}, Any());

    EXPECT_TRUE(Styles::GetOverriddenPropertyPaths(*object).empty());
}

TEST_F(WritingTheParent, LeavesTheTargetsAloneForANameThatThereIsNot)
{
    Styles::Style* object = document.AddObject(accent);

    Write({object}, Text(L"Accents"));

    EXPECT_EQ(object->GetParent(), accent);
    EXPECT_EQ(document.GetHistory().GetStepCount(), 0U);
}

TEST_F(WritingTheParent, MakesNoCycle)
{
    Write({base}, Text(L"Accent"));

    EXPECT_EQ(base->GetParent(), nullptr);
    EXPECT_EQ(panel.Read<Any>(L"StyleParent"), Any());
    EXPECT_EQ(document.GetHistory().GetStepCount(), 0U);
}

TEST_F(WritingTheParent, LeavesTheDefaultStyleAlone)
{
    panel.SetTargetStyle({document.GetDefaults()}, true, Styles::PropertyPath(), {});

    panel.WriteAny(L"StyleParent", Text(L"Base"));

    EXPECT_EQ(document.GetDefaults()->GetParent(), nullptr);
}

TEST_F(WritingTheParent, TakesNothingButTexts)
{
    SetTargets(panel, {document.AddObject(accent)});

    EXPECT_THROW(panel.WriteAny(L"StyleParent", Number(1)), std::bad_cast);
}

TEST_F(WritingTheParent, LeavesEverythingAloneWithoutADocument)
{
    Styles::Style* object = document.AddObject(accent);
    SetTargets(panel, {object});
    application.CloseDocument();

    panel.WriteAny(L"StyleParent", Text(L"Base"));

    EXPECT_EQ(object->GetParent(), accent);
}

} // namespace

} // namespace PanelTests
