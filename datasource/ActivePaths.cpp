// Reads the text by which a panel row names its properties.

#include "datasource/ActivePaths.h"

#include "host/utils/StringSplit.h"

namespace
{

std::vector<OvxStringT> Pieces(const OvxStringT& text, wchar_t separator)
{
    return OvxUtils::String::Split(text, separator, /*keepEmptyPieces=*/false, /*caseSensitive=*/true);
}

Styles::PropertyPath ParsePath(const OvxStringT& piece, bool dropWildcard)
{
    std::vector<OvxStringT> segments = Pieces(piece, L'.');
    if (dropWildcard && !segments.empty() && segments.back() == L"*")
        segments.pop_back();

    Styles::PropertyPath path;
    path.reserve(segments.size());
    for (const OvxStringT& segment : segments)
        path.emplace_back(Styles::PooledString<Styles::StringPool>(segment));
    return path;
}

} // namespace

Styles::PropertyPaths ParseActivePaths(const OvxStringT& text, bool dropWildcard)
{
    Styles::PropertyPaths paths;
    for (const OvxStringT& piece : Pieces(text, L','))
        paths.push_back(ParsePath(piece, dropWildcard));
    return paths;
}
