#pragma once

#include "tests/model/PlainStyle.h"

/// @file
/// Plain values in the words in which the recording host writes down its own.

namespace LibraryModel
{

[[nodiscard]] std::string Tell(const PlainValue& value);
[[nodiscard]] std::string Tell(const Path& path);
[[nodiscard]] std::string Tell(const Paths& paths);
[[nodiscard]] std::string Tell(const Paths* paths);
[[nodiscard]] std::string Tell(const std::set<Path>& paths);
[[nodiscard]] std::string Tell(const PlainStyle* style);
[[nodiscard]] std::string Tell(bool flag);

/// The name by which the recording host knows a style.
[[nodiscard]] std::string NameOf(const PlainStyle* style);
[[nodiscard]] std::string NamesOf(const std::vector<PlainStyle*>& styles);

/// The texts with a separator in between.
[[nodiscard]] std::string Join(const std::vector<std::string>& texts, const std::string& separator);

} // namespace LibraryModel
