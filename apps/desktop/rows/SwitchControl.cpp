#include "apps/desktop/rows/SwitchControl.h"

#include "apps/desktop/WindowText.h"

#include <QCheckBox>
#include <QHBoxLayout>

namespace Desktop
{

SwitchControl::SwitchControl(const Workbench::RowDescription& itsRow, QWidget* parent)
    : RowControl(parent), description(itsRow), box(new QCheckBox(this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
    setFocusProxy(box);
    connect(box, &QCheckBox::clicked, this,
            [this](bool isOn) {
                emit committed(
                    ToQString(isOn ? description.choices.back().value : description.choices.front().value));
            });
}

void SwitchControl::ShowRow(const Workbench::RowReport& row)
{
    const auto* const value = std::get_if<OvxStringT>(&row.value);
    const bool isOn = value != nullptr && *value == description.choices.back().value;
    const bool isOff = value != nullptr && *value == description.choices.front().value;
    const bool isNeither = !isOn && !isOff;
    box->setTristate(isNeither);
    box->setCheckState(isNeither ? Qt::PartiallyChecked : isOn ? Qt::Checked : Qt::Unchecked);
    const QString placeholder = PlaceholderOf(row);
    const OvxStringT& label = isOn ? description.choices.back().label : description.choices.front().label;
    box->setText(EscapeMnemonics(placeholder.isEmpty() && !isNeither ? TextOf(label) : placeholder));
}

} // namespace Desktop
