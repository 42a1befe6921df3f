#pragma once

#include <stdexcept>

namespace Workbench
{

/// What was asked for exists and was asked for rightly, and still cannot be done to the drawing as it is.
///
/// what() is one line in UTF-8 that says what, where and why; the state of a row is named as its enumerator
/// is. Nothing was changed.
class EditError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace Workbench
