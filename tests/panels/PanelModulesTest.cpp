// The modules: loaded at run time, found through the registrar, and gone without a trace.

#include "host/data_binding/IDataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/utils/Utf8.h"
#include "tests/panels/PanelFixture.h"
#include "tests/panels/PanelModuleCases.h"

using OvxUtils::Any;
using ReferenceHost::LoadedModule;
using testing::Contains;
using testing::IsNull;
using testing::Not;
using testing::NotNull;

namespace PanelTests
{

namespace
{

/// The names that rows bind.
std::vector<OvxStringT> NamesOf(const std::vector<PanelModuleCase::Row>& rows)
{
    std::vector<OvxStringT> names;
    for (const PanelModuleCase::Row& row : rows)
    {
        for (const wchar_t* suffix : {L"", L"State", L"Ambiguous", L"Origin", L"Link", L"ParentValue",
                                      L"ApplyToParentEnable", L"ApplyToParent"})
            names.push_back(OvxStringViewT(row.property) + OvxStringViewT(suffix));
    }
    return names;
}

IDataSourceFactory* FindFactory(const OvxStringT& className)
{
    return IDataSourceRegistrar::GetInstance().FindFactory(className);
}

class PanelModule : public PanelFixture, public testing::WithParamInterface<PanelModuleCase>
{
};

INSTANTIATE_TEST_SUITE_P(Of, PanelModule, testing::ValuesIn(AllModules()),
                         [](const auto& module) { return OvxUtils::ToUtf8(module.param.module); });

TEST_P(PanelModule, RegistersAFactoryOfItsClassWhileItIsLoaded)
{
    const LoadedModule module(FileOf(GetParam().module));

    const IDataSourceFactory* factory = FindFactory(GetParam().className);

    ASSERT_THAT(factory, NotNull());
    EXPECT_EQ(factory->GetTypeKey(), GetParam().className);
    EXPECT_EQ(factory->GetKind(), 2);
    EXPECT_EQ(factory->GetScopeName(), OvxStringT(L"frame"));
}

TEST_P(PanelModule, LeavesNoFactoryWhenItIsUnloaded)
{
    {
        const LoadedModule module(FileOf(GetParam().module));
    }

    EXPECT_THAT(IDataSourceRegistrar::GetInstance().GetFactories(),
                Not(Contains(testing::Property(&IDataSourceFactory::GetTypeKey, GetParam().className))));
}

TEST_P(PanelModule, RegistersOnceWhenItIsLoadedTwice)
{
    const LoadedModule module(FileOf(GetParam().module));
    const std::size_t factories = IDataSourceRegistrar::GetInstance().GetFactories().size();

    const LoadedModule again(FileOf(GetParam().module));

    EXPECT_EQ(IDataSourceRegistrar::GetInstance().GetFactories().size(), factories);
}

TEST_P(PanelModule, BindsTheNamesOfItsRowsBehindThoseOfEveryPanel)
{
    const auto& panel = OpenPanel(GetParam().module, GetParam().className);

    const std::vector<OvxStringT> names = panel.GetNames();

    ASSERT_GE(names.size(), 35U);
    EXPECT_EQ(names[0], OvxStringT(L"ActiveIdentifier"));
    EXPECT_EQ(names[34], OvxStringT(L"OnDeletePreset"));
    EXPECT_EQ(std::vector<OvxStringT>(names.begin() + 35, names.end()), NamesOf(GetParam().rows));
}

TEST_P(PanelModule, BindsItsRowsByType)
{
    const auto& panel = OpenPanel(GetParam().module, GetParam().className);
    const OvxStringT& property = GetParam().rows.front().property;
    const auto typeOf = [&](const wchar_t* suffix)
    { return panel.GetTypeOf(OvxStringViewT(property) + OvxStringViewT(suffix)); };

    EXPECT_EQ(typeOf(L""), runtime_type<Any>());
    EXPECT_EQ(typeOf(L"State"), runtime_type<const int>());
    EXPECT_EQ(typeOf(L"Ambiguous"), runtime_type<const int>());
    EXPECT_EQ(typeOf(L"Origin"), runtime_type<const OvxStringT>());
    EXPECT_EQ(typeOf(L"Link"), runtime_type<const OvxStringT>());
    EXPECT_EQ(typeOf(L"ParentValue"), runtime_type<const Any>());
    EXPECT_EQ(typeOf(L"ApplyToParentEnable"), runtime_type<const int>());
    EXPECT_EQ(typeOf(L"ApplyToParent"), runtime_type<void()>());
}

TEST_P(PanelModule, OffersThePresetsOfItsCategory)
{
    const auto& panel = OpenPanel(GetParam().module, GetParam().className);

    EXPECT_EQ(panel.PresetCategoryName(), GetParam().presetCategory);
}

TEST(PanelModules, ServeOnlyWhileTheyAreLoadedWhateverTheOrder)
{
    auto fill = std::make_unique<LoadedModule>(FileOf(L"fill"));
    auto outline = std::make_unique<LoadedModule>(FileOf(L"outline"));

    fill.reset();

    EXPECT_THAT(FindFactory(L"FillPanelDatasource"), IsNull());
    EXPECT_THAT(FindFactory(L"OutlinePanelDatasource"), NotNull());
}

TEST(PanelModules, CanBeLoadedAgainAfterTheyWereUnloaded)
{
    {
        const LoadedModule module(FileOf(L"fill"));
    }

    const LoadedModule again(FileOf(L"fill"));

    EXPECT_THAT(FindFactory(L"FillPanelDatasource"), NotNull());
}

using ValueOfAPanel = PanelFixture;

TEST_F(ValueOfAPanel, OutlivesTheModule)
{
    Any parent;
    {
        const LoadedModule module(FileOf(L"style"));
        ReferenceHost::DataContext shortLived{nullptr, nullptr};
        auto* panel = dynamic_cast<BaseStylePropertiesDatasource*>(
            shortLived.CreateDataSource(L"StylePanelDatasource"));
        SetTargets(*panel, {document.AddObject(document.AddNamed(L"Accent"))});
        parent = panel->Read<Any>(L"StyleParent");
    }

    EXPECT_EQ(Any(parent), Text(L"Accent"));
}

} // namespace

} // namespace PanelTests
