#include "apps/desktop/rows/UndoPassage.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace Desktop
{
namespace
{

class UndoPassage final : public QObject
{
public:
    explicit UndoPassage(QLineEdit& itsField) : QObject(&itsField), field(itsField) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ShortcutOverride || !IsForWindow(*static_cast<QKeyEvent*>(event)))
            return QObject::eventFilter(watched, event);
        event->ignore();
        return true;
    }

private:
    [[nodiscard]] bool IsForWindow(const QKeyEvent& key) const
    {
        return (key.matches(QKeySequence::Undo) && !field.isUndoAvailable()) ||
               (key.matches(QKeySequence::Redo) && !field.isRedoAvailable());
    }

    QLineEdit& field;
};

} // namespace

void PassUndoKeys(QWidget& widget)
{
    for (QLineEdit* const field : widget.findChildren<QLineEdit*>())
    {
        auto* const passage = new UndoPassage(*field);
        // What holds the field asks it about keys as well.
        for (QWidget* each = field; each != &widget; each = each->parentWidget())
            each->installEventFilter(passage);
    }
}

} // namespace Desktop
