#include "tests/datasource/support/RecordingSheet.h"

#include "tests/datasource/support/Description.h"

Styles::Style* RecordingSheet::GetStyle(const OvxStringT& name) const
{
    log.Add(prefix + ".GetStyle(" + Describe(name) + ")");
    for (const Entry& entry : entries)
    {
        if (entry.name == name && !unresolvedNames.contains(name))
            return entry.style;
    }
    return nullptr;
}

OvxStringT RecordingSheet::GetStyleName(const Styles::Style* style) const
{
    log.Add(prefix + ".GetStyleName(" + log.NameOfStyle(style) + ")");
    for (const Entry& entry : entries)
    {
        if (style != nullptr && entry.style == style)
            return entry.name;
    }
    return {};
}

std::vector<OvxStringT> RecordingSheet::GetStyleNames(const Styles::PropertyKey& category) const
{
    log.Add(prefix + ".GetStyleNames(" + Describe(category) + ")");
    std::vector<OvxStringT> names;
    for (const Entry& entry : entries)
    {
        if (entry.style->GetCategoryName() == category)
            names.push_back(entry.name);
    }
    return names;
}

OvxStringT RecordingSheet::GetUnusedStyleName(const OvxStringT& base) const
{
    log.Add(prefix + ".GetUnusedStyleName(" + Describe(base) + ")");
    return base + L"*";
}
