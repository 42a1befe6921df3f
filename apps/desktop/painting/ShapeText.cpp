#include "apps/desktop/painting/ShapeText.h"

#include "apps/desktop/painting/PaintMaterials.h"
#include "apps/desktop/painting/ShapePaths.h"
#include "reference_host/document/DrawingObject.h"

#include <QFont>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTextCharFormat>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace Desktop
{
namespace
{

using Align = Workbench::ParagraphLook::Align;
using Details = ReferenceHost::ShapeDetails;

constexpr double kHundredthMmInATenthPoint = 2540.0 / 720.0;

/// How far apart tab stops are where nothing says.
constexpr double kTabDistance = 1250;

/// A width that no line needs.
constexpr double kUnlimited = 1e7;

QFont FontOf(const Workbench::RunLook& look)
{
    QFont font;
    QStringList families;
    for (const QString& family : QString::fromStdWString(look.font.Wide()).split(QLatin1Char(',')))
    {
        if (!family.trimmed().isEmpty())
            families << family.trimmed();
    }
    if (!families.isEmpty())
        font.setFamilies(families);
    // Coordinates are hundredths of a millimetre, and so are the pixels of the font.
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(look.size * kHundredthMmInATenthPoint))));
    font.setWeight(static_cast<QFont::Weight>(look.weight));
    font.setItalic(look.isItalic);
    font.setUnderline(look.isUnderlined);
    font.setStrikeOut(look.isStruckThrough);
    font.setHintingPreference(QFont::PreferNoHinting);
    if (look.letterSpacing != 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, look.letterSpacing);
    return font;
}

QString TextOf(const OvxStringT& text)
{
    return QString::fromStdWString(text.Wide()).replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
}

} // namespace

ShapeText::ShapeText(const ReferenceHost::ShapePicture& shape, const Workbench::ShapeLook& look)
{
    blocks.reserve(look.paragraphs.size());
    for (std::size_t paragraph = 0; paragraph < look.paragraphs.size(); ++paragraph)
        AddParagraph(shape, look, paragraph);
    Place(shape);
    // The look may go before this text does.
    for (Block& block : blocks)
        block.look = nullptr;
}

ShapeText::~ShapeText() = default;

void ShapeText::AddParagraph(const ReferenceHost::ShapePicture& shape, const Workbench::ShapeLook& look,
                             std::size_t paragraph)
{
    Block& block = blocks.emplace_back();
    block.look = &look.paragraphs[paragraph];
    block.layout = std::make_unique<QTextLayout>();
    const auto& runs = shape.object->GetRuns();
    const std::size_t count = std::min({runs.size(), look.runs.size(), shape.runTexts.size()});
    QString text;
    QList<QTextLayout::FormatRange> formats;
    for (std::size_t run = 0; run < count; ++run)
    {
        if (runs[run].GetParagraph() != paragraph)
            continue;
        QTextLayout::FormatRange range;
        range.start = static_cast<int>(text.size());
        text += TextOf(shape.runTexts[run]);
        range.length = static_cast<int>(text.size()) - range.start;
        range.format.setFont(FontOf(look.runs[run]));
        range.format.setForeground(ColourOf(look.runs[run].colour));
        if (formats.isEmpty())
            block.layout->setFont(range.format.font());
        formats.append(range);
    }
    block.layout->setText(text);
    block.layout->setFormats(formats);
    block.layout->setCacheEnabled(true);
    if (paragraph < shape.labels.size())
        block.list = shape.labels[paragraph];
    if (!block.list.text.empty())
        AddLabel(block);
}

void ShapeText::AddLabel(Block& block)
{
    const QList<QTextLayout::FormatRange> formats = block.layout->formats();
    QTextLayout::FormatRange range;
    range.start = 0;
    const QString text = QString::fromStdWString(block.list.text.Wide());
    range.length = static_cast<int>(text.size());
    QFont font = block.layout->font();
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * block.list.sizeShare))));
    font.setUnderline(false);
    font.setStrikeOut(false);
    range.format.setFont(font);
    if (!formats.isEmpty())
        range.format.setForeground(formats.front().format.foreground());
    block.label = std::make_unique<QTextLayout>(text, font);
    block.label->setFormats({range});
    block.label->beginLayout();
    block.label->createLine().setLineWidth(kUnlimited);
    block.label->endLayout();
}

/// The label begins its room before the first line. One that is smaller than the text stands in the middle of
/// the line's height, as bullets do.
void ShapeText::PlaceLabel(Block& block)
{
    if (block.label == nullptr || block.layout->lineCount() == 0)
        return;
    const QTextLine line = block.layout->lineAt(0);
    const QTextLine label = block.label->lineAt(0);
    block.labelPlace = {line.x() - block.list.room, line.y() + (line.height() - label.height()) / 2};
}

void ShapeText::BreakLines(const Block& block, double width, bool isWrapped) const
{
    const Workbench::ParagraphLook& look = *block.look;
    QTextOption option;
    option.setTabStopDistance(kTabDistance);
    option.setWrapMode(isWrapped ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    if (look.align == Align::Justify && isWrapped)
        option.setAlignment(Qt::AlignJustify);
    block.layout->setTextOption(option);
    block.layout->beginLayout();
    double top = 0;
    for (QTextLine line = block.layout->createLine(); line.isValid(); line = block.layout->createLine())
    {
        // In a list the label takes the place of an indent.
        const bool isIndented = line.lineNumber() == 0 && block.list.indent == 0;
        const double indent = look.leftIndent + block.list.indent + (isIndented ? look.firstLineIndent : 0);
        line.setLineWidth(isWrapped ? std::max(1.0, width - indent - look.rightIndent) : kUnlimited);
        line.setPosition({indent, top});
        top += line.height() * std::max(1, look.lineSpacing) / 100;
    }
    block.layout->endLayout();
}

void ShapeText::AlignLines(const Block& block, double width) const
{
    const Workbench::ParagraphLook& look = *block.look;
    double share = 0;
    if (look.align == Align::Centre)
        share = 0.5;
    else if (look.align == Align::Right || look.align == Align::End)
        share = 1;
    if (share == 0)
        return;
    for (int index = 0; index < block.layout->lineCount(); ++index)
    {
        QTextLine line = block.layout->lineAt(index);
        const double free = width - line.x() - look.rightIndent - line.naturalTextWidth();
        line.setPosition({line.x() + share * free, line.y()});
    }
}

double ShapeText::WidestLine() const
{
    double widest = 0;
    for (const Block& block : blocks)
    {
        for (int index = 0; index < block.layout->lineCount(); ++index)
        {
            const QTextLine line = block.layout->lineAt(index);
            widest = std::max(widest, line.x() + line.naturalTextWidth() + block.look->rightIndent);
        }
    }
    return widest;
}

double ShapeText::StackBlocks(double width, bool isWrapped)
{
    for (std::size_t index = 0; index < blocks.size(); ++index)
    {
        Block& block = blocks[index];
        BreakLines(block, width, isWrapped);
        block.top = height + (index == 0 ? 0 : block.look->spaceBefore);
        double lines = 0;
        if (const int count = block.layout->lineCount(); count > 0)
        {
            const QTextLine last = block.layout->lineAt(count - 1);
            lines = last.y() + last.height();
        }
        height = block.top + lines + (index + 1 == blocks.size() ? 0 : block.look->spaceAfter);
    }
    return WidestLine();
}

void ShapeText::Place(const ReferenceHost::ShapePicture& shape)
{
    const Details& details = shape.details;
    const QRectF whole = RectangleOf(shape.textArea);
    turn.translate(whole.center().x(), whole.center().y());
    turn.rotate(shape.textAngle);
    turn.translate(-whole.center().x(), -whole.center().y());
    const QRectF inner = shape.isLine ? QRectF(whole.center(), QSizeF())
                                      : whole.adjusted(details.paddingLeft, details.paddingTop,
                                                       -details.paddingRight, -details.paddingBottom);
    const bool isWrapped = details.isWrapped && !shape.isLine && inner.width() > 0;
    const double widest = StackBlocks(inner.width(), isWrapped);
    const bool isBlock =
        shape.isLine || (!isWrapped && details.horizontal != Details::HorizontalAlign::AsParagraph);
    const double width = isBlock ? widest : inner.width();
    for (Block& block : blocks)
    {
        AlignLines(block, width);
        PlaceLabel(block);
    }

    double across = 0;
    if (shape.isLine || details.horizontal == Details::HorizontalAlign::Centre)
        across = 0.5;
    else if (details.horizontal == Details::HorizontalAlign::Right)
        across = 1;
    double down = 0;
    if (shape.isTextAbove)
        down = 1;
    else if (shape.isLine || details.vertical == Details::VerticalAlign::Middle)
        down = 0.5;
    else if (details.vertical == Details::VerticalAlign::Bottom)
        down = 1;
    corner = {inner.left() + (isBlock ? across * (inner.width() - width) : 0),
              inner.top() + down * (inner.height() - height)};
    Measure();
}

void ShapeText::Measure()
{
    for (const Block& block : blocks)
    {
        const QPointF begin = corner + QPointF(0, block.top);
        for (int index = 0; index < block.layout->lineCount(); ++index)
            bounds |= block.layout->lineAt(index).naturalTextRect().translated(begin);
        if (block.label != nullptr)
            bounds |= block.label->lineAt(0).naturalTextRect().translated(begin + block.labelPlace);
    }
    // Letters may reach a little over their line.
    const double over = blocks.empty() ? 0 : height / static_cast<double>(blocks.size()) / 4;
    bounds = turn.mapRect(bounds.adjusted(-over, -over, over, over));
}

void ShapeText::Paint(QPainter& painter) const
{
    const bool isTurned = !turn.isIdentity();
    if (isTurned)
    {
        painter.save();
        painter.setTransform(turn, true);
    }
    for (const Block& block : blocks)
    {
        const QPointF begin = corner + QPointF(0, block.top);
        block.layout->draw(&painter, begin);
        if (block.label != nullptr)
            block.label->draw(&painter, begin + block.labelPlace);
    }
    if (isTurned)
        painter.restore();
}

} // namespace Desktop
