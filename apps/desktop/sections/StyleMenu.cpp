#include "apps/desktop/sections/StyleMenu.h"

#include "apps/desktop/WindowText.h"

#include <QMenu>
#include <QMessageBox>

#include <optional>

namespace Desktop
{
namespace
{

using Workbench::StyleListEntry;

Workbench::StylePick PickOf(const StyleListEntry& entry)
{
    return entry.id == 0 ? Workbench::StylePick(Workbench::PickNone{})
                         : Workbench::StylePick(Workbench::PickById{entry.id});
}

/// A dialog that was given up is no failure.
void Pick(Document& document, WindowDialogs& dialogs, const OvxStringT& panel, const StyleListEntry& entry)
{
    static_cast<void>(dialogs.TakeGivenUp());
    std::optional<Workbench::Restyled> restyled;
    document.Edit(
        [&](Workbench::Editor& editor)
        {
            try
            {
                restyled = editor.Restyle(panel, PickOf(entry));
            }
            catch (const Workbench::EditError&)
            {
                if (!dialogs.TakeGivenUp())
                    throw;
            }
        });
    if (restyled && restyled->isFirstTargetOnly)
        emit document.noted(TextOf(L"restyle.first-only"));
}

} // namespace

void FillStyleMenu(QMenu& menu, Document& document, WindowDialogs& dialogs, const OvxStringT& panel)
{
    const Workbench::StyleList list = document.GetEditor().ListStyles(panel, Workbench::StyleListPart::Main);
    for (const StyleListEntry& entry : list.entries)
    {
        if (entry.leadsToDialog)
            menu.addSeparator();
        // The texts are for menus already: every "&" is doubled.
        QAction* const action = menu.addAction(ToQString(entry.text));
        action->setCheckable(!entry.leadsToDialog);
        action->setChecked(entry.isChecked);
        QObject::connect(action, &QAction::triggered, &document,
                         [&document, &dialogs, panel, entry] { Pick(document, dialogs, panel, entry); });
    }
    if (list.entries.empty())
        menu.addAction(TextOf(L"style-list.empty"))->setEnabled(false);
}

} // namespace Desktop
