#include "host/utils/StringSplit.h"

#include <algorithm>
#include <cwctype>

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
    auto begin = text.begin();
    for (;;)
    {
        const auto end = std::find_if(begin, text.end(), separates);
        if (keepEmptyPieces || begin != end)
            pieces.emplace_back(std::wstring(begin, end));
        if (end == text.end())
            return pieces;
        begin = end + 1;
    }
}

} // namespace OvxUtils::String
