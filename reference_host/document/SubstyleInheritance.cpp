#include "reference_host/document/SubstyleInheritance.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/StyleParents.h"

#include "host/utils/Utf8.h"

#include <map>
#include <string>

namespace ReferenceHost
{

namespace
{

/// What a style says of the parents of its substyles.
struct Inheritance
{
    std::map<std::string, std::string> attributes; ///< Own attributes by their local names.
    PropertyValues values;                         ///< What is inherited so.
};

std::string ParentAttribute(const std::string& category)
{
    return category + std::string(OwnMarkup::kSubstyleParentSuffix);
}

void ListValues(Inheritance& inheritance, const PropertyMappings& table)
{
    std::string list;
    for (const auto& [row, value] : inheritance.values)
        list += (list.empty() ? "" : " ") + NameOfProperty(table.GetRows()[row]);
    if (!list.empty())
        inheritance.attributes[std::string(OwnMarkup::kInheritedValues)] = list;
}

Inheritance OfRecord(const StyleRecord& record, const PropertyMappings& table)
{
    Inheritance inheritance;
    for (const SubstyleParent& parent : record.substyleParents)
        inheritance.attributes[ParentAttribute(parent.category)] = parent.name;
    for (const StyleValue& value : record.inheritedValues)
        inheritance.values.emplace(value.row, value.value);
    ListValues(inheritance, table);
    return inheritance;
}

Inheritance OfStyle(const Styles::Style& style, const NamedStyleEdits& named, const PropertyMappings& table,
                    const PropertyValues& own)
{
    Inheritance inheritance;
    for (std::size_t row = 0; row < table.GetRows().size(); ++row)
    {
        const PropertyMapping& mapping = table.GetRows()[row];
        const Styles::Style* const substyle = style.GetSubstyle(mapping.category, false);
        const Styles::Style* const parent = substyle == nullptr ? nullptr : substyle->GetParent();
        const std::string name = named.NameInFile(parent);
        if (table.GetFirstRow(row) != row || name.empty())
            continue;
        inheritance.attributes[ParentAttribute(OvxUtils::ToUtf8(mapping.category.GetString()))] = name;
        OvxUtils::Any value = FindInChain(parent, mapping.key);
        if (!value.IsEmpty() && !own.contains(row))
            inheritance.values.emplace(row, std::move(value));
    }
    ListValues(inheritance, table);
    return inheritance;
}

} // namespace

void AddSubstyleInheritance(const SavingContext& context, const NamedStyleEdits& named,
                            const Styles::Style& style, const StyleRecord* record, const PropertyValues& own,
                            StyleWish& wish)
{
    const PropertyMappings& table = context.data.table;
    const Inheritance before = record == nullptr ? Inheritance() : OfRecord(*record, table);
    const Inheritance after = OfStyle(style, named, table, own);
    for (const auto& [attribute, value] : before.attributes)
    {
        if (!after.attributes.contains(attribute))
            wish.ownAttributes[attribute] = std::string();
    }
    for (const auto& [attribute, value] : after.attributes)
    {
        const auto old = before.attributes.find(attribute);
        if (old == before.attributes.end() || old->second != value)
            wish.ownAttributes[attribute] = value;
    }
    for (const auto& [row, value] : ChangesBetween(before.values, after.values))
    {
        // A value that became the style's own is written as such.
        if (!value.IsEmpty() || !own.contains(row))
            wish.changes[row] = value;
    }
}

} // namespace ReferenceHost
