#include "reference_host/data_binding/DataSourceLifetime.h"

#include "host/data_binding/DataSource.h"
#include "host/data_binding/EventQueue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

using ReferenceHost::DataSourceLifetime;
using ReferenceHost::IDataSourceOwner;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A data source that reports its end.
class Mortal : public DataSource<Mortal, false>
{
public:
    Mortal(std::vector<int>& record, int ownNumber) : ended(record), number(ownNumber) {}

    ~Mortal() override
    {
        ended.push_back(number);
        if (next != nullptr)
            next->Destroy();
    }

    IDataSource* next = nullptr; ///< Ended together with this one.

private:
    std::vector<int>& ended;
    int number;
};

namespace
{

class RecordingOwner final : public IDataSourceOwner
{
public:
    void OnDataSourceEnded(const IDataSource* dataSource) override { ended.push_back(dataSource); }

    std::vector<const IDataSource*> ended;
};

class DataSourceEnd : public ::testing::Test
{
protected:
    Mortal* Make(int number) { return std::make_unique<Mortal>(ended, number).release(); }

    /// Runs `call` inside a notification of an application-wide event.
    template <class Call>
    void DuringAnEvent(Call call)
    {
        EventQueue queue;
        queue.Subscribe(L"Event", [&](const std::vector<OvxUtils::Any>&) { call(); });
        queue.Notify(L"Event", {});
    }

    std::vector<int> ended;
};

} // namespace

TEST_F(DataSourceEnd, TakesEffectAtOnceOutsideOfNotifications)
{
    Make(1)->Destroy();

    EXPECT_THAT(ended, ElementsAre(1));
}

TEST_F(DataSourceEnd, WaitsForTheIdleStepWhileListenersOfAPropertyAreCalled)
{
    Mortal* mortal = Make(1);
    mortal->AddListener(L"Title", [&](const OvxStringT&) { mortal->Destroy(); });

    mortal->UpdateListeners(L"Title");
    const std::vector<int> endedBefore = ended;
    const std::size_t taken = DataSourceLifetime::TakeDeferred();

    EXPECT_THAT(endedBefore, IsEmpty());
    EXPECT_EQ(taken, 1U);
    EXPECT_THAT(ended, ElementsAre(1));
}

TEST_F(DataSourceEnd, WaitsForTheIdleStepWhileAnEventIsDelivered)
{
    Mortal* mortal = Make(1);

    DuringAnEvent([&] { mortal->Destroy(); });
    const std::vector<int> endedBefore = ended;
    DataSourceLifetime::TakeDeferred();

    EXPECT_THAT(endedBefore, IsEmpty());
    EXPECT_THAT(ended, ElementsAre(1));
}

TEST_F(DataSourceEnd, IsNotTakenWhileANotificationStillRuns)
{
    Mortal* mortal = Make(1);
    std::size_t takenInside = 0;

    DuringAnEvent(
        [&]
        {
            mortal->Destroy();
            takenInside = DataSourceLifetime::TakeDeferred();
        });

    EXPECT_EQ(takenInside, 0U);
    EXPECT_EQ(DataSourceLifetime::CountDeferred(), 1U);
    DataSourceLifetime::TakeDeferred();
}

TEST_F(DataSourceEnd, ComesOnceHoweverOftenItWasAskedFor)
{
    Mortal* mortal = Make(1);

    DuringAnEvent(
        [&]
        {
            mortal->Destroy();
            mortal->Destroy();
        });
    const std::size_t taken = DataSourceLifetime::TakeDeferred();

    EXPECT_EQ(taken, 1U);
    EXPECT_THAT(ended, ElementsAre(1));
}

TEST_F(DataSourceEnd, ComesInTheOrderInWhichItWasAskedFor)
{
    Mortal* first = Make(1);
    Mortal* second = Make(2);

    DuringAnEvent(
        [&]
        {
            second->Destroy();
            first->Destroy();
        });
    DataSourceLifetime::TakeDeferred();

    EXPECT_THAT(ended, ElementsAre(2, 1));
}

TEST_F(DataSourceEnd, MayEndAnotherDataSourceThatWaitsToo)
{
    Mortal* first = Make(1);
    first->next = Make(2);

    DuringAnEvent(
        [&]
        {
            first->Destroy();
            first->next->Destroy();
        });
    const std::size_t taken = DataSourceLifetime::TakeDeferred();

    EXPECT_THAT(ended, ElementsAre(1, 2));
    EXPECT_EQ(taken, 1U);
}

TEST_F(DataSourceEnd, ByOtherHandsWithdrawsTheOneThatWaits)
{
    std::unique_ptr<Mortal> mortal(Make(1));
    DuringAnEvent([&] { mortal->Destroy(); });

    mortal.reset();

    EXPECT_EQ(DataSourceLifetime::CountDeferred(), 0U);
    EXPECT_EQ(DataSourceLifetime::TakeDeferred(), 0U);
}

TEST_F(DataSourceEnd, IsToldToTheOwner)
{
    RecordingOwner owner;
    Mortal* mortal = Make(1);
    const IDataSource* address = mortal;
    DataSourceLifetime::SetOwner(*mortal, &owner);

    mortal->Destroy();

    EXPECT_THAT(owner.ended, ElementsAre(address));
}

TEST_F(DataSourceEnd, IsNotToldToAnOwnerThatWasForgotten)
{
    RecordingOwner owner;
    Mortal* mortal = Make(1);
    DataSourceLifetime::SetOwner(*mortal, &owner);
    DataSourceLifetime::SetOwner(*mortal, nullptr);

    mortal->Destroy();

    EXPECT_THAT(owner.ended, IsEmpty());
}
