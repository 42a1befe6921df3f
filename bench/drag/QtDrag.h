#pragma once

#include "bench/drag/DragWork.h"

#include <QObject>
#include <QUndoStack>
#include <cstddef>
#include <vector>

namespace Bench
{

/// Styles as Qt objects with dynamic properties, and Qt's undo stack: each write of a drag is a command for
/// all objects, which merges with the one before it.
class QtDrag
{
public:
    explicit QtDrag(Dragged itsDragged);

    /// Writes so many values, one after another, as one step.
    void Drag(std::size_t writes);

    void Undo();

    /// Forgets what could be redone.
    void Forget();

    [[nodiscard]] double GetSample() const;

private:
    [[nodiscard]] double ValueOf(const QObject* style) const;

    QObject root;
    QObject defaults;
    std::vector<QObject*> dragged; ///< Owned by their parents, or the defaults.
    QUndoStack stack;
    int drags = 0;
};

} // namespace Bench
