#pragma once

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/PropertyKey.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"

#include <ostream>

/// @file
/// How values look in the messages of failing tests. Every source of tests includes it, so that all print
/// alike.

/// In UTF-8 and quotes.
void PrintTo(const OvxWideString& text, std::ostream* out);

void PrintTo(const CLR_COLORSPEC& colour, std::ostream* out);

namespace Styles
{

void PrintTo(const PropertyKey& key, std::ostream* out);

} // namespace Styles

namespace OvxUtils
{

/// The held value, or "nothing".
void PrintTo(const Any& value, std::ostream* out);

} // namespace OvxUtils
