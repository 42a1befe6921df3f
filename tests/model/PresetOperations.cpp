// Presets, the dialog that names a new one, and presets that others keep and delete.

#include "tests/model/Answers.h"
#include "tests/model/PlainDescription.h"
#include "tests/model/RandomArguments.h"
#include "tests/model/RandomOperations.h"

namespace LibraryModel
{

namespace
{

std::string AnyPresetName(Dice& dice)
{
    static const std::vector<std::string> names = {"Solid", "solid", "Soft", "Bold & bright", "Zebra"};
    return dice.One(names);
}

std::string AnyPresetCategory(Dice& dice)
{
    static const std::vector<std::string> categories = {"FillPresets", "FillPresets", "FillPresets",
                                                        "OutlinePresets", "DimensionPresets"};
    return dice.One(categories);
}

Operation OpenPresets(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "Read(\"PresetList\");",
        [=](LibraryWorld& world) { return TextOf(world.Panel(panel).Read<WCmnUI_List>(L"PresetList")); },
        [=](PlainWorld& world) { return TextOf(world.panels[panel]->GetPresetList()); });
}

Operation PickPreset(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const std::string name = AnyPresetName(dice);
    const int index = static_cast<int>(dice.Below(5)) - 1;
    return Do(
        PanelText(panel) + "Write(\"CurrentPreset\", {" + Quoted(name) + ", " + std::to_string(index) + "});",
        [=](LibraryWorld& world)
        {
            WCmnUI_ListItem item;
            item.SetText(ToHost(name));
            item.SetIndex(index);
            world.Panel(panel).Write<WCmnUI_ListItem>(L"CurrentPreset", item);
        },
        [=](PlainWorld& world) {
            world.panels[panel]->SetCurrentPreset({name, index});
        });
}

Operation AddPreset(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "Invoke(\"OnAddPreset\");",
        [=](LibraryWorld& world) { world.Panel(panel).Invoke(L"OnAddPreset"); },
        [=](PlainWorld& world) { world.panels[panel]->OnAddPreset(); });
}

Operation DeletePreset(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "Invoke(\"OnDeletePreset\");",
        [=](LibraryWorld& world) { world.Panel(panel).Invoke(L"OnDeletePreset"); },
        [=](PlainWorld& world) { world.panels[panel]->OnDeletePreset(); });
}

Operation SelectNoPreset(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "SelectNoPreset();",
        [=](LibraryWorld& world) { world.Panel(panel).SelectNoPreset(); },
        [=](PlainWorld& world) { world.panels[panel]->SelectNoPreset(); });
}

Operation TellOfPresets(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "OnPresetsListUpdated();",
        [=](LibraryWorld& world) { world.Panel(panel).OnPresetsListUpdated(); },
        [=](PlainWorld& world) { world.panels[panel]->Notify({"PresetList"}); });
}

Operation NamePreset(Dice& dice)
{
    const std::string name = dice.Percent(10) ? "" : AnyPresetName(dice);
    return Do(
        "dialog.Write(\"AddPresetName\", " + Quoted(name) + ");",
        [=](LibraryWorld& world) { world.Dialog().Write<OvxStringT>(L"AddPresetName", ToHost(name)); },
        [=](PlainWorld& world) { world.dialog.SetName(name); });
}

Operation AcceptPreset(Dice& /*dice*/)
{
    return Do(
        "dialog.Invoke(\"OnAddPresetOk\");",
        [](LibraryWorld& world) { world.Dialog().Invoke(L"OnAddPresetOk"); },
        [](PlainWorld& world) { world.dialog.OnOk(); });
}

/// The dialog from beginning to end, for a name that may be taken.
Operation AddNamedPreset(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const std::string name = AnyPresetName(dice);
    return Do(
        PanelText(panel) + "OnAddPreset(), then dialog.SetAddPresetName(" + Quoted(name) +
            ") and OnAddPresetOk();",
        [=](LibraryWorld& world)
        {
            world.Panel(panel).OnAddPreset();
            world.Dialog().Write<OvxStringT>(L"AddPresetName", ToHost(name));
            world.Dialog().Invoke(L"OnAddPresetOk");
        },
        [=](PlainWorld& world)
        {
            world.panels[panel]->OnAddPreset();
            world.dialog.SetName(name);
            world.dialog.OnOk();
        });
}

/// These do nothing, by name.
Operation InvokeIdleCommand(Dice& dice)
{
    const std::string name =
        dice.One(std::vector<std::string>{"OnAddPresetCancel", "DimensionPresets", "CalloutPresets"});
    return Do(
        "dialog.Invoke(" + Quoted(name) + ");",
        [=](LibraryWorld& world) { world.Dialog().Invoke(ToHost(name)); }, [](PlainWorld&) {});
}

Operation KeepPresetElsewhere(Dice& dice)
{
    const std::string category = AnyPresetCategory(dice);
    const std::string name = AnyPresetName(dice);
    return Do(
        "manager.AddPreset(" + Quoted(category) + ", " + Quoted(name) + ", Style(), /*replace=*/true);",
        [=](LibraryWorld& world)
        {
            world.manager.AddPreset(ToHost(category), ToHost(name), Styles::Style(), true);
            world.log.Clear();
        },
        [=](PlainWorld& world) { world.host.KeepPreset(category, name); });
}

Operation DropPresetElsewhere(Dice& dice)
{
    const std::string category = AnyPresetCategory(dice);
    const std::string name = AnyPresetName(dice);
    return Do(
        "manager.DeletePreset(" + Quoted(category) + ", " + Quoted(name) + ");",
        [=](LibraryWorld& world)
        {
            world.manager.DeletePreset(ToHost(category), ToHost(name));
            world.log.Clear();
        },
        [=](PlainWorld& world) { world.host.DropPreset(category, name); });
}

} // namespace

Operation OfferPresets(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const std::string category = dice.Percent(15) ? "" : AnyPresetCategory(dice);
    return Do(
        PanelText(panel) + "presetCategory = " + Quoted(category) + ";",
        [=](LibraryWorld& world) { world.Panel(panel).presetCategory = ToHost(category); },
        [=](PlainWorld& world) { world.panels[panel]->presetCategory = category; });
}

const Makers& PresetMakers()
{
    static const Makers makers = {{3, OfferPresets},       {4, OpenPresets},       {7, PickPreset},
                                  {3, AddPreset},          {3, DeletePreset},      {1, SelectNoPreset},
                                  {1, TellOfPresets},      {2, NamePreset},        {2, AcceptPreset},
                                  {4, AddNamedPreset},     {1, InvokeIdleCommand}, {2, KeepPresetElsewhere},
                                  {1, DropPresetElsewhere}};
    return makers;
}

} // namespace LibraryModel
