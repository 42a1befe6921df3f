#include "bench/edit/QtEdit.h"

#include "bench/edit/EditWork.h"

#include <QByteArray>
#include <QUndoCommand>
#include <QVariant>
#include <utility>

namespace Bench
{

namespace
{

class SetPropertyCommand final : public QUndoCommand
{
public:
    SetPropertyCommand(QObject* itsObject, QByteArray itsName, QVariant itsAfter)
        : object(itsObject),
          name(std::move(itsName)),
          before(itsObject->property(name.constData())),
          after(std::move(itsAfter))
    {
    }

    void redo() override { object->setProperty(name.constData(), after); }

    /// A property that was not set is taken away by the invalid value that it was.
    void undo() override { object->setProperty(name.constData(), before); }

private:
    QObject* object;
    QByteArray name;
    QVariant before;
    QVariant after;
};

} // namespace

void QtEdit::Write()
{
    const QByteArray name = QtTree::NameOf(kEditedProperty);
    const QVariant value(static_cast<double>(kEditedValue));
    stack.beginMacro(QStringLiteral("Edit"));
    for (QObject* object : qt.objects)
        stack.push(new SetPropertyCommand(object, name, value));
    stack.endMacro();
}

void QtEdit::Undo()
{
    stack.undo();
}

void QtEdit::Redo()
{
    stack.redo();
}

void QtEdit::Forget()
{
    stack.undo();
    stack.clear();
}

double QtEdit::GetSample() const
{
    const QByteArray name = QtTree::NameOf(kEditedProperty);
    return Sample(qt.objects.size(), static_cast<std::size_t>(stack.index()),
                  [&](std::size_t object)
                  { return QtTree::Effective(qt.objects[object], name.constData()).toDouble(); });
}

} // namespace Bench
