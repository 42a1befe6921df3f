// What panels announce when presets come and go.

#include "host/data_binding/IBroadcaster.h"
#include "host/data_binding/IReflectable.h"
#include "host/style_model/CategoryNames.h"
#include "host/ui_list/WCmnUI_List.h"
#include "tests/panels/PanelFixture.h"
#include "tests/workbench/ScratchConfiguration.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace PanelTests
{
namespace
{

/// The shipped panels in the host's current context, beside the home of the preset lists. What they announce
/// as "PresetList" is taken down by the name that a test gives them.
class PresetsOfPanels : public PanelFixture
{
protected:
    PresetsOfPanels()
    {
        application.SetObjectPropertiesContext(&context);
        source.SetPresetKeeper(&application.GetPresets());
        source.SetPresetCategory(L"FillPresets", Styles::FillStyleCategoryName);
        source.SetPresetCategory(L"OutlinePresets", Styles::OutlineStyleCategoryName);
    }

    ~PresetsOfPanels() override { application.SetObjectPropertiesContext(nullptr); }

    /// Makes the home of the preset lists; panels look for it when they are made.
    IReflectable& OpenPresets()
    {
        presets = dynamic_cast<IReflectable*>(context.CreateDataSource(L"StylePresets"));
        return *presets;
    }

    BaseStylePropertiesDatasource& Open(const wchar_t* module, const wchar_t* className, const char* name)
    {
        return ListenTo(OpenPanel(module, className), name);
    }

    BaseStylePropertiesDatasource& OpenFill() { return Open(L"fill", L"FillPanelDatasource", "fill"); }

    BaseStylePropertiesDatasource& OpenOutline()
    {
        return Open(L"outline", L"OutlinePanelDatasource", "outline");
    }

    /// A second fill panel, in a context of its own.
    BaseStylePropertiesDatasource& OpenSecondFill()
    {
        return ListenTo(
            dynamic_cast<BaseStylePropertiesDatasource&>(*second.CreateDataSource(L"FillPanelDatasource")),
            "second fill");
    }

    BaseStylePropertiesDatasource& ListenTo(BaseStylePropertiesDatasource& panel, const char* name)
    {
        panel.AddListener(L"PresetList", [this, name](const OvxStringT&) { announced.emplace_back(name); });
        return panel;
    }

    /// Keeps the object as a preset by a panel's command and its dialog.
    void Add(BaseStylePropertiesDatasource& panel, const wchar_t* name)
    {
        panel.SetTargetStyle({object}, /*isDefault=*/false, Styles::PropertyPath(), {});
        static_cast<void>(panel.Read<WCmnUI_List>(L"PresetList"));
        panel.Invoke(L"OnAddPreset");
        presets->Write<OvxStringT>(L"AddPresetName", name);
        presets->Invoke(L"OnAddPresetOk");
    }

    WorkbenchTests::ScratchConfiguration configuration;
    ReferenceHost::DataContext second{nullptr, nullptr};
    IReflectable* presets = nullptr;
    Styles::Style* object = document.AddObject(nullptr);
    std::vector<std::string> announced;
};

} // namespace

TEST_F(PresetsOfPanels, AreAnnouncedByAllPanelsOfTheirCategoryWhenOneIsAdded)
{
    OpenPresets();
    BaseStylePropertiesDatasource& fill = OpenFill();
    OpenOutline();
    OpenSecondFill();

    Add(fill, L"Warm");

    EXPECT_THAT(announced, ElementsAre("fill", "second fill"));
}

TEST_F(PresetsOfPanels, AreAnnouncedByAllPanelsOfTheirCategoryWhenOneIsDeleted)
{
    OpenPresets();
    BaseStylePropertiesDatasource& outline = OpenOutline();
    OpenFill();
    Add(outline, L"Thick");
    announced.clear();

    outline.Write<WCmnUI_ListItem>(L"CurrentPreset", *outline.Read<WCmnUI_List>(L"PresetList").GetItem(0));
    outline.Invoke(L"OnDeletePreset");

    EXPECT_THAT(announced, ElementsAre("outline"));
}

TEST_F(PresetsOfPanels, AreUpToDateInTheOtherPanelWhenTheyAreAnnounced)
{
    OpenPresets();
    BaseStylePropertiesDatasource& fill = OpenFill();
    BaseStylePropertiesDatasource& other = OpenSecondFill();
    std::vector<std::size_t> counts;
    other.AddListener(L"PresetList", [&](const OvxStringT&)
                      { counts.push_back(other.Read<WCmnUI_List>(L"PresetList").GetCount()); });

    Add(fill, L"Warm");
    Add(fill, L"Cold");

    EXPECT_THAT(counts, ElementsAre(1U, 2U));
}

TEST_F(PresetsOfPanels, AreNotAnnouncedByAPanelWithoutAny)
{
    OpenPresets();
    BaseStylePropertiesDatasource& fill = OpenFill();
    Open(L"style", L"StylePanelDatasource", "style");
    Open(L"character", L"CharacterPanelDatasource", "character");

    Add(fill, L"Warm");

    EXPECT_THAT(announced, ElementsAre("fill"));
}

TEST_F(PresetsOfPanels, ReachNoPanelThatIsGone)
{
    OpenPresets();
    BaseStylePropertiesDatasource& fill = OpenFill();
    OpenSecondFill();
    ASSERT_TRUE(second.RemoveDataSource(L"FillPanelDatasource"));

    Add(fill, L"Warm");

    EXPECT_THAT(announced, ElementsAre("fill"));
}

TEST_F(PresetsOfPanels, ReachNoPanelThatWentWhereTheyCouldNotBeFound)
{
    OpenPresets();
    BaseStylePropertiesDatasource& fill = OpenFill();
    OpenSecondFill();
    application.SetObjectPropertiesContext(nullptr);
    ASSERT_TRUE(second.RemoveDataSource(L"FillPanelDatasource"));
    application.SetObjectPropertiesContext(&context);

    Add(fill, L"Warm");

    EXPECT_THAT(announced, ElementsAre("fill"));
}

TEST_F(PresetsOfPanels, MayGoBeforeThePanels)
{
    OpenPresets();
    OpenFill();
    ASSERT_TRUE(context.RemoveDataSource(L"StylePresets"));

    EXPECT_TRUE(context.RemoveDataSource(L"FillPanelDatasource"));

    EXPECT_THAT(announced, IsEmpty());
}

TEST_F(PresetsOfPanels, NeedNotBeThere)
{
    BaseStylePropertiesDatasource& fill = OpenFill();

    EXPECT_EQ(fill.Read<WCmnUI_List>(L"PresetList").GetCount(), 0U);
    EXPECT_THAT(announced, IsEmpty());
}

} // namespace PanelTests
