#pragma once

#include <random>
#include <string>
#include <vector>

namespace Fuzz
{

/// Makes inputs out of seeds, the same ones in every run that begins with the same number: pieces of seeds
/// and of a dictionary, moved, doubled, left out and changed.
class InputMutation
{
public:
    /// `itsSeeds` are borrowed, and there is one at least; `itsWords` may be none.
    InputMutation(unsigned number, const std::vector<std::string>& itsSeeds,
                  const std::vector<std::string>& itsWords)
        : random(number), seeds(&itsSeeds), words(&itsWords)
    {
    }

    [[nodiscard]] std::string Next();

private:
    [[nodiscard]] std::size_t Below(std::size_t count);
    [[nodiscard]] std::string PieceOf(const std::string& text);
    void Change(std::string& text);

    std::mt19937 random;
    const std::vector<std::string>* seeds;
    const std::vector<std::string>* words;
};

/// The words of a libFuzzer dictionary: lines with a text in double quotes, in which "\\", "\"" and "\xAB"
/// stand for characters. Lines that begin with "#" are comments.
[[nodiscard]] std::vector<std::string> ReadDictionary(const std::string& text);

} // namespace Fuzz
