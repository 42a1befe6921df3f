#pragma once

#include <string>

namespace Fuzz
{

/// Ends the process with a message when something does not hold, which makes the input a find.
///
/// @param promise what should have held, as a sentence.
void Demand(bool holds, const std::string& promise);

/// Demands that two texts are the same; the message shows where they begin to differ.
void DemandEqual(const std::string& actual, const std::string& expected, const std::string& promise);

} // namespace Fuzz
