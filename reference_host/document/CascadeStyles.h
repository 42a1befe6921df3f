#pragma once

#include "reference_host/document/OwnValues.h"
#include "reference_host/document/PropertyMappings.h"
#include "reference_host/document/StyleRecord.h"

#include "host/style_model/Style.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

namespace ReferenceHost
{

/// Makes the styles of shapes and text units out of the styles of the file that apply to them, when they are
/// first asked for.
///
/// A cascade is such a combination of styles. There are far fewer of them than shapes and runs, so each is
/// kept once, and its values are gathered once.
class CascadeStyles
{
public:
    /// Borrows both.
    CascadeStyles(const PropertyMappings& properties, Styles::Style& defaultStyle);
    CascadeStyles(const CascadeStyles&) = delete;
    CascadeStyles& operator=(const CascadeStyles&) = delete;

    /// The number of a cascade: what `levels` set, nearest first, over `parent`, which may be null. Borrows
    /// them.
    [[nodiscard]] std::size_t Intern(OwnValues::Scope scope, Styles::Style* parent,
                                     std::span<const StyleRecord* const> levels);

    /// A new whole style of a cascade, by the number that Intern() gave, with all its substyles, that
    /// inherits from the cascade's parent and falls back to the default style.
    [[nodiscard]] std::unique_ptr<Styles::Style> Make(std::size_t number);

private:
    struct Cascade
    {
        OwnValues::Scope scope;
        Styles::Style* parent;
        std::vector<const StyleRecord*> levels;
        std::size_t uses = 0;                     ///< How often it was asked for by Intern().
        std::unique_ptr<Styles::Style> prototype; ///< What further uses are copied from; null until needed.
    };

    [[nodiscard]] std::unique_ptr<Styles::Style> Build(const Cascade& cascade) const;

    const PropertyMappings& table;
    Styles::Style& defaults;
    std::vector<Cascade> cascades;
    std::unordered_multimap<std::size_t, std::size_t> numbersByHash;
};

/// A new whole style with an empty substyle for each category.
[[nodiscard]] std::unique_ptr<Styles::Style> MakeWholeStyle(Styles::Style* parent,
                                                            const PropertyMappings& table);

} // namespace ReferenceHost
