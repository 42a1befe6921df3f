#include "tests/endurance/RunLength.h"

#include <cstdlib>

std::size_t RunLength(const char* variable, std::size_t ordinary)
{
    const char* const text = std::getenv(variable);
    return text == nullptr ? ordinary : std::strtoul(text, nullptr, 10);
}
