#include "apps/workbench/ProgramFolder.h"

#include <system_error>

namespace Workbench
{

std::filesystem::path FindProgramFolder()
{
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path() : program.parent_path();
}

} // namespace Workbench
