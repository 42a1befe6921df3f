#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// An attribute as it stands in an XML text; the places count in bytes from the beginning of that text.
struct SourceAttribute
{
    std::string_view name;
    std::size_t begin = 0;      ///< Of the blanks before the name.
    std::size_t valueBegin = 0; ///< Behind the opening quote.
    std::size_t valueEnd = 0;   ///< The closing quote.
    char quote = '"';
};

/// A start tag as it stands in an XML text.
struct StartTag
{
    std::string_view name;
    std::vector<SourceAttribute> attributes; ///< In order, namespace declarations included.
    std::size_t attributesEnd = 0;           ///< Behind the last attribute, or behind the name.
    std::size_t end = 0;                     ///< Behind the ">".
    bool isEmpty = false;                    ///< It closes itself: there is no end tag.
};

/// Takes apart the start tag whose "<" stands at `begin` of a text that ScanXml() accepted. Borrows the text.
[[nodiscard]] StartTag ReadStartTag(std::string_view text, std::size_t begin);

/// The place behind the element whose start tag stands at `begin` of a text that ScanXml() accepted.
[[nodiscard]] std::size_t FindElementEnd(std::string_view text, std::size_t begin);

/// `value` as it stands between quotes of that kind: what XML would read as something else is written as a
/// reference.
[[nodiscard]] std::string EscapeAttributeValue(std::string_view value, char quote);

/// `value` as it stands between tags.
[[nodiscard]] std::string EscapeText(std::string_view value);

} // namespace ReferenceHost
