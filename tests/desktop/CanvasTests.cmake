# Suites of the canvas: real widgets on the offscreen platform.
set(document_tests ${PROJECT_SOURCE_DIR}/tests/reference_host/document)

add_executable(desktop_canvas_tests
    ${document_tests}/FlatDrawing.cpp
    ${document_tests}/ScratchFolder.cpp
    CanvasFixture.cpp
    CanvasInputTest.cpp
    CanvasMain.cpp
    CanvasPageTest.cpp
    CanvasSpeedTest.cpp
    CanvasViewTest.cpp
    PaintedShapesTest.cpp)
styleproperties_target(desktop_canvas_tests)
target_link_libraries(desktop_canvas_tests PRIVATE styleproperties_canvas GTest::gmock)
gtest_discover_tests(desktop_canvas_tests DISCOVERY_TIMEOUT 60 PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
