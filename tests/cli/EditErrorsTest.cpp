// Edits that cannot be done: one line each, and the drawing as it was.

#include "tests/cli/EditToolDrawing.h"
#include "tests/workbench/ThirdPartyFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sys/resource.h>

using CliTests::EditedBoxes;
using CliTests::OutputKind;
using CliTests::ToolProcess;
using CliTests::ToolResult;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{

/// Boxes that nothing may change.
class RefusedEdit : public EditedBoxes
{
protected:
    /// Runs a command in place and expects it to end with a status, one line of error, and the same drawing.
    ///
    /// @returns the line.
    [[nodiscard]] std::string Refuse(int status, const std::string& command,
                                     std::vector<std::string> arguments) const
    {
        const std::string before = drawing.Bytes();
        arguments.emplace_back("--in-place");
        const ToolResult result = Run(command, arguments);
        EXPECT_EQ(result.status, status) << result.output << result.error;
        EXPECT_EQ(result.output, "");
        EXPECT_THAT(result.error, StartsWith("styleprops: "));
        EXPECT_EQ(std::count(result.error.begin(), result.error.end(), '\n'), 1) << result.error;
        EXPECT_EQ(drawing.Bytes(), before);
        return result.error;
    }
};

/// Lets no program that is started grow a file beyond some bytes: what a full disk does to it.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &old);
        const rlimit limit{bytes, old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &old); }

private:
    rlimit old{};
};

} // namespace

TEST_F(RefusedEdit, EndsWithOneAndNamesTheStateWhenACommandIsNotEnabled)
{
    EXPECT_THAT(Refuse(1, "revert", {"--select", "name:Other", "fill.color"}),
                AllOf(HasSubstr("fill.color"), HasSubstr("Inherited")));
    EXPECT_THAT(Refuse(1, "apply-to-parent", {"--select", "name:Other", "fill.color"}),
                AllOf(HasSubstr("fill.color"), HasSubstr("Inherited")));
    EXPECT_THAT(Refuse(1, "break-link", {"--select", "name:Box", "fill.color"}), HasSubstr("fill.color"));
}

TEST_F(RefusedEdit, DoesNothingOfACommandThatCanBeDoneInPart)
{
    EXPECT_THAT(Refuse(1, "revert", {"--select", "name:Box", "fill.color", "outline.width"}),
                HasSubstr("outline.width"));
    EXPECT_THAT(Refuse(2, "set", {"fill.color=#112233", "outline.width=wide"}), HasSubstr("wide"));
}

TEST_F(RefusedEdit, ListsTheRowsForAnUnknownOne)
{
    EXPECT_THAT(Refuse(2, "set", {"fill.colour=red"}), AllOf(HasSubstr("colour"), HasSubstr("transparency")));
    EXPECT_THAT(Refuse(2, "clear", {"fill.colour"}), AllOf(HasSubstr("colour"), HasSubstr("transparency")));
}

TEST_F(RefusedEdit, ListsThePanelsForAnUnknownOne)
{
    EXPECT_THAT(Refuse(2, "set", {"paint.color=red"}), AllOf(HasSubstr("paint"), HasSubstr("outline")));
    EXPECT_THAT(Refuse(2, "create-style", {"paint"}), AllOf(HasSubstr("paint"), HasSubstr("outline")));
}

TEST_F(RefusedEdit, SaysWhatAValueMayBe)
{
    EXPECT_THAT(Refuse(2, "set", {"fill.color=reddish"}), AllOf(HasSubstr("reddish"), HasSubstr("#rrggbb")));
    EXPECT_THAT(Refuse(2, "set", {"outline.width=5 parsecs"}), AllOf(HasSubstr("parsecs"), HasSubstr("mm")));
    EXPECT_THAT(Refuse(2, "set", {"fill.type=striped"}), AllOf(HasSubstr("striped"), HasSubstr("gradient")));
    EXPECT_THAT(Refuse(2, "set", {"fill.transparency=130%"}), HasSubstr("100"));
    EXPECT_THAT(Refuse(2, "set", {"fill.color=palette:Lake"}), AllOf(HasSubstr("Lake"), HasSubstr("Sea")));
    EXPECT_THAT(Refuse(2, "palette", {"Sea=reddish"}), AllOf(HasSubstr("reddish"), HasSubstr("#rrggbb")));
}

TEST_F(RefusedEdit, EndsWithOneWhenNothingFitsTheSelector)
{
    EXPECT_THAT(Refuse(1, "clear", {"--select", "name:Bax", "fill.color"}), HasSubstr("\"Box\""));
}

TEST_F(RefusedEdit, IsOneOfAParentThatInheritsFromTheStyleItself)
{
    EXPECT_THAT(Refuse(1, "set", {"--select", "sheet:Base", "style.style=Base"}), HasSubstr("Base"));
}

TEST_F(RefusedEdit, NamesTheFileThatCannotBeWritten)
{
    const std::string before = drawing.Bytes();

    const ToolResult nowhere = Run("set", {"fill.color=#112233", "-o", "/no/folder/out.fodg"});
    const ToolResult folder = Run("set", {"fill.color=#112233", "-o", drawing.Beside("")});

    for (const ToolResult& result : {nowhere, folder})
    {
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(std::count(result.error.begin(), result.error.end(), '\n'), 1) << result.error;
    }
    EXPECT_THAT(nowhere.error, HasSubstr("/no/folder/out.fodg"));
    EXPECT_EQ(drawing.Bytes(), before);
}

TEST_F(RefusedEdit, IsOneOfAFileWithFurtherNamesUnlessForced)
{
    std::filesystem::create_hard_link(drawing.GetFile(), drawing.Beside("second.fodg"));

    EXPECT_THAT(Refuse(1, "set", {"fill.color=#112233"}),
                AllOf(HasSubstr("further names (hard links)"), HasSubstr("--force")));

    EXPECT_EQ(Run("set", {"fill.color=#112233", "--in-place", "--force"}).status, 0);
    EXPECT_EQ(Row("name:Box", "fill", "color"), "#112233 Overridden local");
}

TEST_F(RefusedEdit, SaysThatTheDiskIsFullAndLeavesNothingBehind)
{
    const std::string before = drawing.Bytes();
    const FileSizeLimit limit(100);

    const ToolResult result = Run("set", {"fill.color=#112233", "--in-place"});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(drawing.Bytes(), before);
    EXPECT_EQ(
        std::distance(
            std::filesystem::directory_iterator(std::filesystem::path(drawing.GetFile()).parent_path()), {}),
        1);
}

TEST_F(RefusedEdit, IsNotOneWhoseReportCannotBeWritten)
{
    const ToolResult result = ToolProcess({"set", drawing.GetFile(), "fill.color=#112233", "--in-place"})
                                  .To(OutputKind::FullDevice)
                                  .Run();

    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, StartsWith("styleprops: cannot write the output"));
    EXPECT_EQ(Row("name:Box", "fill", "color"), "#112233 Overridden local");
}

TEST_F(RefusedEdit, IsNotOneBesideAPanelThatCannotBeUsed)
{
    const WorkbenchTests::ThirdPartyFolder panels;
    panels.Write("bad", WorkbenchTests::DescriptionOf("bad", "FailingPanelDatasource"));
    panels.Write("shadow", WorkbenchTests::ShadowDescription());

    const ToolResult result =
        Run("set", {"shadow.visibility=visible", "--panels", panels.GetPath().string(), "--in-place"});

    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_EQ(result.error,
              "styleprops: warning: " + (panels.GetPath() / "third-party.so").string() +
                  ": its class FailingPanelDatasource cannot be made: the licence of this panel has run "
                  "out; expected a panel that can be made in every drawing\n");
    EXPECT_THAT(drawing.Bytes(), HasSubstr("draw:shadow=\"visible\""));
}
