#pragma once

#include "host/utils/OvxStringT.h"

#include <pugixml.hpp>

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Workbench
{

/// An XML text that elements are read from, as errors name it.
struct DescriptionText
{
    std::string_view text; ///< Without a byte order mark.
    std::string label;     ///< The file.
};

/// A word that an attribute may hold, and what it stands for.
template <class T>
struct DescriptionWord
{
    std::string_view word;
    T meaning;
};

/// One element of a panel description, read strictly: what is not asked for is an error.
///
/// A plain value that borrows the tree and the text. Every failure is a ReferenceHost::DocumentError with
/// file, line and element.
class DescriptionElement
{
public:
    DescriptionElement(const DescriptionText& text, pugi::xml_node node) : source(&text), element(node) {}

    /// Refuses every attribute but these.
    void AllowAttributes(std::initializer_list<std::string_view> names) const;

    /// Refuses every child but elements with these names, and all text.
    void AllowChildren(std::initializer_list<std::string_view> names) const;

    [[nodiscard]] bool Has(const char* attribute) const { return !element.attribute(attribute).empty(); }

    /// The text of an attribute that must be there and not empty.
    [[nodiscard]] std::string Text(const char* attribute) const;

    /// Text(), as wide text.
    [[nodiscard]] OvxStringT WideText(const char* attribute) const;

    /// The whole number in an attribute that must be there.
    [[nodiscard]] int Number(const char* attribute) const;

    /// What the word in an attribute that must be there stands for.
    template <class T>
    [[nodiscard]] T Word(const char* attribute, std::span<const DescriptionWord<T>> words) const
    {
        const std::string text = Text(attribute);
        std::string list;
        for (const DescriptionWord<T>& each : words)
        {
            if (each.word == text)
                return each.meaning;
            list += (list.empty() ? "\"" : ", \"") + std::string(each.word) + "\"";
        }
        Fail("attribute \"" + std::string(attribute) + "\" is \"" + text + "\"", "one of " + list);
    }

    /// The child elements of that name, in document order.
    [[nodiscard]] std::vector<DescriptionElement> Children(const char* name) const;

    /// @throws ReferenceHost::DocumentError, always.
    [[noreturn]] void Fail(const std::string& problem, const std::string& expected) const;

private:
    const DescriptionText* source;
    pugi::xml_node element;
};

} // namespace Workbench
