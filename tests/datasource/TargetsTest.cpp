// What is kept of the targets that are handed in, and the predicates on them.

#include "host/style_model/CategoryNames.h"
#include "tests/datasource/support/HostedTest.h"
#include "tests/host_pieces/HostPieces.h"

#include <algorithm>

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

class Targets : public HostedTest
{
protected:
    Style& base = styles.WithFill("base");
    Style& box = styles.WithFill("box", &base);
    Style& line = styles.WithFill("line");
};

TEST_F(Targets, AreKeptInTheirOrderNullOnesIncluded)
{
    Target(panel, {&line, nullptr, &box, &line});

    EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&line, nullptr, &box, &line));
    EXPECT_EQ(panel.GetNumTargetStyles(), 4U);
    EXPECT_TRUE(panel.HasTargets());
}

TEST_F(Targets, CountAsThereEvenWhenAllAreNull)
{
    Target(panel, {nullptr});

    EXPECT_TRUE(panel.HasTargets());
    EXPECT_EQ(panel.GetNumTargetStyles(), 1U);
}

TEST_F(Targets, AreReplacedByTheNextOnes)
{
    Target(panel, {&box, &line}, /*isDefault=*/true);

    Target(panel, {&line});

    EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&line));
    EXPECT_FALSE(panel.AreTargetsDefaultStyles());
}

TEST_F(Targets, AreDefaultStylesWhenTheyWereHandedInAsSuch)
{
    Target(panel, {&box}, /*isDefault=*/true);

    EXPECT_TRUE(panel.AreTargetsDefaultStyles());
    EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&box)) << "without siblings default styles are shown";
}

TEST_F(Targets, MayBeNone)
{
    Target(panel, {&box});
    panel.ListenTo({L"SectionTitle"});
    log.Clear();

    Target(panel, {});

    EXPECT_EQ(panel.GetNumTargetStyles(), 0U);
    EXPECT_FALSE(panel.HasTargets());
    EXPECT_EQ(panel.GetTargetStyle(0), nullptr);
    EXPECT_THAT(panel.GetTargetStyles(), IsEmpty());
    EXPECT_THAT(log.LinesOf({"notify"}), ElementsAre("notify SectionTitle"));
}

TEST_F(Targets, LeaveNoStyleNameWhenThereAreNone)
{
    NameInSheet(L"Box", box);
    Target(panel, {&box});

    Target(panel, {});

    EXPECT_TRUE(panel.IsObjectStyle());
    EXPECT_EQ(panel.IsStyle(), 0);
}

TEST_F(Targets, WithTheKeyOfACategoryComeThroughTheVirtualForm)
{
    panel.SetTargetStyle({&box}, /*isDefault=*/true, FillStyleCategoryName, {Path({L"fill", L"color"})});

    EXPECT_THAT(
        log.LinesOf({"panel.SetTargetStyle"}),
        ElementsAre("panel.SetTargetStyle([box], isDefault=true, path=fill, forceAmbiguous={fill.color})"));
    EXPECT_THAT(panel.GetAmbiguousForce(), ElementsAre(Path({L"color"})));
}

/// A panel that overrides nothing.
class BareDatasource final : public BaseStylePropertiesDatasource
{
public:
    using BaseStylePropertiesDatasource::GetCategory;
    using BaseStylePropertiesDatasource::GetStyleCategoryProperties;
};

TEST_F(Targets, HaveNoCategoryUnlessAPanelGivesOne)
{
    const BareDatasource bare;

    EXPECT_EQ(bare.GetCategory(), PropertyKey::Empty);
    EXPECT_EQ(bare.PresetCategoryName(), L"");
}

TEST_F(Targets, HaveThePropertiesThatTheHostGivesTheirCategory)
{
    HostPieces::RegisterProperties(Key(L"TargetsTest"), {Key(L"width"), Key(L"color")});
    BareDatasource bare;

    const PropertyPaths paths =
        bare.GetStyleCategoryProperties(&styles.OfCategory("frame", Key(L"TargetsTest")));

    EXPECT_THAT(paths, UnorderedElementsAre(Path({L"color"}), Path({L"width"})));
    EXPECT_TRUE(std::is_sorted(paths.begin(), paths.end())) << "in the order of keys";
}

} // namespace
