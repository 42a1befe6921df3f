#include "host/style_model/StyleManager.h"

#include "reference_host/style_model/CategoryRegistry.h"
#include "reference_host/utils/Immortal.h"

namespace Styles
{

StyleCategory::~StyleCategory() = default;
StyleManager::~StyleManager() = default;

} // namespace Styles

namespace ReferenceHost
{

namespace
{

class RegistryStyleManager final : public Styles::StyleManager
{
public:
    [[nodiscard]] std::shared_ptr<Styles::StyleCategory>
    GetCategory(const Styles::PropertyKey& category) override
    {
        return CategoryRegistry::GetInstance().FindCategory(category);
    }
};

} // namespace

} // namespace ReferenceHost

template <>
Styles::StyleManager& OvxUtils::Singleton<Styles::StyleManager>::GetInstance()
{
    static ReferenceHost::Immortal<ReferenceHost::RegistryStyleManager> manager;
    return *manager;
}
