#include "reference_host/services/DocumentStylesSource.h"

namespace ReferenceHost
{

DocumentStylesSource::DocumentStylesSource(IDocumentStyles& openDocument) noexcept : document(openDocument)
{
}

DocumentStylesSource::~DocumentStylesSource() = default;

void DocumentStylesSource::SetIgnoreCharacterStyleSiblings(bool ignore) noexcept
{
    ignoreCharacterStyleSiblings = ignore;
}

Styles::StyleSheet* DocumentStylesSource::GetStyleSheet()
{
    return document.GetStyleSheet();
}

Styles::StyleSheet* DocumentStylesSource::GetExternalStyleSheet(const OvxStringT& /*sheetName*/)
{
    return nullptr;
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
    return nullptr;
}

void DocumentStylesSource::ApplyToParent(std::function<void(const Styles::PropertyPaths&)> /*clear*/,
                                         Styles::Style* /*destination*/,
                                         const Styles::PropertyPaths& /*paths*/,
                                         std::unique_ptr<Styles::Style> /*values*/)
{
}

void DocumentStylesSource::ReplaceProperties(Styles::Style* /*style*/, const Styles::PropertyPaths& /*paths*/,
                                             std::unique_ptr<Styles::Style> /*values*/, bool /*dropParent*/,
                                             bool /*reserved*/)
{
}

void DocumentStylesSource::CreateStyle(const Styles::PropertyKey& /*category*/, const OvxStringT& /*name*/)
{
}

void DocumentStylesSource::ApplyStyle(Styles::Style* /*style*/, bool /*reserved*/)
{
}

void DocumentStylesSource::SetParent(Styles::Style* /*target*/, Styles::Style* /*parent*/, bool /*reserved*/)
{
}

void DocumentStylesSource::ApplyPresetToStyles(const OvxStringT& /*name*/, const OvxStringT& /*category*/,
                                               const std::vector<Styles::Style*>& /*styles*/)
{
}

void DocumentStylesSource::ApplyPresetToObjects(const OvxStringT& /*name*/, const OvxStringT& /*category*/,
                                                const std::vector<std::size_t>& /*objects*/)
{
}

void DocumentStylesSource::FillPresetItems(std::vector<Styles::PresetListEntry> entries,
                                           const OvxStringT& /*category*/)
{
    for (const Styles::PresetListEntry& entry : entries)
    {
        if (entry.item == nullptr)
            continue;
        entry.item->SetText(entry.name);
        entry.item->SetIndex(static_cast<int>(entry.position));
    }
}

void DocumentStylesSource::BeginGroup()
{
}

void DocumentStylesSource::EndGroup(bool /*commit*/)
{
}

Styles::IModifyStyleOverrides* DocumentStylesSource::GetTransactionOverrides()
{
    return nullptr;
}

} // namespace ReferenceHost
