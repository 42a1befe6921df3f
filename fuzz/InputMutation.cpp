#include "fuzz/InputMutation.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <sstream>
#include <string_view>

namespace Fuzz
{
namespace
{

constexpr std::size_t kMostChanges = 6;
constexpr std::size_t kLongestPiece = 64;
constexpr std::size_t kLongestInput = std::size_t{1} << 16U;

/// What stands between the quotes of a line of a dictionary.
std::string Unquoted(std::string_view quoted)
{
    std::string text;
    for (std::size_t at = 0; at < quoted.size(); ++at)
    {
        if (quoted[at] != '\\' || at + 1 == quoted.size())
        {
            text += quoted[at];
            continue;
        }
        ++at;
        if (quoted[at] != 'x' || quoted.size() - at < 3)
        {
            text += quoted[at];
            continue;
        }
        unsigned code = 0;
        std::from_chars(&quoted[at + 1], &quoted[at + 1] + 2, code, 16);
        text += static_cast<char>(code);
        at += 2;
    }
    return text;
}

} // namespace

std::string InputMutation::Next()
{
    std::string text = (*seeds)[Below(seeds->size())];
    for (std::size_t changes = 1 + Below(kMostChanges); changes > 0; --changes)
        Change(text);
    text.resize(std::min(text.size(), kLongestInput));
    return text;
}

// Not by a distribution of the standard library, whose numbers differ from one library to the next.
std::size_t InputMutation::Below(std::size_t count)
{
    return count == 0 ? 0 : random() % count;
}

std::string InputMutation::PieceOf(const std::string& text)
{
    const std::size_t begin = Below(text.size());
    return text.substr(begin, 1 + Below(std::min(kLongestPiece, text.size() - begin)));
}

void InputMutation::Change(std::string& text)
{
    const std::size_t place = Below(text.size() + 1);
    const std::size_t length = 1 + Below(Below(2) == 0 ? 4 : kLongestPiece);
    switch (Below(7))
    {
    case 0:
        text.erase(place, length);
        return;
    case 1:
        text.insert(place, PieceOf(text));
        return;
    case 2:
        text.insert(place, PieceOf((*seeds)[Below(seeds->size())]));
        return;
    case 3:
        text.replace(place, length, PieceOf((*seeds)[Below(seeds->size())]));
        return;
    case 4:
        text.insert(place, 1, static_cast<char>(Below(256)));
        return;
    case 5:
        if (place < text.size())
            text[place] = static_cast<char>(static_cast<unsigned char>(text[place]) ^ (1U << Below(8)));
        return;
    default:
        if (!words->empty())
            text.replace(place, Below(2) * length, (*words)[Below(words->size())]);
        return;
    }
}

std::vector<std::string> ReadDictionary(const std::string& text)
{
    std::vector<std::string> words;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
    {
        const std::size_t begin = line.find('"');
        const std::size_t end = line.rfind('"');
        if (line.starts_with('#') || begin == std::string::npos || end == begin)
            continue;
        words.push_back(Unquoted(std::string_view(line).substr(begin + 1, end - begin - 1)));
    }
    return words;
}

} // namespace Fuzz
