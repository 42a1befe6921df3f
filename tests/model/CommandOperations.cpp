// Commands on the active property, and questions about it.

#include "host/data_binding/ID_CString.h"
#include "tests/model/PlainDescription.h"
#include "tests/model/RandomArguments.h"
#include "tests/model/RandomOperations.h"

namespace LibraryModel
{

namespace
{

Operation AskForState(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const std::string identifier = AnyIdentifier(dice);
    return Do(
        PanelText(panel) + "GetActivePropertyState(" + Quoted(identifier) + ");",
        [=](LibraryWorld& world) {
            return std::to_string(
                static_cast<int>(world.Panel(panel).GetActivePropertyState(ToHost(identifier))));
        },
        [=](PlainWorld& world) {
            return std::to_string(static_cast<int>(world.panels[panel]->GetActivePropertyState(identifier)));
        });
}

Operation AskForOverride(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const StyleRef ref = AnyStyle(dice);
    const std::string identifier = AnyIdentifier(dice);
    return Do(
        PanelText(panel) + "DoesOverrideProperties(" + ref.Text() + ", " + Quoted(identifier) + ");",
        [=](LibraryWorld& world) {
            return DescribeFlag(
                world.Panel(panel).DoesOverrideProperties(world.Find(ref), ToHost(identifier)));
        },
        [=](PlainWorld& world)
        { return Tell(world.panels[panel]->DoesOverrideProperties(world.Find(ref), identifier)); });
}

std::string AskByName(DrivenPanel& panel, const wchar_t* name, const std::string& identifier)
{
    const OvxUtils::Any request{ID_CString{ToHost(identifier), L""}};
    panel.Write<OvxUtils::Any>(name, request);
    return Describe(request.Get<ID_CString>().result);
}

Operation AskForPicture(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const std::string identifier = AnyIdentifier(dice);
    return Do(
        PanelText(panel) + "Write(\"PropertyIcon\" and \"PropertyTooltip\", {" + Quoted(identifier) + "});",
        [=](LibraryWorld& world)
        {
            return AskByName(world.Panel(panel), L"PropertyIcon", identifier) + ", " +
                   AskByName(world.Panel(panel), L"PropertyTooltip", identifier);
        },
        [=](PlainWorld& world)
        {
            PlainPanel& asked = *world.panels[panel];
            return asked.PropertyIcon(identifier) + ", " + asked.PropertyTooltip(identifier);
        });
}

/// What becomes of a request that is no question: nothing for an empty one, std::bad_cast for any other.
std::string AskWrongly(DrivenPanel& panel, const OvxUtils::Any& request)
{
    try
    {
        panel.SetPropertyIcon(request);
        panel.SetPropertyTooltip(request);
        return "nothing";
    }
    catch (const std::bad_cast&)
    {
        return "bad_cast";
    }
}

Operation AskForPictureWrongly(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const PlainValue value = AnyValue(dice);
    return Do(
        PanelText(panel) + "SetPropertyIcon(" + Tell(value) + ");",
        [=](LibraryWorld& world) { return AskWrongly(world.Panel(panel), ToHost(value)); },
        [=](PlainWorld&) { return std::string(HoldsNothing(value) ? "nothing" : "bad_cast"); });
}

Operation Revert(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "Invoke(\"OnRevertToParent\");",
        [=](LibraryWorld& world) { world.Panel(panel).Invoke(L"OnRevertToParent"); },
        [=](PlainWorld& world) { world.panels[panel]->OnRevertToParent(); });
}

/// A selection of styles that inherit, and a command on one row of the panel.
Operation SelectAndDo(Dice& dice, const std::string& identifier, const std::string& command,
                      void (DrivenPanel::*onLibrary)(), void (PlainPanel::*onModel)())
{
    const std::size_t panel = AnyPanel(dice);
    StyleRefs refs = {{"S" + std::to_string(1 + dice.Below(5)), std::nullopt}};
    if (dice.Percent(40))
        refs.push_back({"S" + std::to_string(1 + dice.Below(5)), std::nullopt});
    return Do(
        PanelText(panel) + "SetTargetStyle(" + TextOf(refs) + ", false, (), {}); " + PanelText(panel) +
            "SetActiveIdentifier(" + Quoted(identifier) + "); " + PanelText(panel) + command + "();",
        [=](LibraryWorld& world)
        {
            DrivenPanel& driven = world.Panel(panel);
            driven.SetTargetStyle(world.Find(refs), false, Styles::PropertyPath(), {});
            driven.SetActiveIdentifier(ToHost(identifier));
            (driven.*onLibrary)();
        },
        [=](PlainWorld& world)
        {
            PlainPanel& plain = *world.panels[panel];
            plain.SetTargetStyle(world.Find(refs), false, {}, {});
            plain.SetActiveIdentifier(identifier);
            (plain.*onModel)();
        });
}

Operation SelectAndRevert(Dice& dice)
{
    return SelectAndDo(dice, AnyIdentifier(dice), "OnRevertToParent", &DrivenPanel::OnRevertToParent,
                       &PlainPanel::OnRevertToParent);
}

Operation SelectAndApply(Dice& dice)
{
    return SelectAndDo(dice, "style", "OnApplyToParent", &DrivenPanel::OnApplyToParent,
                       &PlainPanel::OnApplyToParent);
}

Operation ApplyToParent(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "Invoke(\"OnApplyToParent\");",
        [=](LibraryWorld& world) { world.Panel(panel).Invoke(L"OnApplyToParent"); },
        [=](PlainWorld& world) { world.panels[panel]->OnApplyToParent(); });
}

std::string BreakColor(DrivenPanel& panel)
{
    try
    {
        panel.Invoke(L"OnBreakColorResource");
        return "done";
    }
    catch (const std::bad_cast&)
    {
        return "bad_cast";
    }
}

Operation BreakColorResource(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "Invoke(\"OnBreakColorResource\");",
        [=](LibraryWorld& world) { return BreakColor(world.Panel(panel)); },
        [=](PlainWorld& world)
        { return std::string(world.panels[panel]->OnBreakColorResource() ? "done" : "bad_cast"); });
}

Operation CreateStyle(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "Invoke(\"OnCreateStyleFrom\");",
        [=](LibraryWorld& world) { world.Panel(panel).Invoke(L"OnCreateStyleFrom"); },
        [=](PlainWorld& world) { world.panels[panel]->OnCreateStyleFrom(); });
}

Operation EditStyle(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    return Do(
        PanelText(panel) + "Invoke(\"OnEditStyle\");",
        [=](LibraryWorld& world) { world.Panel(panel).Invoke(L"OnEditStyle"); },
        [=](PlainWorld& world) { world.panels[panel]->OnEditStyle(); });
}

Operation SetNoParent(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const StyleRef ref = AnyStyle(dice);
    const bool withSource = dice.Percent(90);
    return Do(
        PanelText(panel) + "SetNoParent(" + (withSource ? "&source" : "nullptr") + ", " + ref.Text() + ");",
        [=](LibraryWorld& world)
        { world.Panel(panel).SetNoParent(withSource ? &world.source : nullptr, world.Find(ref)); },
        [=](PlainWorld& world) { world.panels[panel]->SetNoParent(withSource, world.Find(ref)); });
}

} // namespace

Operation SetIdentifier(Dice& dice)
{
    const std::size_t panel = AnyPanel(dice);
    const std::string identifier = AnyIdentifier(dice);
    return Do(
        PanelText(panel) + "Write(\"ActiveIdentifier\", " + Quoted(identifier) + ");",
        [=](LibraryWorld& world)
        { world.Panel(panel).Write<OvxStringT>(L"ActiveIdentifier", ToHost(identifier)); },
        [=](PlainWorld& world) { world.panels[panel]->SetActiveIdentifier(identifier); });
}

const Makers& CommandMakers()
{
    static const Makers makers = {{6, SetIdentifier},      {2, AskForState},          {2, AskForOverride},
                                  {2, AskForPicture},      {1, AskForPictureWrongly}, {1, Revert},
                                  {6, SelectAndRevert},    {1, ApplyToParent},        {3, SelectAndApply},
                                  {3, BreakColorResource}, {1, CreateStyle},          {1, EditStyle},
                                  {2, SetNoParent}};
    return makers;
}

} // namespace LibraryModel
