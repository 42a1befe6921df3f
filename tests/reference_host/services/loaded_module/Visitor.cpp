// A module as panel modules are: its static initialisers register the factory of its data source.

#include "host/data_binding/DataSourceFactory.h"

#include <memory>
#include <utility>

#if defined(_WIN32)
#define VISITOR_EXPORT extern "C" __declspec(dllexport)
#else
#define VISITOR_EXPORT extern "C" __attribute__((visibility("default")))
#endif

class Visitor : public DataSource<Visitor, true>
{
public:
    void FillDataSourceMap()
    {
        using OvxUtils::RepeatingCallback;
        _AddDelegate(L"get_Answer",
                     OvxUtils::RepeatingCallbackMemento(RepeatingCallback<int()>(this, &Visitor::GetAnswer)),
                     runtime_type<int()>());
        _AddType(L"Answer", runtime_type<const int>());
    }

private:
    [[nodiscard]] int GetAnswer() const { return 42; }
};

namespace
{

class VisitorFactory : public DataSourceFactory<Visitor>
{
public:
    VisitorFactory() : DataSourceFactory(L"frame")
    {
        IDataSourceRegistrar::GetInstance().RegisterFactory(this);
    }
};

VisitorFactory visitorFactory;

} // namespace

VISITOR_EXPORT int VisitorVersion()
{
    return 3;
}
