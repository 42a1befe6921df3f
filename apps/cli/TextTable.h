#pragma once

#include "apps/cli/OutputRole.h"
#include "host/utils/OvxStringT.h"

#include <string>
#include <vector>

namespace Cli
{

/// Whether texts are coloured, by the escape sequences that terminals understand.
enum class Colouring
{
    Off,
    On
};

/// A piece of text with its role.
struct TextCell
{
    OvxStringT text;
    OutputRole role = OutputRole::Plain;
};

/// A line of a table. One without cells separates, one with a single cell does not widen the columns.
struct TextLine
{
    std::vector<TextCell> cells;
    std::size_t indent = 0; ///< Columns in front of the first cell.
};

/// Lays out lines below each other: the cells of all lines that have several stand in columns.
///
/// Widths are those on a terminal. Control characters are shown as U+FFFD, so that a name from a drawing can
/// neither break a line nor talk to the terminal. No line ends in blanks.
///
/// @returns UTF-8, every line ended.
[[nodiscard]] std::string LayOut(const std::vector<TextLine>& lines, Colouring colouring);

} // namespace Cli
