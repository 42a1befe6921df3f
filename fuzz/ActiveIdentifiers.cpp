// What rows are asked about: any text as the active identifier, through the requests for its picture and its
// tooltip. The first byte of an input chooses what is selected.

#include "apps/workbench/PanelCommands.h"
#include "fuzz/Choices.h"
#include "fuzz/Demand.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/Workplace.h"
#include "host/data_binding/ID_CString.h"
#include "host/style_model/CategoryNames.h"
#include "host/utils/Any.h"
#include "reference_host/history/History.h"

#include <algorithm>
#include <array>

namespace
{

constexpr std::array kImages{L"NoneImage", L"OverriddenImage", L"InheritedImage", L"AmbiguousImage"};

OvxStringT Ask(IReflectable& panel, const wchar_t* name, const OvxStringT& identifier)
{
    const OvxUtils::Any question(ID_CString{identifier, L"untouched"});
    panel.WriteAny(name, question);
    const auto& answered = question.Get<ID_CString>();
    Fuzz::Demand(answered.identifier == identifier, "an answer leaves the question as it is");
    return answered.result;
}

void DemandAnswers(IReflectable& panel, const OvxStringT& identifier)
{
    const OvxStringT image = Ask(panel, L"PropertyIcon", identifier);
    Fuzz::Demand(std::find(kImages.begin(), kImages.end(), image) != kImages.end(),
                 "every identifier has a picture");
    Fuzz::Demand(!Ask(panel, L"PropertyTooltip", identifier).empty(), "every identifier has a tooltip");
    Fuzz::Demand(Ask(panel, L"PropertyIcon", identifier) == image, "asking changes no answer");
    // The whole style is asked about by this text and no other.
    const bool isWholeStyle = identifier == Styles::StyleCategoryName.GetString();
    Fuzz::Demand(isWholeStyle || Ask(panel, L"PropertyIcon", identifier + L"," + identifier) == image,
                 "an identifier that is named twice is one");
}

void DemandEnables(IReflectable& panel, const OvxStringT& identifier)
{
    for (const wchar_t* const enable : {L"RevertToParentEnable", L"ApplyToParentEnable",
                                        L"BreakColorResourceEnable", L"CreateStyleFromEnable"})
        static_cast<void>(Workbench::IsEnabled(panel, identifier, enable));
}

} // namespace

void Fuzz::RunInput(std::string_view input)
{
    Workplace& place = Workplace::Get();
    Choices choices(input);
    place.GetEditor().Select(place.GetSelector(choices.Byte()));
    const OvxStringT identifier = WideText(choices.Rest());
    for (const auto& panel : place.GetSession().GetPanels())
    {
        DemandAnswers(panel->GetBoundNames(), identifier);
        DemandEnables(panel->GetBoundNames(), identifier);
    }
    Demand(place.GetSession().GetDrawing().GetHistory().GetStepCount() == 0, "asking changes no drawing");
}
