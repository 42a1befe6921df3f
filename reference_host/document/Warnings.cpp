#include "reference_host/document/Warnings.h"

#include "host/utils/Utf8.h"
#include "reference_host/document/StyleNames.h"

#include <algorithm>
#include <utility>

namespace ReferenceHost
{

Warnings::Warnings(std::vector<std::string>& target) : lines(target)
{
}

void Warnings::Add(std::string text)
{
    // Names that come out of files may hold line breaks.
    std::ranges::replace_if(
        text, [](char byte) { return byte == '\n' || byte == '\r'; }, ' ');
    if (seen.insert(text).second)
        lines.push_back(std::move(text));
}

void Warnings::AddAbout(const StyleRecord& style, const std::string& text)
{
    const std::string name =
        style.name.empty() ? "default style" : "style \"" + ReadableName(style.name) + "\"";
    Add(name + ": " + text);
}

std::string ReadableName(std::string_view encoded)
{
    return OvxUtils::ToUtf8(DecodeStyleName(encoded));
}

} // namespace ReferenceHost
