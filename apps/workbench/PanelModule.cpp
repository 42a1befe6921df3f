#include "apps/workbench/PanelModule.h"

#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/Utf8.h"
#include "panels/PanelInterface.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/services/NativePaths.h"

#include <set>
#include <string>
#include <string_view>

namespace Workbench
{
namespace
{

using ReferenceHost::DocumentError;
using ReferenceHost::LoadedModule;

/// Before anything is called in the module that the version could be about.
void CheckInterface(const LoadedModule& module, const std::string& file)
{
    using Teller = const char* (*)();
    const auto tell = reinterpret_cast<Teller>(module.FindSymbol(Panels::kPanelInterfaceSymbol));
    if (tell == nullptr)
        throw DocumentError("it does not tell which version of panels it was built for", file,
                            "a module that includes panels/PanelRegistration.h and exports " +
                                std::string(Panels::kPanelInterfaceSymbol));
    const std::string_view built = tell();
    if (built != Panels::kPanelInterface)
        throw DocumentError("it was built for version " + std::string(built) + " of panels", file,
                            "version " + std::string(Panels::kPanelInterface) + ": build it anew");
}

/// Factories are found by the names of their classes: with two of one name, a panel would get the class of
/// another.
void CheckNames(const std::vector<IDataSourceFactory*>& earlier, const std::string& file)
{
    const std::set<IDataSourceFactory*> fromOthers(earlier.begin(), earlier.end());
    std::set<OvxStringT> taken;
    for (const IDataSourceFactory* factory : earlier)
        taken.insert(factory->GetTypeKey());
    for (IDataSourceFactory* factory : IDataSourceRegistrar::GetInstance().GetFactories())
    {
        if (fromOthers.contains(factory) || taken.insert(factory->GetTypeKey()).second)
            continue;
        throw DocumentError("it registers the class " + OvxUtils::ToUtf8(factory->GetTypeKey()) +
                                ", which is registered already",
                            file, "a name of its own for each class");
    }
}

} // namespace

PanelModule::PanelModule(const std::filesystem::path& file)
    : PanelModule(file, IDataSourceRegistrar::GetInstance().GetFactories())
{
}

PanelModule::PanelModule(const std::filesystem::path& file, const std::vector<IDataSourceFactory*>& earlier)
    : module(file)
{
    const std::string place = ReferenceHost::PathToUtf8(file);
    CheckInterface(module, place);
    CheckNames(earlier, place);
}

} // namespace Workbench
