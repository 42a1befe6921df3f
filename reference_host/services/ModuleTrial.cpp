#include "reference_host/services/ModuleTrial.h"

#if !defined(_WIN32)

#include "reference_host/services/LoadedModule.h"
#include "reference_host/services/NativePaths.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <dlfcn.h>
#include <exception>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ReferenceHost
{
namespace
{

/// What the other process says when it got to the end.
constexpr std::string_view kSurvived = "survived";

/// Where the other process says what became of it; the handler that uses it takes no argument.
int reportEnd = -1;

[[noreturn]] void EndWith(std::string_view report) noexcept
{
    // Short enough for a pipe to take it at once.
    const std::string_view shortened = report.substr(0, 1000);
    const bool isTold = write(reportEnd, shortened.data(), shortened.size()) >= 0;
    _exit(isTold ? 0 : 1);
}

[[noreturn]] void EndWithException() noexcept
{
    try
    {
        if (const std::exception_ptr current = std::current_exception())
            std::rethrow_exception(current);
    }
    catch (const std::exception& error)
    {
        EndWith(error.what());
    }
    catch (...)
    {
        EndWith("it throws");
    }
    EndWith("it calls std::terminate");
}

/// What the other process does.
[[noreturn]] void LoadAndUnload(const char* file, unsigned limit) noexcept
{
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    sigset_t alarms;
    sigemptyset(&alarms);
    sigaddset(&alarms, SIGALRM);
    sigprocmask(SIG_UNBLOCK, &alarms, nullptr);
    std::signal(SIGALRM, SIG_DFL);
    alarm(limit);
    std::set_terminate(EndWithException);
    // The system promises that this throws nothing, and compilers rely on it; what a module's static objects
    // throw comes out of it all the same.
    void* (*volatile const load)(const char*, int) = dlopen;
    try
    {
        if (void* const handle = load(file, RTLD_NOW | RTLD_LOCAL))
            dlclose(handle);
    }
    catch (...)
    {
        EndWithException();
    }
    EndWith(kSurvived);
}

/// The two ends of a pipe, which later programs do not inherit.
struct Pipe
{
    Pipe()
    {
        isOpen = pipe(ends.data()) == 0;
        for (const int end : ends)
            fcntl(end, F_SETFD, FD_CLOEXEC);
    }

    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    ~Pipe()
    {
        if (isOpen)
            close(ends[0]);
        CloseWriting();
    }

    /// Reading ends with what was written until then.
    void CloseWriting()
    {
        if (isOpen && ends[1] >= 0)
            close(ends[1]);
        ends[1] = -1;
    }

    std::array<int, 2> ends{-1, -1}; ///< For reading, for writing.
    bool isOpen = false;
};

std::string ReadReport(int end)
{
    std::array<char, 1024> text{};
    ssize_t length = -1;
    do
        length = read(end, text.data(), text.size());
    while (length < 0 && errno == EINTR);
    return {text.data(), length < 0 ? 0 : static_cast<std::size_t>(length)};
}

/// How a process ended that said nothing.
std::string WaitFor(pid_t process)
{
    int status = 0;
    pid_t ended = -1;
    do
        ended = waitpid(process, &status, 0);
    while (ended < 0 && errno == EINTR);
    if (ended == process && WIFSIGNALED(status))
        return WTERMSIG(status) == SIGALRM ? "it takes too long" : strsignal(WTERMSIG(status));
    return "it exits";
}

} // namespace

void TryModule(const std::filesystem::path& file, std::chrono::seconds limit)
{
    Pipe reports;
    const pid_t process = reports.isOpen ? fork() : -1;
    if (process < 0)
        return;
    if (process == 0)
    {
        reportEnd = reports.ends[1];
        LoadAndUnload(file.c_str(), static_cast<unsigned>(limit.count()));
    }
    reports.CloseWriting();
    const std::string report = ReadReport(reports.ends[0]);
    const std::string end = WaitFor(process);
    if (report != kSurvived)
        throw ModuleError(PathToUtf8(file) + ": loading it would end the program (" +
                          (report.empty() ? end : report) +
                          "); expected a module whose static objects can be made and destroyed");
}

} // namespace ReferenceHost

#else

namespace ReferenceHost
{

void TryModule(const std::filesystem::path& /*file*/, std::chrono::seconds /*limit*/)
{
}

} // namespace ReferenceHost

#endif
