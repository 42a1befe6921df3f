#include "reference_host/document/NamedStyles.h"

#include "reference_host/document/CascadeStyles.h"
#include "reference_host/document/OwnValues.h"
#include "reference_host/document/StyleNames.h"
#include "reference_host/document/StyleParents.h"
#include "reference_host/style_model/StyleHosting.h"

#include "host/style_model/CategoryNames.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace ReferenceHost
{

namespace
{

void WriteValues(Styles::Style& style, const StyleRecord& record, const PropertyMappings& table,
                 Warnings& warnings)
{
    OwnValues values(table, OwnValues::Scope::All);
    values.Add(record);
    for (const std::size_t row : values.WriteTo(style))
    {
        warnings.AddAbout(record,
                          "its " + table.GetRows()[row].attribute +
                              " is a percentage of what it inherits, which is nothing; it counts as not set");
    }
}

} // namespace

void FillDefaultStyle(Styles::Style& defaults, const StyleRecord* record, const PropertyMappings& table,
                      Warnings& warnings)
{
    if (record != nullptr)
        WriteValues(defaults, *record, table, warnings);
}

std::unique_ptr<Styles::Style> MakeNamedStyle(const Styles::PropertyKey& category,
                                              const PropertyMappings& table, Styles::Style& defaults)
{
    const bool isWhole = category == Styles::StyleCategoryName;
    std::unique_ptr<Styles::Style> style =
        isWhole ? MakeWholeStyle(nullptr, table) : std::make_unique<Styles::Style>(nullptr, category);
    LetFallBack(*style, defaults);
    return style;
}

void LetFallBack(Styles::Style& style, Styles::Style& defaults)
{
    const Styles::PropertyKey category = style.GetCategoryName();
    SetDefaultStyle(style, category == Styles::StyleCategoryName ? &defaults
                                                                 : defaults.GetSubstyle(category, false));
}

NamedStyleBuilder::NamedStyleBuilder(const PropertyMappings& properties, Styles::Style& defaultStyle,
                                     NamedStyleSheet& target, StyleAppearances& appearanceTarget,
                                     Warnings& reports)
    : table(properties),
      defaults(defaultStyle),
      sheet(target),
      appearances(appearanceTarget),
      warnings(reports)
{
}

void NamedStyleBuilder::Build(StyleCatalogue& catalogue)
{
    const std::vector<StyleRecord*> parentsFirst = LinkParents(catalogue, warnings);
    for (StyleRecord& record : catalogue.GetRecords())
    {
        if (record.family == StyleFamily::Graphic && record.origin == StyleOrigin::Named)
            AddToSheet(record);
    }
    LinkSubstyleParents(catalogue, table, warnings);
    for (const StyleRecord* const record : parentsFirst)
        Complete(*record);
    NoteInheritedValues(catalogue, table);
}

void NamedStyleBuilder::AddToSheet(StyleRecord& record)
{
    Styles::PropertyKey category = Styles::StyleCategoryName;
    if (!record.ownCategory.empty())
    {
        category = Styles::PooledString<Styles::StringPool>(OvxUtils::FromUtf8(record.ownCategory));
        const auto& known = table.GetCategories();
        if (std::ranges::find(known, category) == known.end())
        {
            return warnings.AddAbout(record, "its category \"" + record.ownCategory +
                                                 "\" is not known here; it was left out");
        }
    }
    const OvxStringT name = PickName(record);
    appearances[name] = {OvxUtils::FromUtf8(record.displayName), record.isHidden};
    record.style = sheet.Add(name, MakeNamedStyle(category, table, defaults));
    record.sheetName = name;
}

OvxStringT NamedStyleBuilder::PickName(const StyleRecord& record)
{
    const OvxStringT decoded = DecodeStyleName(record.name);
    if (sheet.GetStyle(decoded) == nullptr)
        return decoded;
    warnings.AddAbout(record,
                      "another style has this name already; this one is called \"" + record.name + "\"");
    return sheet.GetUnusedStyleName(OvxUtils::FromUtf8(record.name));
}

void NamedStyleBuilder::Complete(const StyleRecord& record)
{
    if (record.style == nullptr)
        return;
    if (record.parent != nullptr)
        record.style->SetParent(record.parent->style);
    SetSubstyleParents(*record.style, record);
    WriteValues(*record.style, record, table, warnings);
}

} // namespace ReferenceHost
