#include "bench/library/WholeStyle.h"

#include "host/style_model/CategoryNames.h"

namespace Bench
{

std::unique_ptr<Styles::Style> MakeWholeStyle(Styles::Style* parent)
{
    auto style = std::make_unique<Styles::Style>(parent, Styles::StyleCategoryName);
    for (const Styles::PropertyKey& category :
         {Styles::FillStyleCategoryName, Styles::OutlineStyleCategoryName,
          Styles::GetParagraphStyleCategoryName(), Styles::GetCharacterStyleCategoryName()})
        style->GetSubstyleAndCreateIfMissing(category, category);
    return style;
}

} // namespace Bench
