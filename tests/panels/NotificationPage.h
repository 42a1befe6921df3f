#pragma once

#include <map>
#include <string>
#include <vector>

namespace PanelTests
{

/// What the page of notifications says: by the name of the test that stands in the last cell of a row, what
/// is told, in order. "on idle " and "at once " stand before the events of the whole application.
[[nodiscard]] std::map<std::string, std::vector<std::string>> ReadNotificationPage();

} // namespace PanelTests
