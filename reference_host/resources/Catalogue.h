#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ReferenceHost
{

/// A catalogue that cannot be read. The message says the file, the line, and what was expected there.
class STYLEPROPERTIES_HOST_API CatalogueError : public std::runtime_error
{
public:
    /// `line` counts from 1.
    CatalogueError(std::string_view fileName, std::size_t line, std::string_view expected);
};

/// The texts of one language by their keys.
///
/// The format: one line `KEY = TEXT` for each text, in UTF-8; lines that are empty or begin with "#" are
/// passed over. Spaces and tabs around key and text do not count. A text may be empty. In a text "\n" stands
/// for a new line and
/// "\\" for a backslash; no other character follows a backslash. Lines end in a line feed, with or without a
/// carriage return before it.
class STYLEPROPERTIES_HOST_API Catalogue
{
public:
    /// Reads a catalogue; `fileName` is for messages only.
    ///
    /// @throws CatalogueError for a line of any other form, a key that stands twice, and invalid UTF-8.
    [[nodiscard]] static Catalogue Parse(std::string_view fileName, std::string_view content);

    /// The text of a key; null when the catalogue has none. Lives as long as the catalogue.
    [[nodiscard]] const OvxStringT* Find(const OvxStringT& key) const;

    /// The keys, in the order of the file.
    [[nodiscard]] const std::vector<OvxStringT>& GetKeys() const noexcept { return keys; }

private:
    std::unordered_map<OvxStringT, OvxStringT> texts;
    std::vector<OvxStringT> keys;
};

} // namespace ReferenceHost
