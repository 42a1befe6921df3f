#pragma once

#include "reference_host/document/picture/Geometry.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ReferenceHost
{

/// The equations of a custom shape, which its path and each other refer to by name.
class ShapeFormulas
{
public:
    /// What formulas find by keyword beside each other.
    struct Surroundings
    {
        Box viewBox;
        double shapeWidth = 0;         ///< Hundredths of a millimetre.
        double shapeHeight = 0;        ///< Hundredths of a millimetre.
        std::vector<double> modifiers; ///< What the handles of the shape have set: "$0" and on.

        /// The right and the lower edge of the view box as the path writes them, where the view box was
        /// stretched since; none for edges that stayed.
        std::optional<Point> writtenEdges = std::nullopt;
    };

    explicit ShapeFormulas(Surroundings around) : surroundings(std::move(around)) {}

    /// Adds an equation, as "$0 *2/3" or "if(?f1,left,width)"; the first one of a name counts.
    void Add(std::string_view name, std::string_view formula);

    /// The value of the equation of that name; none for an unknown one, one that cannot be read, one that
    /// needs itself, and one that has no finite value.
    [[nodiscard]] std::optional<double> Evaluate(std::string_view name);

    /// The value that a handle has set; none beyond the last.
    [[nodiscard]] std::optional<double> GetModifier(std::size_t index) const;

    /// What a keyword stands for ("left", "logwidth", ...); none for an unknown one.
    [[nodiscard]] std::optional<double> FindKeyword(std::string_view word) const;

    /// A number of a path, horizontal or not: the edge of the view box for what the path writes for it.
    [[nodiscard]] double PlaceOf(double number, bool isAcross) const;

    /// The value of a formula by itself.
    [[nodiscard]] std::optional<double> Calculate(std::string_view formula);

private:
    struct Equation
    {
        std::string formula;
        std::optional<double> value;
        bool isKnown = false; ///< `value` holds the answer.
    };

    Surroundings surroundings;
    std::map<std::string, Equation, std::less<>> equations;
    int depth = 0; ///< How many equations are being evaluated within each other.
};

} // namespace ReferenceHost
