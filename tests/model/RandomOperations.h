#pragma once

#include "tests/model/Dice.h"
#include "tests/model/Operation.h"

#include <vector>

/// @file
/// Random steps, in groups by what they are about.

namespace LibraryModel
{

/// Makes one step of a kind, with chosen arguments.
using OperationMaker = Operation (*)(Dice&);

/// A kind of step, and how often it comes up among the others.
struct WeightedMaker
{
    std::size_t weight;
    OperationMaker make;
};

using Makers = std::vector<WeightedMaker>;

[[nodiscard]] const Makers& TargetMakers();  ///< Targets, objects and siblings.
[[nodiscard]] const Makers& StyleMakers();   ///< What changes in styles behind the library's back.
[[nodiscard]] const Makers& WritingMakers(); ///< Writes of every route, and groups.
[[nodiscard]] const Makers& CommandMakers(); ///< Commands, and questions about the active property.
[[nodiscard]] const Makers& ListMakers();    ///< The list of styles and its dialog.
[[nodiscard]] const Makers& PresetMakers();  ///< Presets, and their dialog.
[[nodiscard]] const Makers& HostMakers();    ///< Host pieces that go missing and come back.
[[nodiscard]] const Makers& SheetMakers();   ///< What lies in sheets.

// Steps that sequences begin with as well

[[nodiscard]] Operation ChangeCategory(Dice& dice);
[[nodiscard]] Operation MoveToExternalSheet(Dice& dice);
[[nodiscard]] Operation OfferPresets(Dice& dice);
[[nodiscard]] Operation SetIdentifier(Dice& dice);
[[nodiscard]] Operation SetParent(Dice& dice);

/// Steps that give both sides something to work with.
[[nodiscard]] Sequence Preparation();

/// The preparation, some more of its kind by chance, and that many random steps.
[[nodiscard]] Sequence RandomSequence(Dice& dice, std::size_t steps);

} // namespace LibraryModel
