#pragma once

#include "tests/reference_host/document/FlatDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace CliTests
{

/// A drawing on disk for one test, and the tool run on it.
class DrawingOnDisk
{
public:
    explicit DrawingOnDisk(const FlatDrawing& drawing)
        : file(folder.Write("drawing.fodg", drawing.Text()).string())
    {
    }

    [[nodiscard]] const std::string& GetFile() const { return file; }

    /// The path of another file in the folder of the drawing.
    [[nodiscard]] std::string Beside(const std::string& name) const
    {
        return (folder.GetPath() / name).string();
    }

    /// What the file holds now.
    [[nodiscard]] std::string Bytes() const;

    /// Runs "styleprops COMMAND FILE --json OPTIONS" and reads what it writes.
    ///
    /// @throws std::runtime_error when the tool does not end with 0, or says anything on its standard error.
    [[nodiscard]] nlohmann::ordered_json Json(const std::string& command,
                                              const std::vector<std::string>& options = {}) const;

    /// The one report of "inspect" with these options.
    [[nodiscard]] nlohmann::ordered_json Report(const std::vector<std::string>& options = {}) const;

private:
    ScratchFolder folder;
    std::string file;
};

/// What a file holds; empty without it.
[[nodiscard]] std::string BytesOf(const std::string& file);

/// The changes that an editing command reports, each in short: "1/2 fill.color #ff0000 > #3366cc Overridden".
[[nodiscard]] std::vector<std::string> ChangesOf(const nlohmann::ordered_json& result);

/// The panel of a report.
///
/// @throws std::out_of_range without it.
[[nodiscard]] nlohmann::ordered_json PanelOf(const nlohmann::ordered_json& report, const std::string& panel);

/// What a row of a report says in short: value, state and origin, "30 Overridden local", "null None null",
/// "#3366cc Inherited style:Base", with "ambiguous" for the value where targets differ.
[[nodiscard]] std::string RowOf(const nlohmann::ordered_json& report, const std::string& panel,
                                const std::string& identifier);

/// The ids of the targets of a report.
[[nodiscard]] std::vector<std::string> IdsOf(const nlohmann::ordered_json& report);

} // namespace CliTests
