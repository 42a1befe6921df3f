#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/data_binding/DataSource.h"
#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/utils/RepeatingCallback.h"
#include "host/utils/RepeatingCallbackMemento.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

HOST_TESTS_SUBJECT(DataSourceLifeTest);

// How a data source comes to be and goes, and how its factory is found.
namespace HostTests
{

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace
{

/// What happened to the data sources of the running test, in order.
std::vector<std::string>& Steps()
{
    static std::vector<std::string> steps;
    return steps;
}

void AddName(IReflectable& reflectable, const wchar_t* name)
{
    reflectable._AddDelegate(
        OvxStringViewT(L"get_") + OvxStringViewT(name),
        OvxUtils::RepeatingCallbackMemento(OvxUtils::RepeatingCallback<int()>([] { return 1; })),
        runtime_type<int()>());
    reflectable._AddType(name, runtime_type<const int>());
}

/// A part of a data source, as the library's base class is one.
class SectionPart : public virtual PartialDataSource<SectionPart, true>
{
public:
    void FillDataSourceMap()
    {
        Steps().emplace_back(GetDataContext() == nullptr ? "base without context" : "base");
        AddName(*this, L"OfTheBase");
    }
};

/// A complete data source, as a panel's class is one.
class PanelSection : public SectionPart, public DataSource<PanelSection, true>
{
public:
    ~PanelSection() override { Steps().emplace_back("gone"); }

    void FillDataSourceMap()
    {
        Steps().emplace_back("derived");
        AddName(*this, L"OfThePanel");
    }

    void PostConstruct() override { Steps().emplace_back("PostConstruct"); }
};

class DataSourceLife : public HostTest
{
protected:
    DataSourceLife()
    {
        Steps().clear();
        IDataSourceRegistrar::GetInstance().RegisterFactory(&factory);
    }

    ~DataSourceLife() override { host.reset(); }

    [[nodiscard]] IDataSource* Create() { return host->CreateDataSource(factory.GetTypeKey()); }

    DataSourceFactory<PanelSection> factory{L"frame"};
};

/// The factories that modules register.
class Factory : public DataSourceLife
{
protected:
    IDataSourceRegistrar& registrar = IDataSourceRegistrar::GetInstance();
};

} // namespace

TEST_F(DataSourceLife, BeginsWithTheNamesOfTheBaseThenItsOwnAndPostConstructOnceAtTheEnd)
{
    ASSERT_NE(Create(), nullptr);

    EXPECT_THAT(Steps(), ElementsAre("base", "derived", "PostConstruct"));
}

TEST_F(DataSourceLife, ShowsTheNamesOfTheBaseFirst)
{
    const auto* const names = dynamic_cast<const IReflectable*>(Create());

    ASSERT_NE(names, nullptr);
    EXPECT_THAT(names->GetNames(), ElementsAre(OvxStringT(L"OfTheBase"), OvxStringT(L"OfThePanel")));
}

TEST_F(DataSourceLife, IsFinishedOnce)
{
    auto* const made = dynamic_cast<OvxUtils::PostConstructible*>(Create());
    ASSERT_NE(made, nullptr);

    made->FinishConstruction();

    EXPECT_THAT(Steps(), ElementsAre("base", "derived", "PostConstruct"));
}

TEST_F(DataSourceLife, RunsWhatARunningDelegateQueuesAndNothingThatIsQueuedLater)
{
    PanelSection section;
    section.CallOnPostConstruct([&] { section.CallOnPostConstruct([] { Steps().emplace_back("nested"); }); });

    section.FinishConstruction();
    section.CallOnPostConstruct([] { Steps().emplace_back("late"); });
    section.FinishConstruction();

    EXPECT_THAT(Steps(), ElementsAre("base without context", "derived", "nested", "PostConstruct"));
}

TEST_F(DataSourceLife, IsSpentInTheContextItWasCreatedIn)
{
    const IDataSource* const created = Create();

    ASSERT_NE(created, nullptr);
    EXPECT_EQ(created->GetDataContext(), &GetContext());
    EXPECT_EQ(PanelSection().GetDataContext(), nullptr);
}

TEST_F(DataSourceLife, IsKnownToTheContextByTheKeyOfItsClass)
{
    IDataSource* const created = Create();

    EXPECT_EQ(GetContext().GetDataSource(factory.GetTypeKey()), created);
    EXPECT_EQ(factory.Find(&GetContext()), created);
    EXPECT_EQ(GetContext().GetDataSource(L"no such data source"), nullptr);
}

TEST_F(DataSourceLife, EndsWithDestroyAndIsKnownNoMore)
{
    IDataSource* const created = Create();
    Steps().clear();

    created->Destroy();
    host->RunIdle();

    EXPECT_THAT(Steps(), ElementsAre("gone"));
    EXPECT_EQ(GetContext().GetDataSource(factory.GetTypeKey()), nullptr);
}

TEST_F(DataSourceLife, OutlivesTheNotificationThatEndsItUntilTheIdleStep)
{
    IDataSource* const created = Create();
    auto* const broadcaster = dynamic_cast<IBroadcaster*>(created);
    ASSERT_NE(broadcaster, nullptr);
    broadcaster->AddListener(L"OfTheBase", [&](const OvxStringT&) { created->Destroy(); });
    broadcaster->AddListener(L"OfTheBase", [](const OvxStringT&) { Steps().emplace_back("heard"); });
    Steps().clear();

    broadcaster->UpdateListeners(L"OfTheBase");
    EXPECT_THAT(Steps(), ElementsAre("heard"));

    host->RunIdle();
    EXPECT_THAT(Steps(), ElementsAre("heard", "gone"));
}

TEST_F(DataSourceLife, EndsWithTheHostAtTheLatest)
{
    ASSERT_NE(Create(), nullptr);
    Steps().clear();

    host.reset();

    EXPECT_THAT(Steps(), ElementsAre("gone"));
}

TEST_F(DataSourceLife, DoesNotBeginWithoutAFactory)
{
    EXPECT_EQ(host->CreateDataSource(L"no such class"), nullptr);
}

TEST_F(Factory, IsFoundByTheKeyOfItsClass)
{
    EXPECT_EQ(registrar.FindFactory(factory.GetTypeKey()), &factory);
    EXPECT_EQ(registrar.FindFactory(L"no such class"), nullptr);
}

TEST_F(Factory, IsListedInOrderOfRegistration)
{
    DataSourceFactory<PanelSection> second(L"document");
    const std::vector<IDataSourceFactory*> before = registrar.GetFactories();

    registrar.RegisterFactory(&second);

    ASSERT_EQ(registrar.GetFactories().size(), before.size() + 1);
    EXPECT_EQ(before.back(), &factory);
    EXPECT_EQ(registrar.GetFactories().back(), &second);
}

TEST_F(Factory, OfAKnownKeyStandsBehindTheFirst)
{
    auto second = std::make_unique<DataSourceFactory<PanelSection>>(L"document");
    registrar.RegisterFactory(second.get());
    EXPECT_EQ(registrar.FindFactory(factory.GetTypeKey()), &factory);

    registrar.UnregisterFactory(&factory);
    EXPECT_EQ(registrar.FindFactory(factory.GetTypeKey()), second.get());
}

TEST_F(Factory, UnregistersItselfWhenItGoes)
{
    auto second = std::make_unique<DataSourceFactory<PanelSection>>(L"document");
    IDataSourceFactory* const address = second.get();
    registrar.RegisterFactory(second.get());

    second.reset();

    EXPECT_THAT(registrar.GetFactories(), Not(Contains(address)));
}

TEST_F(Factory, ThatIsNotRegisteredIsForgottenWithoutEffect)
{
    DataSourceFactory<PanelSection> stranger(L"document");

    registrar.UnregisterFactory(&stranger);

    EXPECT_EQ(registrar.FindFactory(factory.GetTypeKey()), &factory);
}

} // namespace HostTests
