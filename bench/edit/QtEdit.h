#pragma once

#include "bench/contenders/QtTree.h"
#include "bench/workload/StyleTree.h"

#include <QUndoStack>

namespace Bench
{

/// Styles as Qt objects with dynamic properties, and Qt's undo stack: one step is a macro with a command for
/// each object, as its documentation shows.
class QtEdit
{
public:
    explicit QtEdit(const StyleTree& tree) : qt(tree) {}

    /// Writes to all objects in one step.
    void Write();

    void Undo();
    void Redo();

    /// Takes the last step back for good.
    void Forget();

    [[nodiscard]] double GetSample() const;

private:
    QtTree qt;
    QUndoStack stack;
};

} // namespace Bench
