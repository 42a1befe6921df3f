# The canvas by itself: it needs nothing of the window, and its suites link it alone.
add_library(styleproperties_canvas STATIC
    CanvasBackground.cpp
    CanvasInput.cpp
    CanvasPage.cpp
    CanvasShape.cpp
    CanvasView.cpp
    CanvasWidget.cpp
    PaintArrow.cpp
    PaintGradient.cpp
    PaintHandles.cpp
    PaintHatch.cpp
    PaintInside.cpp
    PaintLine.cpp
    PaintMaterials.cpp
    PaintShape.cpp
    ShapePaths.cpp
    ShapeText.cpp)
styleproperties_target(styleproperties_canvas)
set_target_properties(styleproperties_canvas PROPERTIES AUTOMOC ON)
target_link_libraries(styleproperties_canvas PUBLIC styleproperties_workbench Qt6::Widgets)
