#include "apps/workbench/Panel.h"

#include "host/data_binding/IDataSourceRegistrar.h"
#include "tests/workbench/ThirdPartyFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <exception>
#include <string>

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using Workbench::Panel;
using WorkbenchTests::DescriptionOf;

namespace
{

class LoadingAPanel : public testing::Test
{
protected:
    /// What loading the panel of this description fails with.
    std::string ErrorOf(const std::string& description)
    {
        try
        {
            const Panel panel(folder.Describe("x", description), context);
        }
        catch (const std::exception& error)
        {
            return error.what();
        }
        return "no error";
    }

    [[nodiscard]] std::string ModuleFile() const { return (folder.GetPath() / "third-party.so").string(); }

    WorkbenchTests::ThirdPartyFolder folder;
    ReferenceHost::DataContext context{nullptr, nullptr};
};

} // namespace

TEST_F(LoadingAPanel, MakesItsDataSourceInTheContext)
{
    const Panel panel(folder.Describe("shadow", WorkbenchTests::ShadowDescription()), context);

    EXPECT_TRUE(panel.GetBoundNames().HasProperty(L"ShadowColor"));
    EXPECT_NE(context.GetDataSource(L"ShadowPanelDatasource"), nullptr);
}

TEST_F(LoadingAPanel, EndsTheDataSourceAndTheModuleWithThePanel)
{
    {
        const Panel panel(folder.Describe("shadow", WorkbenchTests::ShadowDescription()), context);
    }

    EXPECT_THAT(context.GetDataSourceNames(), IsEmpty());
    EXPECT_EQ(IDataSourceRegistrar::GetInstance().FindFactory(L"ShadowPanelDatasource"), nullptr);
}

TEST_F(LoadingAPanel, FailsWithoutTheModuleAndNamesIt)
{
    std::filesystem::remove(ModuleFile());

    EXPECT_THAT(ErrorOf(WorkbenchTests::ShadowDescription()), StartsWith(ModuleFile()));
}

TEST_F(LoadingAPanel, FailsForAFileThatIsNoModule)
{
    std::filesystem::remove(ModuleFile());
    std::filesystem::copy_file(folder.Write("text", "no library"), ModuleFile());

    EXPECT_THAT(ErrorOf(WorkbenchTests::ShadowDescription()), StartsWith(ModuleFile()));
}

TEST_F(LoadingAPanel, FailsForAClassThatTheModuleDoesNotRegister)
{
    EXPECT_EQ(ErrorOf(DescriptionOf("x", "GlowPanelDatasource")),
              ModuleFile() + ": it registers no class GlowPanelDatasource; expected the class that " +
                  (folder.GetPath() / "x.panel.xml").string() + " names");
}

TEST_F(LoadingAPanel, FailsForAClassThatIsNoPanel)
{
    EXPECT_EQ(ErrorOf(DescriptionOf("x", "ClockDatasource")),
              ModuleFile() +
                  ": its class ClockDatasource is no style-properties panel; expected a class derived from "
                  "BaseStylePropertiesDatasource");
    EXPECT_THAT(context.GetDataSourceNames(), IsEmpty());
}

TEST_F(LoadingAPanel, FailsForARowThatTheClassDoesNotBind)
{
    const std::string row =
        R"(<row identifier="a" property="HollowValue" label="l" control="text" kind="text" order="1"/>)";

    EXPECT_EQ(ErrorOf(DescriptionOf("x", "HollowPanelDatasource", row)),
              ModuleFile() +
                  ": its class HollowPanelDatasource does not bind HollowValueState; expected a readable "
                  "property of the type int");
    EXPECT_THAT(context.GetDataSourceNames(), IsEmpty());
}

TEST_F(LoadingAPanel, FailsForAClassThatAnotherPanelHas)
{
    const Panel first(folder.Describe("shadow", WorkbenchTests::ShadowDescription()), context);

    EXPECT_THAT(ErrorOf(DescriptionOf("x", "ShadowPanelDatasource")),
                HasSubstr("another panel has the class ShadowPanelDatasource"));
}

TEST_F(LoadingAPanel, TellsWhatTheClassThrows)
{
    EXPECT_EQ(ErrorOf(DescriptionOf("x", "FailingPanelDatasource")),
              ModuleFile() +
                  ": its class FailingPanelDatasource cannot be made: the licence of this panel has run out; "
                  "expected a panel that can be made in every drawing");
    EXPECT_THAT(context.GetDataSourceNames(), IsEmpty());
}
