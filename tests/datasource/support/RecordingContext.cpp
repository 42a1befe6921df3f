#include "tests/datasource/support/RecordingContext.h"

#include "conformance/HostQueries.h"
#include "tests/datasource/support/Description.h"

void RecordingDialogs::ShowDialog(const OvxStringT& key, IDataContext* context)
{
    log.Add("dialogs.ShowDialog(" + Describe(key) + ", " + log.NameOf(context) + ")");
}

void RecordingDialogs::CloseDialog(const OvxStringT& key, int result, int reserved)
{
    log.Add("dialogs.CloseDialog(" + Describe(key) + ", " + std::to_string(result) + ", " +
            std::to_string(reserved) + ")");
}

void* RecordingHostObject::Query(const InterfaceId& id)
{
    log.Add("hostObject.Query(" + Describe(id) + ")");
    if (id == HostTests::kStyleApplicatorId)
        return applicator;
    if (id == HostTests::kStyleApplicatorNumberId)
        return reinterpret_cast<void*>(applicatorNumber);
    return nullptr;
}

IHostObject* RecordingContext::GetHostObject()
{
    log.Add("context.GetHostObject()");
    return hostObject;
}

IDataSource* RecordingContext::GetDataSource(const OvxStringT& name)
{
    log.Add("context.GetDataSource(" + Describe(name) + ")");
    const auto found = dataSources.find(name);
    return found == dataSources.end() ? nullptr : found->second;
}

IDialogService* RecordingContext::GetDialogService()
{
    log.Add("context.GetDialogService()");
    return dialogs;
}
