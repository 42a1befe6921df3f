#pragma once

#include "host/Export.h"

#include <stdexcept>
#include <string>

namespace ReferenceHost
{

/// Bad input: a file of this host that cannot be used as it is.
///
/// The one error of everything that reads or writes files here. what() is one line in UTF-8, made of the
/// three parts: "sketch.fodg, line 12, <draw:rect>: the element is never closed; expected </draw:rect>".
class STYLEPROPERTIES_HOST_API DocumentError : public std::runtime_error
{
public:
    /// @param what    what is wrong, as half a sentence without a full stop.
    /// @param place   the file, with the zip entry, the line or the element as far as they are known.
    /// @param instead what would have been right, as half a sentence that follows "expected".
    DocumentError(const std::string& what, const std::string& place, const std::string& instead);

    DocumentError(const DocumentError&) = default;
    DocumentError& operator=(const DocumentError&) = default;
    ~DocumentError() override;

    [[nodiscard]] const std::string& GetProblem() const noexcept { return problem; }

    [[nodiscard]] const std::string& GetWhere() const noexcept { return where; }

    [[nodiscard]] const std::string& GetExpected() const noexcept { return expected; }

private:
    std::string problem;
    std::string where;
    std::string expected;
};

} // namespace ReferenceHost
