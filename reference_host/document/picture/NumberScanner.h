#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// Reads numbers one behind the other from a text where blanks and commas separate, and often nothing does.
/// Borrows the text.
class NumberScanner
{
public:
    explicit NumberScanner(std::string_view source) : text(source) {}

    /// The next number; none, and nothing is taken, where none begins.
    [[nodiscard]] std::optional<double> TakeNumber();

    /// The next number as a place in a list; none also for one that is negative or beyond all lists.
    [[nodiscard]] std::optional<std::size_t> TakeIndex();

    /// A single "0" or "1", which the next number may follow without a gap.
    [[nodiscard]] std::optional<bool> TakeFlag();

    /// The next character that is no separator; a zero at the end.
    [[nodiscard]] char Peek();

    /// Takes the character that Peek() gives.
    char Take();

    /// Letters, digits and underscores as far as they go.
    [[nodiscard]] std::string_view TakeWord();

private:
    void SkipSeparators();

    std::string_view text;
};

/// All numbers at the front of a text.
[[nodiscard]] std::vector<double> ParseNumbers(std::string_view text);

} // namespace ReferenceHost
