// Whom a data source is tied to, and what it tells its own listeners.

#include "tests/datasource/support/HostedTest.h"

#include <memory>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const std::vector<OvxStringT> kEveryName = {
    L"ActiveIdentifier",
    L"RevertToParentEnable",
    L"OnRevertToParent",
    L"BreakColorResourceEnable",
    L"OnBreakColorResource",
    L"ApplyToParentEnable",
    L"OnApplyToParent",
    L"CreateStyleFromEnable",
    L"IsObjectStyle",
    L"IsStyle",
    L"IsStyleOrDefault",
    L"OnCreateStyleFrom",
    L"EditStyleEnable",
    L"OnEditStyle",
    L"PropertyIcon",
    L"PropertyTooltip",
    L"SectionTitle",
    L"StyleResourceList",
    L"ApplyStyleResource",
    L"RevertToMenuString",
    L"ApplyToMenuString",
    L"EditStyleMenuString",
    L"NewStyleList",
    L"IsObjectProperties",
    L"CurrentListStyleItem",
    L"OnBaseStylePropertiesDatasourceOk",
    L"BaseStylePropertiesDatasourceOkEnabled",
    L"PropertyPanelStateIdentifier",
    L"EnableStyleEditing",
    L"PresetList",
    L"CurrentPreset",
    L"AddPresetEnabled",
    L"OnAddPreset",
    L"DeletePresetEnabled",
    L"OnDeletePreset",
};

class Notification : public HostedTest
{
protected:
    Notification() { panel.ListenTo(kEveryName); }
};

TEST_F(Notification, OfANewIdentifierNamesRevertThenBreak)
{
    panel.SetActiveIdentifier(L"color");

    EXPECT_THAT(log.LinesOf({"notify"}),
                ElementsAre("notify RevertToParentEnable", "notify BreakColorResourceEnable"));
}

TEST_F(Notification, OfTheIdentifierAlreadyInForceNamesBothAgain)
{
    panel.SetActiveIdentifier(L"color");
    log.Clear();

    panel.SetActiveIdentifier(L"color");

    EXPECT_THAT(log.LinesOf({"notify"}),
                ElementsAre("notify RevertToParentEnable", "notify BreakColorResourceEnable"));
}

TEST_F(Notification, OfANewIdentifierComesWhenItIsInForce)
{
    std::vector<OvxStringT> seen;
    log.onLine = [&](const std::string&) { seen.push_back(panel.GetActiveIdentifier()); };

    panel.SetActiveIdentifier(L"color");

    EXPECT_THAT(seen, ElementsAre(L"color", L"color"));
}

TEST_F(Notification, OfNewTargetsNamesTheTitleAlone)
{
    Target(panel, {&styles.WithFill("box")});

    EXPECT_THAT(log.LinesOf({"notify"}), ElementsAre("notify SectionTitle"));
}

TEST_F(Notification, OfTheSameTargetsNamesTheTitleAgain)
{
    Styles::Style& box = styles.WithFill("box");
    Target(panel, {&box});
    log.Clear();

    Target(panel, {&box});

    EXPECT_THAT(log.LinesOf({"notify"}), ElementsAre("notify SectionTitle"));
}

TEST_F(Notification, OfChangedPresetsNamesTheirList)
{
    panel.OnPresetsListUpdated();

    EXPECT_THAT(log.LinesOf({"notify"}), ElementsAre("notify PresetList"));
}

TEST_F(Notification, DoesNotComeFromObjectsThatAreHandedIn)
{
    panel.presetCategory = L"FillPresets";
    Styles::Style& box = styles.WithFill("box");

    panel.SetObjectStyles({{&box, 1}});
    panel.ClearObjectStyles();
    panel.SelectNoPreset();

    EXPECT_THAT(log.LinesOf({"notify"}), IsEmpty());
}

TEST_F(Notification, DoesNotComeFromTyingDataSourcesTogether)
{
    RecordingPanel sibling(log, "sibling");

    panel.RegisterSiblingDS(&sibling);
    panel.UnregisterSiblingDS(&sibling);

    EXPECT_THAT(log.LinesOf({"notify"}), IsEmpty());
}

TEST_F(Notification, DoesNotComeFromCommands)
{
    Styles::Style& base = styles.WithColor("base", 1);
    Target(panel, {&styles.WithColor("box", 2, &base)});
    panel.SetActiveIdentifier(L"style");
    log.Clear();

    for (const wchar_t* command :
         {L"OnRevertToParent", L"OnApplyToParent", L"OnCreateStyleFrom", L"OnEditStyle"})
        panel.Invoke(command);

    EXPECT_THAT(log.LinesOf({"panel.ClearProperties", "source.ApplyToParent", "source.CreateStyle"}),
                SizeIs(3));
    EXPECT_THAT(log.LinesOf({"notify"}), IsEmpty());
}

TEST_F(Notification, MayBeAnsweredByNewTargetsFromInside)
{
    Styles::Style& second = styles.WithFill("second");
    bool handedOver = false;
    log.onLine = [&](const std::string& line)
    {
        if (line == "notify SectionTitle" && !std::exchange(handedOver, true))
            Target(panel, {&second});
    };

    Target(panel, {&styles.WithFill("first")});

    EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&second));
    EXPECT_THAT(log.LinesOf({"notify"}), SizeIs(2));
}

/// Three more panels, to be tied to the first.
class Siblings : public HostedTest
{
protected:
    /// The registered siblings by name.
    std::vector<std::string> Registered() const
    {
        std::vector<std::string> names;
        for (const auto& entry : panel.siblings)
            names.push_back(log.NameOf(entry.sibling));
        return names;
    }

    RecordingPanel first{log, "first"};
    RecordingPanel second{log, "second"};
    RecordingPanel third{log, "third"};
};

TEST_F(Siblings, StandInTheOrderOfRegistration)
{
    panel.RegisterSiblingDS(&second);
    panel.RegisterSiblingDS(&first);
    panel.RegisterSiblingDS(&third);

    EXPECT_THAT(Registered(), ElementsAre("second", "first", "third"));
}

TEST_F(Siblings, StandAsOftenAsTheyWereRegistered)
{
    panel.RegisterSiblingDS(&first);
    panel.RegisterSiblingDS(&second);
    panel.RegisterSiblingDS(&first);

    EXPECT_THAT(Registered(), ElementsAre("first", "second", "first"));
}

TEST_F(Siblings, ComeWithoutPathsAndFlag)
{
    panel.RegisterSiblingDS(&first);

    ASSERT_THAT(panel.siblings, SizeIs(1));
    EXPECT_THAT(panel.siblings[0].paths, IsEmpty());
    EXPECT_FALSE(panel.siblings[0].flag);
}

TEST_F(Siblings, KeepTheirPathsAndFlagWhenMoreAreRegistered)
{
    panel.RegisterSiblingDS(&first);
    panel.siblings[0].paths = {Path({L"color"})};
    panel.siblings[0].flag = true;

    for (int count = 0; count < 20; ++count)
        panel.RegisterSiblingDS(&second);

    ASSERT_THAT(panel.siblings, SizeIs(21));
    EXPECT_THAT(panel.siblings[0].paths, ElementsAre(Path({L"color"})));
    EXPECT_TRUE(panel.siblings[0].flag);
}

TEST_F(Siblings, MayBeNull)
{
    panel.RegisterSiblingDS(nullptr);

    EXPECT_THAT(Registered(), ElementsAre("null"));
}

TEST_F(Siblings, AreTiedInOneDirection)
{
    panel.RegisterSiblingDS(&first);

    EXPECT_THAT(first.siblings, IsEmpty());
}

TEST_F(Siblings, AreNotAskedWhenTheyAreRegistered)
{
    panel.RegisterSiblingDS(&first);

    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(Siblings, GoWithEveryEntryTheyHave)
{
    for (RecordingPanel* each : {&first, &second, &first, &third, &first})
        panel.RegisterSiblingDS(each);

    panel.UnregisterSiblingDS(&first);

    EXPECT_THAT(Registered(), ElementsAre("second", "third"));
}

TEST_F(Siblings, StayWhenOneIsUnregisteredThatNeverWasRegistered)
{
    panel.RegisterSiblingDS(&first);

    panel.UnregisterSiblingDS(&second);

    EXPECT_THAT(Registered(), ElementsAre("first"));
}

TEST_F(Siblings, MayAllBeUnregisteredAndMore)
{
    panel.RegisterSiblingDS(&first);
    panel.UnregisterSiblingDS(&first);

    panel.UnregisterSiblingDS(&first);

    EXPECT_THAT(Registered(), IsEmpty());
}

TEST_F(Siblings, ThatAreNullGoByNull)
{
    panel.RegisterSiblingDS(nullptr);
    panel.RegisterSiblingDS(&first);

    panel.UnregisterSiblingDS(nullptr);

    EXPECT_THAT(Registered(), ElementsAre("first"));
}

TEST_F(Siblings, DoNotLetTheSourceBeAskedAboutCharacterStylesWhenThereAreNone)
{
    Target(panel, {&styles.WithFill("box")});

    EXPECT_THAT(log.LinesOf({"source.ShouldIgnoreCharacterStyleSiblings"}), IsEmpty());
}

TEST_F(Siblings, LetTheSourceBeAskedAboutCharacterStylesOnceForEachNewTargets)
{
    panel.RegisterSiblingDS(&first);
    panel.RegisterSiblingDS(&second);

    Target(panel, {&styles.WithFill("box")});

    EXPECT_THAT(log.LinesOf({"source.ShouldIgnoreCharacterStyleSiblings"}), SizeIs(1));
}

TEST_F(Siblings, LetTheSourceBeAskedAboutCharacterStylesEvenWhenOnlyNullIsRegistered)
{
    panel.RegisterSiblingDS(nullptr);

    Target(panel, {&styles.WithFill("box")});

    EXPECT_THAT(log.LinesOf({"source.ShouldIgnoreCharacterStyleSiblings"}), SizeIs(1));
}

} // namespace
