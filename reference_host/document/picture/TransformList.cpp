// The transforms that a shape carries, as OpenDocument writes them.

#include "reference_host/document/Measures.h"
#include "reference_host/document/XmlText.h"
#include "reference_host/document/picture/PathData.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>
#include <vector>

namespace ReferenceHost
{

namespace
{

/// Splits "2cm 3cm" or "2cm,3cm".
std::vector<std::string_view> SplitArguments(std::string_view text)
{
    std::vector<std::string_view> arguments;
    while (true)
    {
        const std::size_t begin = text.find_first_not_of(" \t\r\n,");
        if (begin == std::string_view::npos)
            return arguments;
        text.remove_prefix(begin);
        const std::string_view argument = text.substr(0, text.find_first_of(" \t\r\n,"));
        arguments.push_back(argument);
        text.remove_prefix(argument.size());
    }
}

/// A number without a unit, or a length in hundredths of a millimetre; 0 for anything else.
double ValueOf(std::string_view text)
{
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc() && end == text.data() + text.size())
        return number;
    return ParseLength(text).value_or(0);
}

/// One transform by its name and arguments; nothing changes for an unknown one.
Transform MakeTransform(std::string_view name, const std::vector<std::string_view>& arguments)
{
    std::vector<double> values;
    for (const std::string_view argument : arguments)
        values.push_back(ValueOf(argument));
    if (values.empty())
        return {};
    const double first = values[0];
    if (name == "rotate")
        return {std::cos(first), -std::sin(first), std::sin(first), std::cos(first), 0, 0};
    if (name == "translate")
        return {1, 0, 0, 1, first, values.size() > 1 ? values[1] : 0};
    if (name == "scale")
        return {first, 0, 0, values.size() > 1 ? values[1] : first, 0, 0};
    if (name == "skewX")
        return {1, 0, -std::tan(first), 1, 0, 0};
    if (name == "skewY")
        return {1, -std::tan(first), 0, 1, 0, 0};
    if (name == "matrix" && values.size() == 6)
        return {values[0], values[1], values[2], values[3], values[4], values[5]};
    return {};
}

} // namespace

Transform ParseTransform(std::string_view text)
{
    Transform result;
    while (true)
    {
        const std::size_t open = text.find('(');
        const std::size_t close = text.find(')', open);
        if (open == std::string_view::npos || close == std::string_view::npos)
            return result;
        std::string_view name = TrimXmlBlanks(text.substr(0, open));
        name.remove_prefix(std::min(name.size(), name.find_first_not_of(", ")));
        result = result.Then(MakeTransform(name, SplitArguments(text.substr(open + 1, close - open - 1))));
        text.remove_prefix(close + 1);
    }
}

} // namespace ReferenceHost
