#pragma once

#include "host/data_binding/IDataSourceFactory.h"
#include "reference_host/services/LoadedModule.h"

#include <filesystem>
#include <vector>

namespace Workbench
{

/// The module of a panel: loaded, built for this program, and with class names of its own.
class PanelModule
{
public:
    /// @throws ReferenceHost::ModuleError when `file` cannot be loaded, ReferenceHost::DocumentError when it
    ///         was built for another version or for none, or registers a class whose name is taken; it is
    ///         unloaded then.
    explicit PanelModule(const std::filesystem::path& file);

private:
    /// `earlier` is what the modules registered that were loaded before.
    PanelModule(const std::filesystem::path& file, const std::vector<IDataSourceFactory*>& earlier);

    ReferenceHost::LoadedModule module;
};

} // namespace Workbench
