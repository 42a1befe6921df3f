#pragma once

#include <cstddef>
#include <functional>
#include <string>

/// What became of a piece of work that ran in a process of its own.
struct MeasuredRun
{
    std::string answer; ///< What the work returned; "ended by signal 9" and the like when it did not.
    double seconds = 0; ///< Of processor time.
    std::size_t peakMebibytes = 0;
};

/// Runs `work` in a process of its own, which is ended after a minute of processor time.
[[nodiscard]] MeasuredRun RunMeasured(const std::function<std::string()>& work);

/// Tells whether the tests were asked to take their time: the variable STYLEPROPERTIES_LONG_TESTS is set.
[[nodiscard]] bool TakesLong();
