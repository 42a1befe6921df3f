#pragma once

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/style_model/CategoryNames.h"

namespace LibraryModel
{

/// A panel of the library whose category and preset category can be changed at any time. Its protected
/// operations are open.
class DrivenPanel final : public BaseStylePropertiesDatasource
{
public:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override { return category; }

    [[nodiscard]] OvxStringT PresetCategoryName() const override { return presetCategory; }

    using BaseStylePropertiesDatasource::ClearForceAmbiguous;
    using BaseStylePropertiesDatasource::ClearProperties;
    using BaseStylePropertiesDatasource::DoesOverrideProperties;
    using BaseStylePropertiesDatasource::DoesOverrideProperty;
    using BaseStylePropertiesDatasource::GetActivePropertyState;
    using BaseStylePropertiesDatasource::GetObjectFromStyle;
    using BaseStylePropertiesDatasource::GetTransactionOverrides;
    using BaseStylePropertiesDatasource::ImportForceAmbiguous;
    using BaseStylePropertiesDatasource::ModifyDefaultStyles;
    using BaseStylePropertiesDatasource::ModifyStyles;
    using BaseStylePropertiesDatasource::ModifySubstyles;
    using BaseStylePropertiesDatasource::OnPresetsListUpdated;
    using BaseStylePropertiesDatasource::Private_HasParent;
    using BaseStylePropertiesDatasource::SetNoParent;
    using BaseStylePropertiesDatasource::WriteTarget;
    using BaseStylePropertiesDatasource::WriteToDefault;

    Styles::PropertyKey category = Styles::FillStyleCategoryName;
    OvxStringT presetCategory;
};

} // namespace LibraryModel
