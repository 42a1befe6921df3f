#pragma once

#include "reference_host/document/PropertyMapping.h"

#include "host/style_model/PropertyKey.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ReferenceHost
{

/// The rows of the four categories that every drawing has: fill, outline, paragraph and character.
[[nodiscard]] const std::vector<PropertyMapping>& BuiltInProperties();

/// The local name of the element that `element` stands for: "graphic-properties", ...
[[nodiscard]] std::string_view ElementName(PropertyElement element);

/// How files and warnings name a property: "fill.color".
[[nodiscard]] std::string NameOfProperty(const PropertyMapping& row);

/// All rows that one drawing is read by: the built-in ones and those that panels brought along.
class PropertyMappings
{
public:
    explicit PropertyMappings(const std::vector<PropertyMapping>& extensions);
    PropertyMappings(const PropertyMappings&) = delete;
    PropertyMappings& operator=(const PropertyMappings&) = delete;

    /// The rows in order; of two for one property the first counts more. They keep their addresses.
    [[nodiscard]] const std::vector<PropertyMapping>& GetRows() const noexcept { return rows; }

    /// The categories in the order of their first rows.
    [[nodiscard]] const std::vector<Styles::PropertyKey>& GetCategories() const noexcept
    {
        return categories;
    }

    /// The places of the rows whose attribute has a local name, in order; an empty list without any.
    [[nodiscard]] const std::vector<std::size_t>& FindRows(std::string_view attribute) const;

    /// The place of the row that counts most for the property of the row at `place`.
    [[nodiscard]] std::size_t GetFirstRow(std::size_t place) const { return firstRows[place]; }

    /// The row of a property that counts most; null for a property that no row holds.
    [[nodiscard]] const PropertyMapping* FindRow(Styles::PropertyKey category, Styles::PropertyKey key) const;

private:
    std::vector<PropertyMapping> rows;
    std::vector<Styles::PropertyKey> categories;
    std::vector<std::size_t> firstRows; ///< For each row, the place of the first one of its property.
    std::unordered_map<std::string_view, std::vector<std::size_t>> rowsByAttribute; ///< Keys lie in the rows.
};

} // namespace ReferenceHost
