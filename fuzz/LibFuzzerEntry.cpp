// What libFuzzer calls.

#include "fuzz/FuzzTarget.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::RunInput({reinterpret_cast<const char*>(data), size});
    return 0;
}
