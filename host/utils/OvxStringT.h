#pragma once

#include "host/Export.h"
#include "host/utils/CompareCase.h"
#include "host/utils/OvxStringViewT.h"

#include <compare>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

/// The wide text that every name, title and identifier is held in.
///
/// A plain value. Equality and the `<` family are ordinal and case-sensitive.
class STYLEPROPERTIES_HOST_API OvxWideString
{
public:
    OvxWideString() = default;

    /// A copy of a text that ends with a zero, and is not null.
    OvxWideString(const wchar_t* literal) : text(literal) {}

    /// A copy of the text.
    OvxWideString(OvxStringViewT view) : text(view) {}

    /// A copy of the text.
    OvxWideString(std::wstring_view view) : text(view) {}

    /// Takes the text.
    OvxWideString(std::wstring source) : text(static_cast<std::wstring&&>(source)) {}

    /// Tells whether there is no character.
    [[nodiscard]] bool empty() const noexcept { return text.empty(); }

    /// The number of characters.
    [[nodiscard]] std::size_t size() const noexcept { return text.size(); }

    /// The characters with a zero behind them; valid until the text changes.
    [[nodiscard]] const wchar_t* c_str() const noexcept { return text.c_str(); }

    /// The characters as a standard text; valid as long as this text.
    [[nodiscard]] const std::wstring& Wide() const noexcept { return text; }

    /// A view of the text; valid until it changes.
    operator OvxStringViewT() const noexcept { return OvxStringViewT(text); }

    /// Adds a text at the end.
    OvxWideString& operator+=(OvxStringViewT tail);

    /// Replaces every occurrence of `from`, left to right, never looking at what it inserted.
    ///
    /// An empty `from` replaces nothing.
    ///
    /// @returns the number of replacements.
    std::size_t Replace(OvxStringViewT from, OvxStringViewT to);

    /// Orders two texts: negative, zero or positive as this text stands before, with or after `other`.
    [[nodiscard]] int Compare(OvxStringViewT other, CompareCase compareCase = CompareCase::Sensitive) const;

    /// Fills a pattern that takes one number: its first "%d" or "%i", with or without flags ("-", "+", " ",
    /// "0") and a width up to 100, becomes `value`, and "%%" one percent sign.
    ///
    /// Everything else stays as it is, so that no pattern, however wrong, is a danger.
    [[nodiscard]] static OvxWideString Format(const wchar_t* pattern, int value);

    /// Fills the inserts "%1" to "%9" of a message pattern with `inserts`, in one pass.
    ///
    /// "%%" gives one percent sign. An insert that names no element of `inserts`, and any other character
    /// after a percent sign, stay as they are. What an insert brings in is not looked at again, so that a
    /// "%1" inside a name survives. An empty pattern gives an empty text.
    [[nodiscard]] static OvxWideString FormatMessageInserts(OvxStringViewT pattern,
                                                            std::initializer_list<OvxWideString> inserts);

    /// Equal character by character.
    friend bool operator==(const OvxWideString& left, const OvxWideString& right) noexcept
    {
        return left.text == right.text;
    }

    /// Equal character by character.
    friend bool operator==(const OvxWideString& left, OvxStringViewT right) noexcept
    {
        return std::wstring_view(left.text) == std::wstring_view(right);
    }

    /// Equal character by character.
    // One for each standard text, since each converts to this one and to the view alike.
    friend bool operator==(const OvxWideString& left, const std::wstring& right) noexcept
    {
        return left.text == right;
    }

    /// Equal character by character.
    friend bool operator==(const OvxWideString& left, std::wstring_view right) noexcept
    {
        return left.text == right;
    }

    /// Equal character by character.
    friend bool operator==(const OvxWideString& left, const wchar_t* right) noexcept
    {
        return left.text == right;
    }

    /// By the numbers of the characters, as dictionaries do.
    friend std::strong_ordering operator<=>(const OvxWideString& left, const OvxWideString& right) noexcept
    {
        return left.text <=> right.text;
    }

private:
    std::wstring text;
};

/// The host's wide text.
using OvxStringT = OvxWideString;

/// Joins two texts into a new one.
[[nodiscard]] STYLEPROPERTIES_HOST_API OvxStringT operator+(OvxStringViewT left, OvxStringViewT right);

/// Hashes a text as a standard text is hashed.
template <>
struct std::hash<OvxWideString>
{
    /// The same for equal texts.
    std::size_t operator()(const OvxWideString& text) const noexcept
    {
        return std::hash<std::wstring>()(text.Wide());
    }
};
