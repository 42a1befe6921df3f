#include "apps/workbench/QuotedNames.h"

#include "host/utils/Utf8.h"

#include <algorithm>

namespace Workbench
{

std::string Quoted(OvxStringViewT text)
{
    return "\"" + OvxUtils::ToUtf8(text) + "\"";
}

std::string QuotedList(const std::vector<OvxStringT>& texts)
{
    constexpr std::size_t kShown = 20;
    std::string list;
    for (std::size_t index = 0; index < std::min(texts.size(), kShown); ++index)
        list += (index == 0 ? "" : ", ") + Quoted(texts[index]);
    if (texts.size() > kShown)
        list += " and " + std::to_string(texts.size() - kShown) + " more";
    return list;
}

} // namespace Workbench
