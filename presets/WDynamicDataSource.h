#pragma once

#include "host/data_binding/PartialDataSource.h"
#include "host/utils/WDictionary.h"
#include "presets/WDynamicPropertyBase.h"

#include <memory>

/// A part of a data source to which bound properties can be added by name while the program runs.
///
/// A name that was registered in the ordinary way stands before a dynamic property of the same name.
class WDynamicDataSource : public PartialDataSource<WDynamicDataSource, true>
{
public:
    /// Registers nothing: there are no names that every such data source has.
    void FillDataSourceMap() {}

    /// The dynamic property of that name; null when there is none.
    [[nodiscard]] WDynamicPropertyBase* FindDynamicProperty(const OvxStringT& name) const;

    /// Adds a property under its name. Another dynamic property that stood there is destroyed first.
    void AddDynamicProperty(std::unique_ptr<WDynamicPropertyBase> property);

    [[nodiscard]] const DynamicDelegate* GetDynamicDelegate(OvxStringViewT name) const override;
    [[nodiscard]] RuntimeType GetDynamicType(OvxStringViewT name) const override;

private:
    OvxUtl::WDictionary<WDynamicPropertyBase, OvxStringT> properties;
};
