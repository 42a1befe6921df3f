#pragma once

#include "apps/workbench/ShapeLooks.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QTransform>

#include <cstddef>
#include <memory>
#include <vector>

class QTextLayout;

namespace Desktop
{

/// The text of one shape, set within its text area in the shape's own coordinates.
class ShapeText
{
public:
    /// Sets the text as `look` says.
    ShapeText(const ReferenceHost::ShapePicture& shape, const Workbench::ShapeLook& look);
    ShapeText(const ShapeText&) = delete;
    ShapeText& operator=(const ShapeText&) = delete;
    ~ShapeText();

    void Paint(QPainter& painter) const;

    /// What the lines take up; no area without any.
    [[nodiscard]] QRectF GetBounds() const noexcept { return bounds; }

private:
    /// One paragraph, and where it stands from the top of the text.
    struct Block
    {
        std::unique_ptr<QTextLayout> layout; ///< Never null.
        std::unique_ptr<QTextLayout> label;  ///< The bullet or number before it; null without one.
        const Workbench::ParagraphLook* look;
        ReferenceHost::ListLabel list; ///< Without indent and room outside of lists.
        QPointF labelPlace;            ///< From where the block begins.
        double top = 0;
    };

    void AddParagraph(const ReferenceHost::ShapePicture& shape, const Workbench::ShapeLook& look,
                      std::size_t paragraph);
    static void AddLabel(Block& block);
    static void PlaceLabel(Block& block);
    void BreakLines(const Block& block, double width, bool isWrapped) const;
    void AlignLines(const Block& block, double width) const;
    [[nodiscard]] double WidestLine() const;
    void Place(const ReferenceHost::ShapePicture& shape);
    [[nodiscard]] double StackBlocks(double width, bool isWrapped);
    void Measure();

    std::vector<Block> blocks;
    double height = 0; ///< Of all blocks.
    QPointF corner;    ///< Where the first block begins.
    QTransform turn;   ///< About the middle of the text area.
    QRectF bounds;
};

} // namespace Desktop
