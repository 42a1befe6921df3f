#include "tests/model/Shrinking.h"

#include <algorithm>

namespace LibraryModel
{

namespace
{

Sequence Without(const Sequence& sequence, std::size_t first, std::size_t count)
{
    Sequence rest = sequence;
    const auto begin = rest.begin() + static_cast<std::ptrdiff_t>(first);
    rest.erase(begin, begin + static_cast<std::ptrdiff_t>(std::min(count, rest.size() - first)));
    return rest;
}

/// Leaves out each piece of this size that the failure does not need.
///
/// @returns whether any could go.
bool DropPieces(Sequence& sequence, std::size_t size, const std::function<bool(const Sequence&)>& fails)
{
    bool dropped = false;
    for (std::size_t first = 0; first < sequence.size();)
    {
        Sequence rest = Without(sequence, first, size);
        if (fails(rest))
        {
            sequence = std::move(rest);
            dropped = true;
        }
        else
        {
            first += size;
        }
    }
    return dropped;
}

} // namespace

Sequence Shrink(Sequence sequence, const std::function<bool(const Sequence&)>& fails)
{
    std::size_t size = std::max<std::size_t>(1, sequence.size() / 2);
    while (DropPieces(sequence, size, fails) || size > 1)
        size = std::max<std::size_t>(1, size / 2);
    return sequence;
}

std::string TextOf(const Sequence& sequence)
{
    std::string text;
    for (const Operation& operation : sequence)
        text += "    " + operation.text + (operation.isRead ? "\n" : " // and nothing is read\n");
    return text;
}

} // namespace LibraryModel
