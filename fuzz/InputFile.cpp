#include "fuzz/InputFile.h"

#include <cstdlib>
#include <fstream>
#include <string>
#include <system_error>

namespace Fuzz
{
namespace
{

namespace fs = std::filesystem;

struct ScratchFolder
{
    ScratchFolder()
    {
        const fs::path inMemory = "/dev/shm";
        std::error_code none;
        const fs::path parent = fs::is_directory(inMemory, none) ? inMemory : fs::temp_directory_path();
        std::string pattern = (parent / "styleproperties-fuzz-XXXXXX").string();
        path = mkdtemp(pattern.data());
    }

    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    ~ScratchFolder()
    {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }

    fs::path path;
};

} // namespace

const fs::path& ScratchPlace()
{
    static const ScratchFolder folder;
    return folder.path;
}

fs::path WriteInputFile(std::string_view bytes)
{
    const fs::path file = ScratchPlace() / "input";
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return file;
}

} // namespace Fuzz
