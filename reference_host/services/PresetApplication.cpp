#include "reference_host/services/PresetApplication.h"

#include "reference_host/services/DocumentStyleModifier.h"
#include "reference_host/services/StyleExtraction.h"

namespace ReferenceHost
{

bool ApplyPreset(Styles::Style* style, const Styles::PropertyKey& category, const Styles::Style& preset)
{
    if (style == nullptr || IsReadOnly(*style))
        return false;
    Styles::Style* const part = PartOfCategory(style, category);
    if (part == nullptr)
        return false;
    part->SetProperties(Styles::MakePaths(Styles::GetStyleCategoryProperties(*part)), &preset);
    return true;
}

} // namespace ReferenceHost
