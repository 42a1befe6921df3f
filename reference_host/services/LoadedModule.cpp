#include "reference_host/services/LoadedModule.h"

#include "reference_host/services/ModuleTrial.h"
#include "reference_host/services/NativePaths.h"
#include "reference_host/utils/Immortal.h"

#include <cstdint>
#include <map>
#include <system_error>
#include <utility>

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace ReferenceHost
{

namespace
{

#if defined(_WIN32)

void* LoadNative(const std::filesystem::path& file)
{
    return LoadLibraryW(file.c_str());
}

bool IsLoadedNow(const std::filesystem::path& file)
{
    return GetModuleHandleW(file.c_str()) != nullptr;
}

void UnloadNative(void* handle)
{
    FreeLibrary(static_cast<HMODULE>(handle));
}

void* FindNative(void* handle, const char* name)
{
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle), name));
}

std::string DescribeNativeError()
{
    return std::system_category().message(static_cast<int>(GetLastError()));
}

constexpr const char* kModuleSuffix = ".dll";

#else

void* LoadNative(const std::filesystem::path& file)
{
    return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}

bool IsLoadedNow(const std::filesystem::path& file)
{
    void* const handle = dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (handle != nullptr)
        dlclose(handle);
    return handle != nullptr;
}

void UnloadNative(void* handle)
{
    dlclose(handle);
}

void* FindNative(void* handle, const char* name)
{
    return dlsym(handle, name);
}

std::string DescribeNativeError()
{
    const char* text = dlerror();
    return text == nullptr ? "unknown error" : text;
}

constexpr const char* kModuleSuffix = ".so";

#endif

/// The system looks a bare file name up along its own search path; the absolute path is the file that is
/// meant.
std::filesystem::path MeantFile(const std::filesystem::path& file)
{
    std::error_code unknown;
    return std::filesystem::absolute(file, unknown);
}

/// What tells one build of a module from the next.
using Stamp = std::pair<std::filesystem::file_time_type, std::uintmax_t>;

/// Tries a module before it is loaded into this process; once, unless its file has changed since.
void TryOnce(const std::filesystem::path& file)
{
    static Immortal<std::map<std::filesystem::path, Stamp>> tried;
    if (IsLoadedNow(file))
        return;
    std::error_code unknown;
    const Stamp now(std::filesystem::last_write_time(file, unknown),
                    std::filesystem::file_size(file, unknown));
    const auto before = tried->find(file);
    if (before != tried->end() && before->second == now)
        return;
    TryModule(file);
    tried->insert_or_assign(file, now);
}

} // namespace

LoadedModule::LoadedModule(const std::filesystem::path& libraryFile) : file(MeantFile(libraryFile))
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        throw ModuleError(PathToUtf8(libraryFile) + ": expected a module, found no such file");
    TryOnce(file);
    handle = LoadNative(file);
    if (handle == nullptr)
        throw ModuleError(PathToUtf8(libraryFile) +
                          ": cannot be loaded as a module: " + DescribeNativeError());
}

LoadedModule::~LoadedModule()
{
    UnloadNative(handle);
}

void* LoadedModule::FindSymbol(const std::string& name) const
{
    return FindNative(handle, name.c_str());
}

std::filesystem::path LoadedModule::GetFileNameOf(const std::string& name)
{
    return name + kModuleSuffix;
}

} // namespace ReferenceHost
