#pragma once

#include <stdexcept>

namespace Workbench
{

/// The person asked for something that there is no such thing of, or in a way that cannot be read.
///
/// what() is one line in UTF-8 that says what is wrong and what was expected.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace Workbench
