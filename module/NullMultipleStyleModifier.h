#pragma once

#include "host/style_model/IMultipleStyleModifier.h"

/// Stands in for the style source's modifier where there is none: takes every change and drops it.
class NullMultipleStyleModifier final : public IMultipleStyleModifier
{
public:
    /// The one object, made on first use; alive as long as the module.
    [[nodiscard]] static IMultipleStyleModifier& GetInstance();

    void Begin() override;
    void End() override;
    void Modify(const std::vector<Styles::Style*>& targets,
                const std::map<Styles::Style*, std::size_t>& objects, const Styles::PropertyPaths& paths,
                std::unique_ptr<Styles::Style> changeStyle, const Styles::PropertyPaths& overridePaths,
                bool reserved, bool bound, Styles::IModifyStyleOverrides* transactionOverrides) override;

private:
    NullMultipleStyleModifier() = default;
};
