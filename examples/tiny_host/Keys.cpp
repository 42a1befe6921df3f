// Names of properties and of categories: the pool that keeps each text once, the keys that are constants,
// paths made of keys, and what this host knows of each category.

#include "host/style_model/CategoryNames.h"
#include "host/style_model/PropertyPath.h"
#include "host/style_model/StringPool.h"
#include "host/style_model/Style.h"
#include "host/style_model/StyleManager.h"
#include "tiny_host/CategoryProperties.h"
#include "tiny_host/Lasting.h"

#include "host/resources/Resources.h"

#include <array>
#include <functional>
#include <map>
#include <mutex>
#include <string>

namespace Styles
{

namespace
{

/// The texts of the constant keys: data that no initialiser has to make first.
constinit const std::array<StringPool::Text, 5> kConstants{
    {{L"style"}, {L"fill"}, {L"outline"}, {L"paragraph"}, {L"character"}}};

constexpr PropertyKey ConstantKey(std::size_t number)
{
    return PooledString<StringPool>(&kConstants[number]);
}

/// A map, since its elements keep their addresses.
struct Pool
{
    std::mutex access;
    std::map<std::wstring, StringPool::Text, std::less<>> texts;
};

class NamedCategory final : public StyleCategory
{
public:
    explicit NamedCategory(OvxStringT keyOfItsName) : textKey(std::move(keyOfItsName)) {}

    [[nodiscard]] OvxStringT GetDisplayName() const override
    {
        return Framework::Resources::GetString(textKey);
    }

private:
    OvxStringT textKey;
};

/// Knows the categories of the constant keys, and those that are registered.
class TinyStyleManager final : public StyleManager
{
public:
    TinyStyleManager()
    {
        for (std::size_t i = 0; i < kConstants.size(); ++i)
            Add(ConstantKey(i), L"category." + ConstantKey(i).GetString());
    }

    void Add(const PropertyKey& category, const OvxStringT& textKey)
    {
        categories.emplace(category, std::make_shared<NamedCategory>(textKey));
    }

    [[nodiscard]] std::shared_ptr<StyleCategory> GetCategory(const PropertyKey& category) override
    {
        const auto found = categories.find(category);
        return found == categories.end() ? nullptr : found->second;
    }

private:
    std::map<PropertyKey, std::shared_ptr<StyleCategory>> categories;
};

using PropertiesByCategory = std::map<PropertyKey, std::set<PropertyKey>>;

} // namespace

const StringPool::Text* StringPool::Intern(OvxStringViewT text)
{
    if (text.empty())
        return nullptr;
    for (const Text& constant : kConstants)
    {
        if (std::wstring_view(constant.characters) == std::wstring_view(text))
            return &constant;
    }

    auto& pool = TinyHost::Lasting<Pool>();
    const std::lock_guard held(pool.access);
    const auto [kept, isNew] = pool.texts.try_emplace(std::wstring(text));
    if (isNew)
        kept->second.characters = kept->first;
    return &kept->second;
}

constinit const PropertyKey PropertyKey::Empty{};
constinit const PropertyKey StyleCategoryName = ConstantKey(0);
constinit const PropertyKey FillStyleCategoryName = ConstantKey(1);
constinit const PropertyKey OutlineStyleCategoryName = ConstantKey(2);

PropertyKey GetParagraphStyleCategoryName()
{
    return ConstantKey(3);
}

PropertyKey GetCharacterStyleCategoryName()
{
    return ConstantKey(4);
}

PropertyPath MakePath(const PropertyKey& key)
{
    return {key};
}

PropertyPath MakePath(const PropertyKey& key, const PropertyPath& path)
{
    PropertyPath longer = path;
    longer.insert(longer.begin(), key);
    return longer;
}

PropertyPaths MakePaths(const std::set<PropertyKey>& keys)
{
    PropertyPaths paths;
    for (const PropertyKey& key : keys)
        paths.push_back({key});
    return paths;
}

StyleCategory::~StyleCategory() = default;
StyleManager::~StyleManager() = default;

std::set<PropertyKey> GetStyleCategoryProperties(const Style& style)
{
    const auto& known = TinyHost::Lasting<PropertiesByCategory>();
    const auto found = known.find(style.GetCategoryName());
    return found == known.end() ? std::set<PropertyKey>() : found->second;
}

} // namespace Styles

template <>
Styles::StyleManager& OvxUtils::Singleton<Styles::StyleManager>::GetInstance()
{
    return TinyHost::Lasting<Styles::TinyStyleManager>();
}

void TinyHost::RegisterCategory(const Styles::PropertyKey& category, const OvxStringT& textKey)
{
    Lasting<Styles::TinyStyleManager>().Add(category, textKey);
}

void TinyHost::RegisterProperties(const Styles::PropertyKey& category,
                                  const std::vector<Styles::PropertyKey>& properties)
{
    Lasting<Styles::PropertiesByCategory>()[category].insert(properties.begin(), properties.end());
}
