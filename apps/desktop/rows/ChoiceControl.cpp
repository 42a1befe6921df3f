#include "apps/desktop/rows/ChoiceControl.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/rows/WheelGuard.h"

#include <QComboBox>
#include <QHBoxLayout>

namespace Desktop
{

ChoiceControl::ChoiceControl(const Workbench::RowDescription& row, QWidget* parent)
    : RowControl(parent), list(new QComboBox(this))
{
    for (const Workbench::ChoiceDescription& choice : row.choices)
        list->addItem(TextOf(choice.label), ToQString(choice.value));
    list->setFocusPolicy(Qt::StrongFocus);
    GuardWheel(*list);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(list);
    setFocusProxy(list);
    connect(list, &QComboBox::activated, this,
            [this](int index) { emit committed(list->itemData(index).toString()); });
}

void ChoiceControl::ShowRow(const Workbench::RowReport& row)
{
    const auto* const value = std::get_if<OvxStringT>(&row.value);
    const QString text = value == nullptr ? QString() : ToQString(*value);
    const int index = value == nullptr ? -1 : list->findData(text);
    list->setPlaceholderText(value == nullptr ? PlaceholderOf(row) : text);
    list->setCurrentIndex(index);
    list->setAccessibleDescription(index < 0 ? list->placeholderText() : list->currentText());
}

} // namespace Desktop
