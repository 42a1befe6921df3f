#pragma once

#include "apps/desktop/Document.h"

#include <QDialog>

class QLineEdit;

namespace Desktop
{

/// Asks what is edited, in the words that the command line tool takes as well. Stays open while they find
/// nothing.
class SelectDialog final : public QDialog
{
    Q_OBJECT

public:
    /// The document is borrowed and outlives this; the dialog begins with what is selected in it.
    SelectDialog(Document& itsDocument, QWidget* parent);

    void accept() override;

private:
    Document& document;
    QLineEdit* field; ///< Owned by this.
};

} // namespace Desktop
