#pragma once

#include "apps/desktop/canvas/CanvasWidget.h"
#include "apps/workbench/Session.h"
#include "tests/reference_host/document/FlatDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <QColor>
#include <QImage>
#include <QPointF>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

/// A canvas that shows a drawing, 800 by 600 pixels large, and what it tells.
class CanvasTest : public testing::Test
{
protected:
    CanvasTest();
    ~CanvasTest() override;

    /// Opens a drawing and shows its first page.
    void Show(const FlatDrawing& drawing);

    /// The same with the text of a drawing.
    void ShowText(const std::string& text);

    /// Shows these shapes, without lines and filled in red where their styles do not say otherwise.
    void ShowShapes(const std::string& shapes);

    /// The canvas as it is painted.
    [[nodiscard]] QImage Picture();

    /// The colour there, in hundredths of a millimetre on the page.
    [[nodiscard]] QColor ColourAt(double x, double y);

    /// Presses, moves to each further place and releases; all on the page.
    void Drag(const std::vector<QPointF>& places, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    void Click(double x, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        Drag({QPointF(x, y)}, Qt::LeftButton, modifiers);
    }

    void PressKey(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Turn(QPointF onPage, int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// The ids of what was told to be selected last, joined by blanks; "-" before anything was told.
    [[nodiscard]] std::string Selected() const;

    ScratchFolder folder;
    std::unique_ptr<Workbench::Session> session;
    Desktop::CanvasWidget canvas;
    std::vector<std::vector<ReferenceHost::DrawingObject*>> told;
};
