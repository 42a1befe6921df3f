// What the library does when it goes, told by a child process (ModuleExitHost.cpp) whose host prints it.

#include <sys/wait.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::UnorderedElementsAreArray;

using Lines = std::vector<std::string>;

/// What a process printed, and how it ended: its exit status, -1 after a signal.
struct Outcome
{
    Lines lines;
    int status = -1;
};

Outcome RunProgram(const std::string& command)
{
    FILE* output = popen(command.c_str(), "r");
    if (output == nullptr)
        throw std::runtime_error("cannot start " + command);

    Outcome outcome;
    std::string text;
    for (int c = std::fgetc(output); c != EOF; c = std::fgetc(output))
        text += static_cast<char>(c);
    const int ended = pclose(output);
    outcome.status = WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;

    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        outcome.lines.push_back(line);
    return outcome;
}

/// Runs the child: `use` is what it does with StylesCommon, `end` how it ends.
Outcome RunModule(const std::string& use, const std::string& end)
{
    return RunProgram(std::string("'") + MODULE_EXIT_HOST + "' '" + STYLES_COMMON_MODULE_ONE + "' " + use +
                      " " + end);
}

const std::string kEndBegins = "the end begins";

/// What was printed between the beginning of the end and the message that the module is unloaded.
Lines ModulesEnd(const Outcome& outcome)
{
    const auto begin = std::find(outcome.lines.begin(), outcome.lines.end(), kEndBegins);
    if (begin == outcome.lines.end())
        return {};
    return {std::next(begin), std::find(begin, outcome.lines.end(), "unloaded")};
}

std::ptrdiff_t PositionOf(const Lines& lines, const std::string& line)
{
    return std::distance(lines.begin(), std::find(lines.begin(), lines.end(), line));
}

const Lines kConstantsDestroyed{
    "constant destroyed: fill dialog key", "constant destroyed: outline dialog key",
    "constant destroyed: paragraph dialog key", "constant destroyed: character dialog key",
    "constant destroyed: add-preset dialog key"};

/// What happens at the end of a module that made the instance, in any order.
const Lines kEverything{"constant destroyed: fill dialog key",
                        "constant destroyed: outline dialog key",
                        "constant destroyed: paragraph dialog key",
                        "constant destroyed: character dialog key",
                        "constant destroyed: add-preset dialog key",
                        "factory unregistered",
                        "registry notified",
                        "callback removed"};

/// The end of the module, by the end of the process and by unloading.
class ModuleEnd : public testing::TestWithParam<std::string>
{
};

TEST_P(ModuleEnd, DoesEachOfFourThingsOnce)
{
    const Outcome outcome = RunModule("use", GetParam());

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(ModulesEnd(outcome), UnorderedElementsAreArray(kEverything));
}

TEST_P(ModuleEnd, DoesEachOfFourThingsOnceAlsoWhenTheInstanceWasRemade)
{
    const Outcome outcome = RunModule("recreate", GetParam());

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(ModulesEnd(outcome), UnorderedElementsAreArray(kEverything));
}

TEST_P(ModuleEnd, TellsTheRegistryNothingWhenTheInstanceWasNeverUsed)
{
    const Outcome outcome = RunModule("nothing", GetParam());

    Lines expected = kConstantsDestroyed;
    expected.emplace_back("factory unregistered");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(ModulesEnd(outcome), UnorderedElementsAreArray(expected));
}

TEST_P(ModuleEnd, UnregistersTheFactoryBeforeTheConstantsGo)
{
    const Lines end = ModulesEnd(RunModule("use", GetParam()));

    for (const std::string& constant : kConstantsDestroyed)
        EXPECT_LT(PositionOf(end, "factory unregistered"), PositionOf(end, constant)) << constant;
}

TEST_P(ModuleEnd, NotifiesTheRegistryBeforeItTakesItsCallbackAway)
{
    const Lines end = ModulesEnd(RunModule("use", GetParam()));

    EXPECT_LT(PositionOf(end, "registry notified"), PositionOf(end, "callback removed"));
    EXPECT_THAT(end, Contains("callback removed"));
}

std::string NameOfEnd(const testing::TestParamInfo<std::string>& tested)
{
    return tested.param == "exit" ? "Exit" : "Unloading";
}

INSTANTIATE_TEST_SUITE_P(ByEither, ModuleEnd, testing::Values("exit", "unload"), NameOfEnd);

TEST(ModuleStart, RegistersOneFactory)
{
    const Outcome outcome = RunModule("nothing", "exit");

    ASSERT_THAT(outcome.lines, Contains(kEndBegins));
    const Lines start(outcome.lines.begin(),
                      std::find(outcome.lines.begin(), outcome.lines.end(), kEndBegins));
    EXPECT_THAT(start, ElementsAre("factory registered"));
}

TEST(ProcessEnd, IsCleanWithTheLibraryLinkedBeforeTheHost)
{
    EXPECT_EQ(RunProgram(LINKED_EXIT_LIBRARY_FIRST).status, 0);
}

TEST(ProcessEnd, IsCleanWithTheHostLinkedBeforeTheLibrary)
{
    EXPECT_EQ(RunProgram(LINKED_EXIT_HOST_FIRST).status, 0);
}

} // namespace
