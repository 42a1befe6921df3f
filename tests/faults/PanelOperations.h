#pragma once

#include "tests/faults/FaultSubject.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

/// What an operation promises when something fails on its way.
enum class FailurePromise
{
    AllOrNothing, ///< It was done, or everything is as before.
    StaysUsable   ///< Part of it may be done; with new targets everything is as ever.
};

/// One public operation, or one that panels use, on a subject that was made ready for it.
struct PanelOperation
{
    std::string name;
    std::function<void(FaultSubject&)> arrange;
    std::function<void(FaultSubject&)> act;
    FailurePromise promise = FailurePromise::AllOrNothing;
};

void PrintTo(const PanelOperation& operation, std::ostream* out);

/// Every operation, the 35 bound names among them.
[[nodiscard]] std::vector<PanelOperation> PanelOperations();
