#pragma once

namespace Styles
{

/// What a running transaction overrides: opaque here, handed from the style source back to its modifier.
class IModifyStyleOverrides;

} // namespace Styles
