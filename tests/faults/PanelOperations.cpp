#include "tests/faults/PanelOperations.h"

#include "host/data_binding/ID_CString.h"
#include "host/data_binding/IDataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "module/StylesCommon.h"
#include "tests/datasource/support/Description.h"
#include "tests/datasource/support/WritingTest.h"

#include <ostream>
#include <utility>

using namespace Styles;
using OvxUtils::Any;

namespace
{

using Step = std::function<void(FaultSubject&)>;

// Ways to begin

void OnNothing(FaultSubject& /*subject*/)
{
}

void OnObjects(FaultSubject& subject)
{
    subject.HandInObjects();
    subject.panel.SetActiveIdentifier(L"color");
}

void OnBareObjects(FaultSubject& subject)
{
    subject.HandInObjects();
    subject.second.SetSubstyle(Key(L"fill"), nullptr);
}

void OnWholeObjects(FaultSubject& subject)
{
    subject.HandInObjects();
    subject.panel.SetActiveIdentifier(L"style");
}

void OnOneColour(FaultSubject& subject)
{
    subject.panel.SetTargetStyle({&subject.first}, false, PropertyPath(), {});
    subject.panel.SetActiveIdentifier(L"resource");
}

void OnDefaults(FaultSubject& subject)
{
    subject.HandInDefaults();
}

void OnNamedStyle(FaultSubject& subject)
{
    subject.HandInNamedStyle();
}

void OnSiblings(FaultSubject& subject)
{
    subject.TieSiblings();
}

void OnApplicator(FaultSubject& subject)
{
    subject.TakeApplicator();
    subject.HandInObjects();
}

void OnDefaultsOfApplicator(FaultSubject& subject)
{
    subject.TakeApplicator();
    subject.HandInDefaults();
}

void InGroup(FaultSubject& subject)
{
    subject.HandInDefaults();
    subject.panel.StartGroupModify();
    subject.panel.WriteTarget(Key(L"color"), Any(6), nullptr, nullptr);
}

void InGroupOfObjects(FaultSubject& subject)
{
    subject.HandInObjects();
    subject.panel.StartGroupModify();
}

void OnManyFills(FaultSubject& subject)
{
    subject.NameManyFills();
    subject.panel.SetTargetStyle({&FillOf(subject.first)}, false, PropertyPath(), {});
}

void OnListOfManyFills(FaultSubject& subject)
{
    OnManyFills(subject);
    static_cast<void>(subject.panel.GetStyleResourceList());
}

void OnOverflowOfManyFills(FaultSubject& subject)
{
    OnListOfManyFills(subject);
    const WXmlNode list = subject.panel.GetNewStyleList();
    subject.panel.SetCurrentListStyleItem(list.GetChildren().at(1));
}

void OnPresets(FaultSubject& subject)
{
    subject.OpenPresets();
    subject.HandInObjects();
}

void OnListedPresets(FaultSubject& subject)
{
    OnPresets(subject);
    static_cast<void>(subject.panel.GetPresetList());
}

void OnChosenPreset(FaultSubject& subject)
{
    OnPresets(subject);
    subject.panel.SetCurrentPreset(*subject.panel.GetPresetList().GetItem(0));
}

void InPresetDialog(FaultSubject& subject)
{
    OnListedPresets(subject);
    subject.panel.OnAddPreset();
}

// Rows of the table

std::string NameOf(const char* verb, const wchar_t* name)
{
    return verb + Describe(OvxStringT(name));
}

PanelOperation Read(const wchar_t* name, Step arrange)
{
    return {NameOf("Read", name), std::move(arrange),
            [name](FaultSubject& subject) { static_cast<void>(subject.panel.ReadAny(name)); }};
}

PanelOperation Invoke(const wchar_t* name, Step arrange)
{
    return {NameOf("Invoke", name), std::move(arrange),
            [name](FaultSubject& subject) { subject.panel.Invoke(name); }};
}

PanelOperation Write(const wchar_t* name, Step arrange, Any value)
{
    return {NameOf("Write", name), std::move(arrange),
            [name, value = std::move(value)](FaultSubject& subject) { subject.panel.WriteAny(name, value); }};
}

WCmnUI_ListItem PresetItem(const wchar_t* text, int index)
{
    WCmnUI_ListItem item;
    item.SetText(text);
    item.SetIndex(index);
    return item;
}

/// Picks the third of the styles in the dialog.
void ChooseItem(FaultSubject& subject)
{
    subject.panel.SetCurrentListStyleItem(subject.panel.GetNewStyleList().GetChildren().at(2));
}

PanelOperation At(PanelOperation operation, const char* suffix)
{
    operation.name += suffix;
    return operation;
}

std::vector<PanelOperation> BoundNames()
{
    const Any question(ID_CString{L"color", {}});
    return {
        Read(L"ActiveIdentifier", OnObjects),
        Write(L"ActiveIdentifier", OnObjects, Any(OvxStringT(L"type,color.*"))),
        Read(L"RevertToParentEnable", OnObjects),
        Invoke(L"OnRevertToParent", OnObjects),
        At(Invoke(L"OnRevertToParent", OnWholeObjects), "OfWholeStyles"),
        Read(L"BreakColorResourceEnable", OnOneColour),
        Invoke(L"OnBreakColorResource", OnOneColour),
        Read(L"ApplyToParentEnable", OnWholeObjects),
        Invoke(L"OnApplyToParent", OnWholeObjects),
        Read(L"CreateStyleFromEnable", OnObjects),
        Read(L"IsObjectStyle", OnObjects),
        Read(L"IsStyle", OnNamedStyle),
        Read(L"IsStyleOrDefault", OnNamedStyle),
        Invoke(L"OnCreateStyleFrom", OnObjects),
        Read(L"EditStyleEnable", OnObjects),
        Invoke(L"OnEditStyle", OnObjects),
        Read(L"PropertyIcon", OnObjects),
        Write(L"PropertyIcon", OnObjects, question),
        Read(L"PropertyTooltip", OnObjects),
        Write(L"PropertyTooltip", OnObjects, question),
        Read(L"SectionTitle", OnNothing),
        Read(L"StyleResourceList", OnListOfManyFills),
        At(Read(L"StyleResourceList", OnOverflowOfManyFills), "AfterTheOverflow"),
        Read(L"ApplyStyleResource", OnObjects),
        Write(L"ApplyStyleResource", OnListOfManyFills, Any(3U)),
        At(Write(L"ApplyStyleResource", OnListOfManyFills, Any(10U)), "OpeningTheDialog"),
        Read(L"RevertToMenuString", OnObjects),
        Read(L"ApplyToMenuString", OnObjects),
        Read(L"EditStyleMenuString", OnObjects),
        Read(L"NewStyleList", OnListOfManyFills),
        At(Read(L"NewStyleList", OnOverflowOfManyFills), "Again"),
        Read(L"IsObjectProperties", OnObjects),
        Read(L"CurrentListStyleItem", OnOverflowOfManyFills),
        {"WriteCurrentListStyleItem", OnOverflowOfManyFills, ChooseItem},
        Invoke(L"OnBaseStylePropertiesDatasourceOk", OnOverflowOfManyFills),
        Read(L"BaseStylePropertiesDatasourceOkEnabled", OnOverflowOfManyFills),
        Read(L"PropertyPanelStateIdentifier", OnPresets),
        Read(L"EnableStyleEditing", OnObjects),
        Read(L"PresetList", OnPresets),
        At(Read(L"PresetList", OnListedPresets), "Again"),
        Read(L"CurrentPreset", OnPresets),
        Write(L"CurrentPreset", OnListedPresets, Any(PresetItem(L"Spring", 0))),
        At(Write(L"CurrentPreset", OnDefaults, Any(PresetItem(L"Spring", 0))), "OfDefaults"),
        Read(L"AddPresetEnabled", OnPresets),
        Invoke(L"OnAddPreset", OnPresets),
        Read(L"DeletePresetEnabled", OnChosenPreset),
        Invoke(L"OnDeletePreset", OnChosenPreset),
    };
}

// The rest by member

void WriteTwo(FaultSubject& subject)
{
    const PropertyKey type = Key(L"type");
    const Any solid(1);
    subject.panel.WriteTarget(Key(L"color"), Any(OvxStringT(L"a long text")), &type, &solid);
}

void WriteOne(FaultSubject& subject)
{
    subject.panel.WriteTarget(Key(L"color"), Any(OvxStringT(L"a long text")), nullptr, nullptr);
}

void WriteASubstyle(FaultSubject& subject)
{
    const PropertyPaths overrides = Paths({L"stop"});
    subject.panel.ModifySubstyles(Paths({L"start"}), &FillOf(subject.first), Key(L"gradient"), &overrides);
}

void HandInSecond(FaultSubject& subject)
{
    subject.panel.SetTargetStyle({&subject.second, nullptr}, false, Path({L"style", L"fill"}),
                                 {Path({L"style", L"fill", L"color"})});
}

std::vector<PanelOperation> OfTargets()
{
    using S = FaultSubject;
    return {
        {"TakesTargets", OnObjects, HandInSecond},
        {"TakesDefaults", OnObjects, OnDefaults},
        {"TakesTargetsOfSiblings", OnSiblings, HandInSecond},
        {"TakesTargetsByKey", OnObjects,
         [](S& s) { s.panel.SetTargetStyle({&s.second}, false, Key(L"fill"), {Path({L"fill"})}); }},
        {"TakesObjects", OnChosenPreset,
         [](S& s) {
             s.panel.SetObjectStyles({{&s.second, 2}});
         }},
        {"ForgetsObjects", OnChosenPreset, [](S& s) { s.panel.ClearObjectStyles(); }},
        {"GivesTargets", OnSiblings, [](S& s) { static_cast<void>(s.panel.GetTargetStyles()); }},
        {"GivesAMissingTarget", OnBareObjects, [](S& s) { static_cast<void>(s.panel.GetTargetStyle(1)); }},
        {"GivesATargetOfTheApplicator", OnApplicator,
         [](S& s) { static_cast<void>(s.panel.GetTargetStyle(1)); }},
        {"AsksForAmbiguity", OnObjects, [](S& s) { static_cast<void>(s.panel.IsAmbiguous(Key(L"color"))); }},
        {"AsksForAmbiguityOfAll", OnObjects, [](S& s) { static_cast<void>(s.panel.IsAmbiguous()); }},
        {"AsksForForcedAmbiguity", OnObjects,
         [](S& s) {
             static_cast<void>(s.panel.IsForcedAmbiguous(Path({L"type", L"x"})));
         }},
        {"ForcesAmbiguity", OnObjects,
         [](S& s) {
             s.panel.ImportForceAmbiguous(Path({L"a"}), {Path({L"a", L"b"}), Path({L"a", L"c"})});
         }},
        {"ForcesNoAmbiguity", OnObjects, [](S& s) { s.panel.ClearForceAmbiguous(); }},
        {"AsksForAParent", OnObjects, [](S& s) { static_cast<void>(s.panel.Private_HasParent()); }},
        {"AsksForOverrides", OnObjects,
         [](S& s) { static_cast<void>(s.panel.DoesOverrideProperties(&s.first, L"type,color")); }},
        {"GivesCategoryProperties", OnObjects,
         [](S& s) { static_cast<void>(s.panel.GetStyleCategoryProperties(&FillOf(s.first))); }},
        {"GivesTransactionOverrides", OnObjects,
         [](S& s) { static_cast<void>(s.panel.GetTransactionOverrides()); }},
        {"TiesASibling", OnObjects, [](S& s) { s.panel.RegisterSiblingDS(&s.tied); }},
        {"UntiesASibling", OnSiblings, [](S& s) { s.panel.UnregisterSiblingDS(&s.tied); }},
        {"DeselectsThePreset", OnChosenPreset, [](S& s) { s.panel.SelectNoPreset(); }},
        {"TellsOfPresets", OnPresets, [](S& s) { s.panel.OnPresetsListUpdated(); }},
    };
}

std::vector<PanelOperation> OfWriting()
{
    using S = FaultSubject;
    return {
        {"WritesObjects", OnObjects, WriteTwo},
        {"WritesSiblings", OnSiblings, WriteTwo},
        {"WritesANamedStyle", OnNamedStyle, WriteTwo},
        {"WritesDefaults", OnDefaults, WriteTwo, FailurePromise::StaysUsable},
        {"WritesByTheApplicator", OnApplicator, WriteTwo},
        {"WritesDefaultsByTheApplicator", OnDefaultsOfApplicator, WriteTwo},
        {"GathersAValue", InGroup, WriteOne},
        {"GathersTwoValues", InGroup, WriteTwo, FailurePromise::StaysUsable},
        {"GathersASubstyle", InGroup, WriteASubstyle},
        {"GathersNothing", InGroup, [](S& s) { s.panel.ClearProperties(Paths({L"color"})); }},
        {"OpensAGroup", OnDefaults, [](S& s) { s.panel.StartGroupModify(); }},
        {"OpensAGroupAgain", InGroup, [](S& s) { s.panel.StartGroupModify(); }},
        {"OpensAGroupOfObjects", OnObjects, [](S& s) { s.panel.StartGroupModify(); }},
        {"CommitsAGroup", InGroup, [](S& s) { s.panel.EndGroupModify(true); }, FailurePromise::StaysUsable},
        {"DropsAGroup", InGroup, [](S& s) { s.panel.EndGroupModify(false); }},
        {"CommitsAGroupOfObjects", InGroupOfObjects, [](S& s) { s.panel.EndGroupModify(true); }},
        {"ClearsObjects", OnObjects,
         [](S& s) {
             s.panel.ClearProperties(Paths({L"color", L"type"}));
         }},
        {"DropsAParent", OnObjects, [](S& s) { s.panel.SetNoParent(&s.source, &s.first); }},
        {"WritesANamedDefault", OnObjects,
         [](S& s) { s.panel.WriteToDefault(L"Base", Key(L"color"), Any(8)); }},
        {"WritesASubstyle", OnObjects, WriteASubstyle},
        {"WritesAChange", OnObjects,
         [](S& s) { s.panel.ModifyStyles(std::make_unique<Style>(FillOf(s.first)), nullptr); }},
    };
}

std::vector<PanelOperation> OfTheLibrary()
{
    using S = FaultSubject;
    const auto release = [](S&) { StylesCommon::ReleaseInstance(false); };
    return {
        {"MakesAPanel", OnApplicator,
         [](S& s)
         {
             OpenPanel made;
             made.SetDataSourceProvider(&s.context);
             made.Complete();
         }},
        {"MakesADialog", OnNothing,
         [](S& s) {
             IDataSourceRegistrar::GetInstance().FindFactory(L"StylePresets")->Create(&s.context)->Destroy();
         }},
        {"MakesTheSharedInstance", release, [](S& s) { StylesCommon::GetInstance().Initialize(&s.app); }},
        {"ReleasesTheSharedInstance", OnNothing, release},
        {"AsksForTheSharedInstance", release, [](S&) { static_cast<void>(StylesCommon::HasInstance()); }},
        {"AsksForTheApplication", OnNothing, [](S&) { static_cast<void>(StylesCommon::GetApp()); }},
        {"AsksForServices", OnNothing, [](S&) { static_cast<void>(StylesCommon::StylesApp()); }},
        {"AsksForTheSource", OnNothing, [](S&) { static_cast<void>(StylesCommon::GetActiveStyleSource()); }},
    };
}

std::vector<PanelOperation> OfTheDialog()
{
    using S = FaultSubject;
    const auto overwrite = [](S& s)
    {
        InPresetDialog(s);
        s.Dialog().Write<OvxStringT>(L"AddPresetName", L"Spring");
        HostPieces::SetConfirmation(
            [&s](const OvxStringT&, int)
            {
                s.calls.Enter("confirm");
                return 6;
            });
    };
    return {
        {"WriteAddPresetName", InPresetDialog,
         [](S& s) { s.Dialog().Write<OvxStringT>(L"AddPresetName", L"A new name"); }},
        {"ReadAddPresetName", InPresetDialog,
         [](S& s) { static_cast<void>(s.Dialog().ReadAny(L"AddPresetName")); }},
        {"AcceptAddPreset", InPresetDialog, [](S& s) { s.Dialog().Invoke(L"OnAddPresetOk"); }},
        {"AcceptAddPresetOverAnother", overwrite, [](S& s) { s.Dialog().Invoke(L"OnAddPresetOk"); }},
        {"CancelAddPreset", InPresetDialog, [](S& s) { s.Dialog().Invoke(L"OnAddPresetCancel"); }},
    };
}

} // namespace

void PrintTo(const PanelOperation& operation, std::ostream* out)
{
    *out << operation.name;
}

std::vector<PanelOperation> PanelOperations()
{
    std::vector<PanelOperation> all = BoundNames();
    for (const auto& rows : {OfTargets(), OfWriting(), OfTheLibrary(), OfTheDialog()})
        all.insert(all.end(), rows.begin(), rows.end());
    return all;
}
