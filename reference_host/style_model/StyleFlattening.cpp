#include "host/style_model/Style.h"
#include "reference_host/style_model/StyleData.h"
#include "reference_host/style_model/StyleResolution.h"

#include <algorithm>
#include <memory>
#include <vector>

// A style that stands for itself: CreateFlattenedStyle. What is shown through the parents, owners and
// defaults becomes its own.
namespace Styles
{

namespace
{

struct NamedCategory
{
    PropertyKey name;
    PropertyKey category;
};

bool Holds(const std::vector<NamedCategory>& substyles, const PropertyKey& name)
{
    return std::ranges::any_of(substyles,
                               [&name](const NamedCategory& substyle) { return substyle.name == name; });
}

/// Copies into `flattened` every effective value at the place `below` under `style`, and what lies under it.
void Flatten(const Style& style, PropertyPath& below, Style& flattened)
{
    StyleData& into = StyleData::Of(flattened);
    std::vector<NamedCategory> substyles;
    ReferenceHost::VisitSources(
        style, below,
        [&into, &substyles](const StyleData& source)
        {
            for (const OwnProperty& property : source.properties)
            {
                if (into.FindOwn(property.key) == nullptr)
                    into.Store(property.key, property.value);
            }
            for (const OwnSubstyle& substyle : source.substyles)
            {
                if (!Holds(substyles, substyle.key))
                    substyles.push_back({substyle.key, substyle.style->GetCategoryName()});
            }
            return false;
        });

    for (const NamedCategory& substyle : substyles)
    {
        auto part = std::make_unique<Style>(nullptr, substyle.category);
        const Style* own = below.empty() ? StyleData::Of(style).FindSubstyle(substyle.name) : nullptr;
        if (own != nullptr)
        {
            Flatten(*own, below, *part);
        }
        else
        {
            below.push_back(substyle.name);
            Flatten(style, below, *part);
            below.pop_back();
        }
        if (!part->IsEmpty())
            into.Place(flattened, substyle.name, std::move(part));
    }
}

} // namespace

Style* Style::CreateFlattenedStyle(std::set<PropertyKey>& keys) const
{
    auto flattened = std::make_unique<Style>(nullptr, GetCategoryName());
    PropertyPath below;
    Flatten(*this, below, *flattened);

    const StyleData& held = StyleData::Of(*flattened);
    for (const OwnProperty& property : held.properties)
        keys.insert(property.key);
    for (const OwnSubstyle& substyle : held.substyles)
        keys.insert(substyle.key);
    return flattened.release();
}

} // namespace Styles
