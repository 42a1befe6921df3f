#include "apps/desktop/StyleTree.h"

#include "apps/desktop/WindowText.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
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

/// Its category, where it comes from, and what it sets itself.
QString Describe(const Workbench::NamedStyleFacts& style)
{
    QString tooltip = TextOf(L"styles.category") + QLatin1String(": ") + ToQString(style.category);
    if (style.isExternal)
        tooltip +=
            QLatin1String("\n") + TextOf(L"styles.external") + QLatin1String(": ") + ToQString(style.sheet);
    QStringList own;
    for (const OvxStringT& path : style.own)
        own.append(ToQString(path));
    if (!own.isEmpty())
        tooltip +=
            QLatin1Char('\n') + TextOf(L"styles.own") + QLatin1String(": ") + own.join(QLatin1String(", "));
    return tooltip;
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
    const int scrolled = verticalScrollBar()->value();
    clear();
    itemsByName.clear();
    for (const Workbench::NamedStyleFacts& style : styles)
        AddStyle(style);
    PlaceBelowParents(styles);
    for (const auto& [name, item] : itemsByName)
        item->setExpanded(!wasOpen.contains(name) || wasOpen[name]);
    verticalScrollBar()->setValue(scrolled);
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
    const bool isAtPointer = event->reason() == QContextMenuEvent::Mouse;
    if (const QTreeWidgetItem* const item = currentItem())
        OpenMenu(*item, isAtPointer ? event->globalPos() : PlaceBelow(*item));
}

void StyleTree::keyPressEvent(QKeyEvent* event)
{
    const QTreeWidgetItem* const item = currentItem();
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isForMenu = event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier;
    if (item != nullptr && isEnter)
        emit usersWanted(NameOf(*item));
    else if (item != nullptr && isForMenu)
        OpenMenu(*item, PlaceBelow(*item));
    else
        QTreeWidget::keyPressEvent(event);
}

QPoint StyleTree::PlaceBelow(const QTreeWidgetItem& item) const
{
    return viewport()->mapToGlobal(visualItemRect(&item).bottomLeft());
}

void StyleTree::OpenMenu(const QTreeWidgetItem& item, const QPoint& place)
{
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* const users = menu->addAction(TextOf(L"window.styles.select-users"));
    users->setEnabled(item.data(kUsersColumn, Qt::UserRole).toBool());
    connect(users, &QAction::triggered, this, [this, name = NameOf(item)] { emit usersWanted(name); });
    menu->popup(place);
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
    item->setToolTip(kNameColumn, Describe(style));
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
