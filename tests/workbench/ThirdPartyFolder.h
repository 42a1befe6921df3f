#pragma once

#include "apps/workbench/PanelDescription.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <filesystem>
#include <string>

namespace WorkbenchTests
{

/// The description of a shadow panel with a category of its own, which is made by the third-party module.
[[nodiscard]] std::string ShadowDescription();

/// A description without rows for a class of the third-party module; `content` stands inside.
[[nodiscard]] std::string DescriptionOf(const std::string& name, const std::string& className,
                                        const std::string& content = {});

/// A folder for one test in which the third-party module lies, and which panels can be put into.
class ThirdPartyFolder
{
public:
    ThirdPartyFolder();

    [[nodiscard]] const std::filesystem::path& GetPath() const noexcept { return folder.GetPath(); }

    /// Writes NAME.panel.xml.
    ///
    /// @returns its path.
    std::filesystem::path Write(const std::string& name, const std::string& description) const;

    /// Writes NAME.panel.xml and reads it.
    [[nodiscard]] Workbench::PanelDescription Describe(const std::string& name,
                                                       const std::string& description) const;

private:
    ScratchFolder folder;
};

} // namespace WorkbenchTests
