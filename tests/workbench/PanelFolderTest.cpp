#include "apps/workbench/PanelFolder.h"

#include "apps/workbench/UsageError.h"
#include "reference_host/document/DocumentError.h"
#include "tests/workbench/ThirdPartyFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdlib.h>
#include <string>

using ReferenceHost::DocumentError;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Workbench::ChoosePanels;
using Workbench::FindPanelFolder;
using Workbench::PanelDescription;
using Workbench::PanelFolder;
using Workbench::ReadPanelFolder;

namespace
{

std::vector<OvxStringT> NamesOf(const std::vector<PanelDescription>& panels)
{
    std::vector<OvxStringT> names;
    for (const PanelDescription& panel : panels)
        names.push_back(panel.name);
    return names;
}

std::string Description(const std::string& name, int order, const std::string& category = "fill",
                        const std::string& content = {})
{
    return "<panel name=\"" + name + "\" module=\"m\" class=\"C\" title=\"t\" order=\"" +
           std::to_string(order) + "\" category=\"" + category + "\" targets=\"objects\">" + content +
           "</panel>";
}

std::string OwnCategory(const std::string& name)
{
    return "<category name=\"" + name +
           "\" title=\"t\"><map key=\"k\" element=\"text-properties\" attribute=\"fo:k\" "
           "codec=\"text\"/></category>";
}

std::string ReadingErrorOf(const std::filesystem::path& folder)
{
    try
    {
        static_cast<void>(ReadPanelFolder(folder));
    }
    catch (const DocumentError& error)
    {
        return error.what();
    }
    return "no error";
}

/// Sets an environment variable for one test.
class EnvironmentVariable
{
public:
    EnvironmentVariable(const char* variable, const char* value) : name(variable) { setenv(name, value, 1); }

    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

    ~EnvironmentVariable() { unsetenv(name); }

private:
    const char* name;
};

} // namespace

TEST(PanelFolder, GivesPanelsByTheirOrderAndEqualOnesByName)
{
    const ScratchFolder folder;
    folder.Write("1.panel.xml", Description("late", 20));
    folder.Write("2.panel.xml", Description("b", 10));
    folder.Write("3.panel.xml", Description("a", 10));

    const PanelFolder content = ReadPanelFolder(folder.GetPath());

    EXPECT_THAT(NamesOf(content.panels), ElementsAre(L"a", L"b", L"late"));
    EXPECT_THAT(content.problems, IsEmpty());
}

TEST(PanelFolder, PassesOverOtherFiles)
{
    const ScratchFolder folder;
    folder.Write("a.panel.xml", Description("a", 1));
    folder.Write("panel.xml", "no description");
    folder.Write("a.panel.xml~", "no description");

    EXPECT_THAT(NamesOf(ReadPanelFolder(folder.GetPath()).panels), ElementsAre(L"a"));
}

TEST(PanelFolder, ReportsABadDescriptionAndKeepsTheOthers)
{
    const ScratchFolder folder;
    folder.Write("bad.panel.xml", "<panel>\n");
    folder.Write("good.panel.xml", Description("good", 1));

    const PanelFolder content = ReadPanelFolder(folder.GetPath());

    EXPECT_THAT(NamesOf(content.panels), ElementsAre(L"good"));
    EXPECT_THAT(content.problems,
                ElementsAre(HasSubstr((folder.GetPath() / "bad.panel.xml").string() + ", line 2")));
}

TEST(PanelFolder, ReportsADescriptionThatIsAFolder)
{
    const ScratchFolder folder;
    std::filesystem::create_directory(folder.GetPath() / "odd.panel.xml");

    EXPECT_THAT(ReadPanelFolder(folder.GetPath()).problems,
                ElementsAre(HasSubstr("odd.panel.xml: it cannot be read")));
}

TEST(PanelFolder, LeavesANameToTheFirstPanelThatHasIt)
{
    const ScratchFolder folder;
    folder.Write("1.panel.xml", Description("same", 20));
    folder.Write("2.panel.xml", Description("same", 10));

    const PanelFolder content = ReadPanelFolder(folder.GetPath());

    ASSERT_THAT(NamesOf(content.panels), ElementsAre(L"same"));
    EXPECT_EQ(content.panels[0].order, 20);
    EXPECT_THAT(content.problems,
                ElementsAre((folder.GetPath() / "2.panel.xml").string() +
                            ": another panel is called \"same\"; expected a name of its own"));
}

TEST(PanelFolder, LeavesACategoryToTheHostAndToTheFirstPanelThatBringsIt)
{
    const ScratchFolder folder;
    folder.Write("1.panel.xml", Description("a", 1, "glow", OwnCategory("glow")));
    folder.Write("2.panel.xml", Description("b", 2, "glow", OwnCategory("glow")));
    folder.Write("3.panel.xml", Description("c", 3, "outline", OwnCategory("outline")));

    const PanelFolder content = ReadPanelFolder(folder.GetPath());

    EXPECT_THAT(NamesOf(content.panels), ElementsAre(L"a"));
    EXPECT_THAT(content.problems,
                ElementsAre(HasSubstr("2.panel.xml: the category \"glow\" is there already"),
                            HasSubstr("3.panel.xml: the category \"outline\" is there already")));
}

TEST(PanelFolder, LetsAPanelShowTheCategoryOfAnother)
{
    const ScratchFolder folder;
    folder.Write("1.panel.xml", Description("guest", 1, "glow"));
    folder.Write("2.panel.xml", Description("owner", 2, "glow", OwnCategory("glow")));

    EXPECT_THAT(NamesOf(ReadPanelFolder(folder.GetPath()).panels), ElementsAre(L"guest", L"owner"));
}

TEST(PanelFolder, ReportsAPanelOfACategoryThatNothingBrings)
{
    const ScratchFolder folder;
    folder.Write("a.panel.xml", Description("a", 1, "glow"));

    EXPECT_THAT(ReadPanelFolder(folder.GetPath()).problems,
                ElementsAre(HasSubstr("a.panel.xml: nothing brings the category \"glow\"")));
}

TEST(PanelFolder, ReportsAModuleThatNoDescriptionNames)
{
    const ScratchFolder folder;
    folder.Write("a.panel.xml", Description("a", 1));
    folder.Write("m.so", "the module of a");
    folder.Write("orphan.so", "a module");

    const PanelFolder content = ReadPanelFolder(folder.GetPath());

    EXPECT_THAT(NamesOf(content.panels), ElementsAre(L"a"));
    EXPECT_THAT(content.problems, ElementsAre((folder.GetPath() / "orphan.so").string() +
                                              ": no description names this module; expected "
                                              "orphan.panel.xml beside it"));
}

TEST(PanelFolder, TellsOnceOfAModuleBesideABadDescription)
{
    const ScratchFolder folder;
    folder.Write("a.panel.xml", Description("a", 1));
    folder.Write("bad.panel.xml", "<panel>");
    folder.Write("bad.so", "a module");

    EXPECT_THAT(ReadPanelFolder(folder.GetPath()).problems, ElementsAre(HasSubstr("bad.panel.xml, line 1")));
}

TEST(PanelFolder, ThatIsMissingIsAnError)
{
    EXPECT_EQ(ReadingErrorOf("/no/such/folder"),
              "/no/such/folder: there is no such folder; expected a folder with panels");
}

TEST(PanelFolder, WithoutDescriptionsIsAnError)
{
    const ScratchFolder folder;

    EXPECT_EQ(ReadingErrorOf(folder.GetPath()),
              folder.GetPath().string() + ": there is no panel in it; expected descriptions whose names end "
                                          "in .panel.xml");
}

TEST(ChosenPanelFolder, CountsBeforeTheEnvironment)
{
    const EnvironmentVariable variable("STYLEPROPS_PANELS", "/from/environment");

    EXPECT_EQ(FindPanelFolder("/chosen"), "/chosen");
    EXPECT_EQ(FindPanelFolder(std::nullopt), "/from/environment");
}

TEST(ChosenPanelFolder, IsElseTheOneThatWasBuiltBesideTheProgram)
{
    const EnvironmentVariable variable("STYLEPROPS_PANELS", "");

    EXPECT_TRUE(std::filesystem::equivalent(FindPanelFolder(std::nullopt), SHIPPED_PANELS));
}

TEST(ChosenPanels, AreAllWithoutNames)
{
    PanelFolder folder;
    folder.panels.resize(2);
    folder.panels[0].name = L"a";
    folder.panels[1].name = L"b";

    EXPECT_THAT(NamesOf(ChoosePanels(folder, {})), ElementsAre(L"a", L"b"));
}

TEST(ChosenPanels, KeepTheOrderOfTheFolderAndCountOnce)
{
    PanelFolder folder;
    folder.panels.resize(3);
    folder.panels[0].name = L"a";
    folder.panels[1].name = L"b";
    folder.panels[2].name = L"c";

    EXPECT_THAT(NamesOf(ChoosePanels(folder, {L"c", L"a", L"c"})), ElementsAre(L"a", L"c"));
}

TEST(ChosenPanels, MustBeThere)
{
    PanelFolder folder;
    folder.panels.resize(2);
    folder.panels[0].name = L"a";
    folder.panels[1].name = L"b";

    try
    {
        static_cast<void>(ChoosePanels(folder, {L"a", L"paint"}));
        FAIL() << "accepted";
    }
    catch (const Workbench::UsageError& error)
    {
        EXPECT_STREQ(error.what(), "there is no panel \"paint\"; expected one of a, b");
    }
}
