#include "tests/model/PlainHost.h"

#include "tests/model/PlainDescription.h"

#include <algorithm>
#include <cctype>

namespace LibraryModel
{

PlainSheet* PlainHost::GetStyleSheet()
{
    Record("source.GetStyleSheet()");
    return hasSheet ? &sheet : nullptr;
}

PlainSheet* PlainHost::GetExternalStyleSheet(const std::string& name)
{
    Record("source.GetExternalStyleSheet(" + name + ")");
    return name == "external" ? &externalSheet : nullptr;
}

PlainStyle* PlainHost::GetStyle(const PlainSheet& asked, const std::string& name)
{
    Record(asked.prefix + ".GetStyle(" + name + ")");
    for (const PlainSheet::Entry& entry : asked.entries)
    {
        if (entry.name == name && !asked.unresolved.contains(name))
            return entry.style;
    }
    return nullptr;
}

std::string PlainHost::GetStyleName(const PlainSheet& asked, const PlainStyle* style)
{
    Record(asked.prefix + ".GetStyleName(" + NameOf(style) + ")");
    for (const PlainSheet::Entry& entry : asked.entries)
    {
        if (style != nullptr && entry.style == style)
            return entry.name;
    }
    return {};
}

std::vector<std::string> PlainHost::GetStyleNames(const PlainSheet& asked, Key category)
{
    Record(asked.prefix + ".GetStyleNames(" + TextOf(category) + ")");
    std::vector<std::string> names;
    for (const PlainSheet::Entry& entry : asked.entries)
    {
        if (entry.style->category == category)
            names.push_back(entry.name);
    }
    return names;
}

std::string PlainHost::GetDisplayStyleName(const std::string& name)
{
    if (!hasApp || !hasStylesApp)
        return name;
    Record("stylesApp.GetDisplayStyleName(" + name + ")");
    return "<" + name + ">";
}

bool PlainHost::IsExcludedStyleName(const std::string& name)
{
    if (!hasApp || !hasStylesApp)
        return false;
    Record("stylesApp.IsExcludedStyleName(" + name + ")");
    return excludedNames.contains(name);
}

PlainContext::Presets PlainHost::FindPresets(PlainContext& context)
{
    Record("context.GetDataSource(StylePresets)");
    return context.presets;
}

std::set<std::string>* PlainHost::KeptPresets(const std::string& presetCategory)
{
    if (!hasApp || !hasStylesApp)
        return nullptr;
    Record("stylesApp.GetStylePresetManager()");
    Record("manager.GetPresetFolder(" + presetCategory + ")");
    return presetCategory.empty() ? nullptr : &presets[presetCategory];
}

std::vector<std::string> PlainHost::GetPresetNames(const std::string& presetCategory)
{
    const std::set<std::string>* kept = KeptPresets(presetCategory);
    std::vector<std::string> names;
    if (kept != nullptr)
        names.assign(kept->begin(), kept->end());
    const auto folded = [](std::string text)
    {
        std::ranges::transform(text, text.begin(),
                               [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        return text;
    };
    std::ranges::stable_sort(names, {}, folded);
    return names;
}

bool PlainHost::DoesPresetNameExist(const std::string& presetCategory, const std::string& presetName)
{
    const std::set<std::string>* kept = KeptPresets(presetCategory);
    return kept != nullptr && kept->contains(presetName);
}

void PlainHost::AddPreset(const std::string& presetCategory, const std::string& presetName)
{
    std::set<std::string>* kept = KeptPresets(presetCategory);
    if (kept != nullptr && !presetName.empty())
        kept->insert(presetName);
}

void PlainHost::DeletePreset(const std::string& presetCategory, const std::string& presetName)
{
    if (std::set<std::string>* kept = KeptPresets(presetCategory))
        kept->erase(presetName);
}

std::string PlainHost::GetUnusedPresetName(const std::string& presetCategory, const std::string& base)
{
    const std::set<std::string>* kept = KeptPresets(presetCategory);
    std::string name = base;
    for (int number = 2; kept != nullptr && kept->contains(name); ++number)
        name = base + " " + std::to_string(number);
    return name;
}

PlainContext* PlainHost::ObjectPropertiesContext()
{
    if (!hasUserInterface || !hasObjectPropertiesContext)
        return nullptr;
    return &contexts.at(static_cast<std::size_t>(objectPropertiesContext));
}

std::string Fill(const std::string& pattern, const std::vector<std::string>& inserts)
{
    std::string filled;
    for (std::size_t i = 0; i < pattern.size(); ++i)
    {
        const char next = i + 1 < pattern.size() ? pattern[i + 1] : '\0';
        const auto number = static_cast<std::size_t>(next - '0');
        if (pattern[i] != '%' || (next != '%' && (next < '1' || next > '9' || number > inserts.size())))
        {
            filled += pattern[i];
            continue;
        }
        filled += next == '%' ? "%" : inserts[number - 1];
        ++i;
    }
    return filled;
}

std::string Escape(const std::string& text)
{
    std::string escaped;
    for (const char c : text)
        escaped += c == '&' ? "&&" : std::string(1, c);
    return escaped;
}

} // namespace LibraryModel
