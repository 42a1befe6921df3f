#include "apps/cli/TerminalAnswers.h"

#include "apps/cli/AnswerReport.h"
#include "apps/cli/TextTable.h"
#include "host/resources/Resources.h"
#include "host/utils/StringSplit.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <istream>
#include <ostream>

namespace Cli
{
namespace
{

using Framework::Resources::GetString;
using Workbench::StyleListEntry;

/// A line without the blanks round it.
std::string Trimmed(const std::string& line)
{
    constexpr const char* kBlanks = " \t\r";
    const std::size_t begin = line.find_first_not_of(kBlanks);
    return begin == std::string::npos ? std::string()
                                      : line.substr(begin, line.find_last_not_of(kBlanks) - begin + 1);
}

} // namespace

std::optional<OvxStringT> TerminalAnswers::NamePreset(const OvxStringT& proposed)
{
    std::string answer;
    if (!Ask(OvxStringT::FormatMessageInserts(GetString(L"ask.preset-name"), {proposed}), answer))
        return std::nullopt;
    return answer.empty() ? proposed : OvxUtils::FromUtf8(answer);
}

std::optional<std::size_t> TerminalAnswers::ChooseStyle(const Workbench::StyleList& styles)
{
    output << LayOut(AnswerToText({0, styles}, {}), Colouring::Off);
    std::string answer;
    while (Ask(GetString(L"ask.style"), answer) && !answer.empty())
    {
        const OvxStringT text = OvxUtils::FromUtf8(answer);
        const auto found =
            std::ranges::find_if(styles.entries, [&](const StyleListEntry& entry)
                                 { return entry.styleName == text || std::to_string(entry.id) == answer; });
        if (found != styles.entries.end())
            return static_cast<std::size_t>(found - styles.entries.begin());
        output << OvxUtils::ToUtf8(OvxStringT::FormatMessageInserts(GetString(L"ask.no-such-style"), {text}))
               << '\n';
    }
    return std::nullopt;
}

bool TerminalAnswers::Confirm(const OvxStringT& question)
{
    std::string answer;
    if (!Ask(OvxStringT::FormatMessageInserts(GetString(L"ask.yes-or-no"), {question}), answer))
        return false;
    constexpr bool kKeepEmptyPieces = true;
    constexpr bool kCaseSensitive = true;
    const std::vector<OvxStringT> yes =
        OvxUtils::String::Split(GetString(L"ask.words-for-yes"), L' ', !kKeepEmptyPieces, kCaseSensitive);
    const OvxStringT text = OvxUtils::FromUtf8(answer);
    return std::ranges::any_of(yes, [&](const OvxStringT& word)
                               { return text.Compare(word, CompareCase::Insensitive) == 0; });
}

bool TerminalAnswers::Ask(const OvxStringT& question, std::string& answer)
{
    output << OvxUtils::ToUtf8(question) << ' ' << std::flush;
    const bool isThere = static_cast<bool>(std::getline(input, answer));
    if (!isThere)
        output << '\n';
    answer = isThere ? Trimmed(answer) : std::string();
    return isThere;
}

} // namespace Cli
