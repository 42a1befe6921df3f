#include "reference_host/resources/Catalogue.h"

#include "host/utils/Utf8.h"

#include <optional>

namespace ReferenceHost
{

namespace
{

std::string_view Trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Takes the first line off `rest`.
std::string_view TakeLine(std::string_view& rest)
{
    const std::size_t end = rest.find('\n');
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return line;
}

/// Replaces "\n" and "\\"; nothing when another character, or none, follows a backslash.
std::optional<std::string> Unescaped(std::string_view text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] != '\\')
        {
            plain += text[i];
            continue;
        }
        ++i;
        if (i == text.size() || (text[i] != 'n' && text[i] != '\\'))
            return std::nullopt;
        plain += text[i] == 'n' ? '\n' : '\\';
    }
    return plain;
}

/// Invalid sequences do not survive the way into wide text and back.
bool IsUtf8(std::string_view bytes)
{
    return OvxUtils::ToUtf8(OvxUtils::FromUtf8(bytes)) == bytes;
}

} // namespace

CatalogueError::CatalogueError(std::string_view fileName, std::size_t line, std::string_view expected)
    : std::runtime_error(std::string(fileName) + ":" + std::to_string(line) + ": expected " +
                         std::string(expected))
{
}

Catalogue Catalogue::Parse(std::string_view fileName, std::string_view content)
{
    Catalogue catalogue;
    std::size_t number = 0;
    for (std::string_view rest = content; !rest.empty();)
    {
        const std::string_view line = Trimmed(TakeLine(rest));
        ++number;
        if (line.empty() || line.front() == '#')
            continue;

        if (!IsUtf8(line))
            throw CatalogueError(fileName, number, "UTF-8");
        const std::size_t separator = line.find('=');
        const std::string_view key = Trimmed(line.substr(0, separator));
        if (separator == std::string_view::npos || key.empty())
            throw CatalogueError(fileName, number, "KEY = TEXT");
        const std::optional<std::string> text = Unescaped(Trimmed(line.substr(separator + 1)));
        if (!text)
            throw CatalogueError(fileName, number, "\"n\" or a backslash after a backslash");
        const OvxStringT wideKey = OvxUtils::FromUtf8(key);
        if (!catalogue.texts.emplace(wideKey, OvxUtils::FromUtf8(*text)).second)
            throw CatalogueError(fileName, number,
                                 "a key that does not stand above already, found " + std::string(key));
        catalogue.keys.push_back(wideKey);
    }
    return catalogue;
}

const OvxStringT* Catalogue::Find(const OvxStringT& key) const
{
    const auto found = texts.find(key);
    return found == texts.end() ? nullptr : &found->second;
}

} // namespace ReferenceHost
