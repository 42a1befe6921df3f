#include "tests/workbench/ScratchConfiguration.h"

#include <algorithm>
#include <cstdlib>

namespace WorkbenchTests
{
namespace
{

constexpr const char* kVariable = "STYLEPROPS_CONFIG_DIR";

} // namespace

ScratchConfiguration::ScratchConfiguration()
{
    setenv(kVariable, folder.GetPath().c_str(), 1);
}

ScratchConfiguration::~ScratchConfiguration()
{
    unsetenv(kVariable);
}

std::vector<std::filesystem::path> ScratchConfiguration::PresetFiles() const
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.GetPath()))
    {
        if (entry.path().extension() == ".preset")
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

void ScratchConfiguration::Obstruct() const
{
    std::filesystem::remove_all(folder.GetPath() / "presets");
    folder.Write("presets", "in the way");
}

} // namespace WorkbenchTests
