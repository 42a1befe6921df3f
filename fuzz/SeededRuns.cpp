// Feeds a target its seed corpus and a fixed number of inputs made from it: what finds the shallow mistakes
// in any build, without libFuzzer.
//
//   fuzz_TARGET FILE...                         runs these inputs
//   fuzz_TARGET CORPUS DICTIONARY RUNS [SEED]   runs all files of a folder, and then RUNS inputs made from
//   them
//
// An input that is a find is kept as "find-TARGET" in the working folder.

#include "fuzz/FuzzTarget.h"
#include "fuzz/InputMutation.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace
{

namespace fs = std::filesystem;

/// What runs now, for the handler of signals.
std::string runningInput;
std::string findName;

/// Keeps the input that ended the process. Calls nothing but what a handler may.
void KeepFind(int number)
{
    const int file = open(findName.c_str(), O_WRONLY | O_CREAT | O_TRUNC, S_IRUSR | S_IWUSR);
    if (file >= 0)
    {
        static_cast<void>(!write(file, runningInput.data(), runningInput.size()));
        close(file);
    }
    static_cast<void>(!write(STDERR_FILENO, "The input is kept in ", 21));
    static_cast<void>(!write(STDERR_FILENO, findName.data(), findName.size()));
    static_cast<void>(!write(STDERR_FILENO, "; the program runs it when it is given the file\n", 48));
    std::signal(number, SIG_DFL);
    std::raise(number);
}

void WatchForFinds(const std::string& program)
{
    findName = "find-" + fs::path(program).filename().string();
    for (const int number : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL})
        std::signal(number, KeepFind);
}

std::string ReadFile(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error(file.string() + " cannot be read");
    return {std::istreambuf_iterator<char>(stream), {}};
}

void Run(std::string input)
{
    runningInput = std::move(input);
    try
    {
        Fuzz::RunInput(runningInput);
    }
    catch (const std::exception& error)
    {
        std::cerr << "An exception that nobody should see: " << error.what() << std::endl;
        std::abort();
    }
}

std::vector<std::string> ReadSeeds(const fs::path& folder)
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<std::string> seeds;
    for (const fs::path& file : files)
        seeds.push_back(ReadFile(file));
    if (seeds.empty())
        throw std::runtime_error(folder.string() + " has no seeds");
    return seeds;
}

void RunCorpus(const std::vector<std::string>& arguments)
{
    const std::vector<std::string> seeds = ReadSeeds(arguments.at(0));
    const std::vector<std::string> words = Fuzz::ReadDictionary(ReadFile(arguments.at(1)));
    const unsigned long runs = std::stoul(arguments.at(2));
    const unsigned long seed = arguments.size() > 3 ? std::stoul(arguments[3]) : 1;
    std::cout << seeds.size() << " seeds, then " << runs << " inputs made from them with the number " << seed
              << std::endl;
    for (const std::string& each : seeds)
        Run(each);
    Fuzz::InputMutation mutation(static_cast<unsigned>(seed), seeds, words);
    for (unsigned long run = 0; run < runs; ++run)
        Run(mutation.Next());
}

} // namespace

int main(int count, char** values)
{
    const std::vector<std::string> arguments(values + 1, values + count);
    try
    {
        WatchForFinds(values[0]);
        if (!arguments.empty() && fs::is_directory(arguments[0]))
            RunCorpus(arguments);
        else
            std::for_each(arguments.begin(), arguments.end(),
                          [](const std::string& file) { Run(ReadFile(file)); });
    }
    catch (const std::exception& error)
    {
        std::cerr << "fuzzing: " << error.what() << std::endl;
        return 2;
    }
    return arguments.empty() ? 2 : 0;
}
