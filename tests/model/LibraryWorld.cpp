#include "tests/model/LibraryWorld.h"

#include "host/data_binding/IDataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "module/StylesCommon.h"

namespace LibraryModel
{

LibraryWorld::LibraryWorld()
    : styles(std::make_unique<Styles::Style[]>(StylePool().size())),
      heldLists(kPanels),
      transaction(reinterpret_cast<Styles::IModifyStyleOverrides*>(&transactionPlace))
{
    NameHostPieces();
    for (std::size_t i = 0; i < StylePool().size(); ++i)
    {
        styles[i] = Styles::Style(nullptr, ToHost(KeyOf(StylePool()[i].category)));
        log.SetName(&styles[i], StylePool()[i].name);
    }
    SetUserInterface(true);
    StylesCommon::GetInstance().Initialize(&app);

    dialogSource = IDataSourceRegistrar::GetInstance().FindFactory(L"StylePresets")->Create(contexts.data());
    for (const wchar_t* name : {L"AddPresetName", L"AddPresetOkEnabled", L"FillPresets", L"OutlinePresets",
                                L"DimensionPresets", L"CalloutPresets"})
    {
        dynamic_cast<IBroadcaster&>(*dialogSource)
            .AddListener(name,
                         [this](const OvxStringT& changed) { log.Add("presets " + Describe(changed)); });
    }
    for (RecordingContext& context : contexts)
        context.dataSources = {{L"StylePresets", dialogSource}, {L"StylesDatasource", &editor}};
    for (std::size_t i = 0; i < kPanels; ++i)
        StartPanelAnew(i, contexts.data());
    log.Clear();
}

LibraryWorld::~LibraryWorld()
{
    for (auto& panel : panels)
        panel.reset();
    dialogSource->Destroy();
    StylesCommon::GetInstance().Initialize(nullptr);
}

void LibraryWorld::NameHostPieces()
{
    source.sheet = &sheet;
    source.defaultSheet = &defaultSheet;
    source.externalSheets[L"external"] = &externalSheet;
    source.modifier = &modifier;
    source.fillsPresetItems = true;
    app.source = &source;
    app.stylesApp = &stylesApp;
    stylesApp.presetManager = &manager;
    log.SetName(transaction, "transaction");
    for (std::size_t i = 0; i < contexts.size(); ++i)
    {
        log.SetName(static_cast<const IDataContext*>(&contexts[i]), "context" + std::to_string(i));
        contexts[i].hostObject = &hostObjects[i];
        contexts[i].dialogs = &dialogs;
    }
}

Styles::Style* LibraryWorld::Find(const StyleRef& ref) const
{
    if (ref.name.empty())
        return nullptr;
    Styles::Style* style = &styles[PoolIndex(ref.name)];
    return ref.substyle.has_value() ? style->GetSubstyle(ToHost(*ref.substyle), false) : style;
}

std::vector<Styles::Style*> LibraryWorld::Find(const StyleRefs& refs) const
{
    std::vector<Styles::Style*> found;
    for (const StyleRef& ref : refs)
        found.push_back(Find(ref));
    return found;
}

DrivenPanel* LibraryWorld::PanelOrNull(std::size_t panel)
{
    return panel < kPanels ? &*panels[panel] : nullptr;
}

void LibraryWorld::StartPanelAnew(std::size_t panel, IDataContext* context)
{
    std::optional<DrivenPanel>& place = panels.at(panel);
    Styles::PropertyKey category = Styles::FillStyleCategoryName;
    OvxStringT presetCategory;
    if (place.has_value())
    {
        category = place->category;
        presetCategory = place->presetCategory;
        for (auto& other : panels)
            other->UnregisterSiblingDS(&*place);
    }
    place.emplace();
    place->category = category;
    place->presetCategory = presetCategory;

    const std::string name = "panel" + std::to_string(panel);
    log.SetName(static_cast<const BaseStylePropertiesDatasource*>(&*place), name);
    place->SetDataSourceProvider(context);
    place->FinishConstruction();
    for (const OvxStringT& bound : place->GetNames())
        place->AddListener(bound, [this, name](const OvxStringT& changed)
                           { log.Add(name + " notifies " + Describe(changed)); });
}

IDataContext* LibraryWorld::Context(int number)
{
    return number < 0 ? nullptr : &contexts.at(static_cast<std::size_t>(number));
}

void LibraryWorld::SetObjectPropertiesContext(int number)
{
    objectPropertiesContext = number;
    if (userInterface.has_value())
        userInterface->SetObjectPropertiesContext(Context(number));
}

void LibraryWorld::SetUserInterface(bool exists)
{
    userInterface.reset();
    if (!exists)
        return;
    userInterface.emplace();
    SetObjectPropertiesContext(objectPropertiesContext);
}

} // namespace LibraryModel
