#pragma once

namespace Workbench
{

/// Lets writing to a pipe that nobody reads any more, and beyond what files may hold, be an error instead of
/// the end of the program. For the beginning of programs.
void OutliveFailedWrites();

} // namespace Workbench
