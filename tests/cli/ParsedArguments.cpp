#include "tests/cli/ParsedArguments.h"

#include "apps/workbench/UsageError.h"

namespace CliTests
{

Cli::Command Parse(std::vector<const char*> arguments)
{
    arguments.insert(arguments.begin(), "styleprops");
    return Cli::ParseCommandLine(static_cast<int>(arguments.size()), arguments.data());
}

std::string ErrorOf(const std::vector<const char*>& arguments)
{
    try
    {
        static_cast<void>(Parse(arguments));
    }
    catch (const Workbench::UsageError& error)
    {
        return error.what();
    }
    return "no error";
}

} // namespace CliTests
