// What each operation tells, however many targets there are. The page of notifications has a row for each of
// these tests, and what is told is compared with the row.

#include "host/data_binding/DataSource.h"
#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/style_model/CategoryNames.h"
#include "host/ui_list/WCmnUI_List.h"
#include "host/ui_list/WCmnUI_ListItem.h"
#include "host/utils/Utf8.h"
#include "host/xml/WXPath.h"
#include "host/xml/WXmlNode.h"
#include "reference_host/services/Idle.h"
#include "reference_host/style_model/CategoryRegistry.h"
#include "tests/panels/NotificationPage.h"
#include "tests/panels/PanelFixture.h"
#include "tests/workbench/ScratchConfiguration.h"

#include <map>
#include <set>
#include <string>

namespace PanelTests
{

/// A panel of fills that adds nothing to what the library tells.
class TellingPanel : public BaseStylePropertiesDatasource, public DataSource<TellingPanel, true>
{
public:
    void FillDataSourceMap() {}

    [[nodiscard]] OvxStringT PresetCategoryName() const override { return L"FillPresets"; }

    using BaseStylePropertiesDatasource::ClearProperties;
    using BaseStylePropertiesDatasource::OnPresetsListUpdated;
    using BaseStylePropertiesDatasource::WriteTarget;

    Styles::PropertyKey category = Styles::FillStyleCategoryName;

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override { return category; }
};

namespace
{

using OvxUtils::Any;
using testing::Values;

/// A document that makes the styles that it is asked for.
class NamingDocument : public PanelDocument
{
public:
    Styles::Style* AddStyle(const Styles::PropertyKey& /*category*/, const OvxStringT& name) override
    {
        return AddNamed(name);
    }

    Styles::Style* GetObjectStyle(std::size_t object) override
    {
        return reinterpret_cast<Styles::Style*>(object);
    }
};

/// A factory that is registered for as long as it lives.
class TellingPanelRegistration
{
public:
    TellingPanelRegistration() { IDataSourceRegistrar::GetInstance().RegisterFactory(&factory); }

    TellingPanelRegistration(const TellingPanelRegistration&) = delete;
    TellingPanelRegistration& operator=(const TellingPanelRegistration&) = delete;

    ~TellingPanelRegistration() { IDataSourceRegistrar::GetInstance().UnregisterFactory(&factory); }

    DataSourceFactory<TellingPanel> factory{L"frame"};
};

/// The name of the running test, without the number of targets.
std::string NameOfTest()
{
    const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
    return name.substr(0, name.find('/'));
}

/// A panel with that many objects that set their own colour and inherit from "Base".
class Notifications : public PanelFixture, public testing::WithParamInterface<std::size_t>
{
protected:
    Notifications()
    {
        ReferenceHost::CategoryRegistry::GetInstance().RegisterProperties(Styles::FillStyleCategoryName,
                                                                          {Key(L"color")});
        application.OpenDocument(&namingSource, &naming);
        application.SetObjectPropertiesContext(&context);
        namingSource.SetPresetKeeper(&application.GetPresets());
        namingSource.SetPresetCategory(L"FillPresets", Styles::FillStyleCategoryName);
        context.CreateDataSource(L"StylePresets");
        panel = dynamic_cast<TellingPanel*>(context.CreateDataSource(registration.factory.GetTypeKey()));

        Set(base, L"fill", L"color", Colour(0x0000ff));
        naming.AddNamed(L"Other");
        objects = naming.AddObjects(GetParam(), base);
        SetColours(Colour(0xff0000));
        ListenToEvents();
        ListenTo(*panel);
        Hand(*panel);
    }

    ~Notifications() override
    {
        for (const ListenerToken token : subscriptions)
            Events().Unsubscribe(token);
        application.SetObjectPropertiesContext(nullptr);
    }

    /// Does the work and compares what is told, until the application is idle, with the row of the page.
    template <class Work>
    void ExpectRow(const Work& work)
    {
        naming.GetHistory().EndLooseStep();
        ReferenceHost::RunIdle();
        heard.clear();

        work();

        ReferenceHost::RunIdle();
        const auto page = ReadNotificationPage();
        ASSERT_TRUE(page.contains(NameOfTest()));
        EXPECT_EQ(heard, page.at(NameOfTest()));
    }

    void ListenTo(BaseStylePropertiesDatasource& told)
    {
        for (const OvxStringT& name : told.GetNames())
            told.AddListener(name, [this](const OvxStringT& changed)
                             { heard.push_back(OvxUtils::ToUtf8(changed)); });
    }

    /// Hands the objects in, with themselves as their numbers, and as what is selected.
    void Hand(BaseStylePropertiesDatasource& edited)
    {
        edited.SetObjectStyles(Owners());
        SetTargets(edited, objects);
        namingSource.SetSelectedStyles(objects);
    }

    [[nodiscard]] std::map<Styles::Style*, std::size_t> Owners() const
    {
        std::map<Styles::Style*, std::size_t> owners;
        for (Styles::Style* object : objects)
            owners.emplace(object, reinterpret_cast<std::size_t>(object));
        return owners;
    }

    void HandDefaults() const
    {
        panel->SetObjectStyles({});
        panel->SetTargetStyle({naming.GetDefaults()}, /*isDefault=*/true, Styles::PropertyPath(), {});
    }

    void SetColours(const Any& colour)
    {
        for (Styles::Style* object : objects)
            Set(object, L"fill", L"color", colour);
    }

    void Write(std::uint32_t rgb) const { panel->WriteTarget(Key(L"color"), Colour(rgb), nullptr, nullptr); }

    /// What the list of whole styles has for the one that the objects do not inherit from.
    [[nodiscard]] WXmlNode ListedStyle() const
    {
        panel->category = Styles::StyleCategoryName;
        return panel->Read<WXmlNode>(L"StyleResourceList").GetNode(WXPath(L"itemData[@styleName='Other']"));
    }

    /// Keeps the first object as a preset and selects it.
    void SelectPreset(const wchar_t* name)
    {
        AddPreset(name);
        panel->Write<WCmnUI_ListItem>(L"CurrentPreset", *panel->Read<WCmnUI_List>(L"PresetList").GetItem(0));
    }

    void AddPreset(const wchar_t* name)
    {
        auto& presets = dynamic_cast<IReflectable&>(*context.GetDataSource(L"StylePresets"));
        static_cast<void>(panel->Read<WCmnUI_List>(L"PresetList"));
        panel->Invoke(L"OnAddPreset");
        presets.Write<OvxStringT>(L"AddPresetName", name);
        presets.Invoke(L"OnAddPresetOk");
    }

    WorkbenchTests::ScratchConfiguration configuration;
    TellingPanelRegistration registration;
    NamingDocument naming;
    ReferenceHost::DocumentStylesSource namingSource{naming};
    Styles::Style* base = naming.AddNamed(L"Base");
    std::vector<Styles::Style*> objects;
    TellingPanel* panel = nullptr; ///< Owned by the context.
    std::vector<std::string> heard;

private:
    static IAppEventBroadcaster& Events() { return OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance(); }

    void ListenToEvents()
    {
        const auto take = [this](const char* event)
        { return [this, event](const std::vector<Any>&) { heard.emplace_back(event); }; };
        subscriptions = {
            Events().SubscribeGeneric(L"StylePropertiesChange", take("on idle StylePropertiesChange")),
            Events().SubscribeGeneric(L"ObjectStyleChanged", take("at once ObjectStyleChanged"))};
    }

    std::vector<ListenerToken> subscriptions;
};

INSTANTIATE_TEST_SUITE_P(Count, Notifications, Values(1, 2, 3, 500, 10'000),
                         [](const testing::TestParamInfo<std::size_t>& count)
                         { return std::to_string(count.param); });

TEST_P(Notifications, OfNewTargets)
{
    ExpectRow([&] { SetTargets(*panel, objects); });
}

TEST_P(Notifications, OfNewTargetsWithSiblings)
{
    TellingPanel sibling;
    SetTargets(sibling, objects);
    panel->RegisterSiblingDS(&sibling);

    ExpectRow([&] { SetTargets(*panel, objects); });
}

TEST_P(Notifications, OfObjectsThatAreHandedIn)
{
    ExpectRow([&] { panel->SetObjectStyles(Owners()); });
}

TEST_P(Notifications, OfObjectsThatAreTakenAway)
{
    ExpectRow([&] { panel->ClearObjectStyles(); });
}

TEST_P(Notifications, OfAnActiveIdentifier)
{
    ExpectRow([&] { panel->Write<OvxStringT>(L"ActiveIdentifier", L"color"); });
}

TEST_P(Notifications, OfAWrite)
{
    ExpectRow([&] { Write(0x00ff00); });
}

TEST_P(Notifications, OfAWriteThatChangesNothing)
{
    ExpectRow([&] { Write(0xff0000); });
}

TEST_P(Notifications, OfClearedProperties)
{
    ExpectRow([&] { panel->ClearProperties({Styles::MakePath(Key(L"color"))}); });
}

TEST_P(Notifications, OfAGroupThatIsCommitted)
{
    ExpectRow(
        [&]
        {
            panel->StartGroupModify();
            for (const std::uint32_t rgb : {0x000001U, 0x000002U, 0x000003U})
                Write(rgb);
            panel->EndGroupModify(true);
        });
}

TEST_P(Notifications, OfAGroupThatIsCancelled)
{
    ExpectRow(
        [&]
        {
            panel->StartGroupModify();
            Write(0x00ff00);
            panel->EndGroupModify(false);
        });
}

TEST_P(Notifications, OfAWriteToDefaults)
{
    HandDefaults();

    ExpectRow([&] { Write(0x00ff00); });
}

TEST_P(Notifications, OfAGroupOnDefaultsThatIsCommitted)
{
    HandDefaults();

    ExpectRow(
        [&]
        {
            panel->StartGroupModify();
            for (const std::uint32_t rgb : {0x000001U, 0x000002U, 0x000003U})
                Write(rgb);
            panel->EndGroupModify(true);
        });
}

TEST_P(Notifications, OfAGroupOnDefaultsThatIsCancelled)
{
    HandDefaults();

    ExpectRow(
        [&]
        {
            panel->StartGroupModify();
            Write(0x00ff00);
            panel->EndGroupModify(false);
        });
}

TEST_P(Notifications, OfRevertingToTheParent)
{
    panel->Write<OvxStringT>(L"ActiveIdentifier", L"color");

    ExpectRow([&] { panel->Invoke(L"OnRevertToParent"); });
}

TEST_P(Notifications, OfApplyingToTheParent)
{
    panel->Write<OvxStringT>(L"ActiveIdentifier", L"style");

    ExpectRow([&] { panel->Invoke(L"OnApplyToParent"); });
}

/// One target alone has a link that the command breaks; that of several stays.
TEST_P(Notifications, OfBreakingALink)
{
    SetColours(PaletteColour(L"Sea", 0x123456));
    SetTargets(*panel, {objects.front()});
    panel->Write<OvxStringT>(L"ActiveIdentifier", L"color");

    ExpectRow([&] { panel->Invoke(L"OnBreakColorResource"); });
}

TEST_P(Notifications, OfACreatedStyle)
{
    ExpectRow([&] { panel->Invoke(L"OnCreateStyleFrom"); });
}

TEST_P(Notifications, OfEditingAStyle)
{
    ExpectRow([&] { panel->Invoke(L"OnEditStyle"); });
}

TEST_P(Notifications, OfShownStyles)
{
    ExpectRow([&] { static_cast<void>(panel->Read<WXmlNode>(L"StyleResourceList")); });
}

TEST_P(Notifications, OfAPickedStyle)
{
    const WXmlNode other = ListedStyle();
    const auto id = static_cast<unsigned>(other.Attribute(L"@placeholderCommandID").GetInt());

    ExpectRow([&] { panel->Write<unsigned>(L"ApplyStyleResource", id); });

    EXPECT_EQ(objects.back()->GetParent(), naming.GetStyleSheet()->GetStyle(L"Other"));
}

TEST_P(Notifications, OfAStyleThatIsChosenInTheDialog)
{
    const WXmlNode item = ListedStyle();

    ExpectRow([&] { panel->Write<WXmlNode>(L"CurrentListStyleItem", item); });
}

TEST_P(Notifications, OfADialogThatIsAccepted)
{
    const WXmlNode item = ListedStyle();
    panel->Write<WXmlNode>(L"CurrentListStyleItem", item);

    ExpectRow([&] { panel->Invoke(L"OnBaseStylePropertiesDatasourceOk"); });

    EXPECT_EQ(objects.back()->GetParent(), naming.GetStyleSheet()->GetStyle(L"Other"));
}

TEST_P(Notifications, OfAPresetThatIsSelected)
{
    SelectPreset(L"Warm");
    SetColours(Colour(0x00ff00));
    const WCmnUI_ListItem warm = panel->Read<WCmnUI_ListItem>(L"CurrentPreset");

    ExpectRow([&] { panel->Write<WCmnUI_ListItem>(L"CurrentPreset", warm); });
}

TEST_P(Notifications, OfNoPreset)
{
    ExpectRow([&] { panel->Write<WCmnUI_ListItem>(L"CurrentPreset", WCmnUI_ListItem()); });
}

TEST_P(Notifications, OfOpeningTheDialogForAPreset)
{
    ExpectRow([&] { panel->Invoke(L"OnAddPreset"); });
}

TEST_P(Notifications, OfADeletedPreset)
{
    SelectPreset(L"Warm");

    ExpectRow([&] { panel->Invoke(L"OnDeletePreset"); });
}

TEST_P(Notifications, OfChangedPresets)
{
    ExpectRow([&] { panel->OnPresetsListUpdated(); });
}

TEST_P(Notifications, OfUndo)
{
    Write(0x00ff00);

    ExpectRow([&] { naming.GetHistory().Undo(); });
}

TEST_P(Notifications, OfRedo)
{
    Write(0x00ff00);
    naming.GetHistory().Undo();

    ExpectRow([&] { naming.GetHistory().Redo(); });
}

/// The same of a panel that is shipped.
class NotificationsOfAShippedPanel : public Notifications
{
protected:
    NotificationsOfAShippedPanel() : fill(OpenPanel(L"fill", L"FillPanelDatasource"))
    {
        ListenTo(fill);
        Hand(fill);
    }

    BaseStylePropertiesDatasource& fill;
};

INSTANTIATE_TEST_SUITE_P(Count, NotificationsOfAShippedPanel, Values(1, 2, 3, 500, 10'000),
                         [](const testing::TestParamInfo<std::size_t>& count)
                         { return std::to_string(count.param); });

TEST_P(NotificationsOfAShippedPanel, OfAWrittenRow)
{
    ExpectRow([&] { fill.Write<Any>(L"FillColor", Colour(0x00ff00)); });
}

TEST_P(NotificationsOfAShippedPanel, OfARowThatIsApplied)
{
    ExpectRow([&] { fill.Invoke(L"FillColorApplyToParent"); });

    EXPECT_EQ(base->GetPathProperty({Styles::FillStyleCategoryName, Key(L"color")}), Colour(0xff0000));
}

TEST_P(NotificationsOfAShippedPanel, OfAKeptPreset)
{
    ExpectRow([&] { AddPreset(L"Warm"); });
}

TEST(NotificationPage, HasOneRowForEachTest)
{
    std::set<std::string> tested;
    const testing::UnitTest& all = *testing::UnitTest::GetInstance();
    for (int suite = 0; suite < all.total_test_suite_count(); ++suite)
    {
        const testing::TestSuite& tests = *all.GetTestSuite(suite);
        if (std::string(tests.name()).find("/Notifications") == std::string::npos)
            continue;
        for (int test = 0; test < tests.total_test_count(); ++test)
        {
            const std::string name = tests.GetTestInfo(test)->name();
            tested.insert(name.substr(0, name.find('/')));
        }
    }

    std::set<std::string> described;
    for (const auto& [name, told] : ReadNotificationPage())
        described.insert(name);
    EXPECT_EQ(described, tested);
}

} // namespace

} // namespace PanelTests
