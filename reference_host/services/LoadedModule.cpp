#include "reference_host/services/LoadedModule.h"

#include "reference_host/services/NativePaths.h"

#include <system_error>

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

} // namespace

LoadedModule::LoadedModule(const std::filesystem::path& libraryFile)
{
    std::error_code error;
    // The system looks a bare file name up along its own search path; the absolute path is the file that is
    // meant.
    file = std::filesystem::absolute(libraryFile, error);
    if (!std::filesystem::is_regular_file(file, error))
        throw ModuleError(PathToUtf8(libraryFile) + ": expected a module, found no such file");
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
