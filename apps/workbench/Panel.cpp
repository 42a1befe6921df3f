#include "apps/workbench/Panel.h"

#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/utils/Utf8.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/services/NativePaths.h"

#include <exception>
#include <string>
#include <utility>

namespace Workbench
{
namespace
{

using ReferenceHost::DocumentError;

std::filesystem::path ModuleFileOf(const PanelDescription& description)
{
    return description.file.parent_path() /
           ReferenceHost::LoadedModule::GetFileNameOf(OvxUtils::ToUtf8(description.module));
}

/// A class is somebody else's code: whatever it throws is told with its place.
IDataSource* Make(ReferenceHost::DataContext& context, const OvxStringT& className, const std::string& file)
{
    std::string reason = "it throws what is no error";
    try
    {
        return context.CreateDataSource(className);
    }
    catch (const std::exception& error)
    {
        reason = error.what();
    }
    catch (...) // The reason says so already.
    {
    }
    throw DocumentError("its class " + OvxUtils::ToUtf8(className) + " cannot be made: " + reason, file,
                        "a panel that can be made in every drawing");
}

BaseStylePropertiesDatasource* CreateDataSource(ReferenceHost::DataContext& context,
                                                const PanelDescription& description)
{
    const std::string file = ReferenceHost::PathToUtf8(ModuleFileOf(description));
    const std::string className = OvxUtils::ToUtf8(description.className);
    if (context.GetDataSource(description.className) != nullptr)
        throw DocumentError("another panel has the class " + className,
                            ReferenceHost::PathToUtf8(description.file), "a class of its own for each panel");
    IDataSource* const created = Make(context, description.className, file);
    if (created == nullptr)
        throw DocumentError("it registers no class " + className, file,
                            "the class that " + ReferenceHost::PathToUtf8(description.file) + " names");
    auto* const panel = dynamic_cast<BaseStylePropertiesDatasource*>(created);
    if (panel != nullptr)
        return panel;
    context.RemoveDataSource(description.className);
    throw DocumentError("its class " + className + " is no style-properties panel", file,
                        "a class derived from BaseStylePropertiesDatasource");
}

struct PromisedName
{
    OvxStringViewT suffix;
    bool (*hasType)(const RuntimeType& type);
    const char* typeName;
};

constexpr PromisedName kPromisedNames[] = {
    {kStateSuffix, [](const RuntimeType& type) { return type.Is<int>(); }, "int"},
    {kAmbiguousSuffix, [](const RuntimeType& type) { return type.Is<int>(); }, "int"},
    {kOriginSuffix, [](const RuntimeType& type) { return type.Is<OvxStringT>(); }, "text"},
    {kLinkSuffix, [](const RuntimeType& type) { return type.Is<OvxStringT>(); }, "text"},
    {L"", [](const RuntimeType& type) { return type.Is<OvxUtils::Any>(); }, "Any"}};

void CheckBoundNames(const IReflectable& panel, const PanelDescription& description)
{
    for (const RowDescription& row : description.rows)
    {
        for (const PromisedName& promised : kPromisedNames)
        {
            const OvxStringT name = row.property + promised.suffix;
            if (panel.HasProperty(name) && promised.hasType(panel.GetTypeOf(name)))
                continue;
            throw DocumentError("its class " + OvxUtils::ToUtf8(description.className) + " does not bind " +
                                    OvxUtils::ToUtf8(name),
                                ReferenceHost::PathToUtf8(ModuleFileOf(description)),
                                std::string("a readable property of the type ") + promised.typeName);
        }
    }
}

} // namespace

Panel::Resident::Resident(ReferenceHost::DataContext& itsContext, const PanelDescription& description)
    : context(&itsContext), name(description.className), dataSource(CreateDataSource(itsContext, description))
{
}

Panel::Resident::~Resident()
{
    context->RemoveDataSource(name);
}

Panel::Panel(PanelDescription itsDescription, ReferenceHost::DataContext& context)
    : description(std::move(itsDescription)),
      module(ModuleFileOf(description)),
      resident(context, description)
{
    CheckBoundNames(GetBoundNames(), description);
}

} // namespace Workbench
