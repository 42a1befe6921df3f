#include "tests/cli/ToolDrawings.h"

#include "tests/cli/ToolProcess.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace CliTests
{

using Json = nlohmann::ordered_json;

namespace
{

/// The element of a list whose `field` is `value`.
const Json& ElementWith(const Json& list, const std::string& field, const std::string& value)
{
    for (const Json& element : list)
    {
        if (element.at(field) == value)
            return element;
    }
    throw std::out_of_range("nothing has the " + field + " " + value);
}

std::string ShowOrigin(const Json& origin)
{
    if (origin.is_null())
        return "null";
    return origin.at("kind").get<std::string>() +
           (origin.contains("style") ? ":" + origin.at("style").get<std::string>() : "");
}

std::string ShowValue(const Json& value)
{
    return value.is_string() ? value.get<std::string>() : value.dump();
}

} // namespace

std::string DrawingOnDisk::Bytes() const
{
    return BytesOf(file);
}

Json DrawingOnDisk::Json(const std::string& command, const std::vector<std::string>& options) const
{
    std::vector<std::string> arguments = {command, file, "--json"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const ToolResult result = RunTool(arguments);
    if (result.status != 0 || !result.error.empty())
        throw std::runtime_error("status " + std::to_string(result.status) + ": " + result.error);
    return nlohmann::ordered_json::parse(result.output);
}

Json DrawingOnDisk::Report(const std::vector<std::string>& options) const
{
    const nlohmann::ordered_json reports = Json("inspect", options).at("reports");
    if (reports.size() != 1)
        throw std::runtime_error(std::to_string(reports.size()) + " reports");
    return reports.front();
}

std::string BytesOf(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    return bytes.str();
}

std::vector<std::string> ChangesOf(const Json& result)
{
    std::vector<std::string> changes;
    for (const Json& change : result.at("changes"))
    {
        std::string shown;
        for (const char* field : {"id", "property", "from"})
            shown += ShowValue(change.at(field)) + " ";
        changes.push_back(shown + "> " + ShowValue(change.at("to")) + " " + ShowValue(change.at("state")));
    }
    return changes;
}

Json PanelOf(const Json& report, const std::string& panel)
{
    return ElementWith(report.at("panels"), "panel", panel);
}

std::string RowOf(const Json& report, const std::string& panel, const std::string& identifier)
{
    const Json row = ElementWith(PanelOf(report, panel).at("rows"), "identifier", identifier);
    const Json& value = row.at("value");
    std::string shown = ShowValue(value);
    if (row.at("ambiguous").get<bool>())
        shown = value.is_null() ? "ambiguous" : "ambiguous yet " + shown;
    return shown + " " + row.at("state").get<std::string>() + " " + ShowOrigin(row.at("origin"));
}

std::vector<std::string> IdsOf(const Json& report)
{
    std::vector<std::string> ids;
    for (const Json& target : report.at("selection").at("targets"))
        ids.push_back(target.at("id").get<std::string>());
    return ids;
}

} // namespace CliTests
