// What the host shows to people and knows of categories, asked once and kept in plain texts.

#include "tests/model/PlainHost.h"

#include "host/resources/Resources.h"
#include "host/style_model/StyleManager.h"
#include "host/utils/Utf8.h"
#include "tests/host_pieces/HostPieces.h"

namespace LibraryModel
{

namespace
{

/// The properties that each category has; one category has a name with an "&", and "mist" is none at all.
std::map<Key, std::set<Key>> RegisterCategories()
{
    HostPieces::RegisterCategory(ToHost(KeyOf("glow")), L"Glow & shine");
    const std::map<std::string, std::vector<std::string>> words = {
        {"fill", {"color", "type"}}, {"outline", {"color", "width"}}, {"glow", {"shade"}}};
    std::map<Key, std::set<Key>> properties;
    for (const auto& [category, names] : words)
    {
        std::vector<Styles::PropertyKey> keys;
        for (const std::string& each : names)
        {
            keys.push_back(ToHost(KeyOf(each)));
            properties[KeyOf(category)].insert(KeyOf(each));
        }
        HostPieces::RegisterProperties(ToHost(KeyOf(category)), keys);
    }
    return properties;
}

std::string AskDisplayName(Key category)
{
    const auto found = OvxUtils::Singleton<Styles::StyleManager>::GetInstance().GetCategory(ToHost(category));
    return found == nullptr ? std::string() : OvxUtils::ToUtf8(found->GetDisplayName());
}

} // namespace

const std::string& ShownText(const std::string& key)
{
    static std::map<std::string, std::string> texts;
    auto found = texts.find(key);
    if (found == texts.end())
    {
        const OvxStringT text = Framework::Resources::GetString(OvxUtils::FromUtf8(key));
        found = texts.emplace(key, OvxUtils::ToUtf8(text)).first;
    }
    return found->second;
}

const std::set<Key>& CategoryProperties(Key category)
{
    static std::map<Key, std::set<Key>> properties = RegisterCategories();
    return properties[category];
}

const std::string& DisplayNameOf(Key category)
{
    static std::map<Key, std::string> names;
    static_cast<void>(CategoryProperties(category)); // registers what there is to be named
    auto found = names.find(category);
    if (found == names.end())
        found = names.emplace(category, AskDisplayName(category)).first;
    return found->second;
}

} // namespace LibraryModel
