#pragma once

namespace Cli
{

/// What a piece of text is to the person who reads it, from which its colour follows.
enum class OutputRole
{
    Plain,
    Heading,
    Faint,     ///< What matters least, such as values that are not set.
    Local,     ///< Set by the targets themselves.
    Inherited, ///< Set elsewhere.
    Ambiguous  ///< The targets differ.
};

} // namespace Cli
