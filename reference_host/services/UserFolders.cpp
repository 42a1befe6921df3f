#include "reference_host/services/UserFolders.h"

#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

#if !defined(_WIN32)
#include <pwd.h>
#include <unistd.h>
#endif

namespace ReferenceHost
{

namespace
{

using Path = std::filesystem::path;

#if defined(_WIN32)

Path FindHome()
{
    return FindEnvironmentPath("USERPROFILE");
}

constexpr const char* kConfigurationVariable = "APPDATA";
constexpr const char* kConfigurationBelowHome = "AppData/Roaming";

#else

Path FindHome()
{
    Path home = FindEnvironmentPath("HOME");
    if (!home.empty())
        return home;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): asked on the user interface's thread only
    const passwd* entry = getpwuid(getuid());
    return entry == nullptr || entry->pw_dir == nullptr ? Path() : Path(entry->pw_dir);
}

constexpr const char* kConfigurationVariable = "XDG_CONFIG_HOME";
constexpr const char* kConfigurationBelowHome = ".config";

#endif

/// The folder in a line `XDG_DOCUMENTS_DIR="$HOME/Papers"`; empty for any other line. Only absolute folders
/// and those below the home folder are valid there.
Path DocumentsFolderIn(std::string_view line, const Path& home)
{
    constexpr std::string_view kBefore = "XDG_DOCUMENTS_DIR=\"";
    constexpr std::string_view kHome = "$HOME/";
    if (!line.starts_with(kBefore))
        return {};
    line.remove_prefix(kBefore.size());
    line = line.substr(0, line.find('"'));
    if (line.starts_with(kHome))
        return home / line.substr(kHome.size());
    return line.starts_with('/') ? Path(line) : Path();
}

} // namespace

Path FindEnvironmentPath(const char* variable)
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the program does not change its environment
    const char* value = std::getenv(variable);
    return value == nullptr ? Path() : Path(value);
}

Path FindConfigurationHome()
{
    // A relative path is invalid there, and passed over.
    const Path configured = FindEnvironmentPath(kConfigurationVariable);
    if (configured.is_absolute())
        return configured;
    const Path home = FindHome();
    return home.empty() ? Path() : home / kConfigurationBelowHome;
}

Path FindDocumentsFolder()
{
    const Path home = FindHome();
    if (home.empty())
        return {};
    std::ifstream folders(FindConfigurationHome() / "user-dirs.dirs");
    for (std::string line; std::getline(folders, line);)
    {
        const Path named = DocumentsFolderIn(line, home);
        if (!named.empty())
            return named;
    }
    return home / "Documents";
}

} // namespace ReferenceHost
