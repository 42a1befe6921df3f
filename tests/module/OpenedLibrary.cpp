#include "tests/module/OpenedLibrary.h"

#include <dlfcn.h>

#include <stdexcept>
#include <utility>

OpenedLibrary::OpenedLibrary(const char* path) : handle(dlopen(path, RTLD_NOW | RTLD_LOCAL))
{
    if (handle == nullptr)
        throw std::runtime_error(dlerror());
}

void OpenedLibrary::Close()
{
    if (handle != nullptr)
        dlclose(std::exchange(handle, nullptr));
}

const StylesCommonModule& OpenedLibrary::StylesCommonWays() const
{
    const auto entry = reinterpret_cast<StylesCommonModuleEntry>(dlsym(handle, kStylesCommonModuleEntry));
    if (entry == nullptr)
        throw std::runtime_error(dlerror());
    return *entry();
}

bool OpenedLibrary::IsLoaded(const char* path)
{
    void* found = dlopen(path, RTLD_NOW | RTLD_NOLOAD);
    if (found == nullptr)
        return false;

    dlclose(found);
    return true;
}
