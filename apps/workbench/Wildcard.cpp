#include "apps/workbench/Wildcard.h"

namespace Workbench
{
namespace
{

bool IsNegation(wchar_t character)
{
    return character == L'!' || character == L'^';
}

/// Tells whether `character` is one of those between brackets, which stand in `set` without the brackets.
bool IsInSet(OvxStringViewT set, wchar_t character)
{
    const bool negated = !set.empty() && IsNegation(set.front());
    if (negated)
        set.remove_prefix(1);
    for (std::size_t i = 0; i < set.size(); ++i)
    {
        const bool isRange = i + 2 < set.size() && set[i + 1] == L'-';
        const wchar_t last = isRange ? set[i + 2] : set[i];
        if (set[i] <= character && character <= last)
            return !negated;
        if (isRange)
            i += 2;
    }
    return negated;
}

/// How much of the pattern at `place` the one `character` uses up; 0 when it does not fit.
std::size_t FitOne(OvxStringViewT pattern, std::size_t place, wchar_t character)
{
    if (pattern[place] == L'?')
        return 1;
    if (pattern[place] == L'[')
    {
        const std::size_t end = EndOfBrackets(pattern, place);
        if (end != place)
            return IsInSet(pattern.substr(place + 1, end - place - 2), character) ? end - place : 0;
    }
    return pattern[place] == character ? 1 : 0;
}

} // namespace

std::size_t EndOfBrackets(OvxStringViewT pattern, std::size_t opening)
{
    std::size_t first = opening + 1;
    if (first < pattern.size() && IsNegation(pattern[first]))
        ++first;
    const std::size_t closing = pattern.find(L']', first + 1);
    return closing == OvxStringViewT::npos ? opening : closing + 1;
}

bool MatchesWildcard(OvxStringViewT pattern, OvxStringViewT text)
{
    // Only the last star ever has to give way: what an earlier one could take, the later one can take too.
    std::size_t place = 0;
    std::size_t read = 0;
    std::size_t behindStar = OvxStringViewT::npos;
    std::size_t starReach = 0;
    while (read < text.size())
    {
        if (place < pattern.size() && pattern[place] == L'*')
        {
            behindStar = ++place;
            starReach = read;
            continue;
        }
        const std::size_t used = place < pattern.size() ? FitOne(pattern, place, text[read]) : 0;
        if (used != 0)
        {
            place += used;
            ++read;
            continue;
        }
        if (behindStar == OvxStringViewT::npos)
            return false;
        place = behindStar;
        read = ++starReach;
    }
    return pattern.find_first_not_of(L'*', place) == OvxStringViewT::npos;
}

} // namespace Workbench
