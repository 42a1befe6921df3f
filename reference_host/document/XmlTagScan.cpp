// What stands inside a start tag: its name, its attributes, their namespaces and the references in their
// values.
#include "reference_host/document/XmlScan.h"
#include "reference_host/document/XmlScanner.h"
#include "reference_host/document/XmlText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

namespace ReferenceHost
{

namespace
{

/// Up to here every attribute is compared with every other, which is fastest for the few that tags have.
constexpr std::size_t kFewAttributes = 24;

constexpr std::array<std::string_view, 5> kKnownEntities{"lt", "gt", "amp", "apos", "quot"};

bool IsDeclaration(std::string_view name)
{
    return name.starts_with("xmlns") && (name.size() == 5 || name[5] == ':');
}

/// A bit for a name, by which most names differ. Names of one element often begin alike.
std::uint64_t FingerprintOf(std::string_view name)
{
    const auto byteAt = [&name](std::size_t place) -> std::size_t
    { return static_cast<unsigned char>(name[place]); };
    const std::size_t mixed =
        name.size() * 5 + byteAt(name.size() - 1) * 3 + byteAt(name.size() / 2) * 7 + byteAt(0);
    return std::uint64_t{1} << (mixed % 64);
}

/// Tells whether the text between "&#" and ";" names a character that XML allows.
bool IsCharacterNumber(std::string_view digits)
{
    const bool isHex = digits.starts_with('x');
    const std::string_view number = isHex ? digits.substr(1) : digits;
    std::uint32_t codePoint = 0;
    const auto [end, error] =
        std::from_chars(number.data(), number.data() + number.size(), codePoint, isHex ? 16 : 10);
    return error == std::errc() && end == number.data() + number.size() && IsXmlCharacter(codePoint);
}

} // namespace

void XmlScanner::ScanStartTag()
{
    ++place;
    if (open.empty() && rootSeen)
        Fail("there is a second root element", "one root element");
    CountNode();
    const Name element = ScanName();
    const std::size_t outerBindings = bindings.Mark();
    attributes.clear();
    open.push_back({element.text, outerBindings});
    if (open.size() > kDeepestNesting)
        Fail("elements nest deeper than " + std::to_string(kDeepestNesting), "a flatter document");
    rootSeen = true;
    for (;;)
    {
        const std::size_t before = place;
        SkipBlanks();
        if (AtEnd())
            Fail("the start tag is not finished", "\">\"");
        if (Here() == '>' || Here() == '/')
            break;
        if (place == before)
            Fail("two attributes are not separated", "a blank between them");
        ScanAttribute();
    }
    CheckPrefixes(element);
    CheckDuplicates(element.text);
    const bool isEmpty = StartsWith("/>");
    if (!isEmpty && Here() == '/')
        Fail("the start tag is not finished", "\"/>\"");
    place += isEmpty ? 2 : 1;
    if (!isEmpty)
        return;
    bindings.Release(outerBindings);
    open.pop_back();
}

XmlScanner::Name XmlScanner::ScanName()
{
    const std::size_t begin = place;
    if (AtEnd() || !IsXmlNameStartByte(Here()))
        Fail("there is no name where one must stand", R"(a name after "<"; "&lt;" for the character itself)");
    std::size_t colons = 0;
    std::size_t colon = 0;
    for (SkipNameBytes(); !AtEnd() && IsXmlNameByte(Here()); SkipNameBytes())
    {
        if (Here() != ':')
        {
            SkipUnusual();
            continue;
        }
        ++colons;
        colon = place++ - begin;
    }
    const std::string_view name = text.substr(begin, place - begin);
    if (colons > 1 || name.front() == ':' || name.back() == ':')
        Fail("\"" + std::string(name) + "\" is no name", "at most one prefix, and a name after it");
    return {name, colon};
}

void XmlScanner::ScanAttribute()
{
    if (!IsXmlNameStartByte(Here()))
        Fail("there is something else where an attribute must stand", "an attribute or the end of the tag");
    const Name name = ScanName();
    SkipBlanks();
    if (AtEnd() || Here() != '=')
        Fail("the attribute " + std::string(name.text) + " has no value", "name=\"value\"");
    ++place;
    SkipBlanks();
    const char quote = AtEnd() ? '\0' : Here();
    if (quote != '"' && quote != '\'')
        Fail("the value of " + std::string(name.text) + " is not quoted", "name=\"value\"");
    CountNode();
    const std::size_t begin = ++place;
    ScanAttributeValue(quote);
    if (place - begin > kLongestValue)
        Fail("the value of " + std::string(name.text) + " is longer than " +
                 std::to_string(kLongestValue >> 20U) + " MiB",
             "a shorter value");
    attributes.push_back({name, text.substr(begin, place - begin)});
    if (attributes.size() > kMostAttributes)
        Fail("the element has more than " + std::to_string(kMostAttributes) + " attributes",
             "fewer attributes");
    ++place;
}

void XmlScanner::ScanAttributeValue(char quote)
{
    for (;;)
    {
        SkipPlain();
        if (AtEnd())
            Fail("an attribute value is not finished", std::string(1, quote));
        if (Here() == quote)
            return;
        if (Here() == '<')
            Fail("\"<\" stands in an attribute value", "\"&lt;\"");
        if (Here() == '&')
            ScanReference();
        else
            ++place;
    }
}

void XmlScanner::ScanReference()
{
    constexpr std::size_t kLongestReference = 16;
    const std::string_view rest = text.substr(place + 1, kLongestReference);
    const std::size_t end = rest.find(';');
    const std::string_view name = rest.substr(0, end == std::string_view::npos ? 0 : end);
    const bool isKnown = name.starts_with('#')
                             ? IsCharacterNumber(name.substr(1))
                             : std::ranges::find(kKnownEntities, name) != kKnownEntities.end();
    if (!isKnown)
        Fail("\"&\" does not begin a reference that XML knows", "\"&amp;\" or a character reference");
    place += name.size() + 2;
}

void XmlScanner::DeclareNamespace(const Attribute& attribute)
{
    const bool isDefault = attribute.name.text.size() == 5;
    const std::string_view prefix = isDefault ? std::string_view() : attribute.name.text.substr(6);
    if (!isDefault && attribute.value.empty())
        Fail("the prefix " + std::string(prefix) + " is declared for no namespace", "the URI of a namespace");
    bindings.Declare(prefix, attribute.value);
    if (bindings.Mark() > kMostNamespacesInForce || ++declarations > kMostNamespaces)
        Fail("there are too many declarations of namespaces",
             "at most " + std::to_string(kMostNamespacesInForce) + " in one place");
}

void XmlScanner::CheckPrefixes(const Name& element)
{
    // Declarations hold for the whole tag, also for what stands before them.
    for (const Attribute& attribute : attributes)
    {
        if (IsDeclaration(attribute.name.text))
            DeclareNamespace(attribute);
    }
    std::string_view found; // Attributes with one prefix often follow each other.
    const auto check = [this, &found](const Name& name)
    {
        const std::string_view prefix = name.GetPrefix();
        if (prefix.empty() || prefix == found)
            return;
        if (bindings.Find(prefix) == nullptr)
            Fail("the prefix of " + std::string(name.text) + " is not declared",
                 "xmlns:" + std::string(prefix));
        found = prefix;
    };
    check(element);
    for (const Attribute& attribute : attributes)
    {
        if (!IsDeclaration(attribute.name.text))
            check(attribute.name);
    }
}

void XmlScanner::CheckDuplicates(std::string_view element)
{
    const auto fail = [&](std::string_view name)
    { Fail("the attribute " + std::string(name) + " stands there twice", "it once", element); };
    if (attributes.size() <= kFewAttributes)
    {
        std::uint64_t seen = 0;
        for (std::size_t later = 0; later < attributes.size(); ++later)
        {
            const std::string_view name = attributes[later].name.text;
            const std::uint64_t fingerprint = FingerprintOf(name);
            const auto isSame = [&](const Attribute& earlier) { return earlier.name.text == name; };
            if ((seen & fingerprint) != 0 &&
                std::any_of(attributes.data(), attributes.data() + later, isSame))
                fail(name);
            seen |= fingerprint;
        }
    }
    else
    {
        std::vector<std::string_view> names;
        names.reserve(attributes.size());
        for (const Attribute& attribute : attributes)
            names.push_back(attribute.name.text);
        std::ranges::sort(names);
        const auto twice = std::ranges::adjacent_find(names);
        if (twice != names.end())
            fail(*twice);
    }
    // Two spellings are one attribute only where two prefixes stand for one namespace, which is rare.
    if (bindings.HasAliases())
        CheckResolvedDuplicates(element);
}

void XmlScanner::CheckResolvedDuplicates(std::string_view element)
{
    std::vector<std::pair<std::string_view, std::string_view>> names;
    for (const Attribute& attribute : attributes)
    {
        const std::string_view prefix = attribute.name.GetPrefix();
        if (!prefix.empty() && !IsDeclaration(attribute.name.text))
            names.emplace_back(*bindings.Find(prefix), attribute.name.text.substr(prefix.size() + 1));
    }
    std::ranges::sort(names);
    const auto twice = std::ranges::adjacent_find(names);
    if (twice != names.end())
    {
        Fail("the attribute " + std::string(twice->second) +
                 " stands there twice, by two prefixes of one namespace",
             "it once", element);
    }
}

} // namespace ReferenceHost
