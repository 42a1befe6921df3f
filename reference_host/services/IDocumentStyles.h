#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"
#include "host/style_model/StyleSheet.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <vector>

namespace ReferenceHost
{

class IDocumentEditor;

/// The styles of an open document, whatever kind of document it is.
///
/// Everything returned is borrowed from the document and lives as long as it does.
class STYLEPROPERTIES_HOST_API IDocumentStyles
{
public:
    /// The named styles of the document; may be null.
    virtual Styles::StyleSheet* GetStyleSheet() = 0;

    /// The named styles of a sheet outside the document that it may inherit from; null, as it is unless a
    /// document says otherwise, for a name that is none of such a sheet.
    virtual Styles::StyleSheet* GetExternalStyleSheet(const OvxStringT& /*sheetName*/) { return nullptr; }

    /// The document's default styles, in order; none of them null.
    virtual std::vector<Styles::Style*> GetDefaultStyles() = 0;

    /// Tells whether the document keeps a named style from people.
    [[nodiscard]] virtual bool IsHidden(const OvxStringT& styleName) const = 0;

    /// What people see for a named style; a name that the document does not know comes back as it is.
    [[nodiscard]] virtual OvxStringT GetDisplayName(const OvxStringT& styleName) const = 0;

    /// The whole style of an object, by the number under which objects are handed in to panels; null, as it
    /// is unless a document says otherwise, for a number that stands for none.
    virtual Styles::Style* GetObjectStyle(std::size_t /*object*/) { return nullptr; }

    /// How the document is changed; null, which it is unless a document says otherwise, when it is not.
    virtual IDocumentEditor* GetEditor() { return nullptr; }

protected:
    ~IDocumentStyles() = default;
};

} // namespace ReferenceHost
