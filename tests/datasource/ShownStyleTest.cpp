// Which style is shown for a target: the category's, or the one that the style applicator leads to.

#include "host/style_model/CategoryNames.h"
#include "tests/datasource/support/HostedTest.h"
#include "tests/datasource/support/RecordingApplicator.h"
#include "tests/datasource/support/RecordingContext.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;

/// The style that is shown for a target.
class ShownStyle : public HostedTest
{
protected:
    ShownStyle()
    {
        hostObject.applicator = &applicator;
        hostObject.applicatorNumber = 4;
        context.hostObject = &hostObject;
        applied.SetDataSourceProvider(&context);
        applied.Complete();
        Target(applied, {&box});
        log.Clear();
    }

    Style& box = styles.WithFill("box");
    Style& line = styles.WithFill("line");
    RecordingHostObject hostObject{log};
    RecordingContext context{log};
    RecordingApplicator applicator{log};
    RecordingPanel applied{log, "applied"}; ///< A panel with an applicator.
};

TEST_F(ShownStyle, IsTheCategorysSubstyle)
{
    Target(panel, {&line, &box});

    EXPECT_EQ(panel.GetTargetStyle(1), &FillOf(box));
}

TEST_F(ShownStyle, IsTheTargetItselfWhenThatIsOfTheCategory)
{
    Target(panel, {&FillOf(box)});

    EXPECT_EQ(panel.GetTargetStyle(0), &FillOf(box));
}

TEST_F(ShownStyle, IsMadeWhenItIsMissing)
{
    Style& bare = styles.Whole("bare");
    Target(panel, {&line, &bare});

    Style* shown = panel.GetTargetStyle(1);

    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown, bare.GetSubstyle(FillStyleCategoryName, false));
    EXPECT_EQ(shown->GetCategoryName(), FillStyleCategoryName);
}

TEST_F(ShownStyle, IsNullBeyondTheLastTarget)
{
    Target(panel, {&box});

    EXPECT_EQ(panel.GetTargetStyle(1), nullptr);
    EXPECT_EQ(panel.GetTargetStyle(static_cast<std::size_t>(-1)), nullptr);
}

TEST_F(ShownStyle, IsNullForANullTarget)
{
    Target(panel, {nullptr});

    EXPECT_EQ(panel.GetTargetStyle(0), nullptr);
}

TEST_F(ShownStyle, LiesAtTheEndOfTheApplicatorsPath)
{
    applicator.targetPath = Path({L"frame", L"shadow"});

    Style* shown = applied.GetTargetStyle(0);

    EXPECT_EQ(log.NameOfStyle(shown), "box.frame.shadow");
    EXPECT_EQ(shown, box.GetSubstyle(Key(L"frame"), true)->GetSubstyle(Key(L"shadow"), true));
    EXPECT_THAT(log.LinesOf({"applicator"}), ElementsAre("applicator.GetTargetPath(4)"));
}

TEST_F(ShownStyle, PassesOverKeysOfThePathThatNameWhereItIsAlready)
{
    applicator.targetPath = {StyleCategoryName, FillStyleCategoryName};

    EXPECT_EQ(applied.GetTargetStyle(0), &FillOf(box));
}

TEST_F(ShownStyle, IsTheCategorysSubstyleWhenTheApplicatorsPathIsEmpty)
{
    EXPECT_EQ(applied.GetTargetStyle(0), &FillOf(box));
    EXPECT_THAT(log.LinesOf({"applicator"}), ElementsAre("applicator.GetTargetPath(4)"));
}

TEST_F(ShownStyle, IsNotAskedOfTheApplicatorWithoutSuchATarget)
{
    EXPECT_EQ(applied.GetTargetStyle(1), nullptr);

    EXPECT_THAT(log.LinesOf({"applicator"}), IsEmpty());
}

TEST_F(ShownStyle, IsNullForANullTargetOnTheApplicatorsPathToo)
{
    applicator.targetPath = Path({L"frame", L"shadow"});
    Target(applied, {nullptr});

    EXPECT_EQ(applied.GetTargetStyle(0), nullptr);
}

} // namespace
