#pragma once

#include "apps/desktop/Document.h"
#include "apps/desktop/dialogs/WindowDialogs.h"
#include "apps/workbench/Panel.h"

#include <QWidget>

#include <functional>
#include <vector>

class QGridLayout;
class QHBoxLayout;
class QMenu;
class QToolButton;

namespace Desktop
{

class RowLine;

/// One panel, built from its description: a title that opens and closes it, its lists of styles and presets,
/// and its rows.
class PanelSection final : public QWidget
{
    Q_OBJECT

public:
    /// Everything is borrowed and outlives this.
    PanelSection(Document& itsDocument, WindowDialogs& itsDialogs, Workbench::Panel& itsPanel,
                 QWidget* parent);

    /// Reads the panel anew and shows what it shows.
    void Refresh();

    [[nodiscard]] bool IsOpen() const;
    void SetOpen(bool isOpen);

    /// What the panel is known by, whatever the language.
    [[nodiscard]] QString GetName() const;

    /// How wide the widest label of a row wants to be, in pixels.
    [[nodiscard]] int GetLabelWidth() const;

    /// Gives the labels at least that much room, so that controls of several sections stand in one line.
    void SetLabelWidth(int pixels);

private:
    void MakeHeader(QHBoxLayout& layout);
    void MakeTitle(QHBoxLayout& layout);
    void MakeRows();
    QToolButton* AddMenuButton(QHBoxLayout& layout, const QString& text, const OvxStringT& name,
                               const std::function<void(QMenu&)>& fill);

    Document& document;
    WindowDialogs& dialogs;
    Workbench::Panel& panel;
    QToolButton* title = nullptr;
    std::vector<QToolButton*> lists; ///< The buttons that open lists; owned by this.
    QWidget* body = nullptr;
    QGridLayout* grid = nullptr; ///< Owned by the body.
    std::vector<RowLine*> rows;  ///< In the order of the description; owned by the body.
};

} // namespace Desktop
