#include "reference_host/services/DataContext.h"

#include "host/data_binding/EventQueue.h"
#include "reference_host/services/HostObject.h"
#include "tests/reference_host/services/RecordingDataSource.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

using ReferenceHost::DataContext;
using ReferenceHost::DataSourceLifetime;
using ReferenceHost::HostObject;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

class NoDialogs final : public IDialogService
{
public:
    void ShowDialog(const OvxStringT& /*key*/, IDataContext* /*context*/) override {}

    void CloseDialog(const OvxStringT& /*key*/, int /*result*/, int /*reserved*/) override {}
};

const OvxStringT kKey = L"RecordingDataSource";

class Context : public ::testing::Test
{
protected:
    RecordingFactory factory;
    HostObject host;
    NoDialogs dialogs;
    std::unique_ptr<DataContext> context = std::make_unique<DataContext>(&host, &dialogs);
};

/// A data source that cannot be created.
class Impossible : public DataSource<Impossible, false>
{
public:
    void PostConstruct() override { throw std::runtime_error("impossible"); }
};

template <class Call>
void DuringANotification(Call call)
{
    EventQueue queue;
    queue.Subscribe(L"Event", [&](const std::vector<OvxUtils::Any>&) { call(); });
    queue.Notify(L"Event", {});
}

} // namespace

TEST_F(Context, AnswersWithItsHostObjectAndItsDialogs)
{
    EXPECT_EQ(context->GetHostObject(), &host);
    EXPECT_EQ(context->GetDialogService(), &dialogs);
}

TEST_F(Context, MayLackHostObjectAndDialogs)
{
    DataContext bare(nullptr, nullptr);

    EXPECT_EQ(bare.GetHostObject(), nullptr);
    EXPECT_EQ(bare.GetDialogService(), nullptr);
}

TEST_F(Context, CreatesDataSourcesThatLiveInItUnderTheirKey)
{
    IDataSource* created = context->CreateDataSource(kKey);

    ASSERT_NE(created, nullptr);
    EXPECT_EQ(created->GetDataContext(), context.get());
    EXPECT_EQ(context->GetDataSource(kKey), created);
    EXPECT_EQ(factory.Find(context.get()), created);
}

TEST_F(Context, CreatesNoDataSourceTwice)
{
    IDataSource* first = context->CreateDataSource(kKey);

    IDataSource* second = context->CreateDataSource(kKey);

    EXPECT_EQ(second, first);
    EXPECT_THAT(RecordingDataSource::Record(), ElementsAre("created"));
}

TEST_F(Context, CreatesNothingForAnUnknownKey)
{
    IDataSource* created = context->CreateDataSource(L"Unheard");

    EXPECT_EQ(created, nullptr);
    EXPECT_THAT(context->GetDataSourceNames(), IsEmpty());
}

TEST_F(Context, StaysAsItIsWhenADataSourceCannotBeCreated)
{
    DataSourceFactory<Impossible> impossible(L"frame");
    IDataSourceRegistrar::GetInstance().RegisterFactory(&impossible);

    EXPECT_THROW(context->CreateDataSource(impossible.GetTypeKey()), std::runtime_error);
    EXPECT_THAT(context->GetDataSourceNames(), IsEmpty());
}

TEST_F(Context, EndsItsDataSourcesWithItself)
{
    context->CreateDataSource(kKey);

    context.reset();

    EXPECT_THAT(RecordingDataSource::Record(), ElementsAre("created", "destroyed without context"));
}

TEST_F(Context, LeavesItsDataSourcesToTheIdleStepWhenItEndsDuringANotification)
{
    context->CreateDataSource(kKey);

    DuringANotification([&] { context.reset(); });
    const std::vector<std::string> before = RecordingDataSource::Record();
    DataSourceLifetime::TakeDeferred();

    EXPECT_THAT(before, ElementsAre("created"));
    EXPECT_THAT(RecordingDataSource::Record(), ElementsAre("created", "destroyed without context"));
}

TEST_F(Context, LosesADataSourceThatEndsByItself)
{
    IDataSource* created = context->CreateDataSource(kKey);

    created->Destroy();

    EXPECT_EQ(context->GetDataSource(kKey), nullptr);
    EXPECT_THAT(context->GetDataSourceNames(), IsEmpty());
}

TEST_F(Context, EndsADataSourceThatIsTakenOut)
{
    context->CreateDataSource(kKey);

    const bool wasThere = context->RemoveDataSource(kKey);

    EXPECT_TRUE(wasThere);
    EXPECT_EQ(context->GetDataSource(kKey), nullptr);
    EXPECT_THAT(RecordingDataSource::Record(), ElementsAre("created", "destroyed without context"));
}

TEST_F(Context, HasNothingToTakeOutUnderAnUnknownName)
{
    const bool wasThere = context->RemoveDataSource(L"Unheard");

    EXPECT_FALSE(wasThere);
}

TEST_F(Context, GivesDataSourcesOfOthersByName)
{
    RecordingDataSource borrowed;

    const bool isTaken = context->AddDataSource(L"StylesDatasource", &borrowed);

    EXPECT_TRUE(isTaken);
    EXPECT_EQ(context->GetDataSource(L"StylesDatasource"), &borrowed);
}

TEST_F(Context, LeavesDataSourcesOfOthersAliveWhenItEnds)
{
    RecordingDataSource borrowed;
    context->AddDataSource(L"StylesDatasource", &borrowed);

    context.reset();

    EXPECT_THAT(RecordingDataSource::Record(), ElementsAre("created"));
}

TEST_F(Context, PutsAnotherBorrowedDataSourceInTheOnesPlace)
{
    RecordingDataSource first;
    RecordingDataSource second;
    context->AddDataSource(L"StylesDatasource", &first);

    const bool isTaken = context->AddDataSource(L"StylesDatasource", &second);

    EXPECT_TRUE(isTaken);
    EXPECT_EQ(context->GetDataSource(L"StylesDatasource"), &second);
    EXPECT_THAT(context->GetDataSourceNames(), ElementsAre(OvxStringT(L"StylesDatasource")));
}

TEST_F(Context, RefusesADataSourceInThePlaceOfItsOwn)
{
    IDataSource* own = context->CreateDataSource(kKey);
    RecordingDataSource borrowed;

    const bool isTaken = context->AddDataSource(kKey, &borrowed);

    EXPECT_FALSE(isTaken);
    EXPECT_EQ(context->GetDataSource(kKey), own);
}

TEST_F(Context, RefusesNoDataSourceAtAll)
{
    const bool isTaken = context->AddDataSource(L"StylesDatasource", nullptr);

    EXPECT_FALSE(isTaken);
}

TEST_F(Context, ListsNamesInTheOrderInWhichTheyCameIn)
{
    RecordingDataSource borrowed;
    context->AddDataSource(L"StylesDatasource", &borrowed);
    context->CreateDataSource(kKey);

    EXPECT_THAT(context->GetDataSourceNames(), ElementsAre(OvxStringT(L"StylesDatasource"), kKey));
}
