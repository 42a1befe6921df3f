#pragma once

#include "apps/cli/EditAnswer.h"
#include "apps/cli/TextTable.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <vector>

namespace Cli
{

/// What a command told, as people read it, in the language in force. Each answer is laid out by itself: its
/// columns are no one else's.
///
/// @param file the drawing that was asked about; empty for none.
[[nodiscard]] std::vector<TextLine> AnswerToText(const EditAnswer& answer, const std::filesystem::path& file);

/// What a command told, as programs read it: an object; docs/json-format.md tells every field.
[[nodiscard]] nlohmann::ordered_json AnswerToJson(const EditAnswer& answer);

} // namespace Cli
