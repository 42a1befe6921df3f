#include "apps/desktop/StyleTree.h"

#include "apps/desktop/WindowText.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QSignalBlocker>

namespace Desktop
{
namespace
{

constexpr int kNameColumn = 0;
constexpr int kUsersColumn = 1;

OvxStringT NameOf(const QTreeWidgetItem& item)
{
    return FromQString(item.data(kNameColumn, Qt::UserRole).toString());
}

} // namespace

StyleTree::StyleTree(QWidget* parent) : QTreeWidget(parent)
{
    setColumnCount(2);
    setHeaderLabels({TextOf(L"styles.name"), TextOf(L"styles.users")});
    setAccessibleName(TextOf(L"window.styles"));
    setUniformRowHeights(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(kNameColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(kUsersColumn, QHeaderView::ResizeToContents);
    // Not what is current: that comes with the keyboard's mere arrival.
    connect(this, &QTreeWidget::itemSelectionChanged, this,
            [this]
            {
                if (!selectedItems().isEmpty())
                    emit styleChosen(NameOf(*selectedItems().front()));
            });
    connect(this, &QTreeWidget::itemDoubleClicked, this,
            [this](const QTreeWidgetItem* item) { emit usersWanted(NameOf(*item)); });
    setExpandsOnDoubleClick(false);
}

void StyleTree::ShowStyles(const std::vector<Workbench::NamedStyleFacts>& styles)
{
    const QSignalBlocker blocker(this);
    std::map<OvxStringT, bool> wasOpen;
    for (const auto& [name, item] : itemsByName)
        wasOpen[name] = item->isExpanded();
    clear();
    itemsByName.clear();
    for (const Workbench::NamedStyleFacts& style : styles)
        AddStyle(style);
    PlaceBelowParents(styles);
    for (const auto& [name, item] : itemsByName)
        item->setExpanded(!wasOpen.contains(name) || wasOpen[name]);
}

void StyleTree::MarkStyle(const OvxStringT& name)
{
    const QSignalBlocker blocker(this);
    const auto found = itemsByName.find(name);
    setCurrentItem(found == itemsByName.end() ? nullptr : found->second);
    if (found == itemsByName.end())
        clearSelection();
}

void StyleTree::contextMenuEvent(QContextMenuEvent* event)
{
    const QTreeWidgetItem* const item = currentItem();
    if (item == nullptr)
        return;
    const OvxStringT name = NameOf(*item);
    QMenu menu;
    QAction* const users = menu.addAction(TextOf(L"window.styles.select-users"));
    users->setEnabled(item->data(kUsersColumn, Qt::UserRole).toBool());
    if (menu.exec(event->globalPos()) == users)
        emit usersWanted(name);
}

void StyleTree::AddStyle(const Workbench::NamedStyleFacts& style)
{
    // The drawing's own styles come first; one of a sheet outside it that has the same name is hidden by it.
    if (itemsByName.contains(style.name))
        return;
    auto* const item = new QTreeWidgetItem;
    item->setText(kNameColumn, ToQString(style.displayName.empty() ? style.name : style.displayName));
    item->setData(kNameColumn, Qt::UserRole, ToQString(style.name));
    item->setText(kUsersColumn, QString::number(style.users));
    item->setData(kUsersColumn, Qt::UserRole, style.users > 0);
    item->setTextAlignment(kUsersColumn, Qt::AlignRight);
    QString tooltip = TextOf(L"styles.category") + QLatin1String(": ") + ToQString(style.category);
    if (style.isExternal)
        tooltip +=
            QLatin1String("\n") + TextOf(L"styles.external") + QLatin1String(": ") + ToQString(style.sheet);
    item->setToolTip(kNameColumn, tooltip);
    itemsByName[style.name] = item;
}

void StyleTree::PlaceBelowParents(const std::vector<Workbench::NamedStyleFacts>& styles)
{
    for (const Workbench::NamedStyleFacts& style : styles)
    {
        QTreeWidgetItem* const item = itemsByName[style.name];
        if (item->parent() != nullptr || indexOfTopLevelItem(item) >= 0)
            continue;
        const auto parent = itemsByName.find(style.parent);
        if (parent == itemsByName.end() || parent->second == item)
            addTopLevelItem(item);
        else
            parent->second->addChild(item);
    }
}

} // namespace Desktop
