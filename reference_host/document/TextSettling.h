#pragma once

#include "reference_host/document/CascadeStyles.h"
#include "reference_host/document/PropertyMappings.h"
#include "reference_host/history/StepChanges.h"

#include <vector>

namespace ReferenceHost
{

/// Keeps the text of shapes in line with the shapes.
///
/// An object, the paragraphs of its text and the runs each have a whole style, and what an inner one sets
/// contains what it takes from the outer ones. At the end of each step, for every shape that was touched:
///
/// 1. A text or paragraph property that changed on the object changes in the same way in each paragraph that
///    had the same value as the object, also where that was none, and did not change it itself; what changed
///    in a paragraph, in the same way in its runs.
/// 2. A new parent of the object becomes that of its paragraphs and runs. One that was given to a
///    paragraph or run becomes that of the object first: text has the named style of its shape. So do new
///    parents of the substyles that concern text.
/// 3. A property that was cleared in a run or paragraph is cleared on the levels outside it too, or it would
///    still be in force. The other paragraphs and runs keep what they had.
class TextSettling
{
public:
    /// Borrows both.
    TextSettling(const PropertyMappings& properties, CascadeStyles& cascadeStyles);

    /// Changes what depends on `changes`, and adds to them.
    void Settle(const StepChanges& changes);

private:
    [[nodiscard]] bool MayConcernText(const StyleImage& image) const;

    const PropertyMappings& table;
    CascadeStyles& cascades;
    std::vector<Styles::PropertyKey> textCategories; ///< Those with properties of text.
};

} // namespace ReferenceHost
