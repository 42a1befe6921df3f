#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <utility>

/// Identifies a state of the user interface. Carries any text and compares by it.
class STYLEPROPERTIES_HOST_API WCmnUI_Guid
{
public:
    WCmnUI_Guid() = default;

    explicit WCmnUI_Guid(OvxStringT identifier) : text(std::move(identifier)) {}

    [[nodiscard]] const OvxStringT& GetText() const noexcept { return text; }

    friend bool operator==(const WCmnUI_Guid&, const WCmnUI_Guid&) = default;

private:
    OvxStringT text;
};
