#pragma once

#include <string_view>

namespace Fuzz
{

/// Does with one input what the target is about, and comes back whatever the input is.
///
/// What must hold is demanded on the way, see Demand(). What every caller of the operations has to reckon
/// with, such as an error about a bad file, is caught; any other exception is a find. Nothing of an input is
/// left behind: the next one meets the same state.
///
/// Each target defines it; an entry that feeds it is linked to it.
void RunInput(std::string_view input);

} // namespace Fuzz
