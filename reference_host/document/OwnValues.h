#pragma once

#include "reference_host/document/PropertyMappings.h"
#include "reference_host/document/StyleRecord.h"

#include "host/style_model/Style.h"

#include <cstddef>
#include <vector>

namespace ReferenceHost
{

/// Gathers what several styles of the file set together, nearest first, and writes it to one style.
class OwnValues
{
public:
    /// Which properties are taken.
    enum class Scope
    {
        All, ///< Those of a shape.
        Text ///< Those of text: graphic properties do not concern it.
    };

    /// Borrows the table.
    OwnValues(const PropertyMappings& properties, Scope wanted);

    /// Adds the values of the next style, which count where nearer ones leave something open.
    void Add(const StyleRecord& record);

    /// Sets the values as own values of a style: those of its category, or those of its substyles.
    ///
    /// Percentages are taken of what nearer and farther styles give, and in the end of what `style` inherits,
    /// so its parent must be complete. The colour of the window is no colour of the drawing and counts as not
    /// set; where it hides a colour that would be inherited it is black, which is what it is on paper.
    ///
    /// @returns the rows of the percentages that there was nothing to take of; they are not set.
    std::vector<std::size_t> WriteTo(Styles::Style& style) const;

private:
    struct Gathered
    {
        std::size_t row = 0;
        OvxUtils::Any value; ///< Empty while it depends on what is inherited.
        double fraction = 0; ///< Of the inherited value; 0 for the colour of the window.
    };

    static void Complete(Gathered& open, const OvxUtils::Any& value);
    static void CompleteFrom(const Styles::Style& style, const Styles::PropertyKey& key, Gathered& open);

    const PropertyMappings& table;
    Scope scope;
    std::vector<Gathered> gathered;
    std::vector<std::size_t> places; ///< For each row, one more than its place in `gathered`; 0 without one.
};

} // namespace ReferenceHost
