#pragma once

#include "apps/desktop/Document.h"

#include <QWidget>

#include <vector>

class QLabel;
class QRadioButton;

namespace Desktop
{

class StyleTree;

/// Shows what is edited, and lets a person choose it: the selected objects, the document defaults, or a named
/// style.
class EditedBox final : public QWidget
{
    Q_OBJECT

public:
    /// Borrowed; outlives this.
    EditedBox(Document& itsDocument, QWidget* parent);

    /// Reads the styles of the drawing anew.
    void Refresh();

private:
    void MakeChoices();
    void MakeStyles();
    void ShowSelection();
    [[nodiscard]] QString DescribeChain() const;
    void TakeObjects();

    Document& document;
    QRadioButton* objects = nullptr; ///< Owned by this, as are the others.
    QRadioButton* defaults = nullptr;
    QRadioButton* named = nullptr;
    QLabel* chain = nullptr;
    StyleTree* styles = nullptr;

    /// The objects that were selected last, to come back to.
    std::vector<ReferenceHost::DrawingObject*> lastObjects;
};

} // namespace Desktop
