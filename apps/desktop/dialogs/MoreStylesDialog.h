#pragma once

#include "apps/workbench/StyleList.h"

#include <QDialog>

#include <cstddef>
#include <optional>

class QLineEdit;
class QListWidget;
class QPushButton;

namespace Desktop
{

/// The styles that the list of a panel has no room for, with a field that narrows them while one types.
class MoreStylesDialog final : public QDialog
{
    Q_OBJECT

public:
    MoreStylesDialog(const Workbench::StyleList& styles, QWidget* parent);

    /// The place of the chosen style in the list; none while none is chosen.
    [[nodiscard]] std::optional<std::size_t> GetChosen() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Narrow(const QString& text);

    QLineEdit* filter;         ///< Owned by this, as are the others.
    QListWidget* list;         ///< One item for each style, in order; those that do not fit are hidden.
    QPushButton* acceptButton; ///< Enabled while a style is chosen.
};

} // namespace Desktop
