#pragma once

/// @file
/// Marks what a host library must export.
///
/// Classes carry the mark so that their type information is one and the same in every module of the process:
/// casts and typed access across modules depend on it.

#if defined(_WIN32)
#if defined(STYLEPROPERTIES_HOST_BUILD)
#define STYLEPROPERTIES_HOST_API __declspec(dllexport)
#else
#define STYLEPROPERTIES_HOST_API __declspec(dllimport)
#endif
#define STYLEPROPERTIES_MODULE_LOCAL
#else
/// Stands before what the host library exports.
#define STYLEPROPERTIES_HOST_API __attribute__((visibility("default")))
/// Stands before templates of which every module has its own.
#define STYLEPROPERTIES_MODULE_LOCAL __attribute__((visibility("hidden")))
#endif
