#include "apps/cli/TextTable.h"

#include "apps/cli/DisplayWidth.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <string_view>

namespace Cli
{
namespace
{

constexpr std::size_t kGap = 2;

/// The parameters of the escape sequence for a role; empty for none.
std::string_view SequenceFor(OutputRole role)
{
    switch (role)
    {
    case OutputRole::Heading:
        return "1";
    case OutputRole::Faint:
        return "2";
    case OutputRole::Local:
        return "32";
    case OutputRole::Inherited:
        return "36";
    case OutputRole::Ambiguous:
        return "33";
    case OutputRole::Plain:
        break;
    }
    return {};
}

OvxStringT WithoutControls(const OvxStringT& text)
{
    std::wstring shown = text.Wide();
    std::replace_if(
        shown.begin(), shown.end(),
        [](wchar_t character) { return character < L' ' || (character >= L'\x7F' && character <= L'\x9F'); },
        L'\xFFFD');
    return OvxStringT(std::move(shown));
}

/// How wide each column has to be.
std::vector<std::size_t> MeasureColumns(const std::vector<TextLine>& lines)
{
    std::vector<std::size_t> widths;
    for (const TextLine& line : lines)
    {
        if (line.cells.size() < 2)
            continue;
        widths.resize(std::max(widths.size(), line.cells.size()));
        for (std::size_t i = 0; i < line.cells.size(); ++i)
        {
            const std::size_t indent = i == 0 ? line.indent : 0;
            widths[i] = std::max(widths[i], indent + DisplayWidth(WithoutControls(line.cells[i].text)));
        }
    }
    return widths;
}

void Append(std::string& output, const TextCell& cell, const OvxStringT& shown, Colouring colouring)
{
    const std::string_view sequence = colouring == Colouring::On ? SequenceFor(cell.role) : "";
    if (!sequence.empty())
        output.append("\x1B[").append(sequence).append("m");
    output += OvxUtils::ToUtf8(shown);
    if (!sequence.empty())
        output += "\x1B[0m";
}

} // namespace

std::string LayOut(const std::vector<TextLine>& lines, Colouring colouring)
{
    const std::vector<std::size_t> widths = MeasureColumns(lines);
    std::string output;
    for (const TextLine& line : lines)
    {
        std::size_t padding = line.indent;
        for (std::size_t i = 0; i < line.cells.size(); ++i)
        {
            const OvxStringT shown = WithoutControls(line.cells[i].text);
            if (!shown.empty())
            {
                output.append(padding, ' ');
                Append(output, line.cells[i], shown, colouring);
                padding = 0;
            }
            const std::size_t taken = DisplayWidth(shown) + (i == 0 ? line.indent : 0);
            padding += i + 1 < line.cells.size() ? widths[i] + kGap - taken : 0;
        }
        output += '\n';
    }
    return output;
}

} // namespace Cli
