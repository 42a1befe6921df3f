// Where an edited value goes: into the change that is handed on to the default styles, the applicator or the
// style source. Writes are not taken yet: each is dropped, and nothing is notified.

#include "datasource/BaseStylePropertiesDatasource.h"

using namespace Styles;
using OvxUtils::Any;

void BaseStylePropertiesDatasource::ModifyStyles(std::unique_ptr<Style> /*values*/,
                                                 const PropertyPaths* /*overridePaths*/) const
{
}

void BaseStylePropertiesDatasource::ModifyStyles(const PropertyPaths& /*paths*/,
                                                 std::unique_ptr<Style> /*values*/,
                                                 const PropertyPaths* /*overridePaths*/) const
{
}

void BaseStylePropertiesDatasource::ClearProperties(const PropertyPaths& /*paths*/) const
{
}

void BaseStylePropertiesDatasource::WriteTarget(const PropertyKey& /*key*/, const Any& /*value*/,
                                                const PropertyKey* /*key2*/, const Any* /*value2*/) const
{
}

void BaseStylePropertiesDatasource::WriteToDefault(OvxStringT /*name*/, const PropertyKey& /*key*/,
                                                   const Any& /*value*/) const
{
}

IModifyStyleOverrides* BaseStylePropertiesDatasource::GetTransactionOverrides() const
{
    return nullptr;
}
