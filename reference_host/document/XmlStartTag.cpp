#include "reference_host/document/XmlStartTag.h"

#include "reference_host/document/XmlText.h"

namespace ReferenceHost
{

namespace
{

std::size_t SkipBlanks(std::string_view text, std::size_t place)
{
    while (IsXmlBlank(text[place]))
        ++place;
    return place;
}

std::size_t SkipName(std::string_view text, std::size_t place)
{
    while (IsXmlNameByte(text[place]))
        ++place;
    return place;
}

/// The place behind the markup at `place` when it is a comment, a CDATA section or an instruction; `place`
/// itself when it is a tag.
std::size_t SkipNonTag(std::string_view text, std::size_t place)
{
    const std::string_view rest = text.substr(place);
    const auto behind = [&](std::string_view terminator)
    { return text.find(terminator, place) + terminator.size(); };
    if (rest.starts_with("<!--"))
        return behind("-->");
    if (rest.starts_with("<![CDATA["))
        return behind("]]>");
    return rest.starts_with("<?") ? behind("?>") : place;
}

std::string Escape(std::string_view value, char quote)
{
    std::string escaped;
    escaped.reserve(value.size());
    for (const char character : value)
    {
        if (character == '&')
            escaped += "&amp;";
        else if (character == '<')
            escaped += "&lt;";
        else if (character == quote)
            escaped += quote == '"' ? "&quot;" : "&apos;";
        else if (IsXmlBlank(character) && character != ' ' && quote != '\0')
            escaped += "&#" + std::to_string(static_cast<int>(character)) + ";";
        else
            escaped += character;
    }
    return escaped;
}

} // namespace

StartTag ReadStartTag(std::string_view text, std::size_t begin)
{
    StartTag tag;
    std::size_t place = SkipName(text, begin + 1);
    tag.name = text.substr(begin + 1, place - begin - 1);
    tag.attributesEnd = place;
    for (place = SkipBlanks(text, place); text[place] != '>' && text[place] != '/';
         place = SkipBlanks(text, place))
    {
        SourceAttribute attribute;
        attribute.begin = tag.attributesEnd;
        const std::size_t nameEnd = SkipName(text, place);
        attribute.name = text.substr(place, nameEnd - place);
        // Between name and value stand "=" and blanks.
        place = text.find_first_of("\"'", nameEnd);
        attribute.quote = text[place];
        attribute.valueBegin = place + 1;
        attribute.valueEnd = text.find(attribute.quote, attribute.valueBegin);
        place = tag.attributesEnd = attribute.valueEnd + 1;
        tag.attributes.push_back(attribute);
    }
    tag.isEmpty = text[place] == '/';
    tag.end = place + (tag.isEmpty ? 2 : 1);
    return tag;
}

std::size_t FindElementEnd(std::string_view text, std::size_t begin)
{
    std::size_t depth = 0;
    for (std::size_t place = begin;; place = text.find('<', place))
    {
        const std::size_t behind = SkipNonTag(text, place);
        if (behind != place)
        {
            place = behind;
            continue;
        }
        if (text.substr(place).starts_with("</"))
        {
            place = text.find('>', place) + 1;
            --depth;
        }
        else
        {
            const StartTag tag = ReadStartTag(text, place);
            place = tag.end;
            depth += tag.isEmpty ? 0U : 1U;
        }
        if (depth == 0)
            return place;
    }
}

std::string EscapeAttributeValue(std::string_view value, char quote)
{
    return Escape(value, quote);
}

std::string EscapeText(std::string_view value)
{
    std::string escaped = Escape(value, '\0');
    // "]]>" must not stand in text.
    for (std::size_t place = escaped.find("]]>"); place != std::string::npos;
         place = escaped.find("]]>", place))
        escaped.replace(place, 3, "]]&gt;");
    return escaped;
}

} // namespace ReferenceHost
