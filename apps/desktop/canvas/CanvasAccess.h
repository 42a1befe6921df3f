#pragma once

namespace Desktop
{

class CanvasWidget;

/// Lets screen readers ask canvases what is selected; needed once before the first canvas is asked.
void InstallCanvasAccess();

/// Tells screen readers that something else is selected.
void TellSelection(CanvasWidget& canvas);

} // namespace Desktop
