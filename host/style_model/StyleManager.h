#pragma once

#include "host/Export.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/StyleCategory.h"
#include "host/utils/Singleton.h"

#include <memory>

namespace Styles
{

/// Knows the categories of styles; one for the process, reached by Singleton<StyleManager>::GetInstance().
class STYLEPROPERTIES_HOST_API StyleManager
{
public:
    StyleManager(const StyleManager&) = delete;
    StyleManager& operator=(const StyleManager&) = delete;
    virtual ~StyleManager();

    /// The category of that name; null for one that the host does not know.
    [[nodiscard]] virtual std::shared_ptr<StyleCategory> GetCategory(const PropertyKey& category) = 0;

protected:
    StyleManager() = default;
};

} // namespace Styles

/// The host's own object, whichever module asks.
template <>
STYLEPROPERTIES_HOST_API Styles::StyleManager& OvxUtils::Singleton<Styles::StyleManager>::GetInstance();
