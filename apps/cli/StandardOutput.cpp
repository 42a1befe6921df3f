#include "apps/cli/StandardOutput.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <system_error>

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace Cli
{
namespace
{

bool IsTerminal()
{
#if defined(_WIN32)
    return _isatty(_fileno(stdout)) != 0;
#else
    return isatty(STDOUT_FILENO) != 0;
#endif
}

/// The value of an environment variable; empty when it is not set.
std::string_view Environment(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value == nullptr ? std::string_view() : std::string_view(value);
}

} // namespace

Colouring ChooseColouring()
{
    const bool isWanted = Environment("NO_COLOR").empty() && Environment("TERM") != "dumb";
    return isWanted && IsTerminal() ? Colouring::On : Colouring::Off;
}

void WriteStandardOutput(std::string_view text)
{
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (!isWritten || std::fflush(stdout) != 0)
        throw std::system_error(errno, std::generic_category(), "cannot write the output");
}

void WriteErrorLine(std::string_view message)
{
    std::string line = "styleprops: " + std::string(message);
    std::replace_if(
        line.begin(), line.end(), [](char byte) { return byte == '\n' || byte == '\r'; }, ' ');
    line += '\n';
    static_cast<void>(std::fwrite(line.data(), 1, line.size(), stderr));
}

void WriteWarnings(const std::vector<std::string>& warnings)
{
    for (const std::string& warning : warnings)
        WriteErrorLine("warning: " + warning);
}

} // namespace Cli
