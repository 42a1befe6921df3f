#include "apps/cli/ScriptWords.h"

#include "apps/workbench/UsageError.h"

namespace Cli
{
namespace
{

using Workbench::UsageError;

bool IsBlank(char character)
{
    return character == ' ' || character == '\t';
}

/// Appends what stands between the quotes of which the first is at `place`.
///
/// @returns the place behind the last quote.
std::size_t TakeQuoted(std::string_view line, std::size_t place, std::string& word)
{
    for (++place; place < line.size() && line[place] != '"'; ++place)
    {
        if (line[place] == '\\')
        {
            ++place;
            if (place == line.size() || (line[place] != '"' && line[place] != '\\'))
                throw UsageError(R"(a backslash stands alone between quotes; expected \" or \\)");
        }
        word += line[place];
    }
    if (place == line.size())
        throw UsageError("the quotes are never closed; expected \" at the end of the word");
    return place + 1;
}

/// Reads the word that begins at `place`.
///
/// @returns the place behind it.
std::size_t TakeWord(std::string_view line, std::size_t place, std::string& word)
{
    while (place < line.size() && !IsBlank(line[place]))
    {
        if (line[place] == '"')
            place = TakeQuoted(line, place, word);
        else
            word += line[place++];
    }
    return place;
}

} // namespace

std::vector<std::string> SplitWords(std::string_view line)
{
    std::vector<std::string> words;
    std::size_t place = 0;
    while (place < line.size())
    {
        if (IsBlank(line[place]))
        {
            ++place;
            continue;
        }
        if (line[place] == '#')
            break;
        words.emplace_back();
        place = TakeWord(line, place, words.back());
    }
    return words;
}

} // namespace Cli
