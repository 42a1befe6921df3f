// Six pieces of the host are replaced here by pieces of this program: what the reference host never answers
// can then be answered, and what it answers without a trace leaves one. The library leaves these names to its
// host; the dynamic linker finds them here first.

#include "host/resources/Resources.h"
#include "host/services/IAppInterface.h"
#include "host/services/IPanelHost.h"
#include "host/services/OvxComponent.h"
#include "host/style_model/StylePresetManager.h"
#include "host/utils/PostConstructible.h"
#include "tests/datasource/support/HostedTest.h"
#include "tests/datasource/support/PresetsTest.h"
#include "tests/datasource/support/RecordingContext.h"

#include <dlfcn.h>

#include <map>

namespace
{

/// The answers of the replaced pieces, and what they were asked.
struct Replacements
{
    IAppInterface* appInterface = nullptr;
    int basePostConstructions = 0;
    std::map<OvxStringT, OvxStringT> texts; ///< By key; a key without a text gives the key.
    CallLog* log = nullptr;
};

Replacements replacements;

} // namespace

IAppInterface* OvxComponent::GetAppInterface()
{
    return replacements.appInterface;
}

void OvxUtils::PostConstructible::PostConstruct()
{
    ++replacements.basePostConstructions;
}

OvxStringT Framework::Resources::GetString(const OvxStringT& key)
{
    if (replacements.log != nullptr)
        replacements.log->Add("text " + Describe(key));
    const auto found = replacements.texts.find(key);
    return found == replacements.texts.end() ? key : found->second;
}

void Styles::Style::SetProperties(const PropertyPaths& paths, const Style* from)
{
    if (replacements.log != nullptr)
        replacements.log->Add("SetProperties(" + Describe(paths) + ", " + Describe(from) + ")");
}

/// Gives the host's own answer.
Styles::Style* Styles::Style::GetSubstyle(const PropertyKey& key, bool walkingPath) const
{
    if (replacements.log != nullptr)
        replacements.log->Add("GetSubstyle(" + Describe(key) +
                              (walkingPath ? ", on a path)" : ", is it there)"));
    using HostsOwn = Style* (*)(const Style*, const PropertyKey&, bool);
    static const auto hostsOwn =
        reinterpret_cast<HostsOwn>(dlsym(RTLD_NEXT, "_ZNK6Styles5Style11GetSubstyleERKNS_11PropertyKeyEb"));
    return hostsOwn(this, key, walkingPath);
}

bool Styles::StylePresetManager::AddPreset(const OvxStringT& category, const OvxStringT& name,
                                           const Style& style, bool replace)
{
    if (replacements.log != nullptr)
        replacements.log->Add("AddPreset(" + Describe(category) + ", " + Describe(name) + ", " +
                              Describe(&style) + (replace ? ", replace)" : ", keep)"));
    return true;
}

namespace
{

using namespace Styles;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class PanelHostAnswering final : public IPanelHost
{
public:
    IDataContext* GetObjectPropertiesContext() override { return context; }

    IDataContext* context = nullptr;
};

class AppInterfaceAnswering final : public IAppInterface
{
public:
    IPanelHost* GetPanelHost() override { return panelHost; }

    IPanelHost* panelHost = nullptr;
};

class ReplacedHost : public HostedTest
{
protected:
    ReplacedHost()
    {
        replacements = Replacements();
        replacements.log = &log;
    }

    ~ReplacedHost() override { replacements = Replacements(); }

    /// What a panel made in `surroundings` learns.
    int IsObjectPropertiesIn(IDataContext* surroundings)
    {
        RecordingPanel created(log, "created");
        created.SetDataSourceProvider(surroundings);
        created.Complete();
        return created.IsObjectProperties();
    }

    RecordingContext context{log};
    PanelHostAnswering panelHost;
    AppInterfaceAnswering appInterface;
};

TEST_F(ReplacedHost, WithoutAUserInterfaceServesNoObjectProperties)
{
    EXPECT_EQ(IsObjectPropertiesIn(nullptr), 0) << "there is nothing to compare the missing context with";
    EXPECT_EQ(IsObjectPropertiesIn(&context), 0);
}

TEST_F(ReplacedHost, WithoutAPanelHostServesNoObjectProperties)
{
    replacements.appInterface = &appInterface;

    EXPECT_EQ(IsObjectPropertiesIn(nullptr), 0) << "there is nothing to compare the missing context with";
    EXPECT_EQ(IsObjectPropertiesIn(&context), 0);
}

TEST_F(ReplacedHost, WithTheSameContextServesObjectProperties)
{
    replacements.appInterface = &appInterface;
    appInterface.panelHost = &panelHost;
    panelHost.context = &context;

    EXPECT_EQ(IsObjectPropertiesIn(&context), 1);
    EXPECT_EQ(IsObjectPropertiesIn(nullptr), 0);
}

TEST_F(ReplacedHost, ComparesContextsAsTheyAreWhenBothAreMissing)
{
    replacements.appInterface = &appInterface;
    appInterface.panelHost = &panelHost;

    EXPECT_EQ(IsObjectPropertiesIn(nullptr), 1);
    EXPECT_EQ(IsObjectPropertiesIn(&context), 0);
}

TEST_F(ReplacedHost, IsNotPostConstructedByTheFrameworksOwnHook)
{
    RecordingPanel created(log, "created");

    created.Complete();

    EXPECT_EQ(replacements.basePostConstructions, 0);
}

TEST_F(ReplacedHost, WouldNoticeTheFrameworksOwnHook)
{
    class WithoutAHook final : public OvxUtils::PostConstructible
    {
    };

    WithoutAHook plain;

    plain.FinishConstruction();

    EXPECT_EQ(replacements.basePostConstructions, 1);
}

/// Writes to the default styles of a host that takes no null where it copies values from.
class ReplacedCopying : public ReplacedHost
{
protected:
    ReplacedCopying()
    {
        source.defaultStyles = {&defaults};
        Target(panel, {&defaults}, /*isDefault=*/true);
    }

    std::vector<std::string> Copied() const { return log.LinesOf({"SetProperties"}); }

    Style& defaults = styles.WithFill("defaults");
};

TEST_F(ReplacedCopying, TakesWhatAGroupGathers)
{
    panel.StartGroupModify();
    panel.WriteTarget(Key(L"color"), OvxUtils::Any(3), nullptr, nullptr);

    EXPECT_THAT(Copied(), ElementsAre("SetProperties([color], fill{color=3})"));
}

TEST_F(ReplacedCopying, TakesNothingFromANullChangeInAGroup)
{
    panel.StartGroupModify();
    panel.ModifyStyles({Path({L"color"})}, nullptr, nullptr);

    EXPECT_THAT(Copied(), IsEmpty());
}

TEST_F(ReplacedCopying, TakesNothingFromANullChangeOfDefaultStyles)
{
    panel.ModifyStyles({Path({L"color"})}, nullptr, nullptr);

    EXPECT_THAT(Copied(), IsEmpty());
}

/// Styles of a host that may answer differently to who follows a path and to who asks what is there.
class ReplacedSubstyles : public ReplacedHost
{
protected:
    Style& base = styles.WithColor("base", 1);
    Style& box = styles.WithColor("box", 2, &base);
};

TEST_F(ReplacedSubstyles, AreFollowedAlongThePathOfAValue)
{
    Target(panel, {&box, &styles.WithColor("circle", 3)});
    log.Clear();

    static_cast<void>(panel.IsAmbiguous(Path({L"gradient", L"start"})));

    EXPECT_THAT(log.LinesOf({"GetSubstyle(gradient"}), Each("GetSubstyle(gradient, on a path)"));
    EXPECT_THAT(log.LinesOf({"GetSubstyle(gradient"}), testing::SizeIs(2));
}

TEST_F(ReplacedSubstyles, AreOnlyLookedForInTheOwnersParent)
{
    Target(panel, {&box});
    log.Clear();

    EXPECT_TRUE(panel.Private_HasParent());

    EXPECT_THAT(log.LinesOf({"GetSubstyle(fill"}), Each("GetSubstyle(fill, is it there)"));
    EXPECT_THAT(log.LinesOf({"GetSubstyle(fill"}), Contains("GetSubstyle(fill, is it there)"));
}

TEST_F(ReplacedSubstyles, AreOnlyLookedForWhereValuesAreApplied)
{
    Target(panel, {&box});
    panel.SetActiveIdentifier(L"style");
    log.Clear();

    panel.OnApplyToParent();

    EXPECT_THAT(log.LinesOf({"source.ApplyToParent"}), testing::SizeIs(1));
    EXPECT_THAT(log.LinesOf({"GetSubstyle(fill"}), Each("GetSubstyle(fill, is it there)"));
}

TEST_F(ReplacedSubstyles, AreOnlyLookedForInANamedDefaultStyle)
{
    source.defaultSheet = &sheet;
    NameInSheet(L"Base", base);

    panel.WriteToDefault(L"Base", Key(L"color"), OvxUtils::Any(3));

    EXPECT_THAT(log.LinesOf({"GetSubstyle(fill"}), ElementsAre("GetSubstyle(fill, is it there)"));
}

/// Presets of a host that tells how they are handed over.
class ReplacedKeeping : public PresetsTest
{
protected:
    ReplacedKeeping()
    {
        panelHost.context = &context;
        appInterface.panelHost = &panelHost;
        replacements = Replacements();
        replacements.appInterface = &appInterface;
        replacements.log = &log;
    }

    ~ReplacedKeeping() override { replacements = Replacements(); }

    PanelHostAnswering panelHost;
    AppInterfaceAnswering appInterface;
};

TEST_F(ReplacedKeeping, IsHandedTheWholeStyleInPlaceOfAPresetOfThatName)
{
    Target(panel, {&styles.WithColor("object", 5)});
    panel.Invoke(L"OnAddPreset");
    Dialog().Write<OvxStringT>(L"AddPresetName", L"a");

    Dialog().Invoke(L"OnAddPresetOk");

    EXPECT_THAT(log.LinesOf({"AddPreset("}),
                ElementsAre("AddPreset(FillPresets, a, style{fill.color=5}, replace)"));
}

/// Titles from patterns that no catalogue has.
class ReplacedTexts : public ReplacedHost
{
protected:
    ReplacedTexts()
    {
        replacements.texts[L"category.fill"] = L"Fill";
        NameInSheet(L"Base", base);
    }

    OvxStringT TitleFrom(const wchar_t* pattern)
    {
        replacements.texts[L"e14efa70-e60c-4529-b1d8-e5e8cc8d6c4a"] = pattern;
        Target(panel, {&box});
        return panel.GetSectionTitle();
    }

    Style& base = styles.WithFill("base");
    Style& box = styles.WithFill("box", &base);
};

TEST_F(ReplacedTexts, PutCategoryAndStyleWhereThePatternHasThem)
{
    EXPECT_EQ(TitleFrom(L"%2 (%1)"), L"<Base> (Fill)");
}

TEST_F(ReplacedTexts, GiveTheCategoryAloneForAnEmptyPattern)
{
    replacements.texts[L"category.fill"] = L"Lines & Fills";

    EXPECT_EQ(TitleFrom(L""), L"Lines && Fills")
        << "as a title of new targets, not as one that is filled in later";
}

TEST_F(ReplacedTexts, DoubleTheAmpersandsOfThePatternToo)
{
    EXPECT_EQ(TitleFrom(L"%1 & %2"), L"Fill && <Base>");
}

TEST_F(ReplacedTexts, DoNotFillWhatANameBringsIn)
{
    sheet.entries.front().name = L"%1";

    EXPECT_EQ(TitleFrom(L"%1: %2"), L"Fill: <%1>");
}

TEST_F(ReplacedTexts, AreFetchedForTheTitleAfterTheDisplayName)
{
    Target(panel, {&box});

    EXPECT_THAT(
        log.LinesOf({"text e14efa70", "stylesApp"}),
        ElementsAre("stylesApp.GetDisplayStyleName(Base)", "text e14efa70-e60c-4529-b1d8-e5e8cc8d6c4a"));
}

TEST_F(ReplacedTexts, AreNotFetchedForATitleWithoutAStyle)
{
    Target(panel, {&base});

    EXPECT_THAT(log.LinesOf({"text e14efa70"}), IsEmpty());
}

TEST_F(ReplacedTexts, AreFetchedForNoPresetInAPanelWithPresetsOnly)
{
    panel.SelectNoPreset();
    EXPECT_THAT(log.LinesOf({"text"}), IsEmpty());

    panel.presetCategory = L"FillPresets";
    panel.SelectNoPreset();

    EXPECT_THAT(log.LinesOf({"text"}), ElementsAre("text f5cefe53-8452-41c0-888b-b882ff5a4ba0"));
}

/// Menu entries from patterns that no catalogue has.
class ReplacedMenuTexts : public ReplacedTexts
{
protected:
    ReplacedMenuTexts() { Target(panel, {&box}); }

    OvxStringT Revert() const { return panel.Read<OvxStringT>(L"RevertToMenuString"); }
};

TEST_F(ReplacedMenuTexts, HaveAKeyForEachEntry)
{
    EXPECT_EQ(panel.Read<OvxStringT>(L"RevertToMenuString"), L"f6dd6f91-646d-4758-ba17-db358538fa3e");
    EXPECT_EQ(panel.Read<OvxStringT>(L"ApplyToMenuString"), L"6d36d862-aac1-4e48-a9eb-2ac57f1862b1");
    EXPECT_EQ(panel.Read<OvxStringT>(L"EditStyleMenuString"), L"a17f1a53-850c-459c-81df-297c75d6e567");
}

TEST_F(ReplacedMenuTexts, KeepTheAmpersandsOfThePattern)
{
    replacements.texts[L"f6dd6f91-646d-4758-ba17-db358538fa3e"] = L"&Revert to %1";
    sheet.entries.front().name = L"R&D";

    EXPECT_EQ(Revert(), L"&Revert to <R&&D>");
}

TEST_F(ReplacedMenuTexts, PutTheNameInEveryPlaceOfThePattern)
{
    replacements.texts[L"f6dd6f91-646d-4758-ba17-db358538fa3e"] = L"%1 (100%%) %1";

    EXPECT_EQ(Revert(), L"<Base> (100%) <Base>");
}

TEST_F(ReplacedMenuTexts, AreEmptyForAnEmptyPattern)
{
    replacements.texts[L"f6dd6f91-646d-4758-ba17-db358538fa3e"] = L"";

    EXPECT_EQ(Revert(), L"");
}

TEST_F(ReplacedMenuTexts, DoubleTheAmpersandsOfTheTextForAParentWithoutAName)
{
    replacements.texts[L"f6dd6f91-646d-4758-ba17-db358538fa3e"] = L"%1";
    replacements.texts[L"1afd0b33-8a69-4ebe-bfcd-a0c00531518a"] = L"Base & Co";
    sheet.entries.clear();

    EXPECT_EQ(Revert(), L"Base && Co");
}

} // namespace
