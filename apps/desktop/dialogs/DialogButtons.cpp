#include "apps/desktop/dialogs/DialogButtons.h"

#include "apps/desktop/WindowText.h"

#include <QDialog>
#include <QPushButton>

namespace Desktop
{

QDialogButtonBox* MakeDialogButtons(QDialog& dialog)
{
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->button(QDialogButtonBox::Ok)->setText(TextOf(L"window.ok"));
    buttons->button(QDialogButtonBox::Cancel)->setText(TextOf(L"window.cancel"));
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}

} // namespace Desktop
