// Host pieces that go missing and come back, what they answer, and panels that end and begin.

#include "module/StylesCommon.h"
#include "tests/model/OptionalPaths.h"
#include "tests/model/PlainDescription.h"
#include "tests/model/RandomArguments.h"
#include "tests/model/RandomOperations.h"

namespace LibraryModel
{

namespace
{

/// Mostly true: what is missing comes back soon.
bool IsThere(Dice& dice)
{
    return dice.Percent(70);
}

/// A pointer to a piece that is there or not.
template <class Piece>
Piece* If(bool isThere, Piece& piece)
{
    return isThere ? &piece : nullptr;
}

Operation ShowOrHide(const std::string& piece, bool isThere, std::function<void(LibraryWorld&)> onLibrary,
                     bool PlainHost::*field)
{
    return Do(piece + " = " + Tell(isThere) + ";", std::move(onLibrary),
              [=](PlainWorld& world) { world.host.*field = isThere; });
}

Operation SwitchApplication(Dice& dice)
{
    const bool there = IsThere(dice);
    return ShowOrHide(
        "application", there,
        [=](LibraryWorld& world) { StylesCommon::GetInstance().Initialize(If(there, world.app)); },
        &PlainHost::hasApp);
}

Operation SwitchStylesApp(Dice& dice)
{
    const bool there = IsThere(dice);
    return ShowOrHide(
        "app.stylesApp", there,
        [=](LibraryWorld& world) { world.app.stylesApp = If(there, world.stylesApp); },
        &PlainHost::hasStylesApp);
}

Operation SwitchSource(Dice& dice)
{
    const bool there = IsThere(dice);
    return ShowOrHide(
        "app.source", there, [=](LibraryWorld& world) { world.app.source = If(there, world.source); },
        &PlainHost::hasSource);
}

Operation SwitchSheet(Dice& dice)
{
    const bool there = IsThere(dice);
    return ShowOrHide(
        "source.sheet", there, [=](LibraryWorld& world) { world.source.sheet = If(there, world.sheet); },
        &PlainHost::hasSheet);
}

Operation SwitchDefaultSheet(Dice& dice)
{
    const bool there = IsThere(dice);
    return ShowOrHide(
        "source.defaultSheet", there,
        [=](LibraryWorld& world) { world.source.defaultSheet = If(there, world.defaultSheet); },
        &PlainHost::hasDefaultSheet);
}

Operation SwitchModifier(Dice& dice)
{
    const bool there = IsThere(dice);
    return ShowOrHide(
        "source.modifier", there,
        [=](LibraryWorld& world) { world.source.modifier = If(there, world.modifier); },
        &PlainHost::hasModifier);
}

Operation SwitchTransaction(Dice& dice)
{
    const bool there = dice.Percent(50);
    return ShowOrHide(
        "source.transactionOverrides", there,
        [=](LibraryWorld& world) { world.source.transactionOverrides = there ? world.transaction : nullptr; },
        &PlainHost::hasTransaction);
}

Operation SwitchCharacterStyles(Dice& dice)
{
    const bool ignored = dice.Percent(75);
    return ShowOrHide(
        "source.ignoresCharacterStyleSiblings", ignored,
        [=](LibraryWorld& world) { world.source.ignoresCharacterStyleSiblings = ignored; },
        &PlainHost::ignoresCharacterStyles);
}

Operation SwitchItemFilling(Dice& dice)
{
    const bool fills = dice.Percent(80);
    return ShowOrHide(
        "source.fillsPresetItems", fills, [=](LibraryWorld& world) { world.source.fillsPresetItems = fills; },
        &PlainHost::fillsPresetItems);
}

Operation SwitchUserInterface(Dice& dice)
{
    const bool there = IsThere(dice);
    return ShowOrHide(
        "user interface", there, [=](LibraryWorld& world) { world.SetUserInterface(there); },
        &PlainHost::hasUserInterface);
}

Operation SetAnswer(Dice& dice)
{
    const int answer = dice.Percent(60) ? 6 : 7;
    return Do(
        "confirmation.answer = " + std::to_string(answer) + ";",
        [=](LibraryWorld& world) { world.confirmation.answer = answer; },
        [=](PlainWorld& world) { world.host.answer = answer; });
}

/// -1 to 1; mostly 0.
int AnyContext(Dice& dice)
{
    return dice.One(std::vector<int>{0, 0, 0, 0, 1, 1, -1});
}

PlainContext* ContextOf(PlainWorld& world, int number)
{
    return number < 0 ? nullptr : &world.host.contexts.at(static_cast<std::size_t>(number));
}

Operation SwitchObjectPropertiesContext(Dice& dice)
{
    const int context = AnyContext(dice);
    return Do(
        "userInterface.SetObjectPropertiesContext(" + std::to_string(context) + ");",
        [=](LibraryWorld& world) { world.SetObjectPropertiesContext(context); },
        [=](PlainWorld& world)
        {
            world.host.hasObjectPropertiesContext = context >= 0;
            world.host.objectPropertiesContext = context;
        });
}

Operation SetClearedPaths(Dice& dice)
{
    const std::optional<Paths> paths = MaybePaths(dice);
    return Do(
        "source.clearedPaths = " + Tell(Pointer(paths)) + ";",
        [=](LibraryWorld& world)
        {
            world.source.clearedPaths.reset();
            if (paths.has_value())
                world.source.clearedPaths = ToHost(*paths);
        },
        [=](PlainWorld& world) { world.host.clearedPaths = paths; });
}

Operation SetTargetPath(Dice& dice)
{
    Path path;
    while (path.size() < 2 && dice.Percent(50))
        path.push_back(AnyCategory(dice));
    return Do(
        "applicator.targetPath = " + Tell(path) + ";",
        [=](LibraryWorld& world) { world.applicator.targetPath = ToHost(path); },
        [=](PlainWorld& world) { world.host.targetPath = path; });
}

Operation ChangeHostObject(Dice& dice)
{
    const std::size_t context = dice.Below(2);
    const bool hasObject = IsThere(dice);
    const bool hasApplicator = dice.Percent(50);
    const int number = static_cast<int>(dice.Below(3));
    return Do(
        "contexts[" + std::to_string(context) + "]: host object " + Tell(hasObject) + ", applicator " +
            Tell(hasApplicator) + " as " + std::to_string(number) + ";",
        [=](LibraryWorld& world)
        {
            RecordingHostObject& object = world.hostObjects[context];
            world.contexts[context].hostObject = If(hasObject, object);
            object.applicator = If(hasApplicator, world.applicator);
            object.applicatorNumber = 0xabcd00000000U + static_cast<std::uintptr_t>(number);
        },
        [=](PlainWorld& world)
        {
            PlainContext& changed = world.host.contexts[context];
            changed.hasHostObject = hasObject;
            changed.hasApplicator = hasApplicator;
            changed.applicatorNumber = number;
        });
}

Operation ChangeContext(Dice& dice)
{
    const std::size_t context = dice.Below(2);
    const bool hasDialogs = IsThere(dice);
    const auto presets = dice.One(
        std::vector<PlainContext::Presets>{PlainContext::Presets::Dialog, PlainContext::Presets::Dialog,
                                           PlainContext::Presets::Something, PlainContext::Presets::None});
    const auto editor = static_cast<PlainContext::Editor>(dice.Below(3));
    return Do(
        "contexts[" + std::to_string(context) + "]: dialogs " + Tell(hasDialogs) + ", presets " +
            std::to_string(static_cast<int>(presets)) + ", editor " +
            std::to_string(static_cast<int>(editor)) + ";",
        [=](LibraryWorld& world)
        {
            RecordingContext& changed = world.contexts[context];
            changed.dialogs = If(hasDialogs, world.dialogs);
            changed.dataSources.clear();
            if (presets != PlainContext::Presets::None)
                changed.dataSources[L"StylePresets"] =
                    presets == PlainContext::Presets::Dialog ? world.dialogSource : &world.something;
            if (editor == PlainContext::Editor::Plain)
                changed.dataSources[L"StylesDatasource"] = &world.something;
            else if (editor == PlainContext::Editor::Styles)
                changed.dataSources[L"StylesDatasource"] = &world.editor;
        },
        [=](PlainWorld& world)
        {
            PlainContext& changed = world.host.contexts[context];
            changed.hasDialogs = hasDialogs;
            changed.presets = presets;
            changed.editor = editor;
        });
}

Operation MovePanel(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const int context = AnyContext(dice);
    return Do(
        PanelText(panel) + "SetDataSourceProvider(" + std::to_string(context) + ");",
        [=](LibraryWorld& world) { world.Panel(panel).SetDataSourceProvider(world.Context(context)); },
        [=](PlainWorld& world) { world.panels[panel]->context = ContextOf(world, context); });
}

Operation MoveDialog(Dice& dice)
{
    const int context = AnyContext(dice);
    return Do(
        "dialog.SetDataSourceProvider(" + std::to_string(context) + ");",
        [=](LibraryWorld& world) { world.dialogSource->SetDataSourceProvider(world.Context(context)); },
        [=](PlainWorld& world) { world.dialog.context = ContextOf(world, context); });
}

Operation StartPanelAnew(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const int context = AnyContext(dice);
    return Do(
        "StartPanelAnew(" + std::to_string(panel) + ", " + std::to_string(context) + ");",
        [=](LibraryWorld& world) { world.StartPanelAnew(panel, world.Context(context)); },
        [=](PlainWorld& world) { world.StartPanelAnew(panel, ContextOf(world, context)); });
}

} // namespace

Operation ChangeCategory(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const Key category = AnyCategory(dice);
    return Do(
        PanelText(panel) + "category = " + Quoted(TextOf(category)) + ";",
        [=](LibraryWorld& world) { world.Panel(panel).category = ToHost(category); },
        [=](PlainWorld& world) { world.panels[panel]->category = category; });
}

const Makers& HostMakers()
{
    static const Makers makers = {{1, SwitchApplication},  {1, SwitchStylesApp},
                                  {2, SwitchSource},       {2, SwitchSheet},
                                  {1, SwitchDefaultSheet}, {1, SwitchModifier},
                                  {1, SwitchTransaction},  {2, SwitchCharacterStyles},
                                  {1, SwitchItemFilling},  {1, SwitchUserInterface},
                                  {1, SetAnswer},          {2, SwitchObjectPropertiesContext},
                                  {1, SetClearedPaths},    {1, SetTargetPath},
                                  {1, ChangeHostObject},   {2, ChangeContext},
                                  {1, MovePanel},          {1, MoveDialog},
                                  {2, StartPanelAnew},     {3, ChangeCategory}};
    return makers;
}

} // namespace LibraryModel
