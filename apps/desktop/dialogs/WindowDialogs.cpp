#include "apps/desktop/dialogs/WindowDialogs.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/dialogs/MoreStylesDialog.h"
#include "apps/desktop/dialogs/NameDialog.h"

#include <QMessageBox>
#include <QPushButton>

namespace Desktop
{

std::optional<OvxStringT> WindowDialogs::NamePreset(const OvxStringT& proposed)
{
    NameDialog dialog(TextOf(L"window.preset.add.title"), TextOf(L"window.preset.name"), window);
    dialog.SetName(ToQString(proposed));
    if (dialog.exec() == QDialog::Accepted)
        return FromQString(dialog.GetName());
    isGivenUp = true;
    return std::nullopt;
}

std::optional<std::size_t> WindowDialogs::ChooseStyle(const Workbench::StyleList& styles)
{
    MoreStylesDialog dialog(styles, window);
    const auto chosen = dialog.exec() == QDialog::Accepted ? dialog.GetChosen() : std::nullopt;
    isGivenUp = isGivenUp || !chosen;
    return chosen;
}

bool WindowDialogs::Confirm(const OvxStringT& question)
{
    QMessageBox box(QMessageBox::Question, TextOf(L"window.question"), ToQString(question),
                    QMessageBox::Yes | QMessageBox::No, window);
    box.button(QMessageBox::Yes)->setText(TextOf(L"window.yes"));
    box.button(QMessageBox::No)->setText(TextOf(L"window.no"));
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace Desktop
