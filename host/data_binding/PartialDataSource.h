#pragma once

#include "host/Export.h"
#include "host/data_binding/DataSourceImpl.h"
#include "host/data_binding/IBroadcaster.h"
#include "host/data_binding/IReflectable.h"
#include "host/utils/PostConstructible.h"

#include <type_traits>

/// What makes a class `T` a data source, or a part of one: names, listeners, context and a second
/// construction phase.
///
/// With `RegistersMap` true, `T::FillDataSourceMap()` is called once the object is complete, after those of
/// its bases. A class that inherits another's FillDataSourceMap without one of its own adds no call.
template <class T, bool RegistersMap>
class PartialDataSource : public virtual IReflectable,
                          public virtual IBroadcaster,
                          public virtual DataSourceImpl,
                          public virtual OvxUtils::PostConstructible
{
protected:
    PartialDataSource()
    {
        if constexpr (RegistersMap)
        {
            // This is a virtual base of T, which only a dynamic cast gets back from; it is asked when T is
            // complete.
            if constexpr (std::is_same_v<decltype(&T::FillDataSourceMap), void (T::*)()>)
                CallOnPostConstruct([this] { dynamic_cast<T&>(*this).T::FillDataSourceMap(); });
        }
    }
};
