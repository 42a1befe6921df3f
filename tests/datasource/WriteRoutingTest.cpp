// Where a write goes: an open group, the default styles, an applicator, or the style source's modifier.

#include "tests/datasource/support/WritingTest.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class WriteRouting : public WritingTest
{
protected:
    WriteRouting()
    {
        source.defaultStyles = {&defaults};
        Target(panel, {&box});
        log.Clear();
    }

    void TargetDefaults()
    {
        Target(panel, {&defaults}, /*isDefault=*/true);
        log.Clear();
    }

    std::vector<std::string> ApplicatorLines() const { return log.LinesOf({"applicator.ModifyStyles"}); }

    Style& box = styles.WithFill("box");
    Style& defaults = styles.WithColor("defaults", 1);
};

// Ordinary targets

TEST_F(WriteRouting, OpensModifiesAndClosesOnceForOrdinaryTargets)
{
    WriteColor(3);

    EXPECT_THAT(log.CallsOf({"modifier."}), ElementsAre("modifier.Begin", "modifier.Modify", "modifier.End"));
}

TEST_F(WriteRouting, HandsTheModifierEverythingInItsPlace)
{
    Style& fill = FillOf(box);
    Target(panel, {&fill});
    panel.SetObjectStyles({{&fill, 4}});
    const PropertyPaths overridePaths = Paths({L"type"});
    panel.transactionOverrides = transaction;

    WriteColor(3, &overridePaths);

    EXPECT_THAT(log.LinesOf({"modifier.Modify"}),
                ElementsAre("modifier.Modify(targets=[box.fill], objects={box.fill: 4}, paths=[color], "
                            "changeStyle=fill{color=3}, overridePaths=[type], reserved=false, bound=true, "
                            "transactionOverrides=transaction)"));
}

TEST_F(WriteRouting, FetchesTheModifierOnceForEachWrite)
{
    WriteColor(3);
    WriteColor(4);

    EXPECT_THAT(log.LinesOf({"source.GetMultipleStyleModifier"}), SizeIs(2));
}

TEST_F(WriteRouting, StaysWithTheModifierThatItBegan)
{
    log.onLine = [this](const std::string& line)
    {
        if (line == "modifier.Begin()")
            source.modifier = nullptr;
    };

    WriteColor(3);

    EXPECT_THAT(log.CallsOf({"modifier."}), ElementsAre("modifier.Begin", "modifier.Modify", "modifier.End"));
}

TEST_F(WriteRouting, RaisesNothingForOrdinaryTargets)
{
    panel.ListenTo(panel.GetNames());

    WriteColor(3);

    EXPECT_EQ(RecordingEvents::DeliverPending(), 0U);
    EXPECT_THAT(log.LinesOf({"event", "notify"}), IsEmpty());
}

TEST_F(WriteRouting, WritesNothingWithoutASource)
{
    app.source = nullptr;

    WriteColor(3);

    EXPECT_THAT(log.LinesOf({"modifier.", "source."}), IsEmpty());
    EXPECT_EQ(Describe(&box), "style{}");
}

TEST_F(WriteRouting, WritesNothingThroughASourceWithoutAModifier)
{
    source.modifier = nullptr;

    WriteColor(3);

    EXPECT_THAT(log.LinesOf({"modifier."}), IsEmpty());
    EXPECT_EQ(Describe(&box), "style{}");
}

TEST_F(WriteRouting, BeginsAndEndsWithoutModifyingWhenThereAreNoTargets)
{
    Target(panel, {});
    log.Clear();

    WriteColor(3);

    EXPECT_THAT(log.CallsOf({"modifier."}), ElementsAre("modifier.Begin", "modifier.End"));
}

TEST_F(WriteRouting, BeginsAndEndsWithoutModifyingWhenTheFirstTargetIsNull)
{
    Target(panel, {nullptr, &box});
    log.Clear();

    WriteColor(3);

    EXPECT_THAT(log.CallsOf({"modifier."}), ElementsAre("modifier.Begin", "modifier.End"));
}

TEST_F(WriteRouting, DoesNotAskTheDerivedClassForTargets)
{
    panel.hasTargets = false;

    WriteColor(3);

    EXPECT_THAT(modifier.changes, SizeIs(1));
    EXPECT_THAT(log.LinesOf({"panel.HasTargets", "panel.GetTargetStyle", "panel.GetNumTargetStyles"}),
                IsEmpty());
}

TEST_F(WriteRouting, LeavesTheListsOfItsCallerAlone)
{
    const PropertyPaths paths = Paths({L"color", L"type"});
    const PropertyPaths overridePaths = Paths({L"type"});

    panel.ModifyStyles(paths, Change(3), &overridePaths);

    EXPECT_EQ(paths, Paths({L"color", L"type"}));
    EXPECT_EQ(overridePaths, Paths({L"type"}));
}

// Default styles

TEST_F(WriteRouting, OfDefaultStylesWritesThemAndUsesNoModifier)
{
    TargetDefaults();

    WriteColor(3);

    EXPECT_EQ(Describe(&defaults), "style{fill.color=3}");
    EXPECT_THAT(log.LinesOf({"modifier.", "source."}), ElementsAre("source.GetDefaultStyles()"));
    EXPECT_EQ(RecordingEvents::DeliverPending(), 1U);
}

TEST_F(WriteRouting, OfDefaultStylesWritesThoseOfTheSourceAndNotTheTargets)
{
    Target(panel, {&box}, /*isDefault=*/true);

    WriteColor(3);

    EXPECT_EQ(Describe(&defaults), "style{fill.color=3}");
    EXPECT_EQ(Describe(&box), "style{}");
}

TEST_F(WriteRouting, OfDefaultStylesLeavesOverridePathsOut)
{
    TargetDefaults();
    const PropertyPaths overridePaths = Paths({L"type"});
    auto change = Change(3);
    change->SetProperty(Key(L"type"), OvxUtils::Any(2));

    panel.ModifyStyles(Paths({L"color"}), std::move(change), &overridePaths);

    EXPECT_EQ(Describe(&defaults), "style{fill.color=3}");
}

TEST_F(WriteRouting, OfDefaultStylesKeepsAPathThatIsAnOverrideToo)
{
    TargetDefaults();
    const PropertyPaths overridePaths = Paths({L"color"});

    WriteColor(3, &overridePaths);

    EXPECT_EQ(Describe(&defaults), "style{fill.color=3}");
}

TEST_F(WriteRouting, OfNothingToDefaultStylesWritesNothingAndRaisesTheEvent)
{
    TargetDefaults();

    panel.ModifyStyles(Paths({L"color"}), nullptr, nullptr);

    EXPECT_EQ(Describe(&defaults), "style{fill.color=1}");
    EXPECT_EQ(RecordingEvents::DeliverPending(), 1U);
    EXPECT_THAT(log.LinesOf({"event"}), ElementsAre("event StylePropertiesChange(, '')"));
}

TEST_F(WriteRouting, OfDefaultStylesGoesToTheApplicatorAlone)
{
    InstallApplicator();
    TargetDefaults();
    const PropertyPaths overridePaths = Paths({L"type"});

    WriteColor(3, &overridePaths);

    EXPECT_THAT(ApplicatorLines(),
                ElementsAre("applicator.ModifyStyles(7, paths=[color], changeStyle=fill{color=3}, "
                            "overridePaths=[type], toDefaultStyles=true)"));
    EXPECT_THAT(log.LinesOf({"modifier.", "source."}), IsEmpty());
    EXPECT_EQ(Describe(&defaults), "style{fill.color=1}");
    EXPECT_EQ(RecordingEvents::DeliverPending(), 0U);
}

TEST_F(WriteRouting, OfDefaultStylesTellsTheApplicatorOfAMissingChangeAndList)
{
    InstallApplicator();
    TargetDefaults();

    panel.ModifyStyles(Paths({L"color"}), nullptr, nullptr);

    EXPECT_THAT(ApplicatorLines(), ElementsAre("applicator.ModifyStyles(7, paths=[color], changeStyle=null, "
                                               "overridePaths=null, toDefaultStyles=true)"));
}

// An applicator

TEST_F(WriteRouting, GoesToTheApplicatorBetweenBeginAndEnd)
{
    InstallApplicator();

    WriteColor(3);

    EXPECT_THAT(Steps(), ElementsAre("panel.ModifyStyles", "modifier.Begin", "applicator.ModifyStyles",
                                     "modifier.End"));
    EXPECT_THAT(ApplicatorLines(),
                ElementsAre("applicator.ModifyStyles(7, paths=[color], changeStyle=fill{color=3}, "
                            "overridePaths=null, toDefaultStyles=false)"));
}

TEST_F(WriteRouting, GivesTheApplicatorPathsThatAreOverridesAsWell)
{
    InstallApplicator();
    const PropertyPaths overridePaths = Paths({L"color"});

    WriteColor(3, &overridePaths);

    EXPECT_THAT(ApplicatorLines(),
                ElementsAre("applicator.ModifyStyles(7, paths=[color], changeStyle=fill{color=3}, "
                            "overridePaths=[color], toDefaultStyles=false)"));
}

TEST_F(WriteRouting, GoesToTheApplicatorAlsoWithoutTargets)
{
    InstallApplicator();
    Target(panel, {});
    log.Clear();

    WriteColor(3);

    EXPECT_THAT(ApplicatorLines(), SizeIs(1));
}

TEST_F(WriteRouting, GoesToTheApplicatorAlsoWithoutASource)
{
    InstallApplicator();
    app.source = nullptr;

    WriteColor(3);

    EXPECT_THAT(ApplicatorLines(), SizeIs(1));
}

TEST_F(WriteRouting, TellsTheApplicatorOfAMissingChange)
{
    InstallApplicator();

    panel.ModifyStyles(Paths({L"color"}), nullptr, nullptr);

    EXPECT_THAT(ApplicatorLines(), ElementsAre("applicator.ModifyStyles(7, paths=[color], changeStyle=null, "
                                               "overridePaths=null, toDefaultStyles=false)"));
}

// An open group

TEST_F(WriteRouting, GathersWhileAGroupOnDefaultStylesIsOpen)
{
    TargetDefaults();
    panel.StartGroupModify();
    log.Clear();

    WriteColor(3);

    EXPECT_THAT(log.LinesOf({"modifier.", "source.", "applicator."}), IsEmpty());
    EXPECT_EQ(Describe(&defaults), "style{fill.color=1}");
    EXPECT_EQ(RecordingEvents::DeliverPending(), 0U);
}

TEST_F(WriteRouting, GathersBeforeItAsksTheApplicator)
{
    InstallApplicator();
    TargetDefaults();
    panel.StartGroupModify();

    WriteColor(3);

    EXPECT_THAT(ApplicatorLines(), IsEmpty());
}

TEST_F(WriteRouting, GathersAlsoWhenTheTargetsAreNoLongerDefaultStyles)
{
    TargetDefaults();
    panel.StartGroupModify();
    Target(panel, {&box});
    log.Clear();

    WriteColor(3);

    EXPECT_THAT(log.LinesOf({"modifier.", "source."}), IsEmpty());
}

} // namespace
