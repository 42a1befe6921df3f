#include "tests/faults/FaultSubject.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/data_binding/IDataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/style_model/CategoryNames.h"
#include "host/style_model/StylePresetManager.h"
#include "module/StylesCommon.h"
#include "tests/datasource/support/Description.h"
#include "tests/datasource/support/WritingTest.h"

#include <algorithm>
#include <filesystem>
#include <string>

using namespace Styles;
using OvxUtils::Any;

namespace
{

/// Where presets lie; one folder for the whole run.
std::filesystem::path PresetFolder()
{
    static const struct Scratch
    {
        Scratch()
        {
            // In memory where that can be had: each failure finds its presets written anew.
            const bool hasMemory = std::filesystem::is_directory("/dev/shm");
            const auto parent = hasMemory ? "/dev/shm" : std::filesystem::temp_directory_path();
            std::string pattern = (parent / "styleproperties-faults-XXXXXX").string();
            path = mkdtemp(pattern.data());
        }

        ~Scratch()
        {
            std::error_code ignored;
            std::filesystem::remove_all(path, ignored);
        }

        std::filesystem::path path;
    } scratch;

    return scratch.path;
}

IAppEventBroadcaster& Events()
{
    return OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance();
}

constexpr const wchar_t* kCategory = L"FillPresets";

} // namespace

PropertyKey OpenPanel::GetCategory() const
{
    return FillStyleCategoryName;
}

FaultSubject::FaultSubject() : app(calls, PresetFolder())
{
    FillOf(first).SetProperty(Key(L"resource"), Any(CLR_COLORSPEC::FromResource(L"Brand", {1, 2, 3})));
    source.sheet.entries = {{L"Base", &base}, {L"Fill", &FillOf(base)}};
    source.defaultStyles = {&defaults, &moreDefaults};
    app.source = &source;
    context.dataSources[L"StylesDatasource"] = &editor;
    StylesCommon::GetInstance().Initialize(&app);
    for (OpenPanel* each : {&panel, &tied, &tiedBack})
    {
        each->SetDataSourceProvider(&context);
        each->Complete();
    }
    Listen();
}

FaultSubject::~FaultSubject()
{
    calls.FailNone();
    HostPieces::SetConfirmation({});
    presets.reset();
    for (const ListenerToken& subscription : subscriptions)
        Events().Unsubscribe(subscription);
    Events().DeliverPending();
    StylesCommon::GetInstance().Initialize(nullptr);
}

void FaultSubject::Listen()
{
    for (const wchar_t* name :
         {L"SectionTitle", L"RevertToParentEnable", L"BreakColorResourceEnable", L"CurrentPreset",
          L"DeletePresetEnabled", L"PresetList", L"BaseStylePropertiesDatasourceOkEnabled"})
        panel.AddListener(name, [this](const OvxStringT& /*changed*/) { calls.Enter("listener"); });
    for (const wchar_t* name : {L"StylePropertiesChange", L"ObjectStyleChanged"})
        subscriptions.push_back(Events().SubscribeGeneric(name, [this](const std::vector<Any>& /*arguments*/)
                                                          { calls.Enter("subscriber"); }));
}

void FaultSubject::HandInObjects()
{
    panel.SetTargetStyle({&first, &second}, false, PropertyPath(), {Path({L"type"})});
    panel.SetObjectStyles({{&first, 1}, {&second, 2}});
}

void FaultSubject::HandInDefaults()
{
    panel.SetTargetStyle({&defaults, &moreDefaults}, true, PropertyPath(), {});
}

void FaultSubject::HandInNamedStyle()
{
    panel.SetTargetStyle({&base}, false, PropertyPath(), {});
}

void FaultSubject::HandInOthers()
{
    panel.EndGroupModify(false);
    calls.openGroups = 0;
    for (Style* style : {&defaults, &moreDefaults})
        FillOf(*style).SetProperties(Paths({L"color", L"type"}), &FillOf(base));
    Events().DeliverPending();
    panel.SetObjectStyles({{&other, 9}});
    panel.SetTargetStyle({&other}, false, PropertyPath(), {});
}

void FaultSubject::TieSiblings()
{
    tied.SetTargetStyle({&styles.WithColor("third", 4, &base)}, false, PropertyPath(), {});
    tiedBack.SetTargetStyle({&FillOf(styles.WithColor("fourth", 5, &base))}, false, PropertyPath(), {});
    panel.RegisterSiblingDS(&tied);
    panel.RegisterSiblingDS(&tiedBack);
    tiedBack.RegisterSiblingDS(&panel);
    HandInObjects();
}

void FaultSubject::TakeApplicator()
{
    applicator.targetPath = Path({L"fill"});
    context.applicator = &applicator;
    panel.PostConstruct();
}

void FaultSubject::NameManyFills()
{
    for (int number = 1; number <= 20; ++number)
    {
        const OvxStringT name = OvxStringT::Format(L"Fill %d", number);
        source.sheet.entries.emplace_back(name, &styles.OfCategory(Describe(name), FillStyleCategoryName));
    }
}

void FaultSubject::OpenPresets()
{
    KeepPreset(L"Spring");
    userInterface = std::make_unique<HostPieces::UserInterface>();
    userInterface->SetObjectPropertiesContext(&context);
    presets.reset(IDataSourceRegistrar::GetInstance().FindFactory(L"StylePresets")->Create(&context));
    context.dataSources[L"StylePresets"] = presets.get();
    panel.presetCategory = kCategory;
    dynamic_cast<IBroadcaster&>(*presets).AddListener(kCategory, [this](const OvxStringT& /*changed*/)
                                                      { calls.Enter("listener of presets"); });
}

void FaultSubject::KeepPreset(const OvxStringT& name)
{
    const std::vector<OvxStringT> present = app.presetManager.GetPresetNames(kCategory);
    for (const OvxStringT& each : present)
    {
        if (each != name)
            app.presetManager.DeletePreset(kCategory, each);
    }
    if (std::ranges::find(present, name) == present.end())
        app.presetManager.AddPreset(kCategory, name, Style(), true);
}
