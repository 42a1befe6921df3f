// What the host changes in styles while the library looks elsewhere.

#include "tests/model/PlainDescription.h"
#include "tests/model/RandomArguments.h"
#include "tests/model/RandomOperations.h"

#include "tests/host_pieces/HostPieces.h"

namespace LibraryModel
{

namespace
{

Operation SetValue(Dice& dice)
{
    const StyleRef ref = AnyStyle(dice);
    const Key key = AnyPropertyKey(dice);
    const PlainValue value = AnyValue(dice);
    return Do(
        ref.Text() + ".SetProperty(" + Quoted(TextOf(key)) + ", " + Tell(value) + ");",
        [=](LibraryWorld& world)
        {
            if (Styles::Style* style = world.Find(ref))
                style->SetProperty(ToHost(key), ToHost(value));
        },
        [=](PlainWorld& world)
        {
            if (PlainStyle* style = world.Find(ref))
                style->Store(key, value);
        });
}

Operation SetValueAtPath(Dice& dice)
{
    const StyleRef ref = AnyPooledStyle(dice);
    const Path path = AnyPath(dice);
    const PlainValue value = AnyValue(dice);
    return Do(
        ref.Text() + ".SetPathProperty(" + Tell(path) + ", " + Tell(value) + ");",
        [=](LibraryWorld& world) { world.Find(ref)->SetPathProperty(ToHost(path), ToHost(value)); },
        [=](PlainWorld& world) { world.Find(ref)->StoreAt(path, value); });
}

Operation MakeSubstyle(Dice& dice)
{
    const StyleRef ref = AnyPooledStyle(dice);
    const Key key = AnyCategory(dice);
    return Do(
        ref.Text() + ".GetSubstyleAndCreateIfMissing(" + Quoted(TextOf(key)) + ");",
        [=](LibraryWorld& world)
        { world.Find(ref)->GetSubstyleAndCreateIfMissing(ToHost(key), ToHost(key)); },
        [=](PlainWorld& world) { world.Find(ref)->NeedSubstyle(key, key); });
}

Operation RemoveSubstyle(Dice& dice)
{
    const StyleRef ref = AnyPooledStyle(dice);
    const Key key = AnyCategory(dice);
    Operation made = Do(
        ref.Text() + ".SetSubstyle(" + Quoted(TextOf(key)) + ", nullptr);",
        [=](LibraryWorld& world) { world.Find(ref)->SetSubstyle(ToHost(key), nullptr); },
        [=](PlainWorld& world) { world.Find(ref)->PlaceSubstyle(key, nullptr); });
    made.isAllowed = [=](const PlainWorld& world)
    {
        const PlainStyle* substyle = world.Find(ref)->Substyle(key);
        return substyle == nullptr || !world.IsInUse(*substyle);
    };
    return made;
}

} // namespace

Operation MoveToExternalSheet(Dice& dice)
{
    const StyleRef ref = AnyPooledStyle(dice);
    const std::string sheet = dice.One(std::vector<std::string>{"", "external", "external", "elsewhere"});
    const std::string link = dice.Percent(50) ? "" : "sheets/one";
    return Do(
        "MoveToExternalSheet(" + ref.Text() + ", " + Quoted(sheet) + ", " + Quoted(link) + ");",
        [=](LibraryWorld& world)
        { HostPieces::MoveToExternalSheet(*world.Find(ref), ToHost(sheet), ToHost(link)); },
        [=](PlainWorld& world)
        {
            world.Find(ref)->sheetName = sheet;
            world.Find(ref)->link = link;
        });
}

Operation SetParent(Dice& dice)
{
    const StyleRef child = AnyStyle(dice);
    StyleRef parent = AnyStyle(dice);
    if (child.substyle.has_value() && dice.Percent(70))
        parent.substyle = child.substyle;
    Operation made = Do(
        child.Text() + ".SetParent(" + parent.Text() + ");",
        [=](LibraryWorld& world)
        {
            if (Styles::Style* style = world.Find(child))
                style->SetParent(world.Find(parent));
        },
        [=](PlainWorld& world)
        {
            if (PlainStyle* style = world.Find(child))
                style->parent = world.Find(parent);
        });
    made.isAllowed = [=](const PlainWorld&) { return PlainWorld::MayInherit(child, parent); };
    return made;
}

const Makers& StyleMakers()
{
    static const Makers makers = {{8, SetValue},     {4, SetValueAtPath}, {7, SetParent},
                                  {2, MakeSubstyle}, {4, RemoveSubstyle}, {2, MoveToExternalSheet}};
    return makers;
}

} // namespace LibraryModel
