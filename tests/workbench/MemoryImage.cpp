#include "tests/workbench/MemoryImage.h"

#include <dlfcn.h>

namespace WorkbenchTests
{

bool IsInMemory(const std::filesystem::path& library)
{
    void* const found = dlopen(library.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (found != nullptr)
        dlclose(found);
    return found != nullptr;
}

} // namespace WorkbenchTests
