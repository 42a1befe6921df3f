#pragma once

#include "bench/drag/DragWork.h"
#include "bench/library/LibraryDocument.h"

#include <cstddef>

namespace Bench
{

/// A panel of the library that gathers many writes into one step of a drawing in the reference host.
class LibraryDrag
{
public:
    explicit LibraryDrag(Dragged dragged);

    /// Writes so many values, one after another, as one step.
    void Drag(std::size_t writes);

    void Undo();

    /// Forgets what could be redone.
    void Forget();

    [[nodiscard]] double GetSample();

private:
    LibraryDocument document;
    Dragged dragged;
};

} // namespace Bench
