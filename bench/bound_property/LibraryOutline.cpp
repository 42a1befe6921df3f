#include "bench/bound_property/LibraryOutline.h"

#include "datasource/PropertyRegistration.h"
#include "host/utils/Utf8.h"

namespace Bench
{

void OutlinePanel::FillDataSourceMap()
{
    for (std::size_t row = 0; row < kOutlineRows.size(); ++row)
    {
        int& value = values[row];
        RegisterProperty<int>(*this, OvxUtils::FromUtf8(kOutlineRows[row]),
                              OvxUtils::RepeatingCallback<int()>([&value] { return value; }),
                              OvxUtils::RepeatingCallback<void(const int&)>([&value](const int& newValue)
                                                                            { value = newValue; }));
    }
}

LibraryOutline::LibraryOutline() : name(OvxUtils::FromUtf8(kOutlineRows[kWidthRow]))
{
    panel.FinishConstruction();
    getter = panel.GetDynamicDelegate(OvxStringViewT(L"get_") + name)->callback;
    setter = panel.GetDynamicDelegate(OvxStringViewT(L"put_") + name)->callback;
    read = getter.TryGet<int()>();
    write = setter.TryGet<void(const int&)>();
}

} // namespace Bench
