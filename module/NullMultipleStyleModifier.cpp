// The modifier that writes nothing.

#include "module/NullMultipleStyleModifier.h"

IMultipleStyleModifier& NullMultipleStyleModifier::GetInstance()
{
    static NullMultipleStyleModifier instance;
    return instance;
}

void NullMultipleStyleModifier::Begin()
{
}

void NullMultipleStyleModifier::End()
{
}

// The change style ends with the parameter.
void NullMultipleStyleModifier::Modify(const std::vector<Styles::Style*>& /*targets*/,
                                       const std::map<Styles::Style*, std::size_t>& /*objects*/,
                                       const Styles::PropertyPaths& /*paths*/,
                                       std::unique_ptr<Styles::Style> /*changeStyle*/,
                                       const Styles::PropertyPaths& /*overridePaths*/, bool /*reserved*/,
                                       bool /*bound*/,
                                       Styles::IModifyStyleOverrides* /*transactionOverrides*/)
{
}
