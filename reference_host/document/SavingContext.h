#pragma once

#include "reference_host/document/DrawingData.h"
#include "reference_host/document/Warnings.h"

#include "host/style_model/Style.h"
#include "host/utils/Any.h"

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ReferenceHost
{

/// Properties by the places of their first rows in the table. As changes, an empty value stands for a
/// property that is no longer set.
using PropertyValues = std::map<std::size_t, OvxUtils::Any>;

/// What a style of the file shall say that it does not say now.
struct StyleWish
{
    PropertyValues changes = {};

    /// The encoded name of another parent, empty for none; without a value the parent stays.
    std::optional<std::string> parent = {};

    /// Attributes of this host's own, by their local names; an empty value for one that goes.
    std::map<std::string, std::string> ownAttributes = {};

    /// What the style repeats of the shapes that it is the text style of, see
    /// StyleElementEdits::EditRepeated().
    PropertyValues repeated = {};

    [[nodiscard]] bool IsEmpty() const
    {
        return changes.empty() && !parent && ownAttributes.empty() && repeated.empty();
    }

    friend bool operator==(const StyleWish&, const StyleWish&) = default;
};

/// What all parts of saving look at. Borrows both.
struct SavingContext
{
    DrawingData& data;
    Warnings& warnings;
};

/// What a style sets itself. Properties that no row of the table holds cannot be saved and are left out.
[[nodiscard]] PropertyValues OwnValuesOf(const Styles::Style& style, const PropertyMappings& table);

/// What leads from one state of a style to another.
[[nodiscard]] PropertyValues ChangesBetween(const PropertyValues& before, const PropertyValues& after);

/// The style that the file as it is gives under `parent`: what `levels` set, nearest first, without a place
/// in the drawing. A category gives a style of that category, the empty key a whole one, whose substyles
/// inherit from where those of `like` do; `like` may be null.
[[nodiscard]] std::unique_ptr<Styles::Style>
EvaluateRecords(const SavingContext& context, const Styles::PropertyKey& category, Styles::Style* parent,
                bool fallsBack, std::span<const StyleRecord* const> levels, const Styles::Style* like);

} // namespace ReferenceHost
