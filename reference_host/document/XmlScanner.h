#pragma once

#include "reference_host/document/NamespaceBindings.h"
#include "reference_host/document/ProgressMeter.h"
#include "reference_host/document/XmlText.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// The state of one pass over an XML text; ScanXml() is how it is used.
///
/// Each step starts at the current place and moves it behind what it accepted, or throws DocumentError.
class XmlScanner
{
public:
    /// Borrows both texts; `name` is what errors call the source.
    XmlScanner(std::string_view source, const std::string& name);

    /// Goes over the whole text. Once only.
    void Run(ProgressSpan progress);

private:
    struct OpenElement
    {
        std::string_view name;
        std::size_t bindings; ///< The namespaces in force outside of it.
    };

    /// A qualified name.
    struct Name
    {
        std::string_view text;
        std::size_t colon; ///< Its place; 0 without one.

        [[nodiscard]] std::string_view GetPrefix() const { return text.substr(0, colon); }
    };

    struct Attribute
    {
        Name name;
        std::string_view value;
    };

    // Pieces of markup
    void ScanEncoding();
    void ScanDeclaration();
    void ScanMarkup();
    void ScanStartTag();
    void ScanEndTag();
    void ScanComment();
    void ScanCharacterData();
    void ScanInstruction();
    void ScanText();

    // Pieces of a tag
    Name ScanName();
    void ScanAttribute();
    void ScanAttributeValue(char quote);
    void ScanReference();
    void DeclareNamespace(const Attribute& attribute);
    void CheckPrefixes(const Name& element);
    void CheckDuplicates(std::string_view element);
    void CheckResolvedDuplicates(std::string_view element);

    // Characters
    void SkipBlanks();
    void SkipPlain();

    /// What a name may hold, up to a colon or a character of several bytes.
    void SkipNameBytes();

    void SkipCharacter();

    /// A character of several bytes, or one that is not allowed.
    void SkipUnusual();
    void SkipThrough(std::string_view terminator, const char* construct);
    [[nodiscard]] bool StartsWith(std::string_view expected) const;

    [[nodiscard]] bool AtEnd() const noexcept { return place == text.size(); }

    [[nodiscard]] char Here() const noexcept { return text[place]; }

    /// The innermost open element, for errors; empty outside of all.
    [[nodiscard]] std::string_view InnermostElement() const;

    void CountNode();

    [[noreturn]] void Fail(const std::string& problem, const std::string& expected) const;
    [[noreturn]] void Fail(const std::string& problem, const std::string& expected,
                           std::string_view element) const;

    std::string_view text;
    const std::string& label;
    std::size_t place = 0;
    std::vector<OpenElement> open;
    std::vector<Attribute> attributes; ///< Of the tag being scanned.
    NamespaceBindings bindings;
    std::size_t nodes = 0;        ///< Elements, attributes and texts.
    std::size_t declarations = 0; ///< Of namespaces.
    bool rootSeen = false;
};

} // namespace ReferenceHost
