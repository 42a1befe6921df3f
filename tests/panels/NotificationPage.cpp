#include "tests/panels/NotificationPage.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace PanelTests
{

namespace
{

std::string Trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" `");
    const std::size_t last = text.find_last_not_of(" `");
    return first == std::string::npos ? std::string() : text.substr(first, last - first + 1);
}

std::vector<std::string> Split(const std::string& text, char separator)
{
    std::vector<std::string> parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, separator);)
        parts.push_back(Trimmed(part));
    return parts;
}

std::vector<std::string> ReadNames(std::string cell)
{
    if (cell == "nothing")
        return {};
    std::erase(cell, '`');
    return Split(cell, ',');
}

} // namespace

std::map<std::string, std::vector<std::string>> ReadNotificationPage()
{
    constexpr std::size_t kCells = 4; // An empty one before the first bar.
    std::ifstream page(NOTIFICATION_PAGE);
    if (!page)
        throw std::runtime_error("cannot be read: " NOTIFICATION_PAGE);
    std::map<std::string, std::vector<std::string>> rows;
    for (std::string line; std::getline(page, line);)
    {
        const std::vector<std::string> cells = Split(line, '|');
        const bool isRow = cells.size() == kCells && line.front() == '|' && line.find("---") == line.npos;
        if (isRow && cells.back() != "test")
            rows.emplace(cells.back(), ReadNames(cells[2]));
    }
    return rows;
}

} // namespace PanelTests
