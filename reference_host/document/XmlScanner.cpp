// Goes over an XML text from front to back. What stands inside a start tag is taken apart in XmlTagScan.cpp.
#include "reference_host/document/XmlScanner.h"

#include "reference_host/document/DocumentError.h"
#include "reference_host/document/XmlScan.h"
#include "reference_host/document/XmlText.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace ReferenceHost
{

namespace
{

/// How texts in other encodings begin, with the name that a person knows the encoding by.
struct ForeignStart
{
    std::string_view bytes;
    const char* encoding;
};

constexpr std::array<ForeignStart, 5> kForeignStarts{{{std::string_view("\x00\x00\xFE\xFF", 4), "UTF-32"},
                                                      {std::string_view("\xFF\xFE\x00\x00", 4), "UTF-32"},
                                                      {std::string_view("\xFE\xFF", 2), "UTF-16"},
                                                      {std::string_view("\xFF\xFE", 2), "UTF-16"},
                                                      {std::string_view("\x00<", 2), "UTF-16"}}};

bool EqualIgnoringCase(std::string_view left, std::string_view right)
{
    const auto lower = [](char byte) { return std::tolower(static_cast<unsigned char>(byte)); };
    return std::ranges::equal(left, right, {}, lower, lower);
}

/// The value of a pseudo attribute of an XML declaration; empty without it.
std::string_view PseudoAttribute(std::string_view declaration, std::string_view name)
{
    const std::size_t found = declaration.find(name);
    if (found == std::string_view::npos)
        return {};
    const std::size_t begin = declaration.find_first_of("\"'", found);
    if (begin == std::string_view::npos)
        return {};
    const std::size_t end = declaration.find(declaration[begin], begin + 1);
    return end == std::string_view::npos ? std::string_view()
                                         : declaration.substr(begin + 1, end - begin - 1);
}

} // namespace

XmlScanner::XmlScanner(std::string_view source, const std::string& name) : text(source), label(name)
{
}

void XmlScanner::Run(ProgressSpan progress)
{
    progress.Start(text.size());
    ScanEncoding();
    place = text.size() - WithoutByteOrderMark(text).size();
    ScanDeclaration();
    while (!AtEnd())
    {
        if (Here() == '<')
            ScanMarkup();
        else
            ScanText();
        progress.Reach(place);
    }
    if (!open.empty())
        Fail("the element is never closed", "</" + std::string(InnermostElement()) + ">");
    if (!rootSeen)
        Fail("there is no element", "an XML document with one root element");
}

void XmlScanner::ScanEncoding()
{
    for (const ForeignStart& start : kForeignStarts)
    {
        if (StartsWith(start.bytes))
            Fail(std::string("the text is encoded in ") + start.encoding, "UTF-8");
    }
    if (StartsWith(std::string_view("<\0", 2)))
        Fail("the text is encoded in UTF-16", "UTF-8");
}

void XmlScanner::ScanDeclaration()
{
    constexpr std::string_view kStart = "<?xml";
    if (!StartsWith(kStart) || place + kStart.size() == text.size() ||
        !IsXmlBlank(text[place + kStart.size()]))
        return;
    const std::size_t begin = place;
    SkipThrough("?>", "XML declaration");
    const std::string_view declaration = text.substr(begin, place - begin);
    const std::string_view encoding = PseudoAttribute(declaration, "encoding");
    // ASCII is the part of UTF-8 that every byte check below covers already.
    const bool isReadable =
        encoding.empty() || EqualIgnoringCase(encoding, "UTF-8") || EqualIgnoringCase(encoding, "US-ASCII");
    if (!isReadable)
        Fail("the text is declared to be encoded in \"" + std::string(encoding) + "\"", "UTF-8");
}

void XmlScanner::ScanMarkup()
{
    const std::size_t next = place + 1;
    if (next < text.size() && IsXmlNameStartByte(text[next]))
        return ScanStartTag();
    if (StartsWith("</"))
        return ScanEndTag();
    if (StartsWith("<?"))
        return ScanInstruction();
    if (StartsWith("<!--"))
        return ScanComment();
    if (StartsWith("<![CDATA["))
        return ScanCharacterData();
    if (StartsWith("<!DOCTYPE"))
        Fail("there is a DOCTYPE", "a document without one");
    if (StartsWith("<!"))
        Fail("there is markup that XML does not know", "an element, a comment or text");
    ScanStartTag();
}

void XmlScanner::ScanEndTag()
{
    place += 2;
    const std::string_view name = ScanName().text;
    SkipBlanks();
    if (open.empty())
        Fail("</" + std::string(name) + "> closes an element that was never opened", "one root element");
    if (open.back().name != name)
        Fail("</" + std::string(name) + "> closes another element",
             "</" + std::string(open.back().name) + ">");
    if (AtEnd() || Here() != '>')
        Fail("the end tag is not finished", "\">\"");
    ++place;
    bindings.Release(open.back().bindings);
    open.pop_back();
}

void XmlScanner::ScanComment()
{
    place += 4;
    SkipThrough("--", "comment");
    if (AtEnd() || Here() != '>')
        Fail("\"--\" stands inside a comment", "\"-->\" at its end and nowhere else");
    ++place;
}

void XmlScanner::ScanCharacterData()
{
    if (open.empty())
        Fail("there is text outside of the root element", "one root element");
    CountNode();
    SkipThrough("]]>", "CDATA section");
}

void XmlScanner::ScanInstruction()
{
    place += 2;
    const std::string_view target = ScanName().text;
    if (EqualIgnoringCase(target, "xml"))
        Fail("an XML declaration stands inside the text", "it at the very beginning");
    SkipThrough("?>", "processing instruction");
}

void XmlScanner::ScanText()
{
    if (open.empty())
    {
        SkipBlanks();
        if (!AtEnd() && Here() != '<')
            Fail("there is text outside of the root element", "an XML document with one root element");
        return;
    }
    CountNode();
    while (!AtEnd())
    {
        SkipPlain();
        if (AtEnd() || Here() == '<')
            return;
        if (Here() == '&')
            ScanReference();
        else if (StartsWith("]]>"))
            Fail("\"]]>\" stands in text", "\"]]&gt;\"");
        else
            ++place;
    }
}

void XmlScanner::CountNode()
{
    if (++nodes > kMostNodes)
        Fail("there are more than " + std::to_string(kMostNodes) + " elements, attributes and texts",
             "a smaller drawing");
}

void XmlScanner::SkipBlanks()
{
    while (!AtEnd() && IsXmlBlank(Here()))
        ++place;
}

void XmlScanner::SkipPlain()
{
    while (!AtEnd())
    {
        // The loop that nearly all bytes go through: the place is written back once.
        const char* at = text.data() + place;
        const char* const end = text.data() + text.size();
        while (at != end && ClassifyXmlByte(*at) == XmlByte::Plain)
            ++at;
        place = static_cast<std::size_t>(at - text.data());
        const bool isUnusual = !AtEnd() && (ClassifyXmlByte(Here()) == XmlByte::Multibyte ||
                                            ClassifyXmlByte(Here()) == XmlByte::Forbidden);
        if (!isUnusual)
            return;
        SkipUnusual();
    }
}

void XmlScanner::SkipNameBytes()
{
    const char* at = text.data() + place;
    const char* const end = text.data() + text.size();
    while (at != end && IsPlainXmlNameByte(*at))
        ++at;
    place = static_cast<std::size_t>(at - text.data());
}

void XmlScanner::SkipCharacter()
{
    const XmlByte meaning = ClassifyXmlByte(Here());
    if (meaning == XmlByte::Multibyte || meaning == XmlByte::Forbidden)
        SkipUnusual();
    else
        ++place;
}

void XmlScanner::SkipUnusual()
{
    if (ClassifyXmlByte(Here()) == XmlByte::Forbidden)
        Fail("there is a control character", "text without control characters");
    const std::string_view rest = text.substr(place);
    const std::size_t length = MeasureMultibyte(rest);
    if (length == 0)
        Fail("there are bytes that are not UTF-8", "UTF-8");
    if (rest.starts_with("\xEF\xBF\xBE") || rest.starts_with("\xEF\xBF\xBF"))
        Fail("there is a character that XML does not allow", "text without it");
    place += length;
}

void XmlScanner::SkipThrough(std::string_view terminator, const char* construct)
{
    while (!AtEnd())
    {
        if (StartsWith(terminator))
        {
            place += terminator.size();
            return;
        }
        SkipCharacter();
    }
    Fail(std::string("the ") + construct + " is not finished", "\"" + std::string(terminator) + "\"");
}

bool XmlScanner::StartsWith(std::string_view expected) const
{
    return text.substr(place).starts_with(expected);
}

std::string_view XmlScanner::InnermostElement() const
{
    return open.empty() ? std::string_view() : open.back().name;
}

void XmlScanner::Fail(const std::string& problem, const std::string& expected) const
{
    Fail(problem, expected, InnermostElement());
}

void XmlScanner::Fail(const std::string& problem, const std::string& expected, std::string_view element) const
{
    std::string where = label + ", line " + std::to_string(LineOf(text, place));
    if (!element.empty())
        where += ", <" + std::string(element) + ">";
    throw DocumentError(problem, where, expected);
}

} // namespace ReferenceHost
