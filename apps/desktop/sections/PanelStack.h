#pragma once

#include "apps/desktop/Document.h"
#include "apps/desktop/dialogs/WindowDialogs.h"

#include <QScrollArea>

#include <set>
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

private:
    void Clear();
    void Refresh();

    Document& document;
    WindowDialogs& dialogs;
    std::vector<PanelSection*> sections; ///< In the order of the panels; owned by the scrolled widget.
    std::set<std::size_t> closed;
};

} // namespace Desktop
