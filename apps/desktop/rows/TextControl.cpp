#include "apps/desktop/rows/TextControl.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/rows/WheelGuard.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>

#include <utility>

namespace Desktop
{

TextControl::TextControl(RowOffers itsOffers, QWidget* parent)
    : RowControl(parent), offers(std::move(itsOffers)), field(new QComboBox(this))
{
    field->setEditable(true);
    field->setInsertPolicy(QComboBox::NoInsert);
    field->setCompleter(nullptr);
    // Else the key that enters a text would choose the entry of that text as well, typed or not.
    field->setDuplicatesEnabled(true);
    field->setFocusPolicy(Qt::StrongFocus);
    GuardWheel(*field);
    field->setMinimumContentsLength(8);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(field);
    setFocusProxy(field);
    connect(field->lineEdit(), &QLineEdit::textEdited, this, [this] { isTyped = true; });
    connect(field->lineEdit(), &QLineEdit::editingFinished, this, &TextControl::TakeText);
    connect(field, &QComboBox::activated, this,
            [this](int index)
            {
                isTyped = false;
                emit committed(field->itemText(index));
            });
}

void TextControl::ShowRow(const Workbench::RowReport& row)
{
    const QSignalBlocker blocker(field);
    const auto* const value = std::get_if<OvxStringT>(&row.value);
    OfferNames();
    shown = value == nullptr ? QString() : ToQString(*value);
    isTyped = false;
    field->setCurrentIndex(field->findText(shown));
    field->setEditText(shown);
    field->lineEdit()->setPlaceholderText(PlaceholderOf(row));
    field->setAccessibleDescription(PlaceholderOf(row));
    field->lineEdit()->setCursorPosition(0);
}

void TextControl::OfferNames()
{
    field->clear();
    const auto names = offers.definedNames();
    if (!names)
        return;
    for (const OvxStringT& name : *names)
        field->addItem(ToQString(name));
}

void TextControl::TakeText()
{
    // Typing what is inherited makes it local. Nothing that was nothing before says nothing.
    const QString text = field->currentText();
    if (std::exchange(isTyped, false) && !(text.isEmpty() && shown.isEmpty()))
        emit committed(text);
}

} // namespace Desktop
