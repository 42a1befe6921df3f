#pragma once

/// A document object, opaque here; carried as an unsigned number where objects are mapped from styles.
class WNodeHandle;
