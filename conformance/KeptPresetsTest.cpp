#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/CategoryNames.h"
#include "host/style_model/PresetListEntry.h"
#include "host/style_model/StylePresetManager.h"
#include "host/ui_list/WCmnUI_List.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

HOST_TESTS_SUBJECT(KeptPresetsTest);

// Presets: kept, listed and applied.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::Style;
using Styles::StyleCategoryName;
using Styles::StylePresetManager;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace
{

constexpr const wchar_t* kCategory = L"FillPresets";

class Preset : public HostTest
{
protected:
    Preset()
    {
        shown.SetPathProperty(Path({L"fill", L"color"}), Number(1));
        shown.SetPathProperty(Path({L"outline", L"width"}), Number(2));
    }

    /// Keeps a whole style whose fill has a colour and whose outline has a width.
    bool Keep(const wchar_t* name, bool replace = true)
    {
        return presets.AddPreset(kCategory, name, shown, replace);
    }

    [[nodiscard]] static OvxUtils::Any OwnColor(const DocumentObject& object)
    {
        return OwnValue(*object.style, Path({L"fill", L"color"}));
    }

    StylePresetManager& presets = GetStylesApp().GetStylePresetManager();
    Style shown{nullptr, StyleCategoryName};
};

} // namespace

TEST_F(Preset, IsNotThereBeforeItWasKept)
{
    EXPECT_THAT(presets.GetPresetNames(kCategory), IsEmpty());
    EXPECT_FALSE(presets.DoesPresetNameExist(kCategory, L"Sea"));
    EXPECT_FALSE(presets.DeletePreset(kCategory, L"Sea"));
}

TEST_F(Preset, IsListedInItsCategoryAlone)
{
    EXPECT_TRUE(Keep(L"Sea"));
    EXPECT_TRUE(Keep(L"Sunset"));

    EXPECT_THAT(presets.GetPresetNames(kCategory),
                UnorderedElementsAre(OvxStringT(L"Sea"), OvxStringT(L"Sunset")));
    EXPECT_TRUE(presets.DoesPresetNameExist(kCategory, L"Sea"));
    EXPECT_FALSE(presets.DoesPresetNameExist(L"OutlinePresets", L"Sea"));
    EXPECT_THAT(presets.GetPresetNames(L"OutlinePresets"), IsEmpty());
}

TEST_F(Preset, IsListedInTheSameOrderEachTime)
{
    for (const wchar_t* const name : {L"b", L"a", L"C", L"10", L"9"})
        Keep(name);

    EXPECT_EQ(presets.GetPresetNames(kCategory), presets.GetPresetNames(kCategory));
    EXPECT_EQ(presets.GetPresetNames(kCategory).size(), 5U);
}

TEST_F(Preset, MayHaveAnyName)
{
    const std::vector<OvxStringT> names{L"Sea / Sky: 50%?", L"..", L"Gr\u00fcn \u65e5\u672c",
                                        L" a \"b\" & <c>"};

    for (const OvxStringT& name : names)
        EXPECT_TRUE(Keep(name.c_str()));

    EXPECT_THAT(presets.GetPresetNames(kCategory), testing::UnorderedElementsAreArray(names));
}

TEST_F(Preset, IsGoneAfterItWasDeleted)
{
    Keep(L"Sea");

    EXPECT_TRUE(presets.DeletePreset(kCategory, L"Sea"));

    EXPECT_THAT(presets.GetPresetNames(kCategory), IsEmpty());
    EXPECT_FALSE(presets.DeletePreset(kCategory, L"Sea"));
}

TEST_F(Preset, IsReplacedOnlyOnDemand)
{
    const DocumentObject object = host->AddObject();
    Keep(L"Sea");
    shown.SetPathProperty(Path({L"fill", L"color"}), Number(5));

    EXPECT_FALSE(Keep(L"Sea", false));
    GetSource().ApplyPresetToObjects(L"Sea", kCategory, {object.number});
    EXPECT_EQ(OwnColor(object), Number(1));

    EXPECT_TRUE(Keep(L"Sea", true));
    GetSource().ApplyPresetToObjects(L"Sea", kCategory, {object.number});
    EXPECT_EQ(OwnColor(object), Number(5));
    EXPECT_EQ(presets.GetPresetNames(kCategory).size(), 1U);
}

TEST_F(Preset, IsACopyOfTheStyleItWasMadeFrom)
{
    const DocumentObject object = host->AddObject();
    Keep(L"Sea");

    shown.SetPathProperty(Path({L"fill", L"color"}), Number(5));
    GetSource().ApplyPresetToObjects(L"Sea", kCategory, {object.number});

    EXPECT_EQ(OwnColor(object), Number(1));
}

TEST_F(Preset, HasANameProposedForIt)
{
    EXPECT_EQ(presets.GetUnusedPresetName(kCategory, L"New preset"), L"New preset");
    Keep(L"New preset");

    const OvxStringT proposed = presets.GetUnusedPresetName(kCategory, L"New preset");

    EXPECT_FALSE(proposed.empty());
    EXPECT_FALSE(presets.DoesPresetNameExist(kCategory, proposed));
}

TEST_F(Preset, IsAppliedToObjectsByTheirNumbers)
{
    const DocumentObject first = host->AddObject();
    const DocumentObject second = host->AddObject();
    const DocumentObject other = host->AddObject();
    Keep(L"Sea");

    GetSource().ApplyPresetToObjects(L"Sea", kCategory, {first.number, second.number});

    EXPECT_EQ(OwnColor(first), Number(1));
    EXPECT_EQ(OwnColor(second), Number(1));
    EXPECT_EQ(OwnColor(other), Nothing());
}

TEST_F(Preset, IsAppliedToTheSubstyleThatItsCategoryConcernsAlone)
{
    const DocumentObject object = host->AddObject();
    Keep(L"Sea");

    GetSource().ApplyPresetToObjects(L"Sea", kCategory, {object.number});

    EXPECT_EQ(OwnValue(*object.style, Path({L"outline", L"width"})), Nothing());
}

TEST_F(Preset, IsAppliedToStylesAndSubstyles)
{
    const DocumentObject object = host->AddObject();
    Style& named = *host->AddNamedStyle(StyleCategoryName, L"Named");
    Keep(L"Sea");

    GetSource().ApplyPresetToStyles(L"Sea", kCategory, {&named, &Part(*object.style, FillStyleCategoryName)});

    EXPECT_EQ(OwnValue(named, Path({L"fill", L"color"})), Number(1));
    EXPECT_EQ(OwnColor(object), Number(1));
}

TEST_F(Preset, KeepsValuesOfEveryType)
{
    const DocumentObject object = host->AddObject();
    const OvxUtils::Any colour(CLR_COLORSPEC::FromRgb({1, 2, 3}));
    const OvxUtils::Any text(OvxStringT(L" Gr\u00fcn & \"<5>\" "));
    const OvxUtils::Any key(Key(L"solid"));
    shown.SetPathProperty(Path({L"fill", L"color"}), OvxUtils::Any(colour));
    shown.SetPathProperty(Path({L"fill", L"type"}), OvxUtils::Any(key));
    shown.SetPathProperty(Path({L"fill", L"width"}), OvxUtils::Any(text));
    Keep(L"Sea");

    GetSource().ApplyPresetToObjects(L"Sea", kCategory, {object.number});

    EXPECT_EQ(OwnColor(object), colour);
    EXPECT_EQ(OwnValue(*object.style, Path({L"fill", L"type"})), key);
    EXPECT_EQ(OwnValue(*object.style, Path({L"fill", L"width"})), text);
}

TEST_F(Preset, ThatIsNotThereChangesNothing)
{
    const DocumentObject object = host->AddObject();
    Part(*object.style, FillStyleCategoryName).SetProperty(Key(L"color"), Number(7));

    GetSource().ApplyPresetToObjects(L"Sea", kCategory, {object.number});
    GetSource().ApplyPresetToStyles(L"Sea", kCategory, {object.style});

    EXPECT_EQ(OwnColor(object), Number(7));
}

// A panel takes the text of the item that is picked for the name of the preset.
TEST_F(Preset, IsShownInListsUnderItsName)
{
    WCmnUI_List list;
    std::vector<Styles::PresetListEntry> entries;
    for (const wchar_t* const name : {L"Sea", L"Sunset"})
        entries.push_back({name, list.AddItem(), entries.size()});

    GetSource().FillPresetItems(entries, kCategory);

    EXPECT_EQ(list.GetItem(0)->GetText(), L"Sea");
    EXPECT_EQ(list.GetItem(1)->GetText(), L"Sunset");
    EXPECT_EQ(list.GetItem(0)->GetIndex(), 0);
    EXPECT_EQ(list.GetItem(1)->GetIndex(), 1);
}

} // namespace HostTests
