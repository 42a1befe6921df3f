#include "apps/desktop/sections/PanelSection.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/rows/MenuOpener.h"
#include "apps/desktop/rows/RowLine.h"
#include "apps/desktop/rows/RowMenu.h"
#include "apps/desktop/sections/PresetMenu.h"
#include "apps/desktop/sections/StyleMenu.h"
#include "apps/workbench/PanelReading.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Desktop
{

PanelSection::PanelSection(Document& itsDocument, WindowDialogs& itsDialogs, Workbench::Panel& itsPanel,
                           QWidget* parent)
    : QWidget(parent), document(itsDocument), dialogs(itsDialogs), panel(itsPanel), body(new QWidget(this))
{
    auto* const header = new QHBoxLayout;
    MakeHeader(*header);
    MakeRows();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addLayout(header);
    layout->addWidget(body);
    SetOpen(true);
    Refresh();
}

void PanelSection::Refresh()
{
    Workbench::HandedTargets handed;
    handed.hasTargets = panel.GetDataSource().HasTargets();
    const Workbench::PanelReport report =
        Workbench::ReadPanel(panel.GetBoundNames(), panel.GetDescription(), handed);
    // Every "&" of the title is doubled already.
    const QString name = ToQString(report.title);
    title->setText(name.isEmpty() ? EscapeMnemonics(TextOf(panel.GetDescription().title)) : name);
    for (QToolButton* const list : lists)
        list->setEnabled(report.hasTargets);
    for (std::size_t index = 0; index < rows.size(); ++index)
        rows[index]->ShowRow(report.rows[index], report.hasTargets);
}

bool PanelSection::IsOpen() const
{
    return title->isChecked();
}

void PanelSection::SetOpen(bool isOpen)
{
    title->setChecked(isOpen);
    title->setArrowType(isOpen ? Qt::DownArrow : Qt::RightArrow);
    body->setVisible(isOpen);
}

QString PanelSection::GetName() const
{
    return ToQString(panel.GetDescription().name);
}

int PanelSection::GetLabelWidth() const
{
    int width = 0;
    for (const RowLine* const row : rows)
        width = std::max(width, row->GetLabelWidth());
    return width;
}

void PanelSection::SetLabelWidth(int pixels)
{
    grid->setColumnMinimumWidth(1, pixels);
}

void PanelSection::MakeTitle(QHBoxLayout& layout)
{
    title = new QToolButton(this);
    title->setObjectName(GetName() + QLatin1String(".title"));
    title->setCheckable(true);
    title->setAutoRaise(true);
    title->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    title->setFocusPolicy(Qt::StrongFocus);
    title->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    connect(title, &QToolButton::toggled, this, &PanelSection::SetOpen);
    layout.addWidget(title, 1);
}

void PanelSection::MakeHeader(QHBoxLayout& layout)
{
    MakeTitle(layout);
    const OvxStringT& name = panel.GetDescription().name;
    lists.push_back(AddMenuButton(layout, TextOf(L"window.section.style"), name + OvxStringT(L".styles"),
                                  [this](QMenu& menu)
                                  { FillStyleMenu(menu, document, dialogs, panel.GetDescription().name); }));
    if (OffersPresets(panel))
        AddMenuButton(layout, TextOf(L"window.section.presets"), name + OvxStringT(L".presets"),
                      [this](QMenu& menu) { FillPresetMenu(menu, document, dialogs, panel); });
    QToolButton* const whole = AddMenuButton(layout, QStringLiteral("\u22ef"), name + OvxStringT(L".whole"),
                                             [this](QMenu& menu) {
                                                 FillRowMenu(menu, document, {&panel, nullptr});
                                             });
    whole->setAccessibleName(TextOf(panel.GetDescription().title) + QLatin1String(": ") +
                             TextOf(L"window.section.whole"));
    whole->setToolTip(TextOf(L"window.section.whole"));
    // The arrow would hide the dots.
    whole->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    OpenMenuFrom(*title, *whole->menu());
    lists.push_back(whole);
}

void PanelSection::MakeRows()
{
    grid = new QGridLayout(body);
    grid->setContentsMargins(4, 0, 4, 8);
    grid->setColumnStretch(2, 1);
    for (const Workbench::RowDescription& row : panel.GetDescription().rows)
        rows.push_back(new RowLine(document, {&panel, &row}, *grid, body));
}

QToolButton* PanelSection::AddMenuButton(QHBoxLayout& layout, const QString& text, const OvxStringT& name,
                                         const std::function<void(QMenu&)>& fill)
{
    auto* const button = new QToolButton(this);
    button->setObjectName(ToQString(name));
    button->setText(text);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(TextOf(panel.GetDescription().title) + QLatin1String(": ") + text);
    auto* const menu = new QMenu(button);
    button->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this,
            [menu, fill]
            {
                menu->clear();
                qDeleteAll(menu->findChildren<QMenu*>());
                fill(*menu);
            });
    layout.addWidget(button);
    return button;
}

} // namespace Desktop
