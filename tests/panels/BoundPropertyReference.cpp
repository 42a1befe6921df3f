// bound_property_reference PANELS: prints docs/bound-properties.md. What it lists, it asks the data sources
// themselves: those of the library, and one of each panel in the folder.

#include "apps/workbench/PanelFolder.h"
#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/data_binding/DataSource.h"
#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/ui_list/WCmnUI_Guid.h"
#include "host/ui_list/WCmnUI_List.h"
#include "host/ui_list/WCmnUI_ListItem.h"
#include "host/utils/Utf8.h"
#include "host/xml/WXmlNode.h"
#include "reference_host/data_binding/DataSourceLifetime.h"
#include "reference_host/services/Application.h"
#include "reference_host/services/LoadedModule.h"

#include <cstddef>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace
{

constexpr const char* kIntroduction =
    R"(# Bound properties

What a data source offers under names, for user interfaces and scripts. A property is read, and written where the table
says so; a command is invoked. The names stand in the order in which they are registered.

This page is made from the code: `build/dev/bin/bound_property_reference build/dev/panels` prints it, and a test
compares the two. Types are those of the headers under `host/`.
)";

/// A panel that adds nothing to what the library binds for every panel.
class PlainPanel final : public BaseStylePropertiesDatasource, public DataSource<PlainPanel, true>
{
};

/// A type as the headers write it.
std::string NameOf(const RuntimeType& type)
{
    static const std::unordered_map<std::type_index, std::string> names{
        {typeid(bool), "bool"},
        {typeid(int), "int"},
        {typeid(unsigned), "unsigned"},
        {typeid(OvxStringT), "OvxStringT"},
        {typeid(OvxUtils::Any), "Any"},
        {typeid(WXmlNode), "WXmlNode"},
        {typeid(WCmnUI_Guid), "WCmnUI_Guid"},
        {typeid(WCmnUI_List), "WCmnUI_List"},
        {typeid(WCmnUI_ListItem), "WCmnUI_ListItem"},
    };
    const auto found = names.find(type.GetTypeInfo());
    if (found == names.end())
        throw std::runtime_error(std::string("no words for the type ") + type.GetTypeInfo().name());
    return found->second;
}

void PrintName(const IReflectable& object, const OvxStringT& name)
{
    std::cout << "| `" << OvxUtils::ToUtf8(name) << "` | ";
    if (!object.HasProperty(name))
        std::cout << "command | | |\n";
    else
        std::cout << "property | `" << NameOf(object.GetTypeOf(name)) << "` | "
                  << (object.IsWritableProperty(name) ? "yes" : "no") << " |\n";
}

/// A table of the names from the one at `first` on.
void PrintNames(const std::string& title, const IReflectable& object, std::size_t first)
{
    std::cout << "\n## " << title << "\n\n| name | kind | type | writable |\n|---|---|---|---|\n";
    const std::vector<OvxStringT> names = object.GetNames();
    for (std::size_t i = first; i < names.size(); ++i)
        PrintName(object, names[i]);
}

/// Makes a data source of the class, hands it to `visit`, and ends it.
template <class Visitor>
void WithDataSource(const OvxStringT& className, const Visitor& visit)
{
    IDataSourceFactory* const factory = IDataSourceRegistrar::GetInstance().FindFactory(className);
    if (factory == nullptr)
        throw std::runtime_error("nothing makes a " + OvxUtils::ToUtf8(className));
    IDataSource* const source = factory->Create(nullptr);
    visit(dynamic_cast<const IReflectable&>(*source));
    source->Destroy();
}

void PrintPage(const std::string& folder)
{
    std::cout << kIntroduction;
    DataSourceFactory<PlainPanel> factory(L"frame");
    IDataSourceRegistrar::GetInstance().RegisterFactory(&factory);
    std::size_t common = 0;
    WithDataSource(factory.GetTypeKey(),
                   [&](const IReflectable& panel)
                   {
                       common = panel.GetNames().size();
                       PrintNames("Every panel", panel, 0);
                   });
    WithDataSource(L"StylePresets", [](const IReflectable& presets)
                   { PrintNames("The dialog that names a new preset", presets, 0); });

    for (const Workbench::PanelDescription& panel : Workbench::ReadPanelFolder(folder).panels)
    {
        const auto file = ReferenceHost::LoadedModule::GetFileNameOf(OvxUtils::ToUtf8(panel.module));
        const ReferenceHost::LoadedModule module(panel.file.parent_path() / file);
        WithDataSource(panel.className, [&](const IReflectable& source)
                       { PrintNames("The panel `" + OvxUtils::ToUtf8(panel.name) + "`", source, common); });
        ReferenceHost::DataSourceLifetime::TakeDeferred();
    }
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2)
    {
        std::cerr << "usage: bound_property_reference PANELS\n";
        return 2;
    }
    try
    {
        const ReferenceHost::Application application;
        PrintPage(arguments[1]);
        return 0;
    }
    catch (const std::exception& error)
    {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
