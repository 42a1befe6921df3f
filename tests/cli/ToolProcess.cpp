#include "tests/cli/ToolProcess.h"

#include "tests/reference_host/document/ScratchFolder.h"

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <pty.h>
#include <sstream>
#include <stdexcept>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace CliTests
{
namespace
{

std::string ReadFile(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

/// The two ends of what the tool writes to: `tool` is its standard output, `reader` what comes out; -1 for
/// none.
struct OutputEnds
{
    int tool = -1;
    int reader = -1;
};

OutputEnds OpenOutput(OutputKind kind, const std::filesystem::path& file)
{
    OutputEnds ends;
    switch (kind)
    {
    case OutputKind::File:
        ends.tool = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        break;
    case OutputKind::FullDevice:
        ends.tool = open("/dev/full", O_WRONLY | O_CLOEXEC);
        break;
    case OutputKind::Terminal:
        if (openpty(&ends.reader, &ends.tool, nullptr, nullptr, nullptr) != 0)
            throw std::runtime_error("no terminal to be had");
        break;
    case OutputKind::ClosedPipe:
    {
        std::array<int, 2> pipeEnds{};
        if (pipe(pipeEnds.data()) != 0)
            throw std::runtime_error("no pipe to be had");
        close(pipeEnds[0]);
        ends.tool = pipeEnds[1];
        break;
    }
    }
    return ends;
}

/// All that comes out of a terminal until the tool has closed its end.
std::string ReadTerminal(int reader)
{
    std::string text;
    std::array<char, 4096> buffer{};
    for (ssize_t count = 0; (count = read(reader, buffer.data(), buffer.size())) > 0;)
        text.append(buffer.data(), static_cast<std::size_t>(count));
    return text;
}

/// What the three standard streams of the tool are.
struct Streams
{
    int input = -1;
    int output = -1;
    int error = -1;
};

[[noreturn]] void BecomeTool(const std::vector<std::string>& arguments,
                             const std::map<std::string, std::string>& variables, const Streams& streams)
{
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG", "NO_COLOR", "STYLEPROPS_PANELS"})
        unsetenv(variable);
    setenv("TERM", "xterm", 1);
    for (const auto& [variable, value] : variables)
        setenv(variable.c_str(), value.c_str(), 1);
    std::string program = TOOL_FILE;
    std::vector<std::string> words = arguments;
    std::vector<char*> list{program.data()};
    for (std::string& word : words)
        list.push_back(word.data());
    list.push_back(nullptr);
    dup2(streams.input, STDIN_FILENO);
    dup2(streams.output, STDOUT_FILENO);
    dup2(streams.error, STDERR_FILENO);
    execv(program.c_str(), list.data());
    _exit(127);
}

int StatusOf(pid_t child)
{
    int status = 0;
    if (waitpid(child, &status, 0) != child)
        return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace

ToolProcess& ToolProcess::With(const std::string& variable, const std::string& value)
{
    variables[variable] = value;
    return *this;
}

ToolProcess& ToolProcess::To(OutputKind kind)
{
    outputKind = kind;
    return *this;
}

ToolProcess& ToolProcess::From(const std::string& text)
{
    input = text;
    return *this;
}

ToolResult ToolProcess::Run() const
{
    const ScratchFolder folder;
    const std::filesystem::path outputFile = folder.GetPath() / "output";
    const std::filesystem::path errorFile = folder.GetPath() / "error";
    const OutputEnds output = OpenOutput(outputKind, outputFile);
    Streams streams;
    streams.input = open(folder.Write("input", input).c_str(), O_RDONLY | O_CLOEXEC);
    streams.output = output.tool;
    streams.error = open(errorFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const pid_t child = fork();
    if (child == 0)
        BecomeTool(arguments, variables, streams);
    for (const int stream : {streams.input, streams.output, streams.error})
        close(stream);
    ToolResult result;
    if (output.reader != -1)
    {
        result.output = ReadTerminal(output.reader);
        close(output.reader);
    }
    result.status = StatusOf(child);
    if (outputKind == OutputKind::File)
        result.output = ReadFile(outputFile);
    result.error = ReadFile(errorFile);
    return result;
}

ToolResult RunTool(std::vector<std::string> arguments)
{
    return ToolProcess(std::move(arguments)).Run();
}

} // namespace CliTests
