#pragma once

/// How OvxStringT::Compare treats upper and lower case.
enum class CompareCase
{
    Sensitive = 0,   ///< Ordinal: by code value, the default of the string library.
    Insensitive = 1, ///< Ordinal after folding each character to lower case.
};
