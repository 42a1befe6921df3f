#pragma once

#include "host/utils/OvxStringT.h"

/// @file
/// What the module keeps from its loading to its unloading.

/// The dialogs that show the styles which do not fit into a panel's style list, by category.
extern const OvxStringT kFillDialogKey;      ///< Of the fill category.
extern const OvxStringT kOutlineDialogKey;   ///< Of the outline category.
extern const OvxStringT kParagraphDialogKey; ///< Of the paragraph category.
extern const OvxStringT kCharacterDialogKey; ///< Of the character category.

/// The dialog that names a new preset.
extern const OvxStringT kAddPresetDialogKey;
