#pragma once

#include "apps/workbench/IDialogAnswers.h"
#include "host/utils/Utf8.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace WorkbenchTests
{

/// Gives the answers that a test lines up, in order, and takes down what was asked. Behind the last answer of
/// a kind everything is given up, and answered with no.
class RecordedAnswers final : public Workbench::IDialogAnswers
{
public:
    std::optional<OvxStringT> NamePreset(const OvxStringT& proposed) override
    {
        asked.push_back("name [" + OvxUtils::ToUtf8(proposed) + "]");
        return Take(names);
    }

    std::optional<std::size_t> ChooseStyle(const Workbench::StyleList& styles) override
    {
        asked.push_back("style of " + std::to_string(styles.entries.size()));
        return Take(styleChoices);
    }

    bool Confirm(const OvxStringT& question) override
    {
        asked.push_back(OvxUtils::ToUtf8(question));
        return Take(confirmations).value_or(false);
    }

    std::deque<OvxStringT> names;
    std::deque<std::size_t> styleChoices;
    std::deque<bool> confirmations;
    std::vector<std::string> asked;

private:
    template <class T>
    static std::optional<T> Take(std::deque<T>& answers)
    {
        if (answers.empty())
            return std::nullopt;
        const T answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

} // namespace WorkbenchTests
