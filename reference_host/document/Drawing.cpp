#include "reference_host/document/Drawing.h"

#include "reference_host/document/DrawingData.h"
#include "reference_host/document/DrawingReader.h"
#include "reference_host/document/StyleReader.h"
#include "reference_host/style_model/CategoryRegistry.h"
#include "reference_host/style_model/StyleHosting.h"

#include <algorithm>
#include <utility>

namespace ReferenceHost
{

namespace
{

/// Tells the process what categories and properties drawings have.
void RegisterProperties(const PropertyMappings& table)
{
    CategoryRegistry& registry = CategoryRegistry::GetInstance();
    for (const Styles::PropertyKey& category : table.GetCategories())
    {
        registry.RegisterCategory(category, L"category." + category.GetString());
        std::vector<Styles::PropertyKey> keys;
        for (const PropertyMapping& row : table.GetRows())
        {
            if (row.category == category)
                keys.push_back(row.key);
        }
        registry.RegisterProperties(category, keys);
    }
}

/// Makes the styles of a drawing that has been read tell its history.
void StartHistory(DrawingData& data)
{
    SetJournal(*data.defaultStyle, &data.history);
    for (const OvxStringT& name : data.sheet.GetNames())
        SetJournal(*data.sheet.GetStyle(name), &data.history);
    data.cascades.SetJournal(&data.history);
}

} // namespace

std::unique_ptr<Drawing> Drawing::Open(const std::filesystem::path& file, std::vector<std::string>& warnings,
                                       const std::vector<PropertyMapping>& extensions)
{
    auto data = std::make_unique<DrawingData>(file, extensions);
    DrawingReader(*data, warnings).Read();
    RegisterProperties(data->table);
    StartHistory(*data);
    return std::make_unique<Drawing>(std::move(data));
}

Drawing::Drawing(std::unique_ptr<DrawingData> contents) : data(std::move(contents))
{
}

Drawing::~Drawing() = default;

const std::filesystem::path& Drawing::GetPath() const noexcept
{
    return data->path;
}

DrawingForm Drawing::GetForm() const noexcept
{
    return data->file.form;
}

bool Drawing::IsTemplate() const noexcept
{
    return data->file.isTemplate;
}

const std::vector<DrawingPage>& Drawing::GetPages() const noexcept
{
    return data->pages;
}

std::deque<DrawingObject>& Drawing::GetObjects() noexcept
{
    return data->objects;
}

NamedStyleSheet& Drawing::GetStyleSheet() noexcept
{
    return data->sheet;
}

OvxStringT Drawing::GetDisplayName(const OvxStringT& styleName) const
{
    const auto found = data->appearances.find(styleName);
    const bool hasOwn = found != data->appearances.end() && !found->second.displayName.empty();
    return hasOwn ? found->second.displayName : styleName;
}

bool Drawing::IsHidden(const OvxStringT& styleName) const
{
    const auto found = data->appearances.find(styleName);
    return found != data->appearances.end() && found->second.isHidden;
}

Styles::Style& Drawing::GetDefaultStyle() noexcept
{
    return *data->defaultStyle;
}

const std::vector<PaletteEntry>& Drawing::GetPalette() const noexcept
{
    return data->palette;
}

std::optional<CLR_COLORSPEC::Rgb> Drawing::FindPaletteColour(const OvxStringT& name) const
{
    const auto found = std::ranges::find(data->palette, name, &PaletteEntry::name);
    return found == data->palette.end() ? std::nullopt : std::optional(found->look);
}

std::optional<std::vector<OvxStringT>> Drawing::GetDefinedNames(const Styles::PropertyKey& category,
                                                                const Styles::PropertyKey& key) const
{
    const PropertyMapping* const row = data->table.FindRow(category, key);
    if (row == nullptr || !IsDefinitionKind(row->definition))
        return std::nullopt;
    const std::string kind = DefinitionKey(row->definition, {});
    std::vector<OvxStringT> names;
    for (const auto& [definition, name] : data->declared.definitions)
    {
        if (definition.starts_with(kind))
            names.push_back(name);
    }
    std::ranges::sort(names);
    return names;
}

const std::vector<Styles::PropertyKey>& Drawing::GetCategories() const noexcept
{
    return data->table.GetCategories();
}

} // namespace ReferenceHost
