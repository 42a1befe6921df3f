#pragma once

#include "host/style_model/IModifyStyleOverrides.h"
#include "host/style_model/PropertyPath.h"

#include <set>

namespace Styles
{

/// What a transaction overrides, as this host has it: it is told what is written.
class IModifyStyleOverrides
{
public:
    virtual void Add(const PropertyPaths& paths) = 0;

protected:
    ~IModifyStyleOverrides() = default;
};

} // namespace Styles

namespace ReferenceHost
{

/// The paths that one group has written to objects.
class TransactionOverrides final : public Styles::IModifyStyleOverrides
{
public:
    void Add(const Styles::PropertyPaths& paths) override { written.insert(paths.begin(), paths.end()); }

    /// Each path once, however often it was written.
    [[nodiscard]] const std::set<Styles::PropertyPath>& GetPaths() const noexcept { return written; }

private:
    std::set<Styles::PropertyPath> written;
};

} // namespace ReferenceHost
