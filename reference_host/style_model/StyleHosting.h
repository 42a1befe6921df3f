#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>

/// @file
/// What the reference host does with styles and no one else may: default styles, external sheets, journals,
/// counting.

namespace ReferenceHost
{

class IStyleJournal;

/// Gives a whole style the document's default style, to which its effective values and those of its substyles
/// fall back after the parents; null takes it away.
///
/// The default style is borrowed; when it goes, the link is cleared. It is no parent: nothing lists it, no
/// state depends on it, and its own default style, if any, is not looked at. Copies of the style carry it on.
STYLEPROPERTIES_HOST_API void SetDefaultStyle(Styles::Style& style, Styles::Style* defaults);

/// The default style that was given to this very style; null when there is none.
[[nodiscard]] STYLEPROPERTIES_HOST_API Styles::Style* GetDefaultStyle(const Styles::Style& style);

/// Makes a whole style, with its substyles, one of the external sheet of that name; `link` is where it may be
/// edited. An empty sheet name makes it one of the document again.
STYLEPROPERTIES_HOST_API void SetExternalSheet(Styles::Style& style, const OvxStringT& sheetName,
                                               const OvxStringT& link);

/// Makes a style that is no substyle one of a document: its changes, and those of its substyles at any depth,
/// are told to `journal` from now on. Borrowed; null takes it away. Copies do not carry it on.
STYLEPROPERTIES_HOST_API void SetJournal(Styles::Style& style, IStyleJournal* journal);

/// How many styles live in the process, substyles included. For tests that look for leaks.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::size_t LiveStyleCount() noexcept;

} // namespace ReferenceHost
