#include "reference_host/services/DocumentStylesSource.h"

#include "reference_host/history/History.h"
#include "reference_host/history/StepChanges.h"
#include "reference_host/preset_store/PresetPicture.h"
#include "reference_host/services/DocumentStyleModifier.h"
#include "reference_host/services/IDocumentEditor.h"
#include "reference_host/services/PresetApplication.h"
#include "reference_host/services/PresetManager.h"
#include "reference_host/services/StyleExtraction.h"
#include "reference_host/services/TransactionOverrides.h"
#include "reference_host/style_model/StyleResolution.h"

#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/data_binding/PendingEvent.h"
#include "host/resources/Resources.h"
#include "host/style_model/CategoryNames.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace ReferenceHost
{

using Styles::Style;

namespace
{

OvxStringT StepName(const wchar_t* key)
{
    return Framework::Resources::GetString(key);
}

/// Lets panels read again what they show, when the application is idle.
void AnnounceChange()
{
    const OvxStringT name = L"StylePropertiesChange";
    OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance().NotifyListenersOnIdleImpl(
        name, true,
        std::make_shared<PendingEvent<Styles::PropertyKey, OvxStringT>>(name, Styles::StyleCategoryName,
                                                                        OvxStringT()));
}

/// Tells whether a style can be saved with a parent: a sheet outside the document is a file of its own, whose
/// styles know one another only.
bool LiesWithinReach(const Style& style, const Style* parent)
{
    return parent == nullptr || !style.IsExternal() ||
           (parent->IsExternal() && parent->GetExternalStyleSheetName() == style.GetExternalStyleSheetName());
}

} // namespace

DocumentStylesSource::DocumentStylesSource(IDocumentStyles& openDocument)
    : document(openDocument), editor(openDocument.GetEditor())
{
    if (editor == nullptr)
        return;
    modifier = std::make_unique<DocumentStyleModifier>(editor->GetHistory());
    editor->GetHistory().SetListener(
        [this](HistoryEvent event, const StepChanges& changes)
        {
            if (event != HistoryEvent::Recorded || !changes.ConcernsOnly(document.GetDefaultStyles()))
                AnnounceChange();
        });
}

DocumentStylesSource::~DocumentStylesSource()
{
    if (editor != nullptr)
        editor->GetHistory().SetListener(nullptr);
}

void DocumentStylesSource::SetIgnoreCharacterStyleSiblings(bool ignore) noexcept
{
    ignoreCharacterStyleSiblings = ignore;
}

void DocumentStylesSource::SetSelectedStyles(std::vector<Style*> styles)
{
    selectedStyles = std::move(styles);
}

Styles::StyleSheet* DocumentStylesSource::GetStyleSheet()
{
    return document.GetStyleSheet();
}

Styles::StyleSheet* DocumentStylesSource::GetExternalStyleSheet(const OvxStringT& sheetName)
{
    return document.GetExternalStyleSheet(sheetName);
}

bool DocumentStylesSource::ShouldIgnoreCharacterStyleSiblings()
{
    return ignoreCharacterStyleSiblings;
}

Styles::StyleSheet* DocumentStylesSource::GetDefaultStyleSheet()
{
    return nullptr;
}

std::vector<Styles::Style*> DocumentStylesSource::GetDefaultStyles()
{
    return document.GetDefaultStyles();
}

IMultipleStyleModifier* DocumentStylesSource::GetMultipleStyleModifier()
{
    return modifier.get();
}

void DocumentStylesSource::ApplyToParent(std::function<void(const Styles::PropertyPaths&)> clear,
                                         Style* destination, const Styles::PropertyPaths& paths,
                                         std::unique_ptr<Style> values)
{
    const bool isComplete = clear != nullptr && destination != nullptr && values != nullptr;
    if (editor == nullptr || !isComplete || IsReadOnly(*destination))
        return;
    const History::Step step(editor->GetHistory(), StepName(L"history.apply-to-parent"));
    destination->SetProperties(paths, values.get());
    clear(paths);
}

void DocumentStylesSource::ReplaceProperties(Style* style, const Styles::PropertyPaths& paths,
                                             std::unique_ptr<Style> values, bool dropParent,
                                             bool /*reserved*/)
{
    if (editor == nullptr || style == nullptr || values == nullptr || IsReadOnly(*style))
        return;
    const History::Step step(editor->GetHistory(),
                             StepName(dropParent ? L"history.drop-parent" : L"history.edit"));
    style->SetProperties(paths, values.get());
    if (dropParent)
        style->SetParent(nullptr);
}

void DocumentStylesSource::CreateStyle(const Styles::PropertyKey& category, const OvxStringT& name)
{
    const auto isOutside = [](const Style* style) { return style != nullptr && style->IsExternal(); };
    if (editor == nullptr || std::ranges::any_of(selectedStyles, isOutside))
        return;
    const History::Step step(editor->GetHistory(), StepName(L"history.create-style"));
    Style* const created = editor->AddStyle(category, name);
    if (created == nullptr)
        return;
    std::vector<Style*> styles;
    std::ranges::copy_if(selectedStyles, std::back_inserter(styles),
                         [this](const Style* style) { return MayInherit(style); });
    ExtractInto(*created, styles);
}

void DocumentStylesSource::ApplyStyle(Style* style, bool /*reserved*/)
{
    if (editor == nullptr || style == nullptr)
        return;
    const History::Step step(editor->GetHistory(), StepName(L"history.apply-style"));
    for (Style* const target : selectedStyles)
        SetParent(target, style, true);
}

void DocumentStylesSource::SetParent(Style* target, Style* parent, bool /*reserved*/)
{
    if (editor == nullptr || !MayInherit(target) || !LiesWithinReach(*target, parent) ||
        (parent != nullptr && IsDefault(*parent)))
        return;
    const History::Step step(editor->GetHistory(), StepName(L"history.set-parent"));
    Style* const part = parent == nullptr ? target : PartOfCategory(target, parent->GetCategoryName());
    if (part != nullptr)
        part->SetParent(parent);
}

void DocumentStylesSource::SetPresetCategory(const OvxStringT& presetCategory,
                                             const Styles::PropertyKey& category)
{
    presetCategories[presetCategory] = category;
}

void DocumentStylesSource::ApplyPresetToStyles(const OvxStringT& name, const OvxStringT& category,
                                               const std::vector<Style*>& styles)
{
    const auto known = presetCategories.find(category);
    if (editor == nullptr || keeper == nullptr || known == presetCategories.end())
        return;
    const std::unique_ptr<Style> preset = keeper->LoadPreset(category, name);
    // Made where the preset has none: what is silent in the category lets all of it be inherited.
    const Style* const part = Styles::GetStyleOrSubstyle(preset.get(), known->second, true);
    if (part == nullptr)
        return;
    const History::Step step(editor->GetHistory(), StepName(L"history.apply-preset"));
    for (Style* const style : styles)
        ApplyPreset(style, known->second, *part);
}

void DocumentStylesSource::ApplyPresetToObjects(const OvxStringT& name, const OvxStringT& category,
                                                const std::vector<std::size_t>& objects)
{
    std::vector<Style*> styles;
    for (const std::size_t object : objects)
        styles.push_back(document.GetObjectStyle(object));
    ApplyPresetToStyles(name, category, styles);
}

void DocumentStylesSource::FillPresetItems(std::vector<Styles::PresetListEntry> entries,
                                           const OvxStringT& category)
{
    std::map<OvxStringT, std::unique_ptr<Style>> presets;
    if (keeper != nullptr && !entries.empty())
        presets = keeper->LoadPresets(category);
    for (const Styles::PresetListEntry& entry : entries)
    {
        if (entry.item == nullptr)
            continue;
        entry.item->SetText(entry.name);
        entry.item->SetIndex(static_cast<int>(entry.position));
        const auto preset = presets.find(entry.name);
        if (preset != presets.end())
            entry.item->SetPicture(OvxUtils::Any(DescribePicture(*preset->second)));
    }
}

void DocumentStylesSource::BeginGroup()
{
    if (editor == nullptr)
        return;
    editor->GetHistory().Open(StepName(L"history.edit"));
    if (groupCount++ == 0)
        overrides = std::make_unique<TransactionOverrides>();
}

void DocumentStylesSource::EndGroup(bool commit)
{
    if (groupCount == 0)
        return;
    if (--groupCount == 0)
        overrides.reset();
    if (commit)
        editor->GetHistory().Close();
    else
        editor->GetHistory().Cancel();
}

Styles::IModifyStyleOverrides* DocumentStylesSource::GetTransactionOverrides()
{
    return overrides.get();
}

bool DocumentStylesSource::IsDefault(const Style& style) const
{
    const std::vector<Style*> defaults = document.GetDefaultStyles();
    return std::ranges::find(defaults, &OutermostOwner(style)) != defaults.end();
}

bool DocumentStylesSource::MayInherit(const Style* style) const
{
    return style != nullptr && !IsReadOnly(*style) && !IsDefault(*style);
}

} // namespace ReferenceHost
