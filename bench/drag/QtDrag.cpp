#include "bench/drag/QtDrag.h"

#include "bench/workload/StyleTree.h"

#include <QByteArray>
#include <QUndoCommand>
#include <QVariant>
#include <utility>

namespace Bench
{

namespace
{

class DragCommand final : public QUndoCommand
{
public:
    /// `itsDrag` numbers the drags, so that two of them stay apart.
    DragCommand(int itsDrag, std::vector<QObject*> itsObjects, QByteArray itsName, QVariant itsAfter)
        : drag(itsDrag), objects(std::move(itsObjects)), name(std::move(itsName)), after(std::move(itsAfter))
    {
        before.reserve(objects.size());
        for (const QObject* object : objects)
            before.push_back(object->property(name.constData()));
    }

    [[nodiscard]] int id() const override { return drag; }

    bool mergeWith(const QUndoCommand* next) override
    {
        after = static_cast<const DragCommand*>(next)->after;
        return true;
    }

    void redo() override
    {
        for (QObject* object : objects)
            object->setProperty(name.constData(), after);
    }

    /// A property that was not set is taken away by the invalid value that it was.
    void undo() override
    {
        for (std::size_t index = 0; index < objects.size(); ++index)
            objects[index]->setProperty(name.constData(), before[index]);
    }

private:
    int drag;
    std::vector<QObject*> objects;
    QByteArray name;
    std::vector<QVariant> before;
    QVariant after;
};

QByteArray NameOf(std::size_t property)
{
    return QByteArray::fromStdString(StyleTree::NameOf(property));
}

} // namespace

QtDrag::QtDrag(Dragged itsDragged)
{
    const StyleTree tree(kDraggedObjects, Values::Hashed);
    for (std::size_t level = 0; level < StyleTree::kLevels; ++level)
    {
        const std::vector<QObject*> above = std::exchange(dragged, {});
        for (std::size_t index = 0; index < tree.CountAt(level); ++index)
        {
            QObject* const style = level == 0 ? &root : new QObject(above[tree.ParentOf(level, index)]);
            for (std::size_t property = 0; property < StyleTree::kProperties; ++property)
            {
                if (const auto value = tree.OwnValue(level, index, property))
                    style->setProperty(NameOf(property).constData(), static_cast<double>(*value));
            }
            dragged.push_back(style);
        }
    }
    if (itsDragged == Dragged::Defaults)
        dragged = {&defaults};
}

void QtDrag::Drag(std::size_t writes)
{
    const QByteArray name = NameOf(kDraggedProperty);
    ++drags;
    for (std::size_t write = 1; write <= writes; ++write)
        stack.push(new DragCommand(drags, dragged, name, static_cast<double>(DraggedValue(write))));
}

void QtDrag::Undo()
{
    stack.undo();
}

void QtDrag::Forget()
{
    stack.clear();
}

double QtDrag::ValueOf(const QObject* style) const
{
    const QByteArray name = NameOf(kDraggedProperty);
    while (style != nullptr)
    {
        const QVariant value = style->property(name.constData());
        if (value.isValid())
            return value.toDouble();
        style = style->parent();
    }
    return 0.0;
}

double QtDrag::GetSample() const
{
    double sum = 0.0;
    for (const QObject* style : dragged)
        sum += ValueOf(style);
    return sum;
}

} // namespace Bench
