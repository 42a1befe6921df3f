#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

/// Opens named styles for editing.
class STYLEPROPERTIES_HOST_API IStylesCollectionEditor
{
public:
    /// Makes the named style the thing being edited. An unknown or empty name changes nothing.
    virtual void EditStyle(const OvxStringT& name, bool select, bool show) = 0;

protected:
    ~IStylesCollectionEditor() = default;
};
