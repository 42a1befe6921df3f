#include "tests/datasource/support/RecordingEvents.h"

#include "host/data_binding/IAppEventBroadcaster.h"
#include "tests/datasource/support/Description.h"

namespace
{

IAppEventBroadcaster& Broadcaster()
{
    return OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance();
}

std::string DescribeArguments(const std::vector<OvxUtils::Any>& arguments)
{
    std::string joined;
    for (std::size_t index = 0; index < arguments.size(); ++index)
        joined += (index == 0 ? "" : ", ") + Describe(arguments[index]);
    return joined;
}

} // namespace

RecordingEvents::RecordingEvents(CallLog& log)
{
    Broadcaster().DeliverPending();
    for (const wchar_t* name : {L"StylePropertiesChange", L"ObjectStyleChanged"})
    {
        const auto record = [&log, name](const std::vector<OvxUtils::Any>& arguments)
        { log.Add("event " + Describe(OvxStringT(name)) + "(" + DescribeArguments(arguments) + ")"); };
        tokens.push_back(Broadcaster().SubscribeGeneric(name, record));
    }
}

RecordingEvents::~RecordingEvents()
{
    for (const ListenerToken& token : tokens)
        Broadcaster().Unsubscribe(token);
    Broadcaster().DeliverPending();
}

std::size_t RecordingEvents::DeliverPending()
{
    return Broadcaster().DeliverPending();
}
