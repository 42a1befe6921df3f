#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <utility>

/// Identifies a state of the user interface. Carries any text and compares by it.
class STYLEPROPERTIES_HOST_API WCmnUI_Guid
{
public:
    WCmnUI_Guid() = default;

    /// Identifies the state of that text.
    explicit WCmnUI_Guid(OvxStringT identifier) : text(std::move(identifier)) {}

    /// The text that it was made from; empty for none.
    [[nodiscard]] const OvxStringT& GetText() const noexcept { return text; }

    /// Equal when their texts are.
    friend bool operator==(const WCmnUI_Guid&, const WCmnUI_Guid&) = default;

private:
    OvxStringT text;
};
