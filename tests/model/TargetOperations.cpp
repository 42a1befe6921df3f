// Targets, the objects that own them, forced ambiguity and siblings.

#include "tests/model/PlainDescription.h"
#include "tests/model/RandomArguments.h"
#include "tests/model/RandomOperations.h"

#include <algorithm>
#include <map>

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

/// Styles with the numbers of the objects that own them.
using ObjectEntries = std::vector<std::pair<StyleRef, std::size_t>>;

ObjectEntries ObjectsOf(Dice& dice, const StyleRefs& refs)
{
    ObjectEntries entries;
    for (const StyleRef& ref : refs)
    {
        if (!dice.Percent(15))
            entries.emplace_back(ref, 1 + dice.Below(3));
    }
    return entries;
}

std::string TextOf(const ObjectEntries& entries)
{
    std::vector<std::string> texts;
    for (const auto& [ref, object] : entries)
        texts.push_back("{" + ref.Text() + ", " + std::to_string(object) + "}");
    return "SetObjectStyles({" + Join(texts, ", ") + "});";
}

void HandObjects(LibraryWorld& world, std::size_t panel, const ObjectEntries& entries)
{
    std::map<Styles::Style*, std::size_t> objects;
    for (const auto& [ref, object] : entries)
    {
        if (Styles::Style* style = world.Find(ref))
            objects.emplace(style, object);
    }
    world.Panel(panel).SetObjectStyles(objects);
}

void HandObjects(PlainWorld& world, std::size_t panel, ObjectEntries entries)
{
    std::ranges::stable_sort(entries, [&world](const auto& left, const auto& right)
                             { return world.liesBefore(left.first, right.first); });
    std::vector<std::pair<PlainStyle*, std::size_t>> objects;
    for (const auto& [ref, object] : entries)
    {
        PlainStyle* style = world.Find(ref);
        if (style != nullptr && (objects.empty() || objects.back().first != style))
            objects.emplace_back(style, object);
    }
    world.panels[panel]->SetObjectStyles(objects);
}

Operation SetObjects(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const ObjectEntries entries = ObjectsOf(dice, AnyStyles(dice));
    return Do(
        PanelText(panel) + TextOf(entries), [=](LibraryWorld& world) { HandObjects(world, panel, entries); },
        [=](PlainWorld& world) { HandObjects(world, panel, entries); });
}

/// What a host does for a new selection: the objects, several styles of one among them, and their styles.
Operation SelectObjects(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    StyleRefs refs = AnyStyles(dice);
    const std::string whole = "S" + std::to_string(dice.Below(6));
    for (const std::optional<Key> substyle :
         {std::optional<Key>(), std::optional(KeyOf("fill")), std::optional(KeyOf("outline"))})
    {
        if (dice.Percent(50))
            refs.insert(refs.begin() + static_cast<std::ptrdiff_t>(dice.Below(refs.size() + 1)),
                        StyleRef{whole, substyle});
    }
    const ObjectEntries entries = ObjectsOf(dice, refs);
    return Do(
        PanelText(panel) + TextOf(entries) + " then SetTargetStyle(" + TextOf(refs) + ", false, (), {});",
        [=](LibraryWorld& world)
        {
            HandObjects(world, panel, entries);
            world.Panel(panel).SetTargetStyle(world.Find(refs), false, Styles::PropertyPath(), {});
        },
        [=](PlainWorld& world)
        {
            HandObjects(world, panel, entries);
            world.panels[panel]->SetTargetStyle(world.Find(refs), false, {}, {});
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

/// Targets for a panel and then, beside them, those of another that it is tied to.
Operation ShowWithSibling(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const std::size_t sibling = (panel + 1 + dice.Below(2)) % 3;
    const StyleRefs own = AnyStyles(dice);
    StyleRefs others = AnyStyles(dice);
    if (dice.Percent(50))
        others.push_back({dice.Percent(50) ? "C0" : "C1", std::nullopt});
    return Do(
        PanelText(sibling) + "SetTargetStyle(" + TextOf(others) + ", false, (), {}); " + PanelText(panel) +
            "RegisterSiblingDS(" + SiblingText(sibling) + "); " + PanelText(panel) + "SetTargetStyle(" +
            TextOf(own) + ", false, (), {});",
        [=](LibraryWorld& world)
        {
            world.Panel(sibling).SetTargetStyle(world.Find(others), false, Styles::PropertyPath(), {});
            world.Panel(panel).RegisterSiblingDS(world.PanelOrNull(sibling));
            world.Panel(panel).SetTargetStyle(world.Find(own), false, Styles::PropertyPath(), {});
        },
        [=](PlainWorld& world)
        {
            world.panels[sibling]->SetTargetStyle(world.Find(others), false, {}, {});
            world.panels[panel]->siblings.push_back(world.PanelOrNull(sibling));
            world.panels[panel]->SetTargetStyle(world.Find(own), false, {}, {});
        });
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
    static const Makers makers = {
        {14, SetTargets},  {2, SetTargetsByKey}, {2, SetObjects},      {6, SelectObjects}, {1, ClearObjects},
        {1, AskForObject}, {2, TieSibling},      {4, ShowWithSibling}, {2, UntieSibling},  {1, ForceMore},
        {1, ForceNothing}, {2, AskForAgreement}, {2, AskForTarget}};
    return makers;
}

} // namespace LibraryModel
