#include "apps/desktop/rows/RowMenu.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/dialogs/NameDialog.h"
#include "apps/workbench/PanelCommands.h"
#include "apps/workbench/PanelReading.h"

#include <QMenu>

#include <utility>

namespace Desktop
{
namespace
{

using Workbench::Editor;
using Workbench::RowPlace;

class Filler
{
public:
    Filler(QMenu& itsMenu, Document& itsDocument, const RowPlace& itsPlace)
        : menu(itsMenu), document(itsDocument), place(itsPlace)
    {
    }

    void AddMoves() const
    {
        const OvxStringT apply =
            (place.row == nullptr ? OvxStringT() : place.row->property) + L"ApplyToParentEnable";
        Add(Word(L"RevertToMenuString"), IsEnabled(L"RevertToParentEnable"),
            [name = place.GetName()](Editor& editor) { editor.Revert({name}); });
        Add(Word(L"ApplyToMenuString"), IsEnabled(apply),
            [name = place.GetName()](Editor& editor) { editor.ApplyToParent({name}); });
    }

    void AddClear() const
    {
        if (place.row != nullptr)
            Add(TextOf(L"window.menu.clear"), HasOwnValue(),
                [name = place.GetName()](Editor& editor) { editor.Clear({name}); });
    }

    void AddBreakLink() const
    {
        if (place.row != nullptr && place.row->kind == Workbench::ValueKind::Colour)
            Add(TextOf(L"window.menu.break-link"), IsEnabled(L"BreakColorResourceEnable"),
                [name = place.GetName()](Editor& editor) { editor.BreakLink({name}); });
    }

    /// Styles are made of, and opened for, all that a panel is about.
    void AddStyles() const
    {
        const Filler whole(menu, document, RowPlace{place.panel, nullptr});
        const OvxStringT panel = whole.place.GetName();
        QAction* const create = menu.addAction(TextOf(L"window.menu.create-style"));
        create->setEnabled(whole.IsEnabled(L"CreateStyleFromEnable"));
        QObject::connect(create, &QAction::triggered, &document,
                         [&target = document, &above = menu, panel]
                         { CreateStyle(target, panel, above.parentWidget()->window()); });
        QAction* const edit = menu.addAction(whole.Word(L"EditStyleMenuString"));
        edit->setEnabled(whole.IsEnabled(L"EditStyleEnable"));
        QObject::connect(edit, &QAction::triggered, &document,
                         [&target = document, panel] { OpenStyle(target, panel); });
    }

private:
    static void CreateStyle(Document& document, const OvxStringT& panel, QWidget* window)
    {
        NameDialog dialog(TextOf(L"window.create-style.title"), TextOf(L"window.create-style.name"), window);
        if (dialog.exec() != QDialog::Accepted)
            return;
        document.Edit([&](Editor& editor) { editor.CreateStyle(panel, FromQString(dialog.GetName())); });
    }

    static void OpenStyle(Document& document, const OvxStringT& panel)
    {
        if (document.Edit([&](Editor& editor) { editor.EditStyle(panel); }))
            emit document.selectionChanged();
    }

    [[nodiscard]] bool IsEnabled(OvxStringViewT enable) const
    {
        return Workbench::IsEnabled(place.GetBoundNames(), place.GetIdentifier(), enable);
    }

    [[nodiscard]] QString Word(OvxStringViewT name) const
    {
        return ToQString(place.GetBoundNames().Read<OvxStringT>(name));
    }

    [[nodiscard]] bool HasOwnValue() const
    {
        IReflectable& panel = place.GetBoundNames();
        const auto origin = Workbench::ParseOrigin(
            panel.Read<OvxStringT>(place.row->property + OvxStringT(Workbench::kOriginSuffix)));
        return origin && origin->kind == Workbench::RowOrigin::Kind::Local;
    }

    void Add(const QString& text, bool isEnabled, Document::Edits edits) const
    {
        QAction* const action = menu.addAction(text);
        action->setEnabled(isEnabled);
        QObject::connect(action, &QAction::triggered, &document,
                         [&target = document, edits = std::move(edits)] { target.Edit(edits); });
    }

    QMenu& menu;
    Document& document;
    RowPlace place;
};

} // namespace

void FillRowMenu(QMenu& menu, Document& document, const Workbench::RowPlace& place)
{
    const Filler filler(menu, document, place);
    filler.AddMoves();
    filler.AddClear();
    filler.AddBreakLink();
    menu.addSeparator();
    filler.AddStyles();
}

} // namespace Desktop
