#pragma once

#include "apps/workbench/TargetHandover.h"
#include "host/utils/OvxStringT.h"

#include <QTreeWidget>

#include <map>
#include <vector>

namespace Desktop
{

/// The named styles of a drawing below those that they inherit from, with how many objects use each.
class StyleTree final : public QTreeWidget
{
    Q_OBJECT

public:
    explicit StyleTree(QWidget* parent);

    /// Shows these styles. Nothing is told, and which are open stays.
    void ShowStyles(const std::vector<Workbench::NamedStyleFacts>& styles);

    /// Marks the style of that name as the one that is edited, and none for an empty name. Nothing is told.
    void MarkStyle(const OvxStringT& name);

signals:
    /// A person chose a style.
    void styleChosen(const OvxStringT& name);

    /// A person wants the objects selected that use a style.
    void usersWanted(const OvxStringT& name);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

    /// Enter asks for the users of a style, and Shift+F10 opens its menu.
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QPoint PlaceBelow(const QTreeWidgetItem& item) const;
    void OpenMenu(const QTreeWidgetItem& item, const QPoint& place);
    void AddStyle(const Workbench::NamedStyleFacts& style);
    void PlaceBelowParents(const std::vector<Workbench::NamedStyleFacts>& styles);

    std::map<OvxStringT, QTreeWidgetItem*> itemsByName; ///< By their names; owned by the tree.
};

} // namespace Desktop
