#include "tests/reference_host/document/hostile/MeasuredRun.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

[[noreturn]] void Answer(int pipeEnd, const std::function<std::string()>& work)
{
    constexpr rlim_t kMostSeconds = 60;
    const rlimit limit{kMostSeconds, kMostSeconds};
    setrlimit(RLIMIT_CPU, &limit);
    std::string answer;
    try
    {
        answer = work();
    }
    catch (const std::exception& error)
    {
        answer = std::string("threw ") + error.what();
    }
    constexpr std::size_t kLongestAnswer = 4000;
    answer.resize(std::min(answer.size(), kLongestAnswer));
    const bool isTold = write(pipeEnd, answer.data(), answer.size()) == static_cast<ssize_t>(answer.size());
    _exit(isTold ? 0 : 1);
}

std::string ReadAll(int pipeEnd)
{
    std::string text;
    std::array<char, 4096> piece{};
    for (ssize_t count = 0; (count = read(pipeEnd, piece.data(), piece.size())) > 0;)
        text.append(piece.data(), static_cast<std::size_t>(count));
    return text;
}

double SecondsOf(const timeval& time)
{
    constexpr double kMicroseconds = 1e6;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / kMicroseconds;
}

} // namespace

MeasuredRun RunMeasured(const std::function<std::string()>& work)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        throw std::runtime_error("no pipe to be had");
    const pid_t child = fork();
    if (child == 0)
        Answer(ends[1], work);
    close(ends[1]);
    MeasuredRun run;
    run.answer = ReadAll(ends[0]);
    close(ends[0]);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    if (WIFSIGNALED(status))
        run.answer = "ended by signal " + std::to_string(WTERMSIG(status));
    run.seconds = SecondsOf(usage.ru_utime) + SecondsOf(usage.ru_stime);
    constexpr std::size_t kKibibytes = 1024;
    run.peakMebibytes = static_cast<std::size_t>(usage.ru_maxrss) / kKibibytes;
    return run;
}

bool TakesLong()
{
    return std::getenv("STYLEPROPERTIES_LONG_TESTS") != nullptr;
}
