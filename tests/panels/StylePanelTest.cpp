// The style panel: the style that targets inherit from, and their style as a whole.

#include "host/style_model/CategoryNames.h"
#include "reference_host/style_model/CategoryRegistry.h"
#include "tests/panels/PanelFixture.h"

#include <string>

using OvxUtils::Any;
using State = ActivePropertyState;
using testing::UnorderedElementsAre;

namespace PanelTests
{

namespace
{

class StylePanel : public PanelFixture
{
protected:
    RowAnswers ReadOver(const std::vector<Styles::Style*>& targets)
    {
        SetTargets(panel, targets);
        return ReadRow(panel, L"StyleParent");
    }

    BaseStylePropertiesDatasource& panel = OpenPanel(L"style", L"StylePanelDatasource");
    Styles::Style* base = document.AddNamed(L"Base");
    Styles::Style* midOne = document.AddNamed(L"Mid One", base);
};

TEST_F(StylePanel, ShowsTheNameOfTheParentInTheSheet)
{
    const RowAnswers answers = ReadOver({document.AddObject(midOne)});

    EXPECT_EQ(answers,
              (RowAnswers{.value = Text(L"Mid One"), .state = State::Inherited, .origin = L"local"}));
}

TEST_F(StylePanel, ShowsTheParentOfANamedStyle)
{
    const RowAnswers answers = ReadOver({midOne});

    EXPECT_EQ(answers, (RowAnswers{.value = Text(L"Base"), .state = State::Inherited, .origin = L"local"}));
}

TEST_F(StylePanel, ShowsNothingWithoutAParent)
{
    const RowAnswers answers = ReadOver({document.AddObject(nullptr)});

    EXPECT_EQ(answers, RowAnswers());
}

TEST_F(StylePanel, ShowsNothingForTheDefaultStyle)
{
    const RowAnswers answers = ReadOver({document.GetDefaults()});

    EXPECT_EQ(answers, RowAnswers());
}

TEST_F(StylePanel, ShowsNothingForAParentWithoutAName)
{
    const RowAnswers answers = ReadOver({document.AddObject(document.AddObject(nullptr))});

    EXPECT_EQ(answers, RowAnswers{.state = State::Inherited});
}

TEST_F(StylePanel, ShowsThatATargetSetsAnything)
{
    Styles::Style* object = document.AddObject(midOne);
    Set(object, L"outline", L"width", Number(50));

    const RowAnswers answers = ReadOver({object});

    EXPECT_EQ(answers,
              (RowAnswers{.value = Text(L"Mid One"), .state = State::Overridden, .origin = L"local"}));
}

TEST_F(StylePanel, ShowsNoParentWhenASecondTargetHasNone)
{
    const RowAnswers answers = ReadOver({document.AddObject(midOne), document.AddObject(nullptr)});

    EXPECT_EQ(answers, (RowAnswers{.state = State::AmbiguousParent, .ambiguous = 1}));
}

TEST_F(StylePanel, ShowsNoParentWhenTheFirstTargetHasNone)
{
    const RowAnswers answers = ReadOver({document.AddObject(nullptr), document.AddObject(midOne)});

    EXPECT_EQ(answers, (RowAnswers{.ambiguous = 1}));
}

TEST_F(StylePanel, ShowsNoParentWhenTheWholeStyleIsForcedAmbiguous)
{
    SetTargetsForcing(panel, document.AddObjects(2, midOne), L"style", {Styles::StyleCategoryName});

    const RowAnswers answers = ReadRow(panel, L"StyleParent");

    EXPECT_EQ(answers, (RowAnswers{.state = State::Inherited, .ambiguous = 1, .origin = L"local"}));
}

class StylePanelOverTargets : public StylePanel, public testing::WithParamInterface<std::size_t>
{
};

INSTANTIATE_TEST_SUITE_P(Count, StylePanelOverTargets, testing::Values(1, 2, 3, 500, 501, 10'000),
                         [](const auto& count) { return std::to_string(count.param); });

TEST_P(StylePanelOverTargets, ShowsTheParentThatTheyShare)
{
    const RowAnswers answers = ReadOver(document.AddObjects(GetParam(), midOne));

    EXPECT_EQ(answers,
              (RowAnswers{.value = Text(L"Mid One"), .state = State::Inherited, .origin = L"local"}));
}

TEST_P(StylePanelOverTargets, ShowsNoParentWhenOneMoreHasAnother)
{
    std::vector<Styles::Style*> objects = document.AddObjects(GetParam(), midOne);
    objects.push_back(document.AddObject(base));

    const RowAnswers answers = ReadOver(objects);

    EXPECT_EQ(answers, (RowAnswers{.state = State::Inherited, .ambiguous = 1, .origin = L"local"}));
}

/// Reaches an operation that derived classes and the library call.
struct CategoryProperties : BaseStylePropertiesDatasource
{
    static Styles::PropertyPaths Of(const BaseStylePropertiesDatasource& panel, Styles::Style* style)
    {
        return (panel.*&CategoryProperties::GetStyleCategoryProperties)(style);
    }
};

TEST_F(StylePanel, HasThePropertiesOfTheFourSubstylesAsItsOwn)
{
    auto& registry = ReferenceHost::CategoryRegistry::GetInstance();
    registry.RegisterProperties(Styles::FillStyleCategoryName, {Key(L"type"), Key(L"color")});
    registry.RegisterProperties(Styles::OutlineStyleCategoryName, {Key(L"width")});
    registry.RegisterProperties(Styles::GetParagraphStyleCategoryName(), {Key(L"align")});
    registry.RegisterProperties(Styles::GetCharacterStyleCategoryName(), {Key(L"font")});

    const Styles::PropertyPaths paths = CategoryProperties::Of(panel, document.AddObject(midOne));

    EXPECT_THAT(paths, UnorderedElementsAre(Styles::PropertyPath{Key(L"fill"), Key(L"type")},
                                            Styles::PropertyPath{Key(L"fill"), Key(L"color")},
                                            Styles::PropertyPath{Key(L"outline"), Key(L"width")},
                                            Styles::PropertyPath{Key(L"paragraph"), Key(L"align")},
                                            Styles::PropertyPath{Key(L"character"), Key(L"font")}));
}

TEST_F(StylePanel, HasNoPropertiesOfSubstylesThatAStyleLacks)
{
    ReferenceHost::CategoryRegistry::GetInstance().RegisterProperties(Styles::FillStyleCategoryName,
                                                                      {Key(L"color")});
    Styles::Style style(nullptr, Styles::StyleCategoryName);

    const Styles::PropertyPaths paths = CategoryProperties::Of(panel, &style);

    EXPECT_TRUE(paths.empty());
}

} // namespace

} // namespace PanelTests
