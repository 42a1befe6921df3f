#pragma once

#include "tests/module/StylesCommonModule.h"

/// A shared library that is loaded as long as this object lives, or until Close().
class OpenedLibrary
{
public:
    /// Loads the library, with every symbol resolved at once.
    ///
    /// @param path where it lies; kept until this object ends, which tells with IsLoaded() whether it is
    /// gone.
    /// @throws std::runtime_error with the loader's own words when it cannot be loaded.
    explicit OpenedLibrary(const char* path);

    ~OpenedLibrary() { Close(); }

    OpenedLibrary(const OpenedLibrary&) = delete;
    OpenedLibrary& operator=(const OpenedLibrary&) = delete;

    /// Unloads the library; does nothing the second time.
    void Close();

    /// The ways to StylesCommon that a module hands out.
    ///
    /// @throws std::runtime_error when this library is no such module.
    [[nodiscard]] const StylesCommonModule& StylesCommonWays() const;

    /// Tells whether the process still holds the library at `path`, whoever loaded it.
    [[nodiscard]] static bool IsLoaded(const char* path);

private:
    void* handle; ///< Owned; null after Close.
};
