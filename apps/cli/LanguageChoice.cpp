#include "apps/cli/LanguageChoice.h"

#include "apps/workbench/UsageError.h"
#include "reference_host/resources/Language.h"

#include <cstdlib>
#include <string>

namespace Cli
{
namespace
{

/// The locale that the person set for messages; empty when none is set.
std::string MessageLocale()
{
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
    {
        const char* const value = std::getenv(variable);
        if (value != nullptr && *value != '\0')
            return value;
    }
    return {};
}

} // namespace

void ChooseLanguage(const DrawingOptions& options)
{
    if (options.language.empty())
    {
        ReferenceHost::SetLanguage(options.isJson ? "en" : ReferenceHost::FindLanguageFor(MessageLocale()));
        return;
    }
    if (ReferenceHost::SetLanguage(options.language))
        return;
    std::string known;
    for (const std::string& language : ReferenceHost::GetLanguages())
        known += (known.empty() ? "" : ", ") + language;
    throw Workbench::UsageError("there are no texts in the language \"" + options.language +
                                "\"; expected one of " + known);
}

} // namespace Cli
