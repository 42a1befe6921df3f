#include "bench/harness/TemporaryFolder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <system_error>

namespace Bench
{

TemporaryFolder::TemporaryFolder()
{
    // What the system replaces by letters that make the name a new one.
    constexpr const char* kLetters = "XXXXXX";
    std::string name =
        (std::filesystem::temp_directory_path() / "styleproperties_bench.").string() + kLetters;
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("no folder can be made in " + name);
    path = name;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

} // namespace Bench
