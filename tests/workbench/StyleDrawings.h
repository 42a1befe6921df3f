#pragma once

#include "apps/workbench/StyleList.h"
#include "tests/reference_host/document/FlatDrawing.h"
#include "tests/workbench/EditorFixture.h"

#include <string>
#include <vector>

namespace WorkbenchTests
{

/// A drawing with the styles S1, S2 and so on, and three boxes called One, Two and Three. One inherits from
/// `parent`, Two and Three from S2, or from nothing where there is no S2.
[[nodiscard]] FlatDrawing NumberedStyles(int count, const std::string& parent = {});

/// The same with styles of fills alone, from which no box inherits.
[[nodiscard]] FlatDrawing NumberedFills(int count);

/// The entries of a list, each in short: "3 S3", with " *" behind one that is checked, and " >" behind one
/// that leads to the dialog.
[[nodiscard]] std::vector<std::string> Show(const Workbench::StyleList& list);

/// The named style that the first object of a selection inherits from; empty without.
[[nodiscard]] OvxStringT StyleOf(OpenEditor& open, const wchar_t* selector);

/// The style that a named style inherits from; empty without.
[[nodiscard]] OvxStringT ParentOf(OpenEditor& open, const wchar_t* style);

} // namespace WorkbenchTests
