#pragma once

#include "apps/workbench/PanelDescription.h"
#include "apps/workbench/PanelModule.h"
#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/services/DataContext.h"

namespace Workbench
{

/// What is bound beside the value of a row whose property is N: the names are N and one of these.
inline constexpr OvxStringViewT kStateSuffix = L"State";
inline constexpr OvxStringViewT kAmbiguousSuffix = L"Ambiguous";
inline constexpr OvxStringViewT kOriginSuffix = L"Origin";
inline constexpr OvxStringViewT kLinkSuffix = L"Link";

/// A loaded panel: its description, its module, and its data source in the context of the drawing.
///
/// Ends the data source before it unloads the module. The context is borrowed and outlives the panel.
class Panel
{
public:
    /// Loads the module that the description names, from the folder of the description, and makes its data
    /// source.
    ///
    /// @throws ReferenceHost::ModuleError when the module cannot be loaded, ReferenceHost::DocumentError when
    ///         it was not built for this program, has no such class, takes the name of another one's, cannot
    ///         be made or does not bind what the description promises.
    Panel(PanelDescription itsDescription, ReferenceHost::DataContext& context);

    [[nodiscard]] const PanelDescription& GetDescription() const noexcept { return description; }

    /// Where targets are handed in; everything else goes by bound name.
    [[nodiscard]] BaseStylePropertiesDatasource& GetDataSource() const noexcept
    {
        return *resident.dataSource;
    }

    /// The bound names.
    [[nodiscard]] IReflectable& GetBoundNames() const noexcept { return *resident.dataSource; }

private:
    /// A data source that lives in a context as long as this does.
    struct Resident
    {
        Resident(ReferenceHost::DataContext& itsContext, const PanelDescription& description);
        Resident(const Resident&) = delete;
        Resident& operator=(const Resident&) = delete;
        ~Resident();

        ReferenceHost::DataContext* context; ///< Borrowed.
        OvxStringT name;
        BaseStylePropertiesDatasource* dataSource; ///< Owned by the context; never null.
    };

    PanelDescription description;
    PanelModule module; ///< Before the data source, which must be gone before it is unloaded.
    Resident resident;
};

} // namespace Workbench
