#include "host/services/ConfigurationFolders.h"

#include "reference_host/services/NativePaths.h"
#include "reference_host/services/UserFolders.h"

namespace
{

constexpr const char* kConfigurationFolder = "styleprops";
constexpr const char* kDocumentsFolder = "Style Properties";

/// `name` below `folder`; empty when there is no such folder.
OvxStringT Below(const std::filesystem::path& folder, const char* name)
{
    return folder.empty() ? OvxStringT() : ReferenceHost::PathToText(folder / name);
}

} // namespace

OvxStringT INIGetCustomDir()
{
    const std::filesystem::path chosen = ReferenceHost::FindEnvironmentPath("STYLEPROPS_CONFIG_DIR");
    if (!chosen.empty())
        return ReferenceHost::PathToText(chosen);
    return Below(ReferenceHost::FindConfigurationHome(), kConfigurationFolder);
}

OvxStringT GetUserDocumentsOrvexSuiteDir()
{
    return Below(ReferenceHost::FindDocumentsFolder(), kDocumentsFolder);
}
