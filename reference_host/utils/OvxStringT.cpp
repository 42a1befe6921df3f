#include "host/utils/OvxStringT.h"

#include <algorithm>
#include <cstdlib>
#include <cwctype>

namespace
{

wchar_t FoldCase(wchar_t character)
{
    return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(character)));
}

int CompareFolded(OvxStringViewT left, OvxStringViewT right)
{
    const std::size_t shared = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < shared; ++i)
    {
        const wchar_t a = FoldCase(left[i]);
        const wchar_t b = FoldCase(right[i]);
        if (a != b)
            return a < b ? -1 : 1;
    }
    return left.size() == right.size() ? 0 : (left.size() < right.size() ? -1 : 1);
}

/// The end of the conversion of an int that starts at the percent sign at `begin`; `begin` itself when what
/// stands there is no such conversion.
std::size_t FindConversionEnd(OvxStringViewT pattern, std::size_t begin)
{
    std::size_t end = pattern.find_first_not_of(L"-+ 0", begin + 1);
    if (end != OvxStringViewT::npos)
        end = pattern.find_first_not_of(L"0123456789", end);
    const bool converts = end != OvxStringViewT::npos && (pattern[end] == L'd' || pattern[end] == L'i');
    return converts ? end + 1 : begin;
}

/// Fills a conversion that FindConversionEnd found.
std::wstring FormatInt(std::wstring_view conversion, int value)
{
    constexpr std::size_t kWidest = 100;
    const std::size_t widthBegin = conversion.find_first_not_of(L"-+ 0", 1);
    const std::wstring_view flags = conversion.substr(0, widthBegin);
    const auto has = [flags](wchar_t flag) { return flags.find(flag) != std::wstring_view::npos; };

    std::size_t width = 0;
    for (const wchar_t digit : conversion.substr(widthBegin, conversion.size() - widthBegin - 1))
        width = std::min(kWidest, width * 10 + static_cast<std::size_t>(digit - L'0'));

    const std::wstring positiveSign = has(L'+') ? L"+" : (has(L' ') ? L" " : L"");
    const std::wstring sign = value < 0 ? L"-" : positiveSign;
    const std::wstring digits = std::to_wstring(std::abs(static_cast<long long>(value)));
    const std::size_t length = sign.size() + digits.size();
    const std::size_t padding = width > length ? width - length : 0;
    if (has(L'-'))
        return sign + digits + std::wstring(padding, L' ');
    if (has(L'0'))
        return sign + std::wstring(padding, L'0') + digits;
    return std::wstring(padding, L' ') + sign + digits;
}

} // namespace

OvxWideString& OvxWideString::operator+=(OvxStringViewT tail)
{
    text += std::wstring_view(tail);
    return *this;
}

std::size_t OvxWideString::Replace(OvxStringViewT from, OvxStringViewT to)
{
    if (from.empty())
        return 0;

    std::wstring result;
    std::size_t count = 0;
    std::size_t begin = 0;
    for (std::size_t found = text.find(from); found != std::wstring::npos; found = text.find(from, begin))
    {
        result.append(text, begin, found - begin).append(to);
        begin = found + from.size();
        ++count;
    }
    if (count == 0)
        return 0;

    result.append(text, begin);
    text = std::move(result);
    return count;
}

int OvxWideString::Compare(OvxStringViewT other, CompareCase compareCase) const
{
    if (compareCase == CompareCase::Insensitive)
        return CompareFolded(text, other);
    return std::wstring_view(text).compare(other);
}

OvxWideString OvxWideString::Format(const wchar_t* pattern, int value)
{
    const OvxStringViewT source(pattern);
    std::wstring result;
    bool filled = false;
    for (std::size_t i = 0; i < source.size();)
    {
        const std::size_t end = source[i] == L'%' && !filled ? FindConversionEnd(source, i) : i;
        if (end != i)
        {
            result += FormatInt(source.substr(i, end - i), value);
            filled = true;
            i = end;
            continue;
        }
        const bool isEscape = source.substr(i, 2) == L"%%";
        result += source[i];
        i += isEscape ? 2 : 1;
    }
    return result;
}

OvxWideString OvxWideString::FormatMessageInserts(OvxStringViewT pattern,
                                                  std::initializer_list<OvxWideString> inserts)
{
    std::wstring result;
    for (std::size_t i = 0; i < pattern.size(); ++i)
    {
        const wchar_t next = pattern[i] == L'%' && i + 1 < pattern.size() ? pattern[i + 1] : L'\0';
        const bool isDigit = next >= L'1' && next <= L'9';
        const std::size_t insert = isDigit ? static_cast<std::size_t>(next - L'1') : inserts.size();
        if (insert < inserts.size())
        {
            result += (inserts.begin() + insert)->Wide();
            ++i;
            continue;
        }
        result += pattern[i];
        if (next == L'%')
            ++i;
    }
    return result;
}

OvxStringT operator+(OvxStringViewT left, OvxStringViewT right)
{
    std::wstring joined;
    joined.reserve(left.size() + right.size());
    joined.append(left).append(right);
    return joined;
}
