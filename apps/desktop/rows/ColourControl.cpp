#include "apps/desktop/rows/ColourControl.h"

#include "apps/desktop/WindowText.h"

#include <QColorDialog>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QToolButton>

#include <utility>

namespace Desktop
{

QIcon PaintSwatch(const QColor& colour)
{
    constexpr int kSide = 32;
    QPixmap pixmap(kSide, kSide);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::darkGray, 2));
    if (colour.isValid())
        painter.setBrush(colour);
    const QRectF square(2, 2, kSide - 4, kSide - 4);
    painter.drawRoundedRect(square, 4, 4);
    if (!colour.isValid())
        painter.drawLine(square.bottomLeft(), square.topRight());
    return QIcon(pixmap);
}

ColourControl::ColourControl(RowOffers itsOffers, QWidget* parent)
    : RowControl(parent), offers(std::move(itsOffers)), button(new QToolButton(this))
{
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* const menu = new QMenu(button);
    button->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, &ColourControl::FillMenu);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(button);
    setFocusProxy(button);
}

void ColourControl::ShowRow(const Workbench::RowReport& row)
{
    const auto* const value = std::get_if<OvxStringT>(&row.value);
    shown = value == nullptr ? QColor() : QColor(ToQString(*value));
    const QString text =
        row.link.empty() ? ToQString(value == nullptr ? OvxStringT() : *value) : ToQString(row.link);
    const QString placeholder = PlaceholderOf(row);
    button->setText(EscapeMnemonics(placeholder.isEmpty() ? text : placeholder));
    button->setIcon(PaintSwatch(shown));
    button->setAccessibleDescription(placeholder.isEmpty() ? text : placeholder);
}

void ColourControl::FillMenu()
{
    QMenu& menu = *button->menu();
    menu.clear();
    for (const ReferenceHost::PaletteEntry& entry : offers.palette())
    {
        const QString name = ToQString(entry.name);
        const QColor look(entry.look.red, entry.look.green, entry.look.blue);
        connect(menu.addAction(PaintSwatch(look), EscapeMnemonics(name)), &QAction::triggered, this,
                [this, name] { emit committed(QLatin1String("palette:") + name); });
    }
    menu.addSeparator();
    connect(menu.addAction(TextOf(L"window.colour.choose")), &QAction::triggered, this,
            &ColourControl::ChooseAny);
}

/// The dialog shows its colours in the drawing at once; giving up takes them back.
void ColourControl::ChooseAny()
{
    QColorDialog dialog(shown.isValid() ? shown : QColor(Qt::black), this);
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    dialog.setWindowTitle(TextOf(L"window.colour.title"));
    connect(&dialog, &QColorDialog::currentColorChanged, this,
            [this](const QColor& colour) { emit dragged(colour.name()); });
    emit dragBegan();
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    if (isAccepted)
        emit dragged(dialog.selectedColor().name());
    emit dragEnded(isAccepted);
}

} // namespace Desktop
