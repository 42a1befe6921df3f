#pragma once

#include "host/style_model/PropertyKey.h"
#include "host/style_model/PropertyPath.h"

#include <compare>
#include <set>
#include <string>
#include <vector>

/// @file
/// The few words that random sequences use as keys, numbered in the order that the host gives its keys.

namespace LibraryModel
{

/// A word by its place in that order, so that plain sets and maps are ordered as the host orders keys.
struct Key
{
    int rank = 0; ///< 0 is the empty word.

    friend auto operator<=>(const Key&, const Key&) = default;
};

using Path = std::vector<Key>;
using Paths = std::vector<Path>;

/// Every word, the empty one first.
[[nodiscard]] const std::vector<std::string>& AllWords();

/// The key of a word.
///
/// @throws std::out_of_range for a text that is no word.
[[nodiscard]] Key KeyOf(const std::string& word);

[[nodiscard]] const std::string& TextOf(Key key);

[[nodiscard]] Styles::PropertyKey ToHost(Key key);
[[nodiscard]] Styles::PropertyPath ToHost(const Path& path);
[[nodiscard]] Styles::PropertyPaths ToHost(const Paths& paths);
[[nodiscard]] std::set<Styles::PropertyPath> ToHost(const std::set<Path>& paths);

/// The keys of "fill.color"; none for an empty text.
[[nodiscard]] Path PathOf(const std::string& dotted);

} // namespace LibraryModel
