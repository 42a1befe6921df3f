#pragma once

#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"
#include "module/LibraryExport.h"

#include <cstddef>
#include <memory>

/// Gives the styles that a panel edits, and takes changes to them.
///
/// For callers that know a data source only by this. Never deleted through this interface.
class STYLEPROPERTIES_API IGetModifyStyles
{
public:
    IGetModifyStyles() = default;

    /// Assigns nothing: whom it gives styles for does not change.
    IGetModifyStyles& operator=(const IGetModifyStyles&) { return *this; }

    /// Writes every property that `values` itself sets to the targets. A null `values` does nothing.
    ///
    /// @param overridePaths what is to be written as overrides of the selected objects; may be null. It is
    ///                      not the list of written paths: those come from `values`.
    virtual void ModifyStyles(std::unique_ptr<Styles::Style> values,
                              const Styles::PropertyPaths* overridePaths) const = 0;

    /// The style that is shown for the target at `index`; null when there is no such target. Borrowed.
    virtual Styles::Style* GetTargetStyle(std::size_t index) const = 0;

    /// How many targets there are.
    virtual std::size_t GetNumTargetStyles() const = 0;

    /// Tells whether there is any.
    virtual bool HasTargets() const = 0;

protected:
    ~IGetModifyStyles() = default;
};
