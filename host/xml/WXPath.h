#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <utility>

/// A path expression by which a node is looked for (XPath 1.0). Read when it is used: a malformed one finds
/// nothing.
class STYLEPROPERTIES_HOST_API WXPath
{
public:
    explicit WXPath(OvxStringT xpath) : expression(std::move(xpath)) {}

    [[nodiscard]] const OvxStringT& GetExpression() const noexcept { return expression; }

private:
    OvxStringT expression;
};
