#include "reference_host/services/FolderListing.h"

#if defined(_WIN32)
#include <system_error>
#else
#include <cerrno>
#include <dirent.h>
#include <memory>
#include <new>
#include <string_view>
#endif

namespace ReferenceHost
{

#if defined(_WIN32)

std::vector<std::filesystem::path> ListFolder(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> found;
    std::error_code ignored;
    for (std::filesystem::directory_iterator entry(folder, ignored), end; entry != end;
         entry.increment(ignored))
        found.push_back(entry->path());
    return found;
}

#else

namespace
{

struct CloseFolder
{
    void operator()(DIR* opened) const noexcept { closedir(opened); }
};

} // namespace

std::vector<std::filesystem::path> ListFolder(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> found;
    const std::unique_ptr<DIR, CloseFolder> opened(opendir(folder.c_str()));
    if (opened == nullptr && errno == ENOMEM)
        throw std::bad_alloc();
    if (opened == nullptr)
        return found;

    while (const dirent* entry = readdir(opened.get()))
    {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            found.push_back(folder / name);
    }
    return found;
}

#endif

} // namespace ReferenceHost
