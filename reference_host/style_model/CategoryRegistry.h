#pragma once

#include "host/Export.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/StyleCategory.h"
#include "host/utils/OvxStringT.h"

#include <memory>
#include <mutex>
#include <set>
#include <unordered_map>
#include <vector>

namespace ReferenceHost
{

/// The categories of styles that this host knows, and the properties of each.
///
/// The style, fill, outline, paragraph and character categories are known from the start, without properties;
/// whoever maps properties registers them. One for the process, never destroyed, safe from any thread and any
/// static initialiser. Nothing is ever taken out.
class STYLEPROPERTIES_HOST_API CategoryRegistry
{
public:
    [[nodiscard]] static CategoryRegistry& GetInstance();

    CategoryRegistry();
    CategoryRegistry(const CategoryRegistry&) = delete;
    CategoryRegistry& operator=(const CategoryRegistry&) = delete;
    ~CategoryRegistry();

    /// Makes a category known. Its display name is the text of `displayNameKey` in the resources, which is
    /// the key itself when they hold none. A category that is known already stays as it is; an empty one is
    /// not made known.
    void RegisterCategory(const Styles::PropertyKey& category, const OvxStringT& displayNameKey);

    /// Adds properties to a category, those it has already left out. The category need not be known; the
    /// properties of one that never becomes known only answer GetProperties().
    void RegisterProperties(const Styles::PropertyKey& category,
                            const std::vector<Styles::PropertyKey>& added);

    /// The category of that name; null for one that is not known. The same object at each call.
    [[nodiscard]] std::shared_ptr<Styles::StyleCategory>
    FindCategory(const Styles::PropertyKey& category) const;

    /// All properties that were registered for a category; none for one that nobody registered any for.
    [[nodiscard]] std::set<Styles::PropertyKey> GetProperties(const Styles::PropertyKey& category) const;

private:
    mutable std::mutex mutex; ///< Guards both maps.
    std::unordered_map<Styles::PropertyKey, std::shared_ptr<Styles::StyleCategory>> categories;
    std::unordered_map<Styles::PropertyKey, std::set<Styles::PropertyKey>> properties;
};

} // namespace ReferenceHost
