#pragma once

#include "host/Export.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/history/History.h"

namespace ReferenceHost
{

/// What can be changed in an open document beside the values of its styles, and the history of it all.
class STYLEPROPERTIES_HOST_API IDocumentEditor
{
public:
    /// Hears of every change to the document's styles; lives as long as the document.
    virtual History& GetHistory() = 0;

    /// Adds a named style without values, in a step of history.
    ///
    /// @returns the style, owned by the document; null, and nothing happens, when `name` is empty or taken,
    ///          or the document has no such category.
    virtual Styles::Style* AddStyle(const Styles::PropertyKey& category, const OvxStringT& name) = 0;

    /// Gives a named style another name, in a step of history.
    ///
    /// @returns whether it did: not when `name` is unknown, or `newName` is empty or taken.
    virtual bool RenameStyle(const OvxStringT& name, const OvxStringT& newName) = 0;

protected:
    ~IDocumentEditor() = default;
};

} // namespace ReferenceHost
