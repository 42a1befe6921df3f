// Writes of every route, and groups of them.

#include "tests/model/OptionalPaths.h"
#include "tests/model/PlainDescription.h"
#include "tests/model/RandomArguments.h"
#include "tests/model/RandomOperations.h"

namespace LibraryModel
{

namespace
{

Operation WriteTarget(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const Key key = AnyPropertyKey(dice);
    const PlainValue value = AnyValue(dice);
    const std::optional<Key> key2 = dice.Percent(30) ? std::optional(AnyPropertyKey(dice)) : std::nullopt;
    const std::optional<PlainValue> value2 = dice.Percent(30) ? std::optional(AnyValue(dice)) : std::nullopt;
    return Do(
        PanelText(panel) + "WriteTarget(" + Quoted(TextOf(key)) + ", " + Tell(value) + ", " +
            (key2.has_value() ? Quoted(TextOf(*key2)) : "nullptr") + ", " +
            (value2.has_value() ? Tell(*value2) : "nullptr") + ");",
        [=](LibraryWorld& world)
        {
            const Styles::PropertyKey hostKey2 = ToHost(key2.value_or(Key()));
            const OvxUtils::Any hostValue2 = ToHost(value2.value_or(PlainValue()));
            world.Panel(panel).WriteTarget(ToHost(key), ToHost(value), key2.has_value() ? &hostKey2 : nullptr,
                                           value2.has_value() ? &hostValue2 : nullptr);
        },
        [=](PlainWorld& world)
        {
            world.panels[panel]->WriteTarget(key, value, key2.has_value() ? &*key2 : nullptr,
                                             value2.has_value() ? &*value2 : nullptr);
        });
}

Operation ClearProperties(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const Paths paths = AnyPaths(dice);
    return Do(
        PanelText(panel) + "ClearProperties(" + Tell(paths) + ");",
        [=](LibraryWorld& world) { world.Panel(panel).ClearProperties(ToHost(paths)); },
        [=](PlainWorld& world) { world.panels[panel]->ClearProperties(paths); });
}

Operation HandInChange(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const ChangeRecipe change = AnyChange(dice);
    const std::optional<Paths> overrides = MaybePaths(dice);
    return Do(
        PanelText(panel) + "ModifyStyles(" + change.Text() + ", " + Tell(Pointer(overrides)) + ");",
        [=](LibraryWorld& world)
        { world.Panel(panel).ModifyStyles(change.ForLibrary(), HostPaths(overrides).Pointer()); },
        [=](PlainWorld& world) { world.panels[panel]->ModifyStyles(change.ForModel(), Pointer(overrides)); });
}

/// The values' own paths, or others; both in either list.
Operation RouteChangeOf(Dice& dice, std::size_t panel)
{
    const ChangeRecipe change = AnyChange(dice);
    Paths paths = AnyPaths(dice);
    std::optional<Paths> overrides = MaybePaths(dice);
    for (const auto& [path, value] : change.values)
    {
        if (dice.Percent(70))
            paths.push_back(path);
        if (overrides.has_value() && dice.Percent(40))
            overrides->push_back(path);
    }
    return Do(
        PanelText(panel) + "ModifyStyles(" + Tell(paths) + ", " + change.Text() + ", " +
            Tell(Pointer(overrides)) + ");",
        [=](LibraryWorld& world) {
            world.Panel(panel).ModifyStyles(ToHost(paths), change.ForLibrary(),
                                            HostPaths(overrides).Pointer());
        },
        [=](PlainWorld& world)
        { world.panels[panel]->ModifyStyles(paths, change.ForModel(), Pointer(overrides)); });
}

Operation RouteChange(Dice& dice)
{
    return RouteChangeOf(dice, AnyPanel(dice));
}

StyleRefs DefaultStyleRefs()
{
    return {{"S4", std::nullopt}, {"S5", std::nullopt}};
}

Operation ModifySubstyles(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const ChangeRecipe substyle = AnyChange(dice);
    const Key key = AnyCategory(dice);
    const Paths paths = AnyPaths(dice);
    const std::optional<Paths> overrides = MaybePaths(dice);
    return Do(
        PanelText(panel) + "ModifySubstyles(" + Tell(paths) + ", " + substyle.Text() + ", " +
            Quoted(TextOf(key)) + ", " + Tell(Pointer(overrides)) + ");",
        [=](LibraryWorld& world)
        {
            world.Panel(panel).ModifySubstyles(ToHost(paths), substyle.ForLibrary().get(), ToHost(key),
                                               HostPaths(overrides).Pointer());
        },
        [=](PlainWorld& world)
        { world.panels[panel]->ModifySubstyles(paths, substyle.ForModel().get(), key, Pointer(overrides)); });
}

Operation ModifyDefaultStyles(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const ChangeRecipe change = AnyChange(dice);
    Paths paths = AnyPaths(dice);
    for (const auto& [path, value] : change.values)
        paths.push_back(path);
    return Do(
        PanelText(panel) + "ModifyDefaultStyles(" + Tell(paths) + ", " + change.Text() + ");",
        [=](LibraryWorld& world)
        { world.Panel(panel).ModifyDefaultStyles(ToHost(paths), change.ForLibrary()); },
        [=](PlainWorld& world) { world.panels[panel]->ModifyDefaultStyles(paths, change.ForModel()); });
}

Operation WriteToDefault(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const std::string name = dice.One(std::vector<std::string>{"Default", "Style 3", "unknown"});
    const Key key = AnyPropertyKey(dice);
    const PlainValue value = AnyValue(dice);
    return Do(
        PanelText(panel) + "WriteToDefault(" + Quoted(name) + ", " + Quoted(TextOf(key)) + ", " +
            Tell(value) + ");",
        [=](LibraryWorld& world)
        { world.Panel(panel).WriteToDefault(ToHost(name), ToHost(key), ToHost(value)); },
        [=](PlainWorld& world) { world.panels[panel]->WriteToDefault(name, key, value); });
}

Operation AskForTransaction(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "GetTransactionOverrides();",
        [=](LibraryWorld& world) { return world.log.NameOf(world.Panel(panel).GetTransactionOverrides()); },
        [=](PlainWorld& world) { return world.panels[panel]->GetTransactionOverrides(); });
}

Operation StartGroup(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "StartGroupModify();",
        [=](LibraryWorld& world) { world.Panel(panel).StartGroupModify(); },
        [=](PlainWorld& world) { world.panels[panel]->StartGroupModify(); });
}

Operation EndGroup(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const bool commit = dice.Percent(70);
    return Do(
        PanelText(panel) + "EndGroupModify(" + Tell(commit) + ");",
        [=](LibraryWorld& world) { world.Panel(panel).EndGroupModify(commit); },
        [=](PlainWorld& world) { world.panels[panel]->EndGroupModify(commit); });
}

/// A whole drag on the default styles: targets, a group, changes that write the same paths in either way, and
/// its end.
Operation DragOnDefaultStyles(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const bool commit = dice.Percent(80);
    std::vector<Operation> steps;
    while (steps.empty() || dice.Percent(40))
        steps.push_back(RouteChangeOf(dice, panel));
    std::string text =
        PanelText(panel) + "SetTargetStyle({S4, S5}, /*isDefault=*/true, (), {}); StartGroupModify(); ";
    for (const Operation& step : steps)
        text += step.text + " ";
    return Do(
        text + "EndGroupModify(" + Tell(commit) + ");",
        [=](LibraryWorld& world)
        {
            world.Panel(panel).SetTargetStyle(world.Find(DefaultStyleRefs()), true, Styles::PropertyPath(),
                                              {});
            world.Panel(panel).StartGroupModify();
            for (const Operation& step : steps)
                static_cast<void>(step.onLibrary(world));
            world.Panel(panel).EndGroupModify(commit);
        },
        [=](PlainWorld& world)
        {
            world.panels[panel]->SetTargetStyle(world.Find(DefaultStyleRefs()), true, {}, {});
            world.panels[panel]->StartGroupModify();
            for (const Operation& step : steps)
                static_cast<void>(step.onModel(world));
            world.panels[panel]->EndGroupModify(commit);
        });
}

Operation BeIdle(Dice& /*dice*/)
{
    return Do(
        "Broadcaster().DeliverPending();",
        [](LibraryWorld&) { return std::to_string(RecordingEvents::DeliverPending()); },
        [](PlainWorld& world)
        {
            const std::size_t count = world.host.waitingEvents.size();
            for (const std::string& event : world.host.waitingEvents)
                world.host.Record(event);
            world.host.waitingEvents.clear();
            return std::to_string(count);
        });
}

} // namespace

const Makers& WritingMakers()
{
    static const Makers makers = {{6, WriteTarget},     {2, ClearProperties},
                                  {4, HandInChange},    {5, RouteChange},
                                  {2, ModifySubstyles}, {2, ModifyDefaultStyles},
                                  {1, WriteToDefault},  {1, AskForTransaction},
                                  {3, StartGroup},      {3, EndGroup},
                                  {2, BeIdle},          {3, DragOnDefaultStyles}};
    return makers;
}

} // namespace LibraryModel
