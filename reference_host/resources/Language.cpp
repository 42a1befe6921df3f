#include "reference_host/resources/Language.h"

#include "host/resources/Resources.h"
#include "reference_host/resources/BuiltInCatalogues.h"
#include "reference_host/resources/Catalogue.h"
#include "reference_host/utils/Immortal.h"

#include <algorithm>
#include <cstddef>

namespace ReferenceHost
{

namespace
{

/// The catalogues in the order in which they were compiled in, each read once, and the one in force.
struct Texts
{
    Texts()
    {
        for (const BuiltInCatalogue& builtIn : GetBuiltInCatalogues())
            catalogues.push_back(Catalogue::Parse(builtIn.fileName, builtIn.content));
    }

    std::vector<Catalogue> catalogues;
    std::size_t inForce = 0;
};

/// Immortal: texts are asked for from any static initialiser, and until the very end.
Texts& GetTexts()
{
    static Immortal<Texts> texts;
    return *texts;
}

} // namespace

std::vector<std::string> GetLanguages()
{
    std::vector<std::string> languages;
    for (const BuiltInCatalogue& builtIn : GetBuiltInCatalogues())
        languages.emplace_back(builtIn.language);
    return languages;
}

std::string GetLanguage()
{
    return std::string(GetBuiltInCatalogues()[GetTexts().inForce].language);
}

bool SetLanguage(std::string_view language)
{
    const auto all = GetBuiltInCatalogues();
    const auto found =
        std::find_if(all.begin(), all.end(),
                     [&](const BuiltInCatalogue& builtIn) { return builtIn.language == language; });
    if (found == all.end())
        return false;
    GetTexts().inForce = static_cast<std::size_t>(found - all.begin());
    return true;
}

std::string FindLanguageFor(std::string_view locale)
{
    const std::string_view language = locale.substr(0, locale.find_first_of("_.@-"));
    const auto all = GetBuiltInCatalogues();
    const auto found =
        std::find_if(all.begin(), all.end(),
                     [&](const BuiltInCatalogue& builtIn) { return builtIn.language == language; });
    return std::string(found == all.end() ? all.front().language : found->language);
}

} // namespace ReferenceHost

OvxStringT Framework::Resources::GetString(const OvxStringT& key)
{
    const ReferenceHost::Texts& texts = ReferenceHost::GetTexts();
    const OvxStringT* text = texts.catalogues[texts.inForce].Find(key);
    return text == nullptr ? key : *text;
}
