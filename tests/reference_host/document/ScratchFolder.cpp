#include "tests/reference_host/document/ScratchFolder.h"

#include <fstream>
#include <stdlib.h>

ScratchFolder::ScratchFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "styleproperties-XXXXXX").string();
    path = mkdtemp(pattern.data());
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

std::filesystem::path ScratchFolder::Write(const std::string& name, std::string_view bytes) const
{
    std::ofstream stream(path / name, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return path / name;
}
