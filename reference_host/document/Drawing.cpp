#include "reference_host/document/Drawing.h"

#include "reference_host/document/DrawingData.h"
#include "reference_host/document/DrawingReader.h"
#include "reference_host/document/ProgressMeter.h"
#include "reference_host/document/StyleReader.h"
#include "reference_host/document/picture/PictureReader.h"
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

constexpr const char* kBlankDrawing = R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
    xmlns:draw="urn:oasis:names:tc:opendocument:xmlns:drawing:1.0"
    xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
    xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"
    office:version="1.3" office:mimetype="application/vnd.oasis.opendocument.graphics">
  <office:styles/>
  <office:automatic-styles/>
  <office:body>
    <office:drawing>
      <draw:page draw:name="page1">
        <draw:rect svg:width="4cm" svg:height="3cm" svg:x="2cm" svg:y="2cm"/>
      </draw:page>
    </office:drawing>
  </office:body>
</office:document>
)";

/// Makes the styles of a drawing that has been read tell its history.
void StartHistory(DrawingData& data)
{
    SetJournal(*data.defaultStyle, &data.history);
    for (const OvxStringT& name : data.sheet.GetNames())
        SetJournal(*data.sheet.GetStyle(name), &data.history);
    data.cascades.SetJournal(&data.history);
    data.sheets.StartHistory(data.history);
}

std::unique_ptr<Drawing> Finish(std::unique_ptr<DrawingData> data)
{
    RegisterProperties(data->table);
    StartHistory(*data);
    return std::make_unique<Drawing>(std::move(data));
}

} // namespace

std::unique_ptr<Drawing> Drawing::Open(const std::filesystem::path& file, std::vector<std::string>& warnings,
                                       const std::vector<PropertyMapping>& extensions,
                                       const ProgressListener& progress)
{
    ProgressMeter meter(progress);
    auto data = std::make_unique<DrawingData>(file, extensions);
    DrawingReader(*data, warnings, ProgressSpan(meter)).Read(DrawingReader::SheetLinks::Follow);
    meter.Finish();
    return Finish(std::move(data));
}

std::unique_ptr<Drawing> Drawing::CreateBlank(const std::vector<PropertyMapping>& extensions)
{
    auto data = std::make_unique<DrawingData>(std::filesystem::path(), extensions);
    data->file.label = "blank drawing";
    data->file.bytes = kBlankDrawing;
    std::vector<std::string> warnings;
    DrawingReader(*data, warnings).ReadContents(DrawingReader::SheetLinks::PassOver);
    return Finish(std::move(data));
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
                                                                const Styles::PropertyKey& key,
                                                                const OvxStringT& sheetName) const
{
    const ExternalSheet* const sheet = data->sheets.Find(sheetName);
    const DeclaredNames& declared = sheet == nullptr ? data->declared : sheet->data->declared;
    const PropertyMapping* const row = data->table.FindRow(category, key);
    if (row == nullptr || !IsDefinitionKind(row->definition))
        return std::nullopt;
    const std::string kind = DefinitionKey(row->definition, {});
    std::vector<OvxStringT> names;
    for (const auto& [definition, name] : declared.definitions)
    {
        if (definition.starts_with(kind))
            names.push_back(name);
    }
    std::ranges::sort(names);
    return names;
}

DrawingPicture Drawing::ReadPicture(const ProgressListener& progress) const
{
    ProgressMeter meter(progress);
    DrawingPicture picture = PictureReader(*data).Read(ProgressSpan(meter));
    meter.Finish();
    return picture;
}

const std::vector<Styles::PropertyKey>& Drawing::GetCategories() const noexcept
{
    return data->table.GetCategories();
}

} // namespace ReferenceHost
