#include "apps/desktop/dialogs/NameDialog.h"

#include "apps/desktop/dialogs/DialogButtons.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace Desktop
{

NameDialog::NameDialog(const QString& title, const QString& label, QWidget* parent)
    : QDialog(parent), field(new QLineEdit(this))
{
    setWindowTitle(title);
    auto* const layout = new QFormLayout(this);
    layout->addRow(label, field);
    QDialogButtonBox* const buttons = MakeDialogButtons(*this);
    layout->addRow(buttons);
    QPushButton* const acceptButton = buttons->button(QDialogButtonBox::Ok);
    acceptButton->setEnabled(false);
    connect(field, &QLineEdit::textChanged, acceptButton,
            [acceptButton](const QString& name) { acceptButton->setEnabled(!name.isEmpty()); });
}

void NameDialog::SetName(const QString& name)
{
    field->setText(name);
    field->selectAll();
}

QString NameDialog::GetName() const
{
    return field->text();
}

} // namespace Desktop
