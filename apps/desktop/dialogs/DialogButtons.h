#pragma once

#include <QDialogButtonBox>

class QDialog;

namespace Desktop
{

/// Buttons that accept a dialog and give it up, in the language in force. Owned by the dialog, which puts
/// them where they belong.
[[nodiscard]] QDialogButtonBox* MakeDialogButtons(QDialog& dialog);

} // namespace Desktop
