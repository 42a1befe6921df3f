#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

/// The folder of the user's own configuration. It need not exist; empty when there is none.
[[nodiscard]] STYLEPROPERTIES_HOST_API OvxStringT INIGetCustomDir();

/// The folder of the suite below the user's documents. It need not exist; empty when there is none.
[[nodiscard]] STYLEPROPERTIES_HOST_API OvxStringT GetUserDocumentsOrvexSuiteDir();
