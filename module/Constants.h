#pragma once

#include "host/utils/OvxStringT.h"

/// @file
/// What the module keeps from its loading to its unloading.

/// The dialogs that show the styles which do not fit into a panel's style list, by category.
extern const OvxStringT kFillDialogKey;
extern const OvxStringT kOutlineDialogKey;
extern const OvxStringT kParagraphDialogKey;
extern const OvxStringT kCharacterDialogKey;

/// The dialog that names a new preset.
extern const OvxStringT kAddPresetDialogKey;
