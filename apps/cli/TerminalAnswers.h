#pragma once

#include "apps/workbench/IDialogAnswers.h"

#include <iosfwd>
#include <string>

namespace Cli
{

/// Asks the person at a terminal, a line for each question. The end of the input gives up, and answers no.
class TerminalAnswers final : public Workbench::IDialogAnswers
{
public:
    /// Both are borrowed. Questions go where no report goes, so that the report can be read by a program.
    TerminalAnswers(std::istream& itsInput, std::ostream& itsOutput) : input(itsInput), output(itsOutput) {}

    TerminalAnswers(const TerminalAnswers&) = delete;
    TerminalAnswers& operator=(const TerminalAnswers&) = delete;
    ~TerminalAnswers() = default;

    /// An empty line takes the name that is proposed.
    std::optional<OvxStringT> NamePreset(const OvxStringT& proposed) override;

    /// Shows all entries with their ids, and takes an id or a name; an empty line gives up.
    std::optional<std::size_t> ChooseStyle(const Workbench::StyleList& styles) override;

    /// Yes is what the language in force writes for it; everything else is no.
    bool Confirm(const OvxStringT& question) override;

private:
    /// @returns whether there was a line.
    bool Ask(const OvxStringT& question, std::string& answer);

    std::istream& input;
    std::ostream& output;
};

} // namespace Cli
