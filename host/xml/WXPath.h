#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <utility>

/// A path expression by which a node is looked for (XPath 1.0). Read when it is used: a malformed one finds
/// nothing.
class STYLEPROPERTIES_HOST_API WXPath
{
public:
    /// Keeps the expression as it is.
    explicit WXPath(OvxStringT xpath) : expression(std::move(xpath)) {}

    /// The expression as it was given.
    [[nodiscard]] const OvxStringT& GetExpression() const noexcept { return expression; }

private:
    OvxStringT expression;
};
