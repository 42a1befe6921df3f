#pragma once

#include "reference_host/document/DrawingObject.h"

#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

class QMouseEvent;
class QPaintEvent;

namespace ReferenceHost
{
struct DrawingPicture;
}

namespace Desktop
{

/// Shows one page of a session's drawing, and lets a person select objects on it.
///
/// A click selects the topmost object, also one in a group, and one with Shift adds or takes away; a double
/// click selects the whole outermost group; dragging over empty space selects what lies wholly in the
/// rectangle. The wheel, the middle button and dragging with the space bar move the page, the wheel with Ctrl
/// makes it larger and smaller.
///
/// With the keyboard Tab and Shift+Tab go from object to object, Ctrl+Tab to the next widget; arrows move the
/// page, Page Up and Page Down turn it, Ctrl with plus, minus and zero changes its size.
///
/// Screen readers are told what is selected as the value of the widget.
///
/// Reads the drawing and never changes it.
class CanvasWidget : public QWidget
{
    Q_OBJECT

public:
    explicit CanvasWidget(QWidget* parent = nullptr);
    ~CanvasWidget() override;

    /// Shows no drawing.
    void ShowNothing();

    /// Shows the first page of a drawing, with nothing selected and the whole page in view. The drawing that
    /// the picture was read from is borrowed until the next call or that of ShowNothing().
    void ShowPicture(ReferenceHost::DrawingPicture picture);

    /// Marks these objects as the selected ones, without telling anybody. Groups may be among them; null may
    /// not. Borrowed until the next call or that of ShowNothing().
    void SetSelectedObjects(const std::vector<ReferenceHost::DrawingObject*>& objects);

    /// What is selected, by the names of the objects, or by kind and id where they have none. Long lists are
    /// cut short.
    [[nodiscard]] QString DescribeSelection() const;

    /// Draws anew what looks different with the styles as they are now; for after each edit, undo and redo.
    void RefreshStyles();

    /// How many pages the drawing has; none without a drawing.
    [[nodiscard]] int PageCount() const;

    /// The page that is shown, counted from zero.
    [[nodiscard]] int CurrentPage() const;

    /// Shows the page of that number, counted from zero; one that there is not is passed over.
    void SetPage(int page);

    /// Makes everything larger by that factor, or smaller by one below 1, around the middle of the view. With
    /// many objects it is blurred until nobody has asked for more for a moment.
    void ZoomBy(double factor);

    /// Chooses the size at which the whole page is in view.
    void ZoomToPage();

    /// Where a place of the page, in hundredths of a millimetre, is in the widget.
    [[nodiscard]] QPointF ToWidget(QPointF onPage) const;

signals:
    /// A person selected other objects, in document order and without groups; perhaps none.
    void selectionChanged(std::vector<ReferenceHost::DrawingObject*> objects);

    /// Another page is shown, by whatever way.
    void pageChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    bool focusNextPrevChild(bool isNext) override;

private:
    struct State;

    void Repaint();
    void MoveBy(QPointF pixels);
    void ZoomAt(QPointF fixed, double factor);
    void ClickAt(QPointF place, bool isAdding);
    void EndBand();
    bool ZoomByKey(const QKeyEvent& event);
    bool LeaveByKey(const QKeyEvent& event);
    void BringIntoView(const QRectF& onPage);
    void UpdateFrames();
    void SetSpace(bool isHeld);

    /// Selects what a person chose, and tells of it when it is something else than before.
    void Choose(const std::vector<ReferenceHost::DrawingObject*>& objects);

    std::unique_ptr<State> state; ///< Never null.
};

} // namespace Desktop
