#pragma once

#include "host/utils/OvxStringT.h"

#include <vector>

namespace Workbench
{

/// What a selector is about.
enum class SelectorScope
{
    Objects,  ///< Objects of the drawing.
    Defaults, ///< The default style of the drawing.
    Sheet     ///< One named style itself.
};

/// What a term of a selector looks at.
enum class SelectorField
{
    All,   ///< Nothing: every object fits.
    Page,  ///< The number of the page.
    Name,  ///< The name of an object or group.
    Style, ///< The named style of an object, by its name or display name.
    Kind,  ///< The kind of an object or group.
    Id     ///< The id of an object or group.
};

/// One term of a selector.
struct SelectorTerm
{
    SelectorField field = SelectorField::All;
    OvxStringT pattern; ///< A wildcard for Name, Style and Kind; a number or an id without leading zeros;
                        ///< else empty.
};

/// A selection in words.
struct Selector
{
    OvxStringT text; ///< As it was written.
    SelectorScope scope = SelectorScope::Objects;
    OvxStringT styleName;            ///< The named style for Sheet; else empty.
    std::vector<SelectorTerm> terms; ///< Any of these for Objects, at least one; else empty.
};

/// Reads a selector.
///
/// Terms joined by commas: "all", "page:N", "name:GLOB", "style:GLOB", "kind:GLOB", "id:1/4/2"; a comma
/// between closed brackets belongs to its pattern. Or one of "defaults" and "sheet:NAME", which stand alone;
/// all that follows "sheet:" is the name. Nothing is trimmed.
///
/// @throws UsageError for anything else, naming the term and what may stand there.
[[nodiscard]] Selector ParseSelector(const OvxStringT& text);

} // namespace Workbench
