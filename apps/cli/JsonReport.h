#pragma once

#include "apps/workbench/Change.h"
#include "apps/workbench/Report.h"
#include "apps/workbench/TargetHandover.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/OvxStringViewT.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace Cli
{

[[nodiscard]] nlohmann::ordered_json TextToJson(OvxStringViewT text);

/// A text that is null where there is none.
[[nodiscard]] nlohmann::ordered_json OptionalToJson(const OvxStringT& text);

/// A value in words as programs read it: a number, a text, or null for nothing.
[[nodiscard]] nlohmann::ordered_json ValueToJson(const Workbench::ReportValue& value);

/// A report as programs read it; docs/json-format.md tells every field.
[[nodiscard]] nlohmann::ordered_json ReportToJson(const Workbench::Report& report);

/// A named style as programs read it.
[[nodiscard]] nlohmann::ordered_json StyleToJson(const Workbench::NamedStyleFacts& style);

/// What edits made of one row of one target, as programs read it.
[[nodiscard]] nlohmann::ordered_json ChangeToJson(const Workbench::Change& change);

/// A whole document on one line, UTF-8, the line ended.
[[nodiscard]] std::string FormatJson(const nlohmann::ordered_json& document);

/// Puts a document for programs together piece by piece, each on a line of its own, so that a large drawing
/// is never held as a tree in memory.
class JsonDocument
{
public:
    /// Begins a document about `file` whose pieces form the list `listName`.
    JsonDocument(const std::filesystem::path& file, const std::string& listName);

    void Add(const nlohmann::ordered_json& piece);

    /// The whole document, UTF-8, its last line ended. To be called once, after the last piece.
    ///
    /// @param members what stands behind the list: the members of this object.
    [[nodiscard]] std::string Finish(const nlohmann::ordered_json& members = {});

private:
    std::string text;
    bool isEmpty = true;
};

} // namespace Cli
