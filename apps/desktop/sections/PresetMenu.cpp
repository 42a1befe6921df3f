#include "apps/desktop/sections/PresetMenu.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/sections/PresetIcon.h"
#include "apps/workbench/EditError.h"
#include "apps/workbench/Report.h"
#include "apps/workbench/ValueText.h"

#include <QMenu>

#include <exception>
#include <string>
#include <vector>

namespace Desktop
{
namespace
{

using Workbench::Editor;
using Workbench::PresetReport;

/// What a preset sets, a line for each row.
QStringList Describe(Document& document, const OvxStringT& panel, const OvxStringT& preset)
{
    QStringList lines;
    for (const Workbench::RowReport& row : document.GetEditor().DescribePreset(panel, preset).rows)
    {
        const QString value = row.link.empty() ? ToQString(Workbench::ValueToText(row)) : ToQString(row.link);
        lines.append(TextOf(row.description->label) + QLatin1String(": ") + value);
    }
    return lines.isEmpty() ? QStringList(TextOf(L"preset.empty")) : lines;
}

/// To tell what a preset sets takes trying it out: only that is tried which a person comes to.
void TellWhatItSets(QAction& action, Document& document, const OvxStringT& panel, const OvxStringT& preset)
{
    try
    {
        const QStringList lines = Describe(document, panel, preset);
        action.setToolTip(lines.join(QLatin1Char('\n')));
        emit document.noted(lines.join(QLatin1String("; ")));
    }
    catch (const std::exception& error)
    {
        emit document.noted(QString::fromStdString(error.what()));
    }
}

QAction* AddEntry(QMenu& menu, const PresetReport& preset)
{
    QAction* const action = menu.addAction(EscapeMnemonics(ToQString(preset.name)));
    if (preset.picture)
        action->setIcon(PaintPreset(*preset.picture));
    action->setIconVisibleInMenu(true);
    return action;
}

/// The panel itself asks for the name and whether one of that name is replaced.
void AddPreset(Document& document, Workbench::Panel& panel)
{
    document.Edit(
        [&](const Editor&)
        {
            static_cast<void>(document.GetSession().TakePresetFailure());
            panel.GetBoundNames().Invoke(L"OnAddPreset");
            const std::string failure = document.GetSession().TakePresetFailure();
            if (!failure.empty())
                throw Workbench::EditError(failure);
        });
}

/// Presets are no part of the drawing: what is deleted cannot be undone.
void DeletePreset(Document& document, WindowDialogs& dialogs, const OvxStringT& panel,
                  const OvxStringT& preset)
{
    if (dialogs.Confirm(FromQString(TextOf(L"window.preset.delete.question", ToQString(preset)))))
        document.Edit([&](Editor& editor) { editor.DeletePreset(panel, preset); });
}

void FillDeleteMenu(QMenu& menu, Document& document, WindowDialogs& dialogs, const OvxStringT& panel,
                    const std::vector<PresetReport>& presets)
{
    menu.setEnabled(!presets.empty());
    for (const PresetReport& preset : presets)
        QObject::connect(AddEntry(menu, preset), &QAction::triggered, &document,
                         [&document, &dialogs, panel, name = preset.name]
                         { DeletePreset(document, dialogs, panel, name); });
}

} // namespace

bool OffersPresets(const Workbench::Panel& panel)
{
    return !panel.GetDataSource().PresetCategoryName().empty();
}

void FillPresetMenu(QMenu& menu, Document& document, WindowDialogs& dialogs, Workbench::Panel& panel)
{
    const OvxStringT name = panel.GetDescription().name;
    const std::vector<PresetReport> presets = document.GetEditor().ListPresets(name);
    menu.setToolTipsVisible(true);
    for (const PresetReport& preset : presets)
    {
        QAction* const action = AddEntry(menu, preset);
        QObject::connect(action, &QAction::hovered, &document,
                         [action, &document, name, hovered = preset.name]
                         { TellWhatItSets(*action, document, name, hovered); });
        QObject::connect(action, &QAction::triggered, &document,
                         [&document, name, chosen = preset.name]
                         { document.Edit([&](Editor& editor) { editor.ApplyPreset(name, chosen); }); });
    }
    if (presets.empty())
        menu.addAction(TextOf(L"window.preset.none"))->setEnabled(false);
    menu.addSeparator();
    QAction* const add = menu.addAction(TextOf(L"window.preset.add"));
    add->setEnabled(panel.GetDataSource().HasTargets() &&
                    panel.GetBoundNames().Read<int>(L"AddPresetEnabled") != 0);
    QObject::connect(add, &QAction::triggered, &document,
                     [&document, &panel] { AddPreset(document, panel); });
    FillDeleteMenu(*menu.addMenu(TextOf(L"window.preset.delete")), document, dialogs, name, presets);
}

} // namespace Desktop
