// Lets the trees of the XML library be made of memory that a Countdown sees, too.

#include <pugixml.hpp>

#include <new>

namespace
{

void* Allocate(std::size_t size)
{
    return operator new(size, std::nothrow);
}

void Free(void* memory)
{
    operator delete(memory);
}

[[maybe_unused]] const bool isInstalled = []
{
    pugi::set_memory_management_functions(Allocate, Free);
    return true;
}();

} // namespace
