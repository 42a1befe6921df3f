#include "reference_host/style_model/CategoryRegistry.h"

#include "host/resources/Resources.h"
#include "host/style_model/CategoryNames.h"
#include "reference_host/utils/Immortal.h"

#include <utility>

namespace ReferenceHost
{

namespace
{

/// A category whose name is looked up when it is asked for, so that it follows the language in force.
class ResourceNamedCategory final : public Styles::StyleCategory
{
public:
    explicit ResourceNamedCategory(OvxStringT key) : displayNameKey(std::move(key)) {}

    [[nodiscard]] OvxStringT GetDisplayName() const override
    {
        return Framework::Resources::GetString(displayNameKey);
    }

private:
    OvxStringT displayNameKey;
};

} // namespace

CategoryRegistry& CategoryRegistry::GetInstance()
{
    static Immortal<CategoryRegistry> registry;
    return *registry;
}

CategoryRegistry::CategoryRegistry()
{
    RegisterCategory(Styles::StyleCategoryName, L"category.style");
    RegisterCategory(Styles::FillStyleCategoryName, L"category.fill");
    RegisterCategory(Styles::OutlineStyleCategoryName, L"category.outline");
    RegisterCategory(Styles::GetParagraphStyleCategoryName(), L"category.paragraph");
    RegisterCategory(Styles::GetCharacterStyleCategoryName(), L"category.character");
}

CategoryRegistry::~CategoryRegistry() = default;

void CategoryRegistry::RegisterCategory(const Styles::PropertyKey& category, const OvxStringT& displayNameKey)
{
    if (category == Styles::PropertyKey::Empty)
        return;

    const std::lock_guard held(mutex);
    auto& known = categories[category];
    if (known == nullptr)
        known = std::make_shared<ResourceNamedCategory>(displayNameKey);
}

void CategoryRegistry::RegisterProperties(const Styles::PropertyKey& category,
                                          const std::vector<Styles::PropertyKey>& added)
{
    const std::lock_guard held(mutex);
    properties[category].insert(added.begin(), added.end());
}

std::shared_ptr<Styles::StyleCategory>
CategoryRegistry::FindCategory(const Styles::PropertyKey& category) const
{
    const std::lock_guard held(mutex);
    const auto found = categories.find(category);
    return found == categories.end() ? nullptr : found->second;
}

std::set<Styles::PropertyKey> CategoryRegistry::GetProperties(const Styles::PropertyKey& category) const
{
    const std::lock_guard held(mutex);
    const auto found = properties.find(category);
    return found == properties.end() ? std::set<Styles::PropertyKey>() : found->second;
}

} // namespace ReferenceHost
