#include "apps/desktop/dialogs/SelectDialog.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/dialogs/DialogButtons.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace Desktop
{

SelectDialog::SelectDialog(Document& itsDocument, QWidget* parent)
    : QDialog(parent), document(itsDocument), field(new QLineEdit(this))
{
    setWindowTitle(TextOf(L"window.select.title"));
    auto* const label = new QLabel(TextOf(L"window.select.what"), this);
    label->setBuddy(field);
    auto* const words = new QLabel(TextOf(L"window.select.words"), this);
    words->setTextInteractionFlags(Qt::TextSelectableByMouse);
    field->setText(ToQString(document.GetEditor().GetSelection().selector));
    field->selectAll();
    field->setAccessibleName(windowTitle());
    field->setAccessibleDescription(words->text());
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(field);
    layout->addWidget(words);
    layout->addWidget(MakeDialogButtons(*this));
}

void SelectDialog::accept()
{
    if (document.Select(FromQString(field->text())))
        QDialog::accept();
}

} // namespace Desktop
