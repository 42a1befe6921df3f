#pragma once

#include "bench/library/LibraryDocument.h"
#include "bench/workload/StyleTree.h"

namespace Bench
{

/// A panel of the library that writes to all shapes of a drawing in the reference host.
class LibraryEdit
{
public:
    explicit LibraryEdit(const StyleTree& tree);

    /// Writes to all objects in one step.
    void Write();

    void Undo();
    void Redo();

    /// Takes the last step back for good.
    void Forget();

    [[nodiscard]] double GetSample();

private:
    LibraryDocument document;
};

} // namespace Bench
