#include "reference_host/document/DocumentError.h"

namespace ReferenceHost
{

DocumentError::DocumentError(const std::string& problem, const std::string& where,
                             const std::string& expected)
    : std::runtime_error(where + ": " + problem + "; expected " + expected),
      problem(problem),
      where(where),
      expected(expected)
{
}

DocumentError::~DocumentError() = default;

} // namespace ReferenceHost
