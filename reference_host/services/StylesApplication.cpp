#include "reference_host/services/StylesApplication.h"

namespace ReferenceHost
{

StylesApplication::StylesApplication() = default;

StylesApplication::~StylesApplication() = default;

void StylesApplication::SetDocument(const IDocumentStyles* openDocument) noexcept
{
    document = openDocument;
}

bool StylesApplication::IsExcludedStyleName(const OvxStringT& name)
{
    return document != nullptr && document->IsHidden(name);
}

OvxStringT StylesApplication::GetDisplayStyleName(const OvxStringT& name)
{
    return document == nullptr ? name : document->GetDisplayName(name);
}

Styles::StylePresetManager& StylesApplication::GetStylePresetManager()
{
    return presets;
}

} // namespace ReferenceHost
