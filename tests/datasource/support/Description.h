#pragma once

#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"
#include "host/utils/Any.h"
#include "host/utils/InterfaceId.h"
#include "host/utils/OvxStringT.h"

#include <iosfwd>
#include <set>
#include <string>

/// @file
/// Values as people read them, for the lines of a CallLog and for messages of failed expectations.

/// The text itself.
[[nodiscard]] std::string Describe(const OvxStringT& text);

/// The text of the key.
[[nodiscard]] std::string Describe(const Styles::PropertyKey& key);

/// "fill.color"; the empty path is "()".
[[nodiscard]] std::string Describe(const Styles::PropertyPath& path);

/// "[fill.color, type]", in the order of the list.
[[nodiscard]] std::string Describe(const Styles::PropertyPaths& paths);

/// As a list, or "null".
[[nodiscard]] std::string Describe(const Styles::PropertyPaths* paths);

/// "{fill.color, type}", ordered by letters.
[[nodiscard]] std::string Describe(const std::set<Styles::PropertyPath>& paths);

/// "empty", "7", "'text'", "key", "#3366cc", "#3366cc@Brand" for a colour that refers to a palette entry, or
/// "other".
[[nodiscard]] std::string Describe(const OvxUtils::Any& value);

/// The category and everything the style sets itself, through substyles, ordered by letters:
/// "fill{color=#3366cc, type=solid}", with " with a parent" behind it where it has one; or "null".
[[nodiscard]] std::string Describe(const Styles::Style* style);

/// The bytes in hexadecimal, separated by spaces.
[[nodiscard]] std::string Describe(const InterfaceId& id);

/// "true" or "false".
[[nodiscard]] std::string DescribeFlag(bool value);

/// Texts and keys in messages of failed expectations.
void PrintTo(const OvxWideString& text, std::ostream* out);

namespace Styles
{
void PrintTo(const PropertyKey& key, std::ostream* out);
} // namespace Styles

namespace OvxUtils
{
void PrintTo(const Any& value, std::ostream* out);
} // namespace OvxUtils
