#include "tests/datasource/support/RecordingStylesSource.h"

#include "tests/datasource/support/Description.h"

using namespace Styles;

StyleSheet* RecordingStylesSource::GetStyleSheet()
{
    log.Add("source.GetStyleSheet()");
    return sheet;
}

StyleSheet* RecordingStylesSource::GetExternalStyleSheet(const OvxStringT& sheetName)
{
    log.Add("source.GetExternalStyleSheet(" + Describe(sheetName) + ")");
    const auto found = externalSheets.find(sheetName);
    return found == externalSheets.end() ? nullptr : found->second;
}

bool RecordingStylesSource::ShouldIgnoreCharacterStyleSiblings()
{
    log.Add("source.ShouldIgnoreCharacterStyleSiblings()");
    return ignoresCharacterStyleSiblings;
}

StyleSheet* RecordingStylesSource::GetDefaultStyleSheet()
{
    log.Add("source.GetDefaultStyleSheet()");
    return defaultSheet;
}

std::vector<Style*> RecordingStylesSource::GetDefaultStyles()
{
    log.Add("source.GetDefaultStyles()");
    return defaultStyles;
}

IMultipleStyleModifier* RecordingStylesSource::GetMultipleStyleModifier()
{
    log.Add("source.GetMultipleStyleModifier()");
    return modifier;
}

void RecordingStylesSource::ApplyToParent(std::function<void(const PropertyPaths&)> clear, Style* destination,
                                          const PropertyPaths& paths, std::unique_ptr<Style> values)
{
    log.Add("source.ApplyToParent(destination=" + log.NameOfStyle(destination) +
            ", paths=" + Describe(paths) + ", values=" + Describe(values.get()) + ")");
    if (clearedPaths.has_value())
        clear(*clearedPaths);
}

void RecordingStylesSource::ReplaceProperties(Style* style, const PropertyPaths& paths,
                                              std::unique_ptr<Style> values, bool dropParent, bool reserved)
{
    log.Add("source.ReplaceProperties(style=" + log.NameOfStyle(style) + ", paths=" + Describe(paths) +
            ", values=" + Describe(values.get()) + ", dropParent=" + DescribeFlag(dropParent) +
            ", reserved=" + DescribeFlag(reserved) + ")");
}

void RecordingStylesSource::CreateStyle(const PropertyKey& category, const OvxStringT& name)
{
    log.Add("source.CreateStyle(" + Describe(category) + ", " + Describe(name) + ")");
}

void RecordingStylesSource::ApplyStyle(Style* style, bool reserved)
{
    log.Add("source.ApplyStyle(" + log.NameOfStyle(style) + ", reserved=" + DescribeFlag(reserved) + ")");
}

void RecordingStylesSource::SetParent(Style* target, Style* parent, bool reserved)
{
    log.Add("source.SetParent(target=" + log.NameOfStyle(target) + ", parent=" + log.NameOfStyle(parent) +
            ", reserved=" + DescribeFlag(reserved) + ")");
}

void RecordingStylesSource::ApplyPresetToStyles(const OvxStringT& name, const OvxStringT& category,
                                                const std::vector<Style*>& styles)
{
    log.Add("source.ApplyPresetToStyles(" + Describe(name) + ", " + Describe(category) + ", " +
            log.NamesOfStyles(styles) + ")");
}

void RecordingStylesSource::ApplyPresetToObjects(const OvxStringT& name, const OvxStringT& category,
                                                 const std::vector<std::size_t>& objects)
{
    std::string numbers;
    for (const std::size_t object : objects)
        numbers += (numbers.empty() ? "" : ", ") + std::to_string(object);
    log.Add("source.ApplyPresetToObjects(" + Describe(name) + ", " + Describe(category) + ", [" + numbers +
            "])");
}

void RecordingStylesSource::FillPresetItems(std::vector<PresetListEntry> entries, const OvxStringT& category)
{
    std::string names;
    for (const PresetListEntry& entry : entries)
    {
        names += (names.empty() ? "" : ", ") + std::to_string(entry.position) + ": " + Describe(entry.name);
        names += entry.item == nullptr ? " without an item" : "";
        if (fillsPresetItems && entry.item != nullptr)
        {
            entry.item->SetText(presetText.value_or(entry.name));
            entry.item->SetIndex(static_cast<int>(entry.position));
        }
    }
    log.Add("source.FillPresetItems([" + names + "], " + Describe(category) + ")");
}

void RecordingStylesSource::BeginGroup()
{
    log.Add("source.BeginGroup()");
}

void RecordingStylesSource::EndGroup(bool commit)
{
    log.Add("source.EndGroup(" + DescribeFlag(commit) + ")");
}

IModifyStyleOverrides* RecordingStylesSource::GetTransactionOverrides()
{
    log.Add("source.GetTransactionOverrides()");
    return transactionOverrides;
}
