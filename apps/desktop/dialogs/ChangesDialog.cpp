#include "apps/desktop/dialogs/ChangesDialog.h"

#include "apps/desktop/WindowText.h"
#include "apps/workbench/PanelReading.h"
#include "apps/workbench/ValueText.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <variant>

namespace Desktop
{
namespace
{

using Workbench::Change;

constexpr OvxStringViewT kColumns[] = {L"window.changes.target", L"window.changes.row",
                                       L"window.changes.before", L"window.changes.now",
                                       L"window.changes.state"};

/// The place of the row that changed; without a panel for an entry of the palette.
Workbench::RowPlace PlaceOf(const Change& change, const Workbench::LoadedPanels& panels)
{
    const bool isRow = OvxStringViewT(change.property).find(L'.') != OvxStringViewT::npos;
    return isRow ? Workbench::FindRow(panels, change.property) : Workbench::RowPlace();
}

QString NameOf(const Workbench::RowPlace& place)
{
    if (place.row == nullptr)
        return TextOf(L"window.changes.look");
    return TextOf(place.panel->GetDescription().title) + QLatin1String(": ") + TextOf(place.row->label);
}

QString ValueOf(const Workbench::RowPlace& place, const Workbench::ReportValue& value, const OvxStringT& link)
{
    static const Workbench::RowDescription kPlainRow;
    if (std::holds_alternative<std::monostate>(value))
        return TextOf(L"value.unset");
    Workbench::RowReport report;
    report.description = place.row == nullptr ? &kPlainRow : place.row;
    report.value = value;
    const QString text = ToQString(Workbench::ValueToText(report));
    return link.empty() ? text : QStringLiteral("%1 (%2)").arg(text, ToQString(link));
}

QStringList Describe(const Change& change, const Workbench::LoadedPanels& panels)
{
    const Workbench::RowPlace place = PlaceOf(change, panels);
    // An entry of the palette has no state that would mean something.
    const QString state =
        place.row == nullptr ? QString() : TextOf(OvxStringT(L"state.") + Workbench::StateName(change.state));
    return {ToQString(change.id), NameOf(place), ValueOf(place, change.from, change.fromLink),
            ValueOf(place, change.to, change.toLink), state};
}

bool IsUnset(const Change& change)
{
    return std::holds_alternative<std::monostate>(change.from) &&
           std::holds_alternative<std::monostate>(change.to);
}

} // namespace

ChangesDialog::ChangesDialog(const std::vector<Change>& changes, const Workbench::LoadedPanels& panels,
                             QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(TextOf(L"window.changes.title"));
    setLayout(new QVBoxLayout);
    MakeList(changes, panels);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setText(TextOf(L"window.close"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
    resize(720, 420);
}

void ChangesDialog::MakeList(const std::vector<Change>& changes, const Workbench::LoadedPanels& panels)
{
    auto* const list = new QTreeWidget(this);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAccessibleName(windowTitle());
    QStringList titles;
    for (const OvxStringViewT key : kColumns)
        titles.append(TextOf(key));
    list->setHeaderLabels(titles);
    for (const Change& change : changes)
    {
        if (!IsUnset(change))
            list->addTopLevelItem(new QTreeWidgetItem(Describe(change, panels)));
    }
    list->header()->resizeSections(QHeaderView::ResizeToContents);
    layout()->addWidget(list);
    if (list->topLevelItemCount() == 0)
        layout()->addWidget(new QLabel(TextOf(L"edit.no-change"), this));
}

} // namespace Desktop
