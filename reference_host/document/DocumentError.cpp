#include "reference_host/document/DocumentError.h"

#include "reference_host/document/OverwriteRefusal.h"

#include <algorithm>

namespace ReferenceHost
{

namespace
{

/// Names that come out of files may hold line breaks; an error is one line all the same.
std::string OneLine(std::string text)
{
    std::ranges::replace_if(
        text, [](char byte) { return byte == '\n' || byte == '\r'; }, ' ');
    return text;
}

} // namespace

DocumentError::DocumentError(const std::string& what, const std::string& place, const std::string& instead)
    : std::runtime_error(OneLine(place + ": " + what + "; expected " + instead)),
      problem(what),
      where(place),
      expected(instead)
{
}

DocumentError::~DocumentError() = default;

OverwriteRefusal::~OverwriteRefusal() = default;

} // namespace ReferenceHost
