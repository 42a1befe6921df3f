#include "host/data_binding/DataSource.h"

#include "host/data_binding/DataSourceFactory.h"
#include "tests/reference_host/data_binding/BoundNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using BoundNames::AddReadOnly;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What happened to the data sources of the running test, in order.
static std::vector<std::string>& Steps()
{
    static std::vector<std::string> steps;
    return steps;
}

/// A section of a panel, as the library's base class is one: a part, and no complete data source.
class Section : public virtual PartialDataSource<Section, true>
{
public:
    Section() { Steps().push_back("Section()"); }

    ~Section() override { Steps().push_back("~Section()"); }

    void FillDataSourceMap()
    {
        Steps().push_back(GetDataContext() == nullptr ? "Section map without context" : "Section map");
        AddReadOnly<int>(*this, L"Width", [] { return 1; });
    }
};

/// A complete data source with names of its own.
class FillSection : public Section, public DataSource<FillSection, true>
{
public:
    FillSection() { Steps().push_back("FillSection()"); }

    void FillDataSourceMap()
    {
        Steps().push_back("FillSection map");
        AddReadOnly<int>(*this, L"Colour", [] { return 2; });
    }

    void PostConstruct() override { Steps().push_back("PostConstruct"); }
};

/// A complete data source that publishes what its base publishes.
class PlainSection : public Section, public DataSource<PlainSection, true>
{
public:
    using Section::FillDataSourceMap;
};

/// A data source whose names are not registered by the framework.
class SilentSection : public DataSource<SilentSection, false>
{
public:
    void FillDataSourceMap() { Steps().push_back("SilentSection map"); }
};

namespace Nested
{

class Part : public DataSource<Part, false>
{
};

} // namespace Nested

namespace
{

class EmptyContext final : public IDataContext
{
public:
    IHostObject* GetHostObject() override { return nullptr; }

    IDataSource* GetDataSource(const OvxStringT& name) override { return name == held ? source : nullptr; }

    IDialogService* GetDialogService() override { return nullptr; }

    OvxStringT held;
    IDataSource* source = nullptr;
};

class DataSources : public ::testing::Test
{
protected:
    DataSources() { Steps().clear(); }

    template <class T>
    std::unique_ptr<IDataSource> Create()
    {
        return std::unique_ptr<IDataSource>(DataSourceFactory<T>(L"frame").Create(&context));
    }

    EmptyContext context;
};

std::vector<IDataSourceFactory*> Registered()
{
    return IDataSourceRegistrar::GetInstance().GetFactories();
}

} // namespace

TEST_F(DataSources, AreConstructedThenFilledBaseFirstThenPostConstructedOnce)
{
    const auto created = Create<FillSection>();

    EXPECT_THAT(Steps(),
                ElementsAre("Section()", "FillSection()", "Section map", "FillSection map", "PostConstruct"));
}

TEST_F(DataSources, ListTheNamesOfTheirBaseFirst)
{
    const auto created = Create<FillSection>();

    const auto& names = dynamic_cast<IReflectable&>(*created);

    EXPECT_THAT(names.GetNames(), ElementsAre(OvxStringT(L"Width"), OvxStringT(L"Colour")));
}

TEST_F(DataSources, PublishNothingBeforeTheyAreComplete)
{
    const FillSection section;

    EXPECT_THAT(section.GetNames(), IsEmpty());
}

TEST_F(DataSources, ThatInheritTheirNamesRegisterThemOnce)
{
    const auto created = Create<PlainSection>();

    EXPECT_THAT(Steps(), ElementsAre("Section()", "Section map"));
}

TEST_F(DataSources, ThatDoNotRegisterTheirNamesAreLeftAlone)
{
    const auto created = Create<SilentSection>();

    EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(DataSources, AreNotFinishedTwice)
{
    FillSection section;
    section.FinishConstruction();
    Steps().clear();

    section.FinishConstruction();

    EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(DataSources, LiveInTheContextTheyWereCreatedIn)
{
    const auto created = Create<FillSection>();

    EXPECT_EQ(created->GetDataContext(), &context);
}

TEST_F(DataSources, HaveNoContextBeforeOneIsSet)
{
    const FillSection section;

    EXPECT_EQ(section.GetDataContext(), nullptr);
}

TEST_F(DataSources, AreDestroyedAtOnceOutsideOfNotifications)
{
    IDataSource* created = DataSourceFactory<FillSection>(L"frame").Create(&context);
    Steps().clear();

    created->Destroy();

    EXPECT_THAT(Steps(), ElementsAre("~Section()"));
}

TEST_F(DataSources, AreFoundInTheirContextByTheNameOfTheirClass)
{
    DataSourceFactory<FillSection> factory(L"frame");
    FillSection section;
    context.held = L"FillSection";
    context.source = &section;

    IDataSource* found = factory.Find(&context);

    EXPECT_EQ(found, &section);
    EXPECT_EQ(factory.Find(nullptr), nullptr);
}

TEST(DataSourceFactories, TellClassKindAndScope)
{
    const DataSourceFactory<FillSection> factory(L"frame");

    EXPECT_EQ(factory.GetTypeKey(), OvxStringT(L"FillSection"));
    EXPECT_EQ(factory.GetKind(), 2);
    EXPECT_EQ(factory.GetScopeName(), OvxStringT(L"frame"));
}

TEST(DataSourceFactories, NameClassesWithTheirNamespace)
{
    const DataSourceFactory<Nested::Part> factory(L"frame");

    EXPECT_EQ(factory.GetTypeKey(), OvxStringT(L"Nested::Part"));
}

TEST(DataSourceFactories, AreFoundByTheirTypeKey)
{
    DataSourceFactory<FillSection> factory(L"frame");
    IDataSourceRegistrar& registrar = IDataSourceRegistrar::GetInstance();

    registrar.RegisterFactory(&factory);

    EXPECT_EQ(registrar.FindFactory(L"FillSection"), &factory);
    EXPECT_EQ(registrar.FindFactory(L"OutlineSection"), nullptr);
}

TEST(DataSourceFactories, AreListedInOrderOfRegistration)
{
    DataSourceFactory<FillSection> first(L"frame");
    DataSourceFactory<PlainSection> second(L"frame");
    IDataSourceRegistrar::GetInstance().RegisterFactory(&first);
    IDataSourceRegistrar::GetInstance().RegisterFactory(&second);

    const auto factories = Registered();

    EXPECT_THAT(factories, ElementsAre(&first, &second));
}

TEST(DataSourceFactories, UnregisterThemselvesWhenTheyAreDestroyed)
{
    {
        DataSourceFactory<FillSection> factory(L"frame");
        IDataSourceRegistrar::GetInstance().RegisterFactory(&factory);
    }

    EXPECT_EQ(IDataSourceRegistrar::GetInstance().FindFactory(L"FillSection"), nullptr);
    EXPECT_THAT(Registered(), IsEmpty());
}

TEST(DataSourceFactories, OfOneKeyStandBehindEachOther)
{
    IDataSourceRegistrar& registrar = IDataSourceRegistrar::GetInstance();
    DataSourceFactory<FillSection> second(L"frame");
    {
        DataSourceFactory<FillSection> first(L"frame");
        registrar.RegisterFactory(&first);
        registrar.RegisterFactory(&second);
        EXPECT_EQ(registrar.FindFactory(L"FillSection"), &first);
    }

    EXPECT_EQ(registrar.FindFactory(L"FillSection"), &second);
}

TEST(DataSourceFactories, ThatAreRegisteredTwiceAreListedOnce)
{
    DataSourceFactory<FillSection> factory(L"frame");
    IDataSourceRegistrar::GetInstance().RegisterFactory(&factory);
    IDataSourceRegistrar::GetInstance().RegisterFactory(&factory);

    EXPECT_THAT(Registered(), ElementsAre(&factory));
}

TEST(DataSourceFactories, ThatAreUnknownAreUnregisteredWithoutEffect)
{
    DataSourceFactory<FillSection> known(L"frame");
    DataSourceFactory<PlainSection> unknown(L"frame");
    IDataSourceRegistrar::GetInstance().RegisterFactory(&known);

    IDataSourceRegistrar::GetInstance().UnregisterFactory(&unknown);

    EXPECT_THAT(Registered(), ElementsAre(&known));
}
