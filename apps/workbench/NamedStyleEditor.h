#pragma once

#include "host/data_binding/DataSource.h"
#include "host/style_model/IStylesCollectionEditor.h"
#include "host/utils/OvxStringT.h"

#include <functional>
#include <utility>

namespace Workbench
{

/// What panels ask to open a named style for editing: their neighbour of the name kName in the data context.
class NamedStyleEditor final : public DataSource<NamedStyleEditor, false>, public IStylesCollectionEditor
{
public:
    static constexpr OvxStringViewT kName = L"StylesDatasource";

    NamedStyleEditor() = default;

    /// Sets who is told which style is asked for; null for nobody.
    void SetListener(std::function<void(const OvxStringT& styleName)> newListener)
    {
        listener = std::move(newListener);
    }

    /// Tells the listener; an empty name is passed over.
    void EditStyle(const OvxStringT& name, bool select, bool show) override;

private:
    std::function<void(const OvxStringT&)> listener; ///< May be empty.
};

} // namespace Workbench
