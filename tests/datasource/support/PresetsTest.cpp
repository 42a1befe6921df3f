#include "tests/datasource/support/PresetsTest.h"

#include "host/data_binding/IDataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/utils/Utf8.h"

RecordingPresetManager::RecordingPresetManager(CallLog& callLog) : log(callLog)
{
    std::string pattern =
        (std::filesystem::temp_directory_path() / "styleproperties-presets-XXXXXX").string();
    folder = mkdtemp(pattern.data());
}

RecordingPresetManager::~RecordingPresetManager()
{
    std::filesystem::remove_all(folder);
}

OvxStringT RecordingPresetManager::GetPresetFolder(Styles::PresetLocation /*location*/, OvxStringT category)
{
    log.Add("manager.GetPresetFolder(" + Describe(category) + ")");
    return category;
}

OvxStringT RecordingPresetManager::GetPresetFileName(Styles::PresetLocation /*location*/, OvxStringT name)
{
    return name;
}

OvxStringT RecordingPresetManager::GetCustomConfigurationDirectory()
{
    return OvxUtils::FromUtf8(folder.string());
}

RecordingConfirmation::RecordingConfirmation(CallLog& log)
{
    HostPieces::SetConfirmation(
        [this, &log](const OvxStringT& text, int flags)
        {
            log.Add("confirm(" + Describe(text) + ", " + std::to_string(flags) + ")");
            return answer;
        });
}

RecordingConfirmation::~RecordingConfirmation()
{
    HostPieces::SetConfirmation({});
}

PresetsTest::PresetsTest()
{
    stylesApp.presetManager = &manager;
    source.fillsPresetItems = true;
    log.SetName(&context, "context");
    context.dialogs = &dialogs;
    userInterface.SetObjectPropertiesContext(&context);
    dialogSource.reset(IDataSourceRegistrar::GetInstance().FindFactory(L"StylePresets")->Create(&context));
    context.dataSources[L"StylePresets"] = dialogSource.get();
    panel.presetCategory = L"FillPresets";
    panel.ListenTo({L"CurrentPreset", L"DeletePresetEnabled", L"PresetList"});
    log.Clear();
}

PresetsTest::~PresetsTest()
{
    log.onLine = nullptr;
    userInterface.SetObjectPropertiesContext(nullptr);
}

void PresetsTest::Keep(const wchar_t* name)
{
    ASSERT_TRUE(manager.AddPreset(L"FillPresets", name, Styles::Style(), /*replace=*/false));
    log.Clear();
}

std::vector<OvxStringT> PresetsTest::ListedTexts()
{
    const WCmnUI_List list = panel.Read<WCmnUI_List>(L"PresetList");
    std::vector<OvxStringT> texts;
    for (std::size_t position = 0; position < list.GetCount(); ++position)
        texts.push_back(list.GetItem(position)->GetText());
    return texts;
}

WCmnUI_ListItem PresetsTest::ItemOf(const wchar_t* text)
{
    const WCmnUI_List list = panel.GetPresetList();
    for (std::size_t position = 0; position < list.GetCount(); ++position)
    {
        if (list.GetItem(position)->GetText() == text)
            return *list.GetItem(position);
    }
    ADD_FAILURE() << "no such preset";
    return {};
}

void PresetsTest::ListenToPresets(const std::vector<OvxStringT>& names)
{
    for (const OvxStringT& name : names)
    {
        dynamic_cast<IBroadcaster&>(*dialogSource)
            .AddListener(name,
                         [this](const OvxStringT& changed) { log.Add("presets " + Describe(changed)); });
    }
}
