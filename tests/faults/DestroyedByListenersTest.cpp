// A listener ends the data source that tells it, a sibling of that, or the document, from inside every
// notification: the end waits for the idle step, and nobody is on the way through what is gone.

#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/style_model/CategoryNames.h"
#include "module/StylesCommon.h"
#include "reference_host/services/Idle.h"
#include "tests/datasource/support/WritingTest.h"
#include "tests/faults/FaultSubject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <set>
#include <string>
#include <tuple>

namespace
{

using namespace Styles;

/// Counts itself among those that live.
class CountedPanel final : public OpenPanel
{
public:
    explicit CountedPanel(int& countOfLiving) : living(countOfLiving) { ++living; }

    CountedPanel(const CountedPanel&) = delete;
    CountedPanel& operator=(const CountedPanel&) = delete;

    ~CountedPanel() override { --living; }

private:
    int& living;
};

/// What a listener ends.
enum class Victim
{
    DataSource,
    Sibling,
    Document
};

/// A panel and a sibling of it that live as a host makes them: until Destroy. Their targets belong to a
/// document of its own.
class DoomedPanels
{
public:
    /// `countOfLiving` is how many panels there are.
    explicit DoomedPanels(int& countOfLiving)
        : panel(std::make_unique<CountedPanel>(countOfLiving).release()),
          sibling(std::make_unique<CountedPanel>(countOfLiving).release())
    {
        subject.OpenPresets();
        for (CountedPanel* each : {panel, sibling})
        {
            each->presetCategory = L"FillPresets";
            each->SetDataSourceProvider(&subject.context);
            each->Complete();
        }
        sibling->SetTargetStyle({document.back().get()}, false, PropertyPath(), {});
        panel->RegisterSiblingDS(sibling);
        sibling->RegisterSiblingDS(panel);
        panel->SetTargetStyle({document.front().get()}, false, PropertyPath(), {});
    }

    DoomedPanels(const DoomedPanels&) = delete;
    DoomedPanels& operator=(const DoomedPanels&) = delete;

    ~DoomedPanels()
    {
        for (const ListenerToken& token : tokens)
            Events().Unsubscribe(token);
        for (const Victim each : {Victim::DataSource, Victim::Sibling})
            End(each);
        ReferenceHost::RunIdle();
    }

    /// Listens to everything, to end the victim at the first news.
    void Doom(Victim victim)
    {
        const auto end = [this, victim](const auto& /*news*/)
        {
            ++heard;
            End(victim);
        };
        for (IBroadcaster* each : std::initializer_list<IBroadcaster*>{panel, sibling, &subject.DialogNews()})
        {
            for (const wchar_t* name :
                 {L"SectionTitle", L"RevertToParentEnable", L"BreakColorResourceEnable", L"CurrentPreset",
                  L"DeletePresetEnabled", L"PresetList", L"BaseStylePropertiesDatasourceOkEnabled",
                  L"AddPresetOkEnabled", L"FillPresets"})
                each->AddListener(name, end);
        }
        for (const wchar_t* name : {L"StylePropertiesChange", L"ObjectStyleChanged"})
            tokens.push_back(Events().SubscribeGeneric(name, end));
    }

    /// What a host does with the victim.
    void End(Victim victim)
    {
        if (!ended.insert(victim).second)
            return;
        if (victim == Victim::Document)
            subject.app.source = nullptr;
        else
            (victim == Victim::Sibling ? sibling : panel)->Destroy();
    }

    /// What a host does when it is idle: data sources that are going are untied first, and the panels let go
    /// of the targets of a document before its styles go.
    void RunIdle()
    {
        if (ended.contains(Victim::Sibling))
            panel->UnregisterSiblingDS(sibling);
        if (ended.contains(Victim::DataSource))
            sibling->UnregisterSiblingDS(panel);
        if (ended.contains(Victim::Document))
        {
            for (CountedPanel* each : {sibling, panel})
                each->SetTargetStyle({}, false, PropertyPath(), {});
            document.clear();
        }
        ReferenceHost::RunIdle();
    }

    static IAppEventBroadcaster& Events() { return OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance(); }

    int heard = 0;
    FaultSubject subject;
    std::vector<std::unique_ptr<Style>> document = MakeDocument();
    CountedPanel* panel;   ///< Until its Destroy.
    CountedPanel* sibling; ///< Until its Destroy.

private:
    static std::vector<std::unique_ptr<Style>> MakeDocument()
    {
        std::vector<std::unique_ptr<Style>> made;
        for (int count = 0; count < 2; ++count)
            FillOf(*made.emplace_back(std::make_unique<Style>(nullptr, StyleCategoryName)))
                .SetProperty(Key(L"color"), OvxUtils::Any(count));
        return made;
    }

    std::set<Victim> ended;
    std::vector<ListenerToken> tokens;
};

/// Something that is told to listeners.
struct News
{
    const char* name;
    void (*tell)(DoomedPanels& panels);
};

void DropGroupOfDefaults(DoomedPanels& panels)
{
    panels.panel->StartGroupModify();
    panels.panel->EndGroupModify(false);
}

void OpenDialog(DoomedPanels& panels)
{
    panels.panel->SetTargetStyle({panels.document.front().get()}, false, PropertyPath(), {});
    panels.panel->OnAddPreset();
}

const std::vector<News>& AllNews()
{
    using P = DoomedPanels;
    static const std::vector<News> all{
        {"NewTargets",
         [](P& p) { p.panel->SetTargetStyle({p.document.front().get()}, false, PropertyPath(), {}); }},
        {"AnotherIdentifier", [](P& p) { p.panel->SetActiveIdentifier(L"color"); }},
        {"AnotherListItem", [](P& p) { p.panel->SetCurrentListStyleItem(WXmlNode()); }},
        {"ASelectedPreset", [](P& p) { p.panel->SetCurrentPreset(*p.panel->GetPresetList().GetItem(0)); }},
        {"AnOpenedDialog", OpenDialog},
        {"ADeletedPreset", [](P& p) { p.panel->OnDeletePreset(); }},
        {"UpdatedPresets", [](P& p) { p.panel->OnPresetsListUpdated(); }},
        {"ADroppedGroup",
         [](P& p)
         {
             p.panel->SetTargetStyle({}, true, PropertyPath(), {});
             DropGroupOfDefaults(p);
         }},
        {"ChangedDefaults",
         [](P& p)
         {
             p.panel->ModifyDefaultStyles(Paths({L"color"}), nullptr);
             P::Events().DeliverPending();
         }},
        {"ATypedName", [](P& p) { p.subject.Dialog().Write<OvxStringT>(L"AddPresetName", L"New"); }},
        {"AKeptPreset",
         [](P& p)
         {
             OpenDialog(p);
             p.subject.Dialog().Invoke(L"OnAddPresetOk");
         }},
    };
    return all;
}

class DestroyedByAListener : public testing::TestWithParam<std::tuple<News, Victim>>
{
};

TEST_P(DestroyedByAListener, GoesWithTheIdleStep)
{
    const auto& [news, victim] = GetParam();
    int living = 0;
    {
        DoomedPanels panels(living);
        panels.Doom(victim);

        news.tell(panels);
        const int livingMeanwhile = living;
        panels.RunIdle();

        EXPECT_GT(panels.heard, 0);
        EXPECT_EQ(livingMeanwhile, 2);
        EXPECT_EQ(living, victim == Victim::Document ? 2 : 1);
    }
    EXPECT_EQ(living, 0);
}

std::string NameOf(const testing::TestParamInfo<std::tuple<News, Victim>>& each)
{
    constexpr std::array<const char*, 3> victims{"DataSource", "Sibling", "Document"};
    return std::string(victims.at(static_cast<std::size_t>(std::get<1>(each.param)))) + "On" +
           std::get<0>(each.param).name;
}

INSTANTIATE_TEST_SUITE_P(News, DestroyedByAListener,
                         testing::Combine(testing::ValuesIn(AllNews()),
                                          testing::Values(Victim::DataSource, Victim::Sibling,
                                                          Victim::Document)),
                         NameOf);

} // namespace
