#pragma once

#include "host/Export.h"

#include <filesystem>
#include <stdexcept>
#include <string>

namespace ReferenceHost
{

/// A module that cannot be loaded. The message, in UTF-8, names the file and says what is wrong with it.
class STYLEPROPERTIES_HOST_API ModuleError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A shared library that was loaded at run time, in memory as long as this object is.
///
/// Loading runs the module's static initialisers, which register its factories; unloading runs their
/// counterparts. Whatever the module made must be gone before that: its data sources, those that wait for the
/// idle step included, its listeners and its waiting events.
class STYLEPROPERTIES_HOST_API LoadedModule
{
public:
    /// Loads the library at `libraryFile`. All its symbols are resolved at once, and stay its own.
    ///
    /// The first time it is loaded and unloaded in a process of its own as well, so that a module whose
    /// static objects throw or crash ends that one and not the program.
    ///
    /// @throws ModuleError when there is no such file, it is no library, a symbol is missing, or loading it
    ///         would end the program.
    explicit LoadedModule(const std::filesystem::path& libraryFile);

    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    /// Unloads the library, unless somebody else loaded it as well.
    ~LoadedModule();

    /// The absolute path of the library.
    [[nodiscard]] const std::filesystem::path& GetFile() const noexcept { return file; }

    /// The address of an exported symbol; null when the library exports none of that name.
    [[nodiscard]] void* FindSymbol(const std::string& name) const;

    /// The file name of a module called `name` on this platform: "fill.so", "fill.dll".
    [[nodiscard]] static std::filesystem::path GetFileNameOf(const std::string& name);

private:
    std::filesystem::path file;
    void* handle = nullptr; ///< The system's own.
};

} // namespace ReferenceHost
