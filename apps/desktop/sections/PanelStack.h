#pragma once

#include "apps/desktop/Document.h"
#include "apps/desktop/dialogs/WindowDialogs.h"

#include <QScrollArea>
#include <QStringList>

#include <vector>

namespace Desktop
{

class PanelSection;

/// All panels of a document, one below the other.
class PanelStack final : public QScrollArea
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this.
    PanelStack(Document& itsDocument, WindowDialogs& itsDialogs, QWidget* parent);

    /// Makes all sections anew, for another drawing or language; those that were closed stay closed.
    void Rebuild();

    /// The names of the panels whose sections are closed.
    [[nodiscard]] QStringList GetClosed() const;

    /// Closes the sections of these panels and opens all others.
    void SetClosed(const QStringList& names);

private:
    void Clear();
    void Refresh();
    void AlignLabels();

    Document& document;
    WindowDialogs& dialogs;
    std::vector<PanelSection*> sections; ///< In the order of the panels; owned by the scrolled widget.
    QStringList closed;                  ///< Those of the sections before, while there are none.
};

} // namespace Desktop
