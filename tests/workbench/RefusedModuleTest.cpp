// Modules that cannot be used: each is refused with its reason, and the panels around it serve as if it were
// not there.

#include "host/data_binding/IDataSourceRegistrar.h"
#include "panels/PanelInterface.h"
#include "reference_host/services/LoadedModule.h"
#include "reference_host/services/ModuleTrial.h"
#include "tests/workbench/EditorFixture.h"
#include "tests/workbench/MemoryImage.h"
#include "tests/workbench/ThirdPartyFolder.h"

#include <string>

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using Workbench::PanelDescription;
using Workbench::Session;

namespace WorkbenchTests
{
namespace
{

/// A module that is refused, and how its error ends.
struct RefusedCase
{
    const char* name;   ///< For the test.
    const char* module; ///< The file that was built.
    const char* reason;

    friend void PrintTo(const RefusedCase& refused, std::ostream* out) { *out << refused.module; }
};

constexpr RefusedCase kRefused[] = {
    {"ThatThrowsWhileItIsLoaded", "throwing",
     ": loading it would end the program (the licence of this module has run out); expected a module whose "
     "static objects can be made and destroyed"},
    {"ThatCrashesWhileItIsLoaded", "crashing",
     "; expected a module whose static objects can be made and destroyed"},
    {"ThatNeedsWhatThereIsNot", "unresolved", "undefined symbol: _Z17NobodyDefinesThisv"},
    {"ThatTellsNoVersion", "versionless",
     ": it does not tell which version of panels it was built for; expected a module that includes "
     "panels/PanelRegistration.h and exports styleproperties_panel_interface"},
    {"ThatWasBuiltForAnotherVersion", "outdated",
     ": it was built for version 0.0 of panels; expected version 0.1: build it anew"},
    {"ThatRegistersAClassTwice", "doubling",
     ": it registers the class RefusedPanelDatasource, which is registered already; expected a name of its "
     "own "
     "for each class"}};

std::filesystem::path BuiltModule(const std::string& name)
{
    return std::filesystem::path(REFUSED_MODULES) / (name + ".so");
}

/// Shipped panels with one among them that is refused.
class ModuleAmongOthers : public testing::Test
{
protected:
    /// Puts a description of a module into the folder, and the module beside it.
    PanelDescription Place(const std::filesystem::path& module, const std::string& className)
    {
        const std::filesystem::path placed = folder.GetPath() / "third-party.so";
        std::filesystem::remove(placed);
        std::filesystem::copy_file(module, placed);
        return folder.Describe("x", DescriptionOf("x", className));
    }

    /// Loads the panel in front of those that are shipped, and edits through one of them.
    ///
    /// @returns what was told of panels that cannot be loaded.
    std::vector<std::string> LoadInFrontAndEdit(const PanelDescription& panel)
    {
        std::vector<PanelDescription> panels = Workbench::ReadPanelFolder(SHIPPED_PANELS).panels;
        const std::size_t shipped = panels.size();
        panels.insert(panels.begin(), panel);
        Session session(folder.Write("drawing", FourBoxes().Text()), panels);
        std::vector<std::string> problems = session.LoadPanels(panels);
        EXPECT_THAT(session.GetPanels(), SizeIs(shipped));
        Workbench::Editor editor(session);
        editor.Set({{L"fill.color", L"#123456"}, {L"outline.width", L"1mm"}});
        EXPECT_THAT(editor.DescribeChanges(), SizeIs(8));
        EXPECT_TRUE(editor.Undo());
        return problems;
    }

    [[nodiscard]] std::string ModuleFile() const { return (folder.GetPath() / "third-party.so").string(); }

    ThirdPartyFolder folder;
};

class Module : public ModuleAmongOthers, public testing::WithParamInterface<RefusedCase>
{
};

INSTANTIATE_TEST_SUITE_P(Refused, Module, testing::ValuesIn(kRefused),
                         [](const auto& refused) { return std::string(refused.param.name); });

} // namespace

TEST_P(Module, IsToldOfAndHarmsNoOther)
{
    const PanelDescription panel = Place(BuiltModule(GetParam().module), "RefusedPanelDatasource");

    const std::vector<std::string> problems = LoadInFrontAndEdit(panel);

    EXPECT_THAT(problems, ElementsAre(AllOf(StartsWith(ModuleFile() + ": "), EndsWith(GetParam().reason))));
}

TEST_P(Module, LeavesNothingBehind)
{
    const PanelDescription panel = Place(BuiltModule(GetParam().module), "RefusedPanelDatasource");

    static_cast<void>(LoadInFrontAndEdit(panel));

    EXPECT_EQ(IDataSourceRegistrar::GetInstance().FindFactory(L"RefusedPanelDatasource"), nullptr);
    EXPECT_FALSE(IsInMemory(ModuleFile()));
}

TEST_F(ModuleAmongOthers, MayFailLateWithoutHarm)
{
    const PanelDescription panel = folder.Describe("x", DescriptionOf("x", "LateFailingPanelDatasource"));

    const std::vector<std::string> problems = LoadInFrontAndEdit(panel);

    EXPECT_THAT(problems, ElementsAre(ModuleFile() + ": its class LateFailingPanelDatasource cannot be made: "
                                                     "there is no neighbour; expected a panel that can be "
                                                     "made in every drawing"));
}

TEST_F(ModuleAmongOthers, MayThrowWhatIsNoErrorWithoutHarm)
{
    const PanelDescription panel = folder.Describe("x", DescriptionOf("x", "OddlyFailingPanelDatasource"));

    const std::vector<std::string> problems = LoadInFrontAndEdit(panel);

    EXPECT_THAT(problems,
                ElementsAre(HasSubstr("its class OddlyFailingPanelDatasource cannot be made: it throws")));
}

TEST_F(ModuleAmongOthers, MayNotTakeTheNameOfAnothersClass)
{
    const PanelDescription original =
        folder.Describe("shadow", DescriptionOf("shadow", "ShadowPanelDatasource"));
    const ThirdPartyFolder elsewhere;
    std::filesystem::remove(elsewhere.GetPath() / "third-party.so");
    std::filesystem::copy_file(THIRD_PARTY_MODULE, elsewhere.GetPath() / "third-party.so");
    const PanelDescription copy =
        elsewhere.Describe("copy", DescriptionOf("copy", "StoredShadowPanelDatasource"));
    Session session({original, copy});

    const std::vector<std::string> problems = session.LoadPanels({original, copy});

    EXPECT_THAT(problems,
                ElementsAre((elsewhere.GetPath() / "third-party.so").string() +
                            ": it registers the class ShadowPanelDatasource, which is registered already; "
                            "expected a name of its own for each class"));
    EXPECT_THAT(session.GetPanels(), SizeIs(1));
}

TEST_F(ModuleAmongOthers, MayServeSeveralPanels)
{
    const PanelDescription first =
        folder.Describe("shadow", DescriptionOf("shadow", "ShadowPanelDatasource"));
    const PanelDescription second =
        folder.Describe("stored", DescriptionOf("stored", "StoredShadowPanelDatasource"));
    Session session({first, second});

    EXPECT_THAT(session.LoadPanels({first, second}), IsEmpty());
    EXPECT_THAT(session.GetPanels(), SizeIs(2));
}

TEST(ModuleTrial, EndsAModuleThatTakesTooLong)
{
    EXPECT_THAT(
        OpenEditor::ErrorOf([]
                            { ReferenceHost::TryModule(BuiltModule("endless"), std::chrono::seconds(1)); }),
        EndsWith("endless.so: loading it would end the program (it takes too long); expected a module "
                 "whose static objects can be made and destroyed"));
}

TEST(ModuleTrial, LoadsNothingIntoThisProcess)
{
    ReferenceHost::TryModule(THIRD_PARTY_MODULE);

    EXPECT_FALSE(IsInMemory(THIRD_PARTY_MODULE));
}

TEST(PanelInterface, IsTheVersionOfThePackageWithoutTheLastNumber)
{
    EXPECT_STREQ(Panels::kPanelInterface, PANEL_INTERFACE);
}

} // namespace WorkbenchTests
