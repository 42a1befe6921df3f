// What the sheets list, which styles are default styles, and which names are kept from people.

#include "tests/model/PlainDescription.h"
#include "tests/model/RandomArguments.h"
#include "tests/model/RandomOperations.h"

namespace LibraryModel
{

namespace
{

/// Lists these styles of the pool under their names, in place of what a sheet listed before.
Operation ListIn(const std::string& text, const std::vector<std::size_t>& places,
                 RecordingSheet LibraryWorld::*sheet, PlainSheet PlainHost::*plainSheet,
                 const std::string& unresolved = {})
{
    return Do(
        text,
        [=](LibraryWorld& world)
        {
            RecordingSheet& listing = world.*sheet;
            listing.entries.clear();
            listing.unresolvedNames.clear();
            if (!unresolved.empty())
                listing.unresolvedNames.insert(ToHost(unresolved));
            for (const std::size_t place : places)
                listing.entries.push_back({ToHost(StylePool()[place].sheetName), &world.styles[place]});
        },
        [=](PlainWorld& world)
        {
            PlainSheet& listing = world.host.*plainSheet;
            listing.entries.clear();
            listing.unresolved.clear();
            if (!unresolved.empty())
                listing.unresolved.insert(unresolved);
            for (const std::size_t place : places)
                listing.entries.push_back({StylePool()[place].sheetName, world.styles[place].get()});
        });
}

Operation FillSheet(std::size_t fills, std::size_t others, bool hidesOne)
{
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < fills; ++place)
        places.push_back(place);
    for (std::size_t place = kPooledFills; place < StylePool().size() && places.size() < fills + others;
         ++place)
        places.push_back(place);
    const std::string unresolved = hidesOne ? StylePool()[1].sheetName : "";
    return ListIn("sheet lists " + std::to_string(fills) + " fills and " + std::to_string(others) +
                      " others" + (hidesOne ? ", and does not find " + Quoted(unresolved) : "") + ";",
                  places, &LibraryWorld::sheet, &PlainHost::sheet, unresolved);
}

Operation ChangeSheet(Dice& dice)
{
    static const std::vector<std::size_t> counts = {0, 3, 8, 9, 10, 12, 17, 18, 19, 20, 21, 24, 24};
    const std::size_t fills = dice.One(counts);
    const std::size_t others = dice.Percent(75) ? 11 : dice.Below(12);
    return FillSheet(fills, others, dice.Percent(10));
}

Operation ChangeExternalSheet(Dice& dice)
{
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < StylePool().size(); ++place)
    {
        if (dice.Percent(40))
            places.push_back(place);
    }
    return ListIn("external sheet lists " + std::to_string(places.size()) + " styles;", places,
                  &LibraryWorld::externalSheet, &PlainHost::externalSheet);
}

Operation ChangeDefaultSheet(Dice& dice)
{
    const std::size_t place = PoolIndex("S" + std::to_string(2 + dice.Below(3)));
    return ListIn("default sheet lists " + StylePool()[place].name + ";", {place},
                  &LibraryWorld::defaultSheet, &PlainHost::defaultSheet);
}

Operation SetDefaultStyles(const std::vector<std::string>& names)
{
    StyleRefs refs;
    for (const std::string& name : names)
        refs.push_back({name, std::nullopt});
    return Do(
        "source.defaultStyles = " + TextOf(refs) + ";",
        [=](LibraryWorld& world) { world.source.defaultStyles = world.Find(refs); },
        [=](PlainWorld& world) { world.host.defaultStyles = world.Find(refs); });
}

Operation ChangeDefaultStyles(Dice& dice)
{
    return SetDefaultStyles(dice.One(
        std::vector<std::vector<std::string>>{{}, {"S4"}, {"S4", "S5"}, {"S3", "S4", "S5"}, {"S5", "F3"}}));
}

Operation ExcludeNames(Dice& dice)
{
    const std::string name =
        dice.One(std::vector<std::string>{"", "Style 0", "Base & %2", "Fill 0", "Style 2"});
    return Do(
        "stylesApp.excludedNames = {" + Quoted(name) + "};",
        [=](LibraryWorld& world) { world.stylesApp.excludedNames = {ToHost(name)}; },
        [=](PlainWorld& world) { world.host.excludedNames = {name}; });
}

} // namespace

const Makers& SheetMakers()
{
    static const Makers makers = {{3, ChangeSheet},
                                  {1, ChangeExternalSheet},
                                  {1, ChangeDefaultSheet},
                                  {1, ChangeDefaultStyles},
                                  {1, ExcludeNames}};
    return makers;
}

namespace
{

Operation Inherit(const std::string& child, const std::string& parent)
{
    const StyleRef heir{child, std::nullopt};
    const StyleRef ancestor{parent, std::nullopt};
    return Do(
        child + ".SetParent(" + parent + ");",
        [=](LibraryWorld& world) { world.Find(heir)->SetParent(world.Find(ancestor)); },
        [=](PlainWorld& world) { world.Find(heir)->parent = world.Find(ancestor); });
}

Operation Hold(const std::string& name, const std::string& dotted, int value)
{
    const StyleRef ref{name, std::nullopt};
    const Path path = PathOf(dotted);
    return Do(
        name + ".SetPathProperty(" + dotted + ", " + std::to_string(value) + ");",
        [=](LibraryWorld& world)
        { world.Find(ref)->SetPathProperty(ToHost(path), ToHost(PlainValue(value))); },
        [=](PlainWorld& world) { world.Find(ref)->StoreAt(path, value); });
}

} // namespace

Sequence Preparation()
{
    return {FillSheet(12, 11, false),    SetDefaultStyles({"S4", "S5"}),
            Inherit("S1", "S0"),         Inherit("S2", "S1"),
            Inherit("S3", "S1"),         Inherit("S4", "S0"),
            Inherit("S5", "S2"),         Inherit("F1", "F0"),
            Inherit("F2", "F0"),         Inherit("F3", "F1"),
            Inherit("F9", "F0"),         Inherit("C1", "C0"),
            Hold("S0", "fill.color", 1), Hold("S0", "outline.width", 2),
            Hold("S1", "fill.type", 1),  Hold("S1", "outline.color", 2),
            Hold("S2", "fill.color", 2), Hold("S3", "outline.width", 1),
            Hold("S3", "fill.type", 2),  Hold("F0", "color", 1),
            Hold("F1", "color", 2)};
}

} // namespace LibraryModel
