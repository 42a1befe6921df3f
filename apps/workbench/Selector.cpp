#include "apps/workbench/Selector.h"

#include "apps/workbench/QuotedNames.h"
#include "apps/workbench/UsageError.h"
#include "apps/workbench/Wildcard.h"
#include "host/utils/StringSplit.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace Workbench
{
namespace
{

constexpr OvxStringViewT kAll = L"all";
constexpr OvxStringViewT kDefaults = L"defaults";
constexpr OvxStringViewT kSheetPrefix = L"sheet:";

struct FieldPrefix
{
    OvxStringViewT prefix;
    SelectorField field;
};

constexpr FieldPrefix kFieldPrefixes[] = {{L"page:", SelectorField::Page},
                                          {L"name:", SelectorField::Name},
                                          {L"style:", SelectorField::Style},
                                          {L"kind:", SelectorField::Kind},
                                          {L"id:", SelectorField::Id}};

[[noreturn]] void Fail(OvxStringViewT selector, const std::string& problem, const std::string& expected)
{
    throw UsageError("selector \"" + OvxUtils::ToUtf8(selector) + "\": " + problem + "; expected " +
                     expected);
}

/// A number from 1 on in its shortest form; none for anything else. Of any length: it is compared as text.
std::optional<OvxStringT> ReadNumber(OvxStringViewT digits)
{
    const auto isDigit = [](wchar_t character) { return character >= L'0' && character <= L'9'; };
    const std::size_t first = digits.find_first_not_of(L'0');
    if (first == OvxStringViewT::npos || !std::all_of(digits.begin(), digits.end(), isDigit))
        return std::nullopt;
    return OvxStringT(digits.substr(first));
}

OvxStringT ReadPage(OvxStringViewT selector, OvxStringViewT pattern)
{
    auto number = ReadNumber(pattern);
    if (!number)
        Fail(selector, Quoted(pattern) + " is not the number of a page", "a number from 1 on, as in page:1");
    return *std::move(number);
}

OvxStringT ReadId(OvxStringViewT selector, OvxStringViewT pattern)
{
    const std::vector<OvxStringT> pieces = OvxUtils::String::Split(pattern, L'/', true, true);
    OvxStringT id;
    for (const OvxStringT& piece : pieces)
    {
        const auto number = ReadNumber(piece);
        if (!number || pieces.size() < 2)
            Fail(selector, Quoted(pattern) + " is not an id",
                 "page, position and positions inside groups, each from 1 on, as in id:1/4/2");
        id += id.empty() ? OvxStringT() : OvxStringT(L"/");
        id += *number;
    }
    return id;
}

OvxStringT ReadPattern(OvxStringViewT selector, SelectorField field, OvxStringViewT pattern)
{
    if (pattern.empty() && field != SelectorField::Name)
        Fail(selector, "nothing stands behind the colon", "what to look for, as in kind:rect");
    if (field == SelectorField::Page)
        return ReadPage(selector, pattern);
    if (field == SelectorField::Id)
        return ReadId(selector, pattern);
    return OvxStringT(pattern);
}

SelectorTerm ReadTerm(OvxStringViewT selector, OvxStringViewT term)
{
    if (term == kAll)
        return SelectorTerm{};
    for (const FieldPrefix& candidate : kFieldPrefixes)
    {
        if (term.starts_with(candidate.prefix))
            return SelectorTerm{candidate.field,
                                ReadPattern(selector, candidate.field, term.substr(candidate.prefix.size()))};
    }
    if (term == kDefaults || term.starts_with(kSheetPrefix))
        Fail(selector, Quoted(term) + " cannot be joined with other terms",
             "it alone, or terms about objects");
    Fail(selector, Quoted(term) + " is not a term",
         "all, page:N, name:GLOB, style:GLOB, kind:GLOB or id:1/4/2, joined by commas, or defaults or "
         "sheet:NAME alone");
}

/// Where the term that begins at `start` ends: at the next comma outside closed brackets, or at the end.
std::size_t EndOfTerm(OvxStringViewT selector, std::size_t start)
{
    std::size_t place = start;
    while (place < selector.size() && selector[place] != L',')
    {
        const std::size_t end = selector[place] == L'[' ? EndOfBrackets(selector, place) : place;
        place = end == place ? place + 1 : end;
    }
    return place;
}

} // namespace

Selector ParseSelector(const OvxStringT& text)
{
    const OvxStringViewT all = text;
    Selector selector{text, SelectorScope::Objects, {}, {}};
    if (all == kDefaults)
    {
        selector.scope = SelectorScope::Defaults;
        return selector;
    }
    if (all.starts_with(kSheetPrefix))
    {
        selector.scope = SelectorScope::Sheet;
        selector.styleName = OvxStringT(OvxStringViewT(all.substr(kSheetPrefix.size())));
        if (selector.styleName.empty())
            Fail(all, "nothing stands behind the colon", "the name of a style, as in sheet:standard");
        return selector;
    }
    for (std::size_t start = 0; start <= all.size();)
    {
        const std::size_t end = EndOfTerm(all, start);
        selector.terms.push_back(ReadTerm(all, all.substr(start, end - start)));
        start = end + 1;
    }
    return selector;
}

} // namespace Workbench
