#include "host/utils/StringSplit.h"

#include <algorithm>
#include <cstddef>
#include <cwctype>
#include <string_view>

namespace OvxUtils::String
{

namespace
{

wchar_t FoldCase(wchar_t character)
{
    return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(character)));
}

} // namespace

std::vector<OvxStringT> Split(OvxStringViewT text, wchar_t separator, bool keepEmptyPieces,
                              bool caseSensitive)
{
    const auto separates = [separator, caseSensitive](wchar_t character)
    { return caseSensitive ? character == separator : FoldCase(character) == FoldCase(separator); };

    std::vector<OvxStringT> pieces;
    for (std::size_t begin = 0;;)
    {
        const std::wstring_view rest = text.substr(begin);
        const auto length = static_cast<std::size_t>(std::ranges::find_if(rest, separates) - rest.begin());
        if (keepEmptyPieces || length != 0)
            pieces.emplace_back(rest.substr(0, length));
        begin += length + 1;
        if (begin > text.size())
            return pieces;
    }
}

} // namespace OvxUtils::String
