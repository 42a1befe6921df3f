// Who is being edited: what is kept of the targets, what is asked of whom when they change, and the
// predicates on them.

#include "host/style_model/CategoryNames.h"
#include "reference_host/style_model/CategoryRegistry.h"
#include "tests/datasource/support/HostedTest.h"
#include "tests/datasource/support/RecordingApplicator.h"
#include "tests/datasource/support/RecordingContext.h"

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

/// New targets with everything there is to ask: an own target in a named style, and a sibling.
class NewTargets : public Targets
{
protected:
    NewTargets()
    {
        NameInSheet(L"Old", old);
        NameInSheet(L"Base", base);
        Target(sibling, {&line});
        panel.SetTargetStyle({&old}, /*isDefault=*/true, PropertyPath(), {Path({L"type"})});
        panel.RegisterSiblingDS(&sibling);
        panel.ListenTo({L"SectionTitle"});
        log.Clear();
    }

    /// Runs `look` at the first call whose line begins like that, once.
    void AtFirst(const std::string& beginning, std::function<void()> look)
    {
        log.onLine = [this, beginning, look = std::move(look)](const std::string& call)
        {
            if (!call.starts_with(beginning))
                return;
            log.onLine = nullptr;
            look();
            ++looks;
        };
    }

    void HandIn(bool isDefault = false)
    {
        panel.SetTargetStyle({&box}, isDefault, PropertyPath(), {Path({L"color"})});
        EXPECT_LE(looks, 1);
    }

    int looks = 0;
    Style& old = styles.WithFill("old", &base);
    RecordingPanel sibling{log, "sibling"};
};

TEST_F(NewTargets, AskSourceThenTitleThenSiblingsThenStyleNameThenTell)
{
    HandIn();

    EXPECT_THAT(log.LinesBut({"panel.SetTargetStyle", "panel.GetCategory", "sibling.GetCategory"}),
                ElementsAre("app.GetActiveStyleSourceProvider()",
                            "source.ShouldIgnoreCharacterStyleSiblings()", "panel.GetTargetStyle(0)",
                            "app.GetActiveStyleSourceProvider()", "source.GetStyleSheet()",
                            "sheet.GetStyleName(null)", "sheet.GetStyleName(base)",
                            "stylesApp.GetDisplayStyleName(Base)", "sibling.GetNumTargetStyles()",
                            "sibling.GetTargetStyle(0)", "sibling.GetNumTargetStyles()",
                            "app.GetActiveStyleSourceProvider()", "source.GetStyleSheet()",
                            "sheet.GetStyleName(box)", "notify SectionTitle"));
}

TEST_F(NewTargets, HaveNewForcedPathsAndAStillUnknownParentWhenTheSourceIsAsked)
{
    AtFirst("source.ShouldIgnoreCharacterStyleSiblings",
            [this]
            {
                EXPECT_THAT(panel.GetAmbiguousForce(), ElementsAre(Path({L"color"})));
                EXPECT_FALSE(panel.AreTargetsDefaultStyles());
                EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&old))
                    << "the targets are still the old ones";
                EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>") << "and so is the title";
                EXPECT_FALSE(panel.IsObjectStyle()) << "and the style name";
            });

    HandIn();

    EXPECT_EQ(looks, 1);
}

TEST_F(NewTargets, AskForTheCategoryAfterTheSourceAndBeforeTheTargetsChange)
{
    AtFirst("panel.GetCategory",
            [this]
            {
                EXPECT_THAT(log.LinesOf({"source."}),
                            ElementsAre("source.ShouldIgnoreCharacterStyleSiblings()"));
                EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&old));
                EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>");
            });

    HandIn();

    EXPECT_EQ(looks, 1);
}

TEST_F(NewTargets, AreTheOwnOnesWithoutATitleWhenTheFirstIsAskedFor)
{
    AtFirst("panel.GetTargetStyle(0)",
            [this]
            {
                EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&box));
                EXPECT_EQ(panel.GetSectionTitle(), L"Fill")
                    << "an empty title is filled with the category's name";
                EXPECT_FALSE(panel.IsObjectStyle()) << "the style name is still the old one";
            });

    HandIn();

    EXPECT_EQ(looks, 1);
    EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>");
}

TEST_F(NewTargets, HaveTheirTitleAndNoStyleNameWhenTheSiblingIsAsked)
{
    AtFirst("sibling.GetNumTargetStyles",
            [this]
            {
                EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>");
                EXPECT_TRUE(panel.IsObjectStyle());
                EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&box));
            });

    HandIn();

    EXPECT_EQ(looks, 1);
}

TEST_F(NewTargets, ThatAreDefaultStylesAreAwayWhileTheSiblingIsAsked)
{
    AtFirst("sibling.GetNumTargetStyles", [this] { EXPECT_THAT(panel.GetTargetStyles(), IsEmpty()); });

    HandIn(/*isDefault=*/true);

    EXPECT_EQ(looks, 1);
}

TEST_F(NewTargets, AreMergedWhenTheStyleNameIsAskedFor)
{
    AtFirst("sheet.GetStyleName(box)",
            [this] { EXPECT_THAT(panel.GetTargetStyles(), ElementsAre(&box, &FillOf(line))); });

    HandIn();

    EXPECT_EQ(looks, 1);
}

TEST_F(NewTargets, AreSettledWhenListenersAreTold)
{
    NameInSheet(L"Box", box);
    AtFirst("notify SectionTitle",
            [this]
            {
                EXPECT_EQ(panel.GetSectionTitle(), L"Fill: <Base>");
                EXPECT_EQ(panel.IsStyle(), 1);
                EXPECT_THAT(panel.GetTargetStyles(), SizeIs(2));
                EXPECT_EQ(panel.GetActivePropertyState(L"color"), ActivePropertyState::AmbiguousParent);
            });

    HandIn();

    EXPECT_EQ(looks, 1);
}

TEST_F(NewTargets, HaveNoForcedPathsLeftFromBefore)
{
    panel.ImportForceAmbiguous(PropertyPath(), {Path({L"gradient"})});

    HandIn();

    EXPECT_THAT(panel.GetAmbiguousForce(), ElementsAre(Path({L"color"})));
}

TEST_F(NewTargets, AreMergedThroughTheirOwnOperationsInAnOverridingPanel)
{
    panel.givesTargetStyle = [](std::size_t) { return nullptr; };

    HandIn();

    EXPECT_EQ(panel.GetSectionTitle(), L"Fill")
        << "the style that the title asks about is the panel's answer";
}

/// The style that is shown for a target.
class ShownStyle : public Targets
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

/// What the first target is in the sheet.
class StyleNameOfTargets : public Targets
{
protected:
    StyleNameOfTargets()
    {
        NameInSheet(L"Box", box);
        NameInSheet(L"Base", base);
    }

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
    ReferenceHost::CategoryRegistry::GetInstance().RegisterProperties(Key(L"TargetsTest"),
                                                                      {Key(L"width"), Key(L"color")});
    BareDatasource bare;

    const PropertyPaths paths =
        bare.GetStyleCategoryProperties(&styles.OfCategory("frame", Key(L"TargetsTest")));

    EXPECT_THAT(paths, UnorderedElementsAre(Path({L"color"}), Path({L"width"})));
    EXPECT_TRUE(std::is_sorted(paths.begin(), paths.end())) << "in the order of keys";
}

} // namespace
