// One property applied to the parent, by the panels' own command.

#include "host/style_model/CategoryNames.h"
#include "tests/panels/PanelFixture.h"

#include <string>

using OvxUtils::Any;
using State = ActivePropertyState;
using testing::Each;
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

/// The fill panel over objects of which every second inherits from "Other" and the rest from "Accent".
class ApplyingAColour : public PanelFixture
{
protected:
    static const Any& ShownBy(const Styles::Style* style) { return style->GetPathProperty(FillColourPath()); }

    [[nodiscard]] std::vector<Styles::Style*> MakeObjects(std::size_t count)
    {
        std::vector<Styles::Style*> objects = document.AddObjects(count, accent);
        for (std::size_t index = 1; index < objects.size(); index += 2)
            objects[index]->SetParent(other);
        return objects;
    }

    static void SetColours(const std::vector<Styles::Style*>& objects, const Any& value)
    {
        for (Styles::Style* object : objects)
            Set(object, L"fill", L"color", value);
    }

    [[nodiscard]] bool IsEnabledOn(const std::vector<Styles::Style*>& targets)
    {
        SetTargets(panel, targets);
        return panel.Read<int>(L"FillColorApplyToParentEnable") != 0;
    }

    void ApplyOn(const std::vector<Styles::Style*>& targets)
    {
        SetTargets(panel, targets);
        panel.Invoke(L"FillColorApplyToParent");
    }

    const Any blue = Colour(0x0000ff);
    const Any red = Colour(0xff0000);
    BaseStylePropertiesDatasource& panel = OpenPanel(L"fill", L"FillPanelDatasource");
    Styles::Style* accent = document.AddNamed(L"Accent");
    Styles::Style* other = document.AddNamed(L"Other");
};

class ApplyingAColourOfTargets : public ApplyingAColour, public testing::WithParamInterface<std::size_t>
{
protected:
    std::vector<Styles::Style*> objects = MakeObjects(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Count, ApplyingAColourOfTargets, Values(1, 2, 3, 500, 501, 10'000),
                         [](const auto& count) { return std::to_string(count.param); });

TEST_P(ApplyingAColourOfTargets, KeepsTheirLookAndMakesThemInherit)
{
    SetColours(objects, blue);

    ApplyOn(objects);

    for (const Styles::Style* object : objects)
    {
        EXPECT_EQ(ShownBy(object), blue);
        EXPECT_FALSE(object->DoesOverridePathProperty(FillColourPath()));
    }
    EXPECT_EQ(ShownBy(accent), blue);
}

TEST_P(ApplyingAColourOfTargets, IsOneStepWhateverTheNumberOfParents)
{
    SetColours(objects, blue);
    const std::size_t before = document.GetHistory().GetStepCount();

    ApplyOn(objects);

    EXPECT_EQ(document.GetHistory().GetStepCount(), before + 1);
}

TEST_P(ApplyingAColourOfTargets, IsTakenBackAtOnce)
{
    SetColours(objects, blue);
    ApplyOn(objects);

    document.GetHistory().Undo();

    EXPECT_TRUE(ShownBy(accent).IsEmpty());
    for (const Styles::Style* object : objects)
        EXPECT_TRUE(object->DoesOverridePathProperty(FillColourPath()));
}

TEST_P(ApplyingAColourOfTargets, LeavesWhatOthersSetAndWhatTheTargetsSetBeside)
{
    SetColours(objects, blue);
    Set(objects.front(), L"fill", L"transparency", Number(30));
    Styles::Style* bystander = document.AddObject(accent);
    Set(bystander, L"fill", L"color", red);

    ApplyOn(objects);

    EXPECT_EQ(ShownBy(bystander), red);
    EXPECT_TRUE(objects.front()->DoesOverridePathProperty({Key(L"fill"), Key(L"transparency")}));
    EXPECT_TRUE(accent->GetPathProperty({Key(L"fill"), Key(L"transparency")}).IsEmpty());
}

TEST_P(ApplyingAColourOfTargets, IsNotEnabledWhenOneMoreDiffers)
{
    SetColours(objects, blue);
    objects.push_back(document.AddObject(accent));
    Set(objects.back(), L"fill", L"color", red);

    EXPECT_FALSE(IsEnabledOn(objects));
}

TEST_P(ApplyingAColourOfTargets, IsNotEnabledWhenOneMoreInheritsIt)
{
    Set(accent, L"fill", L"color", blue);
    SetColours(objects, blue);
    objects.push_back(document.AddObject(accent));

    EXPECT_FALSE(IsEnabledOn(objects));
}

TEST_F(ApplyingAColour, IsEnabledForALocalOneWithAParent)
{
    const auto objects = MakeObjects(1);
    SetColours(objects, blue);

    EXPECT_TRUE(IsEnabledOn(objects));
}

TEST_F(ApplyingAColour, IsNotEnabledForAnInheritedOneAndWithoutTargets)
{
    Set(accent, L"fill", L"color", blue);

    EXPECT_FALSE(IsEnabledOn(MakeObjects(1)));
    EXPECT_FALSE(IsEnabledOn({}));
}

TEST_F(ApplyingAColour, IsNotEnabledWithoutAParent)
{
    Styles::Style* object = document.AddObject(nullptr);
    Set(object, L"fill", L"color", blue);

    EXPECT_FALSE(IsEnabledOn({object}));
    EXPECT_FALSE(IsEnabledOn({document.GetDefaults()}));
}

TEST_F(ApplyingAColour, DoesNothingWhereItIsNotEnabled)
{
    const auto objects = MakeObjects(2);
    Set(objects.front(), L"fill", L"color", blue);

    ApplyOn(objects);

    EXPECT_EQ(ShownBy(objects.front()), blue);
    EXPECT_TRUE(ShownBy(accent).IsEmpty());
}

TEST_F(ApplyingAColour, MovesALinkToThePalette)
{
    const auto objects = MakeObjects(1);
    SetColours(objects, PaletteColour(L"Sea", 0x2a6f97));

    ApplyOn(objects);

    EXPECT_EQ(ShownBy(accent), PaletteColour(L"Sea", 0x2a6f97));
}

TEST_F(ApplyingAColour, PrefersTheParentOfTheCategoryToThatOfTheWholeStyle)
{
    const auto objects = MakeObjects(1);
    Styles::Style* ink = document.AddNamed(L"Ink");
    objects.front()
        ->GetSubstyle(Styles::FillStyleCategoryName, false)
        ->SetParent(ink->GetSubstyle(Styles::FillStyleCategoryName, false));
    SetColours(objects, blue);

    ApplyOn(objects);

    EXPECT_EQ(ShownBy(ink), blue);
    EXPECT_TRUE(ShownBy(accent).IsEmpty());
    EXPECT_EQ(ShownBy(objects.front()), blue);
}

TEST_F(ApplyingAColour, ReachesTheParentOfANamedStyle)
{
    Styles::Style* child = document.AddNamed(L"Child", accent);
    Set(child, L"fill", L"color", blue);

    ApplyOn({child});

    EXPECT_EQ(ShownBy(accent), blue);
    EXPECT_EQ(panel.Read<int>(L"FillColorState"), static_cast<int>(State::Inherited));
}

using ApplyingTheNameOfTheParent = PanelFixture;

TEST_F(ApplyingTheNameOfTheParent, IsNeverEnabled)
{
    auto& panel = OpenPanel(L"style", L"StylePanelDatasource");
    Styles::Style* object = document.AddObject(document.AddNamed(L"Accent", document.AddNamed(L"Base")));
    Set(object, L"fill", L"color", Colour(0x0000ff));

    SetTargets(panel, {object});

    EXPECT_EQ(panel.Read<int>(L"StyleParentState"), static_cast<int>(State::Overridden));
    EXPECT_EQ(panel.Read<int>(L"StyleParentApplyToParentEnable"), 0);
}

} // namespace

} // namespace PanelTests
