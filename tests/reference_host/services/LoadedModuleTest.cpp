#include "reference_host/services/LoadedModule.h"

#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/data_binding/IReflectable.h"
#include "reference_host/services/DataContext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

using ReferenceHost::DataContext;
using ReferenceHost::LoadedModule;
using ReferenceHost::ModuleError;
using ::testing::EndsWith;
using ::testing::HasSubstr;

namespace
{

const std::filesystem::path kVisitor = STYLEPROPERTIES_TEST_MODULE;

std::string ErrorOf(const std::filesystem::path& file)
{
    try
    {
        const LoadedModule module(file);
    }
    catch (const ModuleError& failure)
    {
        return failure.what();
    }
    return "it was loaded";
}

IDataSourceFactory* FindVisitor()
{
    return IDataSourceRegistrar::GetInstance().FindFactory(L"Visitor");
}

} // namespace

TEST(Module, RegistersItsFactoriesWhenItIsLoaded)
{
    const LoadedModule module(kVisitor);

    ASSERT_NE(FindVisitor(), nullptr);
    EXPECT_EQ(FindVisitor()->GetScopeName(), OvxStringT(L"frame"));
}

TEST(Module, TakesItsFactoriesAlongWhenItIsUnloaded)
{
    auto module = std::make_unique<LoadedModule>(kVisitor);

    module.reset();

    EXPECT_EQ(FindVisitor(), nullptr);
}

TEST(Module, MayBeLoadedAgain)
{
    std::make_unique<LoadedModule>(kVisitor).reset();

    const LoadedModule again(kVisitor);

    EXPECT_NE(FindVisitor(), nullptr);
}

TEST(Module, StaysUntilEverybodyUnloadedIt)
{
    const LoadedModule first(kVisitor);
    auto second = std::make_unique<LoadedModule>(kVisitor);

    second.reset();

    EXPECT_NE(FindVisitor(), nullptr);
}

TEST(Module, MakesDataSourcesThatAreReadByName)
{
    const LoadedModule module(kVisitor);
    DataContext context(nullptr, nullptr);

    const auto* visitor = dynamic_cast<IReflectable*>(context.CreateDataSource(L"Visitor"));

    ASSERT_NE(visitor, nullptr);
    EXPECT_EQ(visitor->Read<int>(L"Answer"), 42);
}

TEST(Module, GivesTheSymbolsThatItExports)
{
    const LoadedModule module(kVisitor);

    const auto version = reinterpret_cast<int (*)()>(module.FindSymbol("VisitorVersion"));

    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version(), 3);
    EXPECT_EQ(module.FindSymbol("VisitorAge"), nullptr);
}

TEST(Module, RemembersItsFile)
{
    const LoadedModule module(std::filesystem::relative(kVisitor));

    EXPECT_EQ(std::filesystem::canonical(module.GetFile()), std::filesystem::canonical(kVisitor));
    EXPECT_TRUE(module.GetFile().is_absolute());
}

TEST(Module, ThatDoesNotExistIsReportedByItsName)
{
    EXPECT_EQ(ErrorOf("nowhere/fill.so"), "nowhere/fill.so: expected a module, found no such file");
}

TEST(Module, ThatIsAFolderIsReportedAsNoFile)
{
    EXPECT_THAT(ErrorOf(std::filesystem::temp_directory_path()),
                EndsWith("expected a module, found no such file"));
}

TEST(Module, ThatIsNoLibraryIsReportedWithTheReason)
{
    const auto file = std::filesystem::path(::testing::TempDir()) / "not-a-module.so";
    std::ofstream(file) << "just text";

    const std::string message = ErrorOf(file);

    EXPECT_THAT(message, HasSubstr("not-a-module.so: cannot be loaded as a module: "));
    std::filesystem::remove(file);
}

TEST(Module, FileNamesEndAsThisPlatformWantsIt)
{
#if defined(_WIN32)
    EXPECT_EQ(LoadedModule::GetFileNameOf("fill"), "fill.dll");
#else
    EXPECT_EQ(LoadedModule::GetFileNameOf("fill"), "fill.so");
#endif
}
