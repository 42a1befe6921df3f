#pragma once

namespace Panels
{

/// The version of everything that a compiled panel module relies on: the classes that it derives from, the
/// values that it hands over, the host's interfaces.
///
/// Programs take modules with their own version alone. It is the version of the package without the last
/// number, and from 1.0.0 on without the last two; see docs/versions.md.
inline constexpr const char* kPanelInterface = "0.1";

/// The name of the function by which a module tells the version that it was built for.
inline constexpr const char* kPanelInterfaceSymbol = "styleproperties_panel_interface";

} // namespace Panels
