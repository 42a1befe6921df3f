// Whether the first target is a named style, an excluded one, or an object's own.

#include "tests/datasource/support/HostedTest.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;

/// What the first target is in the sheet.
class StyleNameOfTargets : public HostedTest
{
protected:
    StyleNameOfTargets()
    {
        NameInSheet(L"Box", box);
        NameInSheet(L"Base", base);
    }

    Style& base = styles.WithFill("base");
    Style& box = styles.WithFill("box", &base);
    Style& line = styles.WithFill("line");

    /// The bound predicates on the style name.
    struct Predicates
    {
        int isObjectStyle;
        int isStyleOrDefault;
        int isStyle;

        friend bool operator==(const Predicates&, const Predicates&) = default;

        friend std::ostream& operator<<(std::ostream& out, const Predicates& shown)
        {
            return out << shown.isObjectStyle << shown.isStyleOrDefault << shown.isStyle;
        }
    };

    Predicates Read() const
    {
        return {panel.Read<int>(L"IsObjectStyle"), panel.Read<int>(L"IsStyleOrDefault"),
                panel.Read<int>(L"IsStyle")};
    }
};

TEST_F(StyleNameOfTargets, MakesThemANamedStyle)
{
    Target(panel, {&box, &line});

    EXPECT_EQ(Read(), (Predicates{0, 1, 1}));
    EXPECT_FALSE(panel.IsObjectStyle());
    EXPECT_THAT(log.LinesOf({"stylesApp.IsExcluded"}), ElementsAre("stylesApp.IsExcludedStyleName(Box)"));
}

TEST_F(StyleNameOfTargets, IsThatOfTheFirstAlone)
{
    Target(panel, {&line, &box});

    EXPECT_EQ(Read(), (Predicates{1, 0, 0}));
    EXPECT_TRUE(panel.IsObjectStyle());
}

TEST_F(StyleNameOfTargets, IsAskedForTheTargetItselfAndNotForWhatIsShownOfIt)
{
    Target(panel, {&box});

    EXPECT_EQ(log.LinesOf({"sheet."}).back(), "sheet.GetStyleName(box)");
}

TEST_F(StyleNameOfTargets, MayBeExcludedFromStyles)
{
    stylesApp.excludedNames = {L"Box"};

    Target(panel, {&box});

    EXPECT_EQ(Read(), (Predicates{0, 1, 0}));
}

TEST_F(StyleNameOfTargets, IsNotAskedAboutWhenThereIsNone)
{
    Target(panel, {&line});

    EXPECT_EQ(Read(), (Predicates{1, 0, 0}));
    EXPECT_THAT(log.LinesOf({"stylesApp.IsExcluded"}), IsEmpty());
}

TEST_F(StyleNameOfTargets, IsExcludedByNobodyWhenTheApplicationHasNoServicesForStyles)
{
    app.stylesApp = nullptr;

    Target(panel, {&box});

    EXPECT_EQ(Read(), (Predicates{0, 1, 1}));
}

TEST_F(StyleNameOfTargets, IsMissingWithoutASource)
{
    app.source = nullptr;

    Target(panel, {&box});

    EXPECT_EQ(Read(), (Predicates{1, 0, 0}));
}

TEST_F(StyleNameOfTargets, IsMissingWithoutASheet)
{
    source.sheet = nullptr;

    Target(panel, {&box});

    EXPECT_EQ(Read(), (Predicates{1, 0, 0}));
}

TEST_F(StyleNameOfTargets, IsMissingForANullFirst)
{
    Target(panel, {&box});

    Target(panel, {nullptr, &box});

    EXPECT_EQ(Read(), (Predicates{1, 0, 0}));
}

TEST_F(StyleNameOfTargets, StaysUntilTheNextTargets)
{
    Target(panel, {&box});

    sheet.entries.clear();

    EXPECT_EQ(Read(), (Predicates{0, 1, 1}));
}

} // namespace
