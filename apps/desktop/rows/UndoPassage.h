#pragma once

class QWidget;

namespace Desktop
{

/// Lets the keys for undo and redo reach the window from the fields in a widget that have nothing of their
/// own to take back: what was entered there is a step of the drawing.
void PassUndoKeys(QWidget& widget);

} // namespace Desktop
