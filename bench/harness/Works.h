#pragma once

/// @file
/// Each registers the benchmarks of one folder.

namespace Bench
{

void AddBoundPropertyWorks(); ///< bound_property: a bound number is read and written by its name.
void AddDragWorks();          ///< drag: many writes as one change.
void AddDrawingWorks();       ///< drawing: a drawing is opened, inspected and saved.
void AddEditWorks();          ///< edit: one write to all objects, undone and redone.
void AddNotificationWorks();  ///< notification: listeners are told of a name.
void AddRefreshWorks();       ///< refresh: a panel is shown anew.
void AddStyleListWorks();     ///< style_list: the list of styles to inherit from is opened.
void AddTargetsWorks();       ///< targets: a panel gets other targets.

} // namespace Bench
