#include "apps/desktop/dialogs/MoreStylesDialog.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/dialogs/DialogButtons.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace Desktop
{

MoreStylesDialog::MoreStylesDialog(const Workbench::StyleList& styles, QWidget* parent)
    : QDialog(parent), filter(new QLineEdit(this)), list(new QListWidget(this))
{
    setWindowTitle(TextOf(L"window.more-styles.title"));
    filter->setPlaceholderText(TextOf(L"window.more-styles.filter"));
    filter->setAccessibleName(filter->placeholderText());
    filter->setClearButtonEnabled(true);
    list->setAccessibleName(windowTitle());
    for (const Workbench::StyleListEntry& entry : styles.entries)
        list->addItem(ToQString(entry.styleName));
    QDialogButtonBox* const buttons = MakeDialogButtons(*this);
    acceptButton = buttons->button(QDialogButtonBox::Ok);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(filter);
    layout->addWidget(list);
    layout->addWidget(buttons);

    filter->installEventFilter(this);
    connect(filter, &QLineEdit::textChanged, this, &MoreStylesDialog::Narrow);
    connect(list, &QListWidget::itemSelectionChanged, this,
            [this] { acceptButton->setEnabled(GetChosen().has_value()); });
    connect(list, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    Narrow({});
    filter->setFocus();
}

std::optional<std::size_t> MoreStylesDialog::GetChosen() const
{
    const QListWidgetItem* const item = list->currentItem();
    if (item == nullptr || item->isHidden() || !item->isSelected())
        return std::nullopt;
    return static_cast<std::size_t>(list->row(item));
}

/// The arrows move through the list while one types.
bool MoreStylesDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
    {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down)
            return QCoreApplication::sendEvent(list, event);
    }
    return QDialog::eventFilter(watched, event);
}

/// Hides what does not hold the text, and chooses the first of the rest.
void MoreStylesDialog::Narrow(const QString& text)
{
    QListWidgetItem* first = nullptr;
    for (int row = 0; row < list->count(); ++row)
    {
        QListWidgetItem& item = *list->item(row);
        item.setHidden(!item.text().contains(text, Qt::CaseInsensitive));
        if (!item.isHidden() && first == nullptr)
            first = &item;
    }
    list->setCurrentItem(first);
    acceptButton->setEnabled(first != nullptr);
}

} // namespace Desktop
