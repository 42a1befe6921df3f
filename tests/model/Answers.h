#pragma once

#include "tests/model/LibraryWorld.h"
#include "tests/model/PlainWorld.h"

#include <string>
#include <vector>

/// @file
/// Everything that can be read of a panel, as lines "NAME: VALUE" in one order on both sides.
///
/// Three bound names are left to operations of their own, since reading them builds what later steps start
/// from: "StyleResourceList", "NewStyleList" and "PresetList".

namespace LibraryModel
{

using Lines = std::vector<std::string>;

[[nodiscard]] Lines AnswersOf(DrivenPanel& panel, const CallLog& names);
[[nodiscard]] Lines AnswersOf(PlainPanel& panel);

/// What the default styles hold, which the library itself writes to, and the one that the sheet of defaults
/// lists.
[[nodiscard]] Lines StyleLines(const LibraryWorld& world);
[[nodiscard]] Lines StyleLines(const PlainWorld& world);

/// What the dialog of presets shows.
[[nodiscard]] Lines DialogAnswers(const LibraryWorld& world);
[[nodiscard]] Lines DialogAnswers(const PlainWorld& world);

/// A node with all below it, as start tags; "invalid" for no node.
[[nodiscard]] std::string TextOf(const WXmlNode& node);

/// "[0: Solid, 1: Soft]"
[[nodiscard]] std::string TextOf(const WCmnUI_List& list);
[[nodiscard]] std::string TextOf(const PlainList& list);

/// The paths that are asked about whether targets agree, of one key, of two, and none.
[[nodiscard]] const Paths& AskedPaths();

} // namespace LibraryModel
