#include "reference_host/document/XmlSource.h"

#include "reference_host/document/XmlText.h"
#include "reference_host/document/XmlTree.h"

#include <algorithm>

namespace ReferenceHost
{

namespace
{

constexpr std::string_view kCharacterDataStart = "<![CDATA[";
constexpr std::string_view kCharacterDataEnd = "]]>";

std::size_t LengthOfMark(std::string_view text)
{
    return text.size() - WithoutByteOrderMark(text).size();
}

} // namespace

XmlSource::XmlSource(std::string_view xml, const std::string& label, const ProgressSpan& progress,
                     XmlTrust trust)
    : text(xml),
      shift(LengthOfMark(xml)),
      tree(trust == XmlTrust::WasChecked ? ParseCheckedXml(xml, label, progress)
                                         : ParseXml(xml, label, progress))
{
}

std::size_t XmlSource::BeginOf(pugi::xml_node element) const
{
    // The tree tells where the name stands.
    return static_cast<std::size_t>(element.offset_debug()) - 1 + shift;
}

std::size_t XmlSource::BeginOfContent(pugi::xml_node node) const
{
    if (node.type() == pugi::node_element)
        return BeginOf(node);
    const std::size_t value = static_cast<std::size_t>(node.offset_debug()) + shift;
    return node.type() == pugi::node_cdata ? value - kCharacterDataStart.size() : value;
}

std::size_t XmlSource::EndOf(pugi::xml_node node) const
{
    const std::size_t begin = BeginOfContent(node);
    if (node.type() == pugi::node_element)
        return FindElementEnd(text, begin);
    if (node.type() == pugi::node_cdata)
        return text.find(kCharacterDataEnd, begin) + kCharacterDataEnd.size();
    return text.find('<', begin);
}

std::string_view XmlSource::IndentationOf(pugi::xml_node element) const
{
    // The root stands in the document itself, which is no element.
    if (element.type() != pugi::node_element)
        return {};
    const std::size_t end = BeginOf(element);
    std::size_t begin = end;
    while (begin > 0 && IsXmlBlank(text[begin - 1]))
        --begin;
    const std::string_view blanks = text.substr(begin, end - begin);
    const std::size_t lineBreak = blanks.rfind('\n');
    if (lineBreak == std::string_view::npos)
        return {};
    const bool isTwoBytes = lineBreak > 0 && blanks[lineBreak - 1] == '\r';
    return blanks.substr(isTwoBytes ? lineBreak - 1 : lineBreak);
}

std::size_t PlaceOfElement(pugi::xml_node element, std::string_view text)
{
    return static_cast<std::size_t>(element.offset_debug()) - 1 + LengthOfMark(text);
}

} // namespace ReferenceHost
