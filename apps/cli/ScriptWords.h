#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Cli
{

/// Splits a line of a script into words.
///
/// Blanks and tabs separate. Between double quotes they do not, `\"` stands for a quote and `\\` for a
/// backslash; a quoted piece may stand anywhere in a word, as in fill.color="palette:Deep Sea", and `""` is a
/// word without letters. A "#" that begins a word begins a comment.
///
/// @returns no words for a line that is empty or a comment.
/// @throws Workbench::UsageError for quotes that are not closed and for another character behind a backslash
///         between quotes.
[[nodiscard]] std::vector<std::string> SplitWords(std::string_view line);

} // namespace Cli
