// Targets, the objects that own them, forced ambiguity and siblings.

#include "tests/model/PlainDescription.h"
#include "tests/model/RandomArguments.h"
#include "tests/model/RandomOperations.h"

namespace LibraryModel
{

namespace
{

std::set<Path> AnyForced(Dice& dice)
{
    std::set<Path> forced;
    while (dice.Percent(30))
        forced.insert(AnyPath(dice));
    return forced;
}

Operation SetTargets(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const StyleRefs refs = AnyStyles(dice);
    const bool isDefault = dice.Percent(20);
    const Path path = dice.Percent(50) ? Path() : AnyPath(dice);
    const std::set<Path> forced = AnyForced(dice);
    return Do(
        PanelText(panel) + "SetTargetStyle(" + TextOf(refs) + ", /*isDefault=*/" + Tell(isDefault) + ", " +
            Tell(path) + ", " + Tell(forced) + ");",
        [=](LibraryWorld& world)
        { world.Panel(panel).SetTargetStyle(world.Find(refs), isDefault, ToHost(path), ToHost(forced)); },
        [=](PlainWorld& world)
        { world.panels[panel]->SetTargetStyle(world.Find(refs), isDefault, path, forced); });
}

Operation SetTargetsByKey(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const StyleRefs refs = AnyStyles(dice);
    const Key key = AnyCategory(dice);
    const std::set<Path> forced = AnyForced(dice);
    return Do(
        PanelText(panel) + "SetTargetStyle(" + TextOf(refs) + ", /*isDefault=*/false, Key(" +
            Quoted(TextOf(key)) + "), " + Tell(forced) + ");",
        [=](LibraryWorld& world)
        { world.Panel(panel).SetTargetStyle(world.Find(refs), false, ToHost(key), ToHost(forced)); },
        [=](PlainWorld& world)
        { world.panels[panel]->SetTargetStyle(world.Find(refs), false, {key}, forced); });
}

/// The entries of an object map in the order of the library's addresses, which both sides are to see alike:
/// the pool's own order, and substyles, whose addresses are chance, only alone.
using ObjectEntries = std::vector<std::pair<StyleRef, std::size_t>>;

ObjectEntries AnyObjects(Dice& dice)
{
    if (dice.Percent(25))
        return {{{"S" + std::to_string(dice.Below(6)), KeyOf("fill")}, 1 + dice.Below(3)}};
    std::map<std::size_t, std::size_t> objects;
    while (dice.Percent(65))
        objects[dice.Percent(70) ? PoolIndex("S" + std::to_string(dice.Below(6)))
                                 : PoolIndex(AnyPooledStyle(dice).name)] = 1 + dice.Below(3);
    ObjectEntries entries;
    for (const auto& [place, object] : objects)
        entries.push_back({{StylePool()[place].name, std::nullopt}, object});
    return entries;
}

Operation SetObjects(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const ObjectEntries entries = AnyObjects(dice);
    std::vector<std::string> texts;
    for (const auto& [ref, object] : entries)
        texts.push_back("{" + ref.Text() + ", " + std::to_string(object) + "}");
    return Do(
        PanelText(panel) + "SetObjectStyles({" + Join(texts, ", ") + "});",
        [=](LibraryWorld& world)
        {
            std::map<Styles::Style*, std::size_t> objects;
            for (const auto& [ref, object] : entries)
            {
                if (Styles::Style* style = world.Find(ref))
                    objects[style] = object;
            }
            world.Panel(panel).SetObjectStyles(objects);
        },
        [=](PlainWorld& world)
        {
            std::vector<std::pair<PlainStyle*, std::size_t>> objects;
            for (const auto& [ref, object] : entries)
            {
                if (PlainStyle* style = world.Find(ref))
                    objects.emplace_back(style, object);
            }
            world.panels[panel]->SetObjectStyles(objects);
        });
}

Operation ClearObjects(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "ClearObjectStyles();",
        [=](LibraryWorld& world) { world.Panel(panel).ClearObjectStyles(); },
        [=](PlainWorld& world) { world.panels[panel]->SetObjectStyles({}); });
}

Operation AskForObject(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const StyleRef ref = AnyStyle(dice);
    return Do(
        PanelText(panel) + "GetObjectFromStyle(" + ref.Text() + ");",
        [=](LibraryWorld& world)
        {
            const auto* object = world.Panel(panel).GetObjectFromStyle(world.Find(ref));
            return std::to_string(reinterpret_cast<std::uintptr_t>(object));
        },
        [=](PlainWorld& world)
        { return std::to_string(world.panels[panel]->GetObjectFromStyle(world.Find(ref)).value_or(0)); });
}

std::string SiblingText(std::size_t sibling)
{
    return sibling < LibraryWorld::kPanels ? "&panels[" + std::to_string(sibling) + "]" : "nullptr";
}

Operation TieSibling(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const std::size_t sibling = dice.Below(4); // the last one is null
    return Do(
        PanelText(panel) + "RegisterSiblingDS(" + SiblingText(sibling) + ");",
        [=](LibraryWorld& world) { world.Panel(panel).RegisterSiblingDS(world.PanelOrNull(sibling)); },
        [=](PlainWorld& world) { world.panels[panel]->siblings.push_back(world.PanelOrNull(sibling)); });
}

Operation UntieSibling(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const std::size_t sibling = dice.Below(4);
    return Do(
        PanelText(panel) + "UnregisterSiblingDS(" + SiblingText(sibling) + ");",
        [=](LibraryWorld& world) { world.Panel(panel).UnregisterSiblingDS(world.PanelOrNull(sibling)); },
        [=](PlainWorld& world) { std::erase(world.panels[panel]->siblings, world.PanelOrNull(sibling)); });
}

Operation ForceMore(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const Path path = AnyPath(dice);
    const std::set<Path> forced = AnyForced(dice);
    return Do(
        PanelText(panel) + "ImportForceAmbiguous(" + Tell(path) + ", " + Tell(forced) + ");",
        [=](LibraryWorld& world) { world.Panel(panel).ImportForceAmbiguous(ToHost(path), ToHost(forced)); },
        [=](PlainWorld& world) { world.panels[panel]->ImportForceAmbiguous(path, forced); });
}

Operation ForceNothing(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "ClearForceAmbiguous();",
        [=](LibraryWorld& world) { world.Panel(panel).ClearForceAmbiguous(); },
        [=](PlainWorld& world) { world.panels[panel]->forceAmbiguous.clear(); });
}

Operation AskForAgreement(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const Path path = AnyPath(dice);
    return Do(
        PanelText(panel) + "IsAmbiguous(" + Tell(path) + ");",
        [=](LibraryWorld& world) { return DescribeFlag(world.Panel(panel).IsAmbiguous(ToHost(path))); },
        [=](PlainWorld& world) { return Tell(world.panels[panel]->IsAmbiguous(path)); });
}

Operation AskForTarget(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const std::size_t index = dice.Below(5);
    return Do(
        PanelText(panel) + "GetTargetStyle(" + std::to_string(index) + ");",
        [=](LibraryWorld& world) { return world.log.NameOfStyle(world.Panel(panel).GetTargetStyle(index)); },
        [=](PlainWorld& world) { return NameOf(world.panels[panel]->GetTargetStyle(index)); });
}

} // namespace

const Makers& TargetMakers()
{
    static const Makers makers = {{14, SetTargets},     {2, SetTargetsByKey}, {4, SetObjects},
                                  {1, ClearObjects},    {1, AskForObject},    {4, TieSibling},
                                  {2, UntieSibling},    {1, ForceMore},       {1, ForceNothing},
                                  {2, AskForAgreement}, {2, AskForTarget}};
    return makers;
}

} // namespace LibraryModel
