// What texts can do: joining, replacing, comparing and filling patterns, cutting at separators, and UTF-8.
// They are wide everywhere in a program; UTF-8 is for files and terminals.

#include "host/utils/OvxStringT.h"
#include "host/utils/StringSplit.h"
#include "host/utils/Utf8.h"
#include "tiny_host/broken/Promises.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cwchar>
#include <cwctype>

static_assert(sizeof(wchar_t) >= 4, "This host takes each wchar_t for one character");

namespace
{

using TinyHost::Keeps;
using TinyHost::Promise;

constexpr char32_t kReplacement = 0xFFFD;

wchar_t Fold(wchar_t character)
{
    return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(character)));
}

std::wstring Folded(std::wstring_view text)
{
    std::wstring folded(text);
    std::ranges::transform(folded, folded.begin(), Fold);
    return folded;
}

/// Writes `value` as the conversion says: a percent sign, flags, a width, and the letter.
std::wstring FormatNumber(const std::wstring& conversion, int value)
{
    constexpr unsigned long kWidest = 100;
    const std::size_t widthBegin = std::min(conversion.find_first_not_of(L"%-+ 0"), conversion.size());
    const unsigned long asked = std::wcstoul(conversion.c_str() + widthBegin, nullptr, 10);
    const std::wstring allowed =
        conversion.substr(0, widthBegin) + std::to_wstring(std::min(asked, kWidest)) + L"d";

    std::array<wchar_t, kWidest + 1> written{};
    std::swprintf(written.data(), written.size(), (asked == 0 ? conversion : allowed).c_str(), value);
    return written.data();
}

/// How inserts must not be filled: what the first brings in is looked at for the second.
OvxWideString FillOneByOne(OvxStringViewT pattern, std::initializer_list<OvxWideString> inserts)
{
    OvxWideString filled(pattern);
    wchar_t digit = L'1';
    for (const OvxWideString& insert : inserts)
        filled.Replace(std::wstring{L'%', digit++}, insert);
    return filled;
}

struct Decoded
{
    char32_t character;
    std::size_t
        length; ///< In bytes, of what was read; of a sequence that is not valid, as far as it could be.
};

/// Reads the first character of `utf8`, which is not empty.
Decoded Decode(std::string_view utf8)
{
    const auto byte = [utf8](std::size_t at) { return static_cast<std::uint8_t>(utf8[at]); };
    const std::uint8_t lead = byte(0);
    if (lead < 0x80)
        return {lead, 1};
    if (lead < 0xC2 || lead > 0xF4)
        return {kReplacement, 1};

    const std::size_t length = lead < 0xE0 ? 2 : (lead < 0xF0 ? 3 : 4);
    // Narrower after some leads, where a shorter form, a surrogate or a value past the last would begin.
    unsigned int low = lead == 0xE0 ? 0xA0 : (lead == 0xF0 ? 0x90 : 0x80);
    unsigned int high = lead == 0xED ? 0x9F : (lead == 0xF4 ? 0x8F : 0xBF);
    char32_t character = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i)
    {
        if (i == utf8.size() || byte(i) < low || byte(i) > high)
            return {kReplacement, i};
        character = (character << 6) | (byte(i) & 0x3FU);
        low = 0x80;
        high = 0xBF;
    }
    return {character, length};
}

void Encode(std::string& utf8, char32_t character)
{
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    const char32_t value = isSurrogate || character > 0x10FFFF ? kReplacement : character;
    if (value < 0x80)
    {
        utf8 += static_cast<char>(value);
        return;
    }
    constexpr std::array<char32_t, 4> kLeads{0, 0xC0, 0xE0, 0xF0};
    const unsigned int trails = value < 0x800 ? 1 : (value < 0x10000 ? 2 : 3);
    utf8 += static_cast<char>(kLeads[trails] | (value >> (6 * trails)));
    for (unsigned int i = trails; i > 0; --i)
        utf8 += static_cast<char>(0x80 | ((value >> (6 * (i - 1))) & 0x3F));
}

} // namespace

OvxWideString& OvxWideString::operator+=(OvxStringViewT tail)
{
    text += std::wstring_view(tail);
    return *this;
}

OvxStringT operator+(OvxStringViewT left, OvxStringViewT right)
{
    return std::wstring(left).append(right);
}

std::size_t OvxWideString::Replace(OvxStringViewT from, OvxStringViewT to)
{
    // Copies, since either may show a part of this text.
    const std::wstring sought(from);
    const std::wstring inserted(to);
    std::size_t count = 0;
    std::size_t at = sought.empty() ? std::wstring::npos : text.find(sought);
    while (at != std::wstring::npos)
    {
        text.replace(at, sought.size(), inserted);
        ++count;
        at = text.find(sought, at + inserted.size());
    }
    return count;
}

int OvxWideString::Compare(OvxStringViewT other, CompareCase compareCase) const
{
    if (compareCase == CompareCase::Sensitive && Keeps(Promise::CaseCounts))
        return std::wstring_view(text).compare(other);
    return Folded(text).compare(Folded(other));
}

OvxWideString OvxWideString::Format(const wchar_t* pattern, int value)
{
    std::wstring result;
    bool isFilled = false;
    const std::wstring source(pattern);
    for (std::size_t i = 0; i < source.size(); ++i)
    {
        const std::size_t digits = source[i] == L'%' ? source.find_first_not_of(L"-+ 0", i + 1) : source.npos;
        const std::size_t letter =
            digits == source.npos ? source.npos : source.find_first_not_of(L"0123456789", digits);
        if (!isFilled && letter != source.npos && (source[letter] == L'd' || source[letter] == L'i'))
        {
            result += FormatNumber(source.substr(i, letter + 1 - i), value);
            isFilled = true;
            i = letter;
            continue;
        }
        result += source[i];
        if (source.compare(i, 2, L"%%") == 0)
            ++i;
    }
    return result;
}

OvxWideString OvxWideString::FormatMessageInserts(OvxStringViewT pattern,
                                                  std::initializer_list<OvxWideString> inserts)
{
    if (!Keeps(Promise::InsertsAreNotLookedAtAgain))
        return FillOneByOne(pattern, inserts);

    std::wstring result;
    for (std::size_t i = 0; i < pattern.size(); ++i)
    {
        const wchar_t next = pattern[i] == L'%' && i + 1 < pattern.size() ? pattern[i + 1] : L'\0';
        const std::size_t insert = next >= L'1' && next <= L'9' ? static_cast<std::size_t>(next - L'1') : 9;
        if (insert < inserts.size())
            result += (inserts.begin() + insert)->Wide();
        else
            result += pattern[i];
        if (insert < inserts.size() || next == L'%')
            ++i;
    }
    return result;
}

std::vector<OvxStringT> OvxUtils::String::Split(OvxStringViewT text, wchar_t separator, bool keepEmptyPieces,
                                                bool caseSensitive)
{
    std::vector<OvxStringT> pieces;
    std::wstring piece;
    const auto finish = [&]
    {
        if (keepEmptyPieces || !piece.empty())
            pieces.emplace_back(piece);
        piece.clear();
    };
    for (const wchar_t character : text)
    {
        if (character == separator || (!caseSensitive && Fold(character) == Fold(separator)))
            finish();
        else
            piece += character;
    }
    finish();
    return pieces;
}

std::string OvxUtils::ToUtf8(OvxStringViewT text)
{
    std::string utf8;
    for (const wchar_t character : text)
        Encode(utf8, static_cast<char32_t>(character));
    return utf8;
}

OvxStringT OvxUtils::FromUtf8(std::string_view utf8)
{
    std::wstring text;
    while (!utf8.empty())
    {
        const Decoded first = Decode(utf8);
        text += static_cast<wchar_t>(first.character);
        utf8.remove_prefix(first.length);
    }
    return text;
}
