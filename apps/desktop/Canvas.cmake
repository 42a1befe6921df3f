# The canvas by itself: it needs nothing of the window, and its suites link it alone.
add_library(styleproperties_canvas STATIC
    CanvasWidget.cpp)
styleproperties_target(styleproperties_canvas)
set_target_properties(styleproperties_canvas PROPERTIES AUTOMOC ON)
target_link_libraries(styleproperties_canvas PUBLIC styleproperties_workbench Qt6::Widgets)
