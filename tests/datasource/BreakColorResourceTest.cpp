// Breaking the link of a colour to its palette entry: the colour keeps its look and stands for itself.

#include "host/colour/CLR_COLORSPEC.h"
#include "tests/datasource/support/WritingTest.h"

#include <typeinfo>

namespace
{

using namespace Styles;
using OvxUtils::Any;
using testing::ElementsAre;
using testing::IsEmpty;

class BreakColorResource : public WritingTest
{
protected:
    BreakColorResource()
    {
        FillOf(box).SetProperty(Key(L"color"), Linked());
        TargetAs({&box}, L"color");
    }

    static Any Linked() { return Any(CLR_COLORSPEC::FromResource(L"Brand", {0x33, 0x66, 0xcc})); }

    static Any Plain() { return Any(CLR_COLORSPEC::FromRgb({0xff, 0, 0})); }

    void TargetAs(const std::vector<Style*>& targets, const wchar_t* identifier)
    {
        Target(panel, targets);
        panel.SetActiveIdentifier(identifier);
        log.Clear();
    }

    int IsEnabled() { return panel.Read<int>(L"BreakColorResourceEnable"); }

    /// What the router is handed by the command.
    std::vector<std::string> Break()
    {
        panel.Invoke(L"OnBreakColorResource");
        return log.LinesOf({"panel.ModifyStyles"});
    }

    Style& base = styles.WithFill("base");
    Style& box = styles.WithFill("box", &base);
};

TEST_F(BreakColorResource, WritesTheColorWithoutItsLinkAndWithItsLook)
{
    EXPECT_EQ(IsEnabled(), 1);

    EXPECT_THAT(Break(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=#3366cc}, "
                                     "overridePaths=null)"));
}

TEST_F(BreakColorResource, LeavesTheStyleItselfToTheModifier)
{
    Break();

    EXPECT_EQ(Describe(&FillOf(box)), "fill{color=#3366cc@Brand}");
    EXPECT_EQ(modifier.changes.size(), 1U);
}

TEST_F(BreakColorResource, CountsAColorThatIsInherited)
{
    FillOf(base).SetProperty(Key(L"color"), Linked());
    TargetAs({&styles.WithFill("circle", &base)}, L"color");

    EXPECT_EQ(IsEnabled(), 1);
    EXPECT_THAT(Break(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=#3366cc}, "
                                     "overridePaths=null)"));
}

TEST_F(BreakColorResource, IsNotEnabledForAPlainColorButWritesItAllTheSame)
{
    FillOf(box).SetProperty(Key(L"color"), Plain());

    EXPECT_EQ(IsEnabled(), 0);
    EXPECT_THAT(Break(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=#ff0000}, "
                                     "overridePaths=null)"));
}

TEST_F(BreakColorResource, IsEnabledByOneLinkedColorAmongMany)
{
    FillOf(box).SetProperty(Key(L"back"), Plain());
    TargetAs({&box}, L"back,color");

    EXPECT_EQ(IsEnabled(), 1);
    EXPECT_THAT(Break(), ElementsAre("panel.ModifyStyles(paths=[back, color], "
                                     "fill{back=#ff0000, color=#3366cc}, overridePaths=null)"));
}

TEST_F(BreakColorResource, ReachesIntoSubstylesAndDropsWildcards)
{
    FillOf(box).SetPathProperty(Path({L"gradient", L"start"}), Linked());
    TargetAs({&box}, L"gradient.start.*");

    EXPECT_EQ(IsEnabled(), 1);
    EXPECT_THAT(Break(), ElementsAre("panel.ModifyStyles(paths=[gradient.start], "
                                     "fill{gradient.start=#3366cc}, overridePaths=null)"));
}

TEST_F(BreakColorResource, MakesAChangeOfTheDerivedCategory)
{
    panel.category = OutlineStyleCategoryName;
    box.GetSubstyleAndCreateIfMissing(panel.category, panel.category)->SetProperty(Key(L"color"), Linked());
    TargetAs({&box}, L"color");

    EXPECT_THAT(Break(), ElementsAre("panel.ModifyStyles(paths=[color], outline{color=#3366cc}, "
                                     "overridePaths=null)"));
}

TEST_F(BreakColorResource, DoesNotAskForTheState)
{
    IsEnabled();
    Break();

    EXPECT_THAT(log.LinesOf({"panel.GetActivePropertyState"}), IsEmpty());
}

TEST_F(BreakColorResource, GoesByTheTargetItselfWhateverIsShownForIt)
{
    panel.givesTargetStyle = [](std::size_t) { return nullptr; };

    EXPECT_EQ(IsEnabled(), 1);
    EXPECT_THAT(Break(), ElementsAre("panel.ModifyStyles(paths=[color], fill{color=#3366cc}, "
                                     "overridePaths=null)"));
}

// How many targets

TEST_F(BreakColorResource, IsDisabledAndDoesNothingWithTwoTargets)
{
    TargetAs({&box, &box}, L"color");

    EXPECT_EQ(IsEnabled(), 0);
    EXPECT_THAT(Break(), IsEmpty());
}

TEST_F(BreakColorResource, DoesNotLookAtWhatTwoTargetsHold)
{
    FillOf(box).SetProperty(Key(L"color"), Any(3));
    TargetAs({&box, nullptr}, L"color");

    EXPECT_EQ(IsEnabled(), 0);
    EXPECT_THAT(Break(), IsEmpty());
}

TEST_F(BreakColorResource, IsDisabledAndDoesNothingWithoutTargets)
{
    TargetAs({}, L"color");
    panel.hasTargets = true;

    EXPECT_EQ(IsEnabled(), 0);
    EXPECT_THAT(Break(), IsEmpty());
}

// Nothing to read

TEST_F(BreakColorResource, SendsAllPathsWithoutAPanelStyle)
{
    TargetBare(nullptr, L"color,gradient.*");

    EXPECT_EQ(IsEnabled(), 0);
    EXPECT_THAT(Break(), ElementsAre("panel.ModifyStyles(paths=[color, gradient], fill{}, "
                                     "overridePaths=null)"));
}

TEST_F(BreakColorResource, SendsAllPathsForANullTarget)
{
    TargetAs({nullptr}, L"color");

    EXPECT_EQ(IsEnabled(), 0);
    EXPECT_THAT(Break(), ElementsAre("panel.ModifyStyles(paths=[color], fill{}, overridePaths=null)"));
}

TEST_F(BreakColorResource, SendsNoPathsForAnEmptyIdentifier)
{
    TargetAs({&box}, L"");

    EXPECT_EQ(IsEnabled(), 0);
    EXPECT_THAT(Break(), ElementsAre("panel.ModifyStyles(paths=[], fill{}, overridePaths=null)"));
}

// Values that are no colours

TEST_F(BreakColorResource, RefusesAValueThatIsNoColorAndWritesNothing)
{
    FillOf(box).SetProperty(Key(L"type"), Any(3));
    TargetAs({&box}, L"color,type");

    EXPECT_THROW(panel.OnBreakColorResource(), std::bad_cast);

    EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(BreakColorResource, RefusesAMissingValueAndWritesNothing)
{
    TargetAs({&box}, L"missing");

    EXPECT_THROW(static_cast<void>(panel.GetBreakColorResourceEnable()), std::bad_cast);
    EXPECT_THROW(panel.OnBreakColorResource(), std::bad_cast);

    EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(BreakColorResource, RefusesToTellWhetherItIsEnabledForAValueThatIsNoColor)
{
    FillOf(box).SetProperty(Key(L"type"), Any(3));
    TargetAs({&box}, L"type,color");

    EXPECT_THROW(static_cast<void>(panel.GetBreakColorResourceEnable()), std::bad_cast);
}

TEST_F(BreakColorResource, IsEnabledByALinkedColorBeforeAValueThatIsNone)
{
    FillOf(box).SetProperty(Key(L"type"), Any(3));
    TargetAs({&box}, L"color,type");

    EXPECT_EQ(IsEnabled(), 1);
}

TEST_F(BreakColorResource, RefusesThroughTheBoundNamesToo)
{
    TargetAs({&box}, L"missing");

    EXPECT_THROW(static_cast<void>(IsEnabled()), std::bad_cast);
    EXPECT_THROW(Break(), std::bad_cast);
}

} // namespace
