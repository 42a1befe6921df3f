#pragma once

/// @file
/// Marks what the library exports; everything else is hidden.

#if defined(_WIN32)
#if defined(STYLEPROPERTIES_BUILD)
#define STYLEPROPERTIES_API __declspec(dllexport)
#else
#define STYLEPROPERTIES_API __declspec(dllimport)
#endif
#else
/// Stands before what the library exports.
#define STYLEPROPERTIES_API __attribute__((visibility("default")))
#endif
