#include "apps/workbench/PanelDialogs.h"

#include "host/data_binding/IDataContext.h"
#include "host/data_binding/IDataSource.h"
#include "host/utils/OvxStringViewT.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Workbench
{
namespace
{

constexpr OvxStringViewT kAddPresetKey = L"0f6cfc84-8a1f-9182-4a02-21556f4ad8f8";

/// The dialogs in which panels show further styles: for outlines, fills, paragraphs and characters.
constexpr OvxStringViewT kMoreStylesKeys[] = {
    L"0b965e6d-2a66-4c2f-a255-3f788991c9dc", L"494d1725-676f-484b-9453-fe7fb1958759",
    L"fb799669-a363-408d-bf0a-b2d3ea840de3", L"ead5c24a-060b-44d8-acf5-1d8df2e00d17"};

/// Holds a value for as long as it lives, and puts the former one back.
template <class T>
class Holding
{
public:
    Holding(T& itsPlace, T value) : place(itsPlace), before(std::exchange(itsPlace, value)) {}

    Holding(const Holding&) = delete;
    Holding& operator=(const Holding&) = delete;

    ~Holding() { place = before; }

private:
    T& place;
    T before;
};

} // namespace

IDialogAnswers* PanelDialogs::SetAnswers(IDialogAnswers* newAnswers) noexcept
{
    return std::exchange(answers, newAnswers);
}

DialogEnd PanelDialogs::TakeLastEnd() noexcept
{
    return std::exchange(lastEnd, DialogEnd::NotShown);
}

void PanelDialogs::ShowDialog(const OvxStringT& key, IDataContext* context)
{
    if (key == kAddPresetKey && context != nullptr)
        ShowAddPreset(*context);
    const bool isMoreStyles =
        std::ranges::find(kMoreStylesKeys, OvxStringViewT(key)) != std::end(kMoreStylesKeys);
    if (isMoreStyles && picking != nullptr)
        ShowMoreStyles(picking->GetBoundNames());
}

void PanelDialogs::CloseDialog(const OvxStringT& /*key*/, bool isAccepted)
{
    lastEnd = isAccepted ? DialogEnd::Accepted : DialogEnd::GivenUp;
}

int PanelDialogs::Confirm(const OvxStringT& text, int /*flags*/)
{
    return answers != nullptr && answers->Confirm(text) ? ReferenceHost::kAnswerYes
                                                        : ReferenceHost::kAnswerNo;
}

void PanelDialogs::PickStyle(Panel& panel, const StyleListEntry& entry)
{
    lastEnd = DialogEnd::NotShown;
    const Holding<Panel*> holding(picking, &panel);
    panel.GetBoundNames().Write<unsigned>(L"ApplyStyleResource", entry.id);
    if (entry.leadsToDialog && lastEnd == DialogEnd::NotShown)
        ShowMoreStyles(panel.GetBoundNames());
}

void PanelDialogs::ShowMoreStyles(IReflectable& panel)
{
    lastEnd = DialogEnd::GivenUp;
    const StyleList styles = ReadStyleList(panel, StyleListPart::More);
    const auto chosen = answers == nullptr ? std::nullopt : answers->ChooseStyle(styles);
    if (!chosen)
        return;
    panel.Write<WXmlNode>(L"CurrentListStyleItem", styles.entries.at(*chosen).node);
    if (panel.Read<int>(L"BaseStylePropertiesDatasourceOkEnabled") == 0)
        return;
    panel.Invoke(L"OnBaseStylePropertiesDatasourceOk");
    lastEnd = DialogEnd::Accepted;
}

void PanelDialogs::ShowAddPreset(IDataContext& context)
{
    lastEnd = DialogEnd::GivenUp;
    auto* const dialog = dynamic_cast<IReflectable*>(context.GetDataSource(L"StylePresets"));
    while (dialog != nullptr && answers != nullptr && lastEnd != DialogEnd::Accepted)
    {
        const auto name = answers->NamePreset(dialog->Read<OvxStringT>(L"AddPresetName"));
        if (!name)
        {
            dialog->Invoke(L"OnAddPresetCancel");
            return;
        }
        dialog->Write<OvxStringT>(L"AddPresetName", *name);
        if (dialog->Read<bool>(L"AddPresetOkEnabled"))
            dialog->Invoke(L"OnAddPresetOk");
    }
}

} // namespace Workbench
