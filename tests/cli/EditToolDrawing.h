#pragma once

#include "tests/cli/ToolDrawings.h"
#include "tests/cli/ToolProcess.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace CliTests
{

/// Two boxes of the style "Base", blue with a thin outline: "Box" overrides the colour with red, "Other"
/// overrides nothing. The palette has an entry "Sea".
class EditedBoxes : public testing::Test
{
protected:
    EditedBoxes();

    /// Runs "styleprops COMMAND FILE ARGUMENTS".
    [[nodiscard]] ToolResult Run(const std::string& command, const std::vector<std::string>& arguments) const;

    /// Changes the drawing in place and reads what is reported.
    nlohmann::ordered_json Edit(const std::string& command, std::vector<std::string> arguments) const;

    /// Runs a script on the drawing in place and reads what is reported.
    [[nodiscard]] nlohmann::ordered_json RunScript(const std::string& script) const;

    /// What a row shows for a selector, see RowOf().
    [[nodiscard]] std::string Row(const std::string& selector, const std::string& panel,
                                  const std::string& identifier) const;

    /// All that "inspect --each" shows.
    [[nodiscard]] nlohmann::ordered_json Everything() const;

    DrawingOnDisk drawing;
};

} // namespace CliTests
