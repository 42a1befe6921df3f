#pragma once

#include <stdexcept>

namespace Workbench
{

/// A well-formed selector finds nothing in the drawing at hand.
///
/// what() is one line in UTF-8 that names the file and the selector and lists what there is.
class SelectionError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace Workbench
