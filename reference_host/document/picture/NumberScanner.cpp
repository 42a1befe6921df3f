#include "reference_host/document/picture/NumberScanner.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace ReferenceHost
{

namespace
{

bool IsLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

} // namespace

void NumberScanner::SkipSeparators()
{
    const std::size_t next = text.find_first_not_of(" \t\r\n,");
    text.remove_prefix(std::min(next, text.size()));
}

std::optional<double> NumberScanner::TakeNumber()
{
    SkipSeparators();
    const bool hasPlus = text.starts_with('+');
    const std::string_view digits = text.substr(hasPlus ? 1 : 0);
    // What else the conversion would take begins with a letter.
    const std::size_t first = digits.starts_with('-') && !hasPlus ? 1 : 0;
    if (first >= digits.size() || (!IsDigit(digits[first]) && digits[first] != '.'))
        return std::nullopt;
    double number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || !std::isfinite(number))
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

std::optional<std::size_t> NumberScanner::TakeIndex()
{
    constexpr double kLargest = 1e6;
    const std::optional<double> number = TakeNumber();
    if (!number || *number < 0 || *number > kLargest)
        return std::nullopt;
    return static_cast<std::size_t>(*number);
}

std::optional<bool> NumberScanner::TakeFlag()
{
    const char flag = Peek();
    if (flag != '0' && flag != '1')
        return std::nullopt;
    text.remove_prefix(1);
    return flag == '1';
}

char NumberScanner::Peek()
{
    SkipSeparators();
    return text.empty() ? '\0' : text.front();
}

char NumberScanner::Take()
{
    const char next = Peek();
    text.remove_prefix(std::min<std::size_t>(1, text.size()));
    return next;
}

std::string_view NumberScanner::TakeWord()
{
    SkipSeparators();
    const auto* const end = std::ranges::find_if_not(
        text, [](char each) { return IsLetter(each) || IsDigit(each) || each == '_'; });
    const std::string_view word = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(word.size());
    return word;
}

std::vector<double> ParseNumbers(std::string_view text)
{
    NumberScanner scanner(text);
    std::vector<double> numbers;
    while (const std::optional<double> number = scanner.TakeNumber())
        numbers.push_back(*number);
    return numbers;
}

} // namespace ReferenceHost
