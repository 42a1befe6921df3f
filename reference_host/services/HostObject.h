#pragma once

#include "host/Export.h"
#include "host/data_binding/IHostObject.h"
#include "host/style_model/IStyleApplicator.h"

namespace ReferenceHost
{

/// The object that a data context belongs to. It may bring a way of writing styles with it.
class STYLEPROPERTIES_HOST_API HostObject : public IHostObject
{
public:
    HostObject() = default;
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;
    virtual ~HostObject();

    /// Makes data sources of this object write through `styleApplicator`, which knows them by `number`.
    /// Borrowed as long as data sources live in the object; null for none. To be set before they are created.
    void SetStyleApplicator(IStyleApplicator* styleApplicator, int number) noexcept;

    /// Answers the identifiers of the applicator and of its number; null for all others.
    void* Query(const InterfaceId& id) override;

private:
    IStyleApplicator* applicator = nullptr; ///< Borrowed; may be null.
    int applicatorNumber = 0;
};

} // namespace ReferenceHost
