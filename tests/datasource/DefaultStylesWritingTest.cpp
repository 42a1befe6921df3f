// Writes into the document's default styles, and into the named styles of the default sheet.

#include "host/data_binding/IAppEventBroadcaster.h"
#include "tests/datasource/support/WritingTest.h"

namespace
{

using namespace Styles;
using OvxUtils::Any;
using testing::ElementsAre;
using testing::IsEmpty;

class DefaultStylesWriting : public WritingTest
{
protected:
    DefaultStylesWriting() { source.defaultStyles = {&plain, &filled}; }

    std::vector<std::string> Delivered()
    {
        RecordingEvents::DeliverPending();
        return log.LinesOf({"event"});
    }

    Style& plain = styles.Whole("plain");
    Style& filled = styles.WithColor("filled", 1);
};

TEST_F(DefaultStylesWriting, ReachesTheSubstyleOfEachAndMakesItWhereItIsMissing)
{
    panel.ModifyDefaultStyles(Paths({L"color"}), Change(3));

    EXPECT_EQ(Describe(&plain), "style{fill.color=3}");
    EXPECT_EQ(Describe(&filled), "style{fill.color=3}");
    EXPECT_EQ(FillOf(plain).GetCategoryName(), FillStyleCategoryName);
}

TEST_F(DefaultStylesWriting, ReachesTheStylesThemselvesForAChangeOfWholeStyles)
{
    auto change = std::make_unique<Style>(nullptr, StyleCategoryName);
    change->SetPathProperty(Path({L"fill", L"color"}), Any(3));

    panel.ModifyDefaultStyles({Path({L"fill", L"color"})}, std::move(change));

    EXPECT_EQ(Describe(&filled), "style{fill.color=3}");
    EXPECT_EQ(plain.GetSubstyle(StyleCategoryName, false), nullptr);
}

TEST_F(DefaultStylesWriting, FollowsTheCategoryOfTheChangeAndNotThatOfThePanel)
{
    panel.ModifyDefaultStyles(Paths({L"color"}), Change(3, OutlineStyleCategoryName));

    EXPECT_EQ(Describe(&filled), "style{fill.color=1, outline.color=3}");
    EXPECT_THAT(Delivered(), ElementsAre("event StylePropertiesChange(outline, '')"));
}

TEST_F(DefaultStylesWriting, WritesTheListedPathsOnly)
{
    auto change = Change(3);
    change->SetProperty(Key(L"type"), Any(2));

    panel.ModifyDefaultStyles(Paths({L"type"}), std::move(change));

    EXPECT_EQ(Describe(&filled), "style{fill.color=1, fill.type=2}");
}

TEST_F(DefaultStylesWriting, ResetsAListedPathThatTheChangeLacks)
{
    panel.ModifyDefaultStyles(Paths({L"color", L"type"}),
                              std::make_unique<Style>(nullptr, FillStyleCategoryName));

    EXPECT_EQ(Describe(&filled), "style{}");
}

TEST_F(DefaultStylesWriting, PassesOverAStyleThatCannotHoldTheSubstyle)
{
    auto change = std::make_unique<Style>();
    change->SetProperty(Key(L"color"), Any(3));

    panel.ModifyDefaultStyles(Paths({L"color"}), std::move(change));

    EXPECT_EQ(Describe(&plain), "style{}");
    EXPECT_EQ(Describe(&filled), "style{fill.color=1}");
    EXPECT_THAT(Delivered(), ElementsAre("event StylePropertiesChange(, '')"));
}

TEST_F(DefaultStylesWriting, RaisesOneEventForAllOfThemOnIdle)
{
    panel.ModifyDefaultStyles(Paths({L"color"}), Change(3));
    EXPECT_THAT(log.LinesOf({"event"}), IsEmpty()) << "not before the application is idle";

    EXPECT_THAT(Delivered(), ElementsAre("event StylePropertiesChange(fill, '')"));
}

TEST_F(DefaultStylesWriting, RaisesAnEventThatCarriesAKeyAndAText)
{
    auto& broadcaster = OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance();
    std::vector<PropertyKey> heard;
    const ListenerToken token = broadcaster.Subscribe<PropertyKey, OvxStringT>(
        L"StylePropertiesChange", [&heard](PropertyKey key, const OvxStringT&) { heard.push_back(key); });

    panel.ModifyDefaultStyles(Paths({L"color"}), Change(3, OutlineStyleCategoryName));
    RecordingEvents::DeliverPending();
    broadcaster.Unsubscribe(token);

    EXPECT_THAT(heard, ElementsAre(OutlineStyleCategoryName));
}

TEST_F(DefaultStylesWriting, RaisesTheEventWithoutASource)
{
    app.source = nullptr;

    panel.ModifyDefaultStyles(Paths({L"color"}), Change(3));

    EXPECT_EQ(Describe(&filled), "style{fill.color=1}");
    EXPECT_THAT(Delivered(), ElementsAre("event StylePropertiesChange(fill, '')"));
}

TEST_F(DefaultStylesWriting, RaisesTheEventWithoutAnyDefaultStyle)
{
    source.defaultStyles.clear();

    panel.ModifyDefaultStyles(Paths({L"color"}), Change(3));

    EXPECT_THAT(Delivered(), ElementsAre("event StylePropertiesChange(fill, '')"));
}

TEST_F(DefaultStylesWriting, OfANullChangeWritesNothingAndRaisesTheEventWithoutACategory)
{
    panel.ModifyDefaultStyles(Paths({L"color"}), nullptr);

    EXPECT_EQ(Describe(&filled), "style{fill.color=1}");
    EXPECT_EQ(plain.GetSubstyle(FillStyleCategoryName, false), nullptr);
    EXPECT_THAT(Delivered(), ElementsAre("event StylePropertiesChange(, '')"));
}

TEST_F(DefaultStylesWriting, OfANullChangeRaisesTheEventWithoutASource)
{
    app.source = nullptr;

    panel.ModifyDefaultStyles(Paths({L"color"}), nullptr);

    EXPECT_THAT(Delivered(), ElementsAre("event StylePropertiesChange(, '')"));
}

TEST_F(DefaultStylesWriting, AsksForNoTargetsAndNoModifier)
{
    panel.ModifyDefaultStyles(Paths({L"color"}), Change(3));

    EXPECT_THAT(log.LinesOf({"source.", "modifier.", "panel."}), ElementsAre("source.GetDefaultStyles()"));
}

TEST_F(DefaultStylesWriting, RaisesAnEventForEachWrite)
{
    panel.ModifyDefaultStyles(Paths({L"color"}), Change(3));
    panel.ModifyDefaultStyles(Paths({L"color"}), Change(4));

    EXPECT_EQ(RecordingEvents::DeliverPending(), 2U);
}

/// A sheet of defaults with one named style.
class NamedDefaultWriting : public WritingTest
{
protected:
    NamedDefaultWriting()
    {
        source.defaultSheet = &defaults;
        defaults.entries.push_back({L"Text", &named});
    }

    void Write() { panel.WriteToDefault(L"Text", Key(L"color"), Any(3)); }

    RecordingSheet defaults{log, "defaults"};
    Style& named = styles.WithColor("named", 1);
};

TEST_F(NamedDefaultWriting, SetsThePropertyInThePanelsSubstyle)
{
    Write();

    EXPECT_EQ(Describe(&named), "style{fill.color=3}");
    EXPECT_THAT(log.LinesOf({"source.", "defaults.", "sheet."}),
                ElementsAre("source.GetDefaultStyleSheet()", "defaults.GetStyle(Text)"));
}

TEST_F(NamedDefaultWriting, FollowsTheDerivedCategory)
{
    panel.category = OutlineStyleCategoryName;
    named.GetSubstyleAndCreateIfMissing(OutlineStyleCategoryName, OutlineStyleCategoryName);

    Write();

    EXPECT_EQ(Describe(&named), "style{fill.color=1, outline.color=3}");
}

TEST_F(NamedDefaultWriting, DoesNotMakeTheSubstyle)
{
    panel.category = OutlineStyleCategoryName;

    Write();

    EXPECT_EQ(named.GetSubstyle(OutlineStyleCategoryName, false), nullptr);
}

TEST_F(NamedDefaultWriting, LeavesAStyleOfThePanelsOwnCategoryAlone)
{
    Style& alone = styles.OfCategory("alone", FillStyleCategoryName);
    defaults.entries = {{L"Text", &alone}};

    Write();

    EXPECT_EQ(Describe(&alone), "fill{}") << "only a substyle is looked for";
}

TEST_F(NamedDefaultWriting, DoesNothingForAnUnknownName)
{
    panel.WriteToDefault(L"Unknown", Key(L"color"), Any(3));

    EXPECT_EQ(Describe(&named), "style{fill.color=1}");
}

TEST_F(NamedDefaultWriting, DoesNothingWithoutASheetOfDefaults)
{
    source.defaultSheet = nullptr;
    NameInSheet(L"Text", named);

    Write();

    EXPECT_EQ(Describe(&named), "style{fill.color=1}") << "the document's own sheet is not looked at";
}

TEST_F(NamedDefaultWriting, DoesNothingWithoutASource)
{
    app.source = nullptr;

    Write();

    EXPECT_EQ(Describe(&named), "style{fill.color=1}");
    EXPECT_THAT(log.LinesOf({"defaults."}), IsEmpty());
}

TEST_F(NamedDefaultWriting, RaisesNothingAndUsesNoModifier)
{
    Write();

    EXPECT_EQ(RecordingEvents::DeliverPending(), 0U);
    EXPECT_THAT(log.LinesOf({"modifier.", "event", "notify"}), IsEmpty());
}

} // namespace
