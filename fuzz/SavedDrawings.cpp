// Saving after edits. An input is a flat drawing, and what stands before its first "<" decides what is
// edited.

#include "fuzz/FuzzTarget.h"
#include "fuzz/SavingPromises.h"

#include <algorithm>

void Fuzz::RunInput(std::string_view input)
{
    const std::size_t begin = std::min(input.find('<'), input.size());
    DemandSavingPromises(std::string(input.substr(begin)), input.substr(0, begin));
}
