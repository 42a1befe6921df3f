#include "host/data_binding/IBroadcaster.h"

#include "tests/reference_host/data_binding/CountedAllocations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

class Broadcaster : public IBroadcaster
{
public:
    Broadcaster() = default;
};

/// A broadcaster, and a record of what its listeners heard, as "listener:name".
class Listeners : public ::testing::Test
{
protected:
    std::function<void(const OvxStringT&)> Record(const std::wstring& listener)
    {
        return [this, listener](const OvxStringT& name) { heard.push_back(listener + L":" + name.Wide()); };
    }

    std::unique_ptr<Broadcaster> broadcaster = std::make_unique<Broadcaster>();
    std::vector<std::wstring> heard;
};

} // namespace

TEST_F(Listeners, HearTheirNameInTheOrderInWhichTheyWereAdded)
{
    broadcaster->AddListener(L"Title", Record(L"first"));
    broadcaster->AddListener(L"Colour", Record(L"other"));
    broadcaster->AddListener(L"Title", Record(L"second"));

    broadcaster->UpdateListeners(L"Title");

    EXPECT_THAT(heard, ElementsAre(L"first:Title", L"second:Title"));
}

TEST_F(Listeners, HearNamesThatAreJoinedByCommasOneByOne)
{
    broadcaster->AddListener(L"DeleteEnabled", Record(L"button"));
    broadcaster->AddListener(L"Current", Record(L"list"));

    broadcaster->UpdateListeners(L"Current,DeleteEnabled");

    EXPECT_THAT(heard, ElementsAre(L"list:Current", L"button:DeleteEnabled"));
}

TEST_F(Listeners, HearNothingForEmptyNames)
{
    broadcaster->AddListener(L"", Record(L"empty"));
    broadcaster->AddListener(L"Title", Record(L"title"));

    broadcaster->UpdateListeners(L",,Title,");

    EXPECT_THAT(heard, ElementsAre(L"title:Title"));
}

TEST_F(Listeners, HearNoNameThatOnlyBeginsLikeTheirs)
{
    broadcaster->AddListener(L"Title", Record(L"title"));

    broadcaster->UpdateListeners(L"TitleText, Title");

    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(Listeners, HearNothingAfterTheyWereRemoved)
{
    const ListenerToken token = broadcaster->AddListener(L"Title", Record(L"gone"));
    broadcaster->AddListener(L"Title", Record(L"kept"));

    broadcaster->RemoveListener(token);
    broadcaster->UpdateListeners(L"Title");

    EXPECT_THAT(heard, ElementsAre(L"kept:Title"));
}

TEST_F(Listeners, AreNotTouchedByAnUnknownToken)
{
    const ListenerToken token = broadcaster->AddListener(L"Title", Record(L"kept"));

    broadcaster->RemoveListener(ListenerToken());
    broadcaster->RemoveListener(ListenerToken{token.id + 1});
    broadcaster->UpdateListeners(L"Title");

    EXPECT_THAT(heard, ElementsAre(L"kept:Title"));
}

TEST_F(Listeners, MayRemoveThemselvesWhileTheyAreCalled)
{
    ListenerToken token;
    token = broadcaster->AddListener(L"Title",
                                     [&](const OvxStringT&)
                                     {
                                         heard.push_back(L"once");
                                         broadcaster->RemoveListener(token);
                                     });
    broadcaster->AddListener(L"Title", Record(L"next"));

    broadcaster->UpdateListeners(L"Title,Title");

    EXPECT_THAT(heard, ElementsAre(L"once", L"next:Title", L"next:Title"));
}

TEST_F(Listeners, ThatAreRemovedByAnotherBeforeTheirTurnAreNotCalled)
{
    ListenerToken later;
    broadcaster->AddListener(L"Title", [&](const OvxStringT&) { broadcaster->RemoveListener(later); });
    later = broadcaster->AddListener(L"Title", Record(L"later"));

    broadcaster->UpdateListeners(L"Title");

    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(Listeners, ThatAreAddedMeanwhileAreCalledTheNextTime)
{
    bool isFirst = true;
    broadcaster->AddListener(L"Title",
                             [&](const OvxStringT&)
                             {
                                 if (std::exchange(isFirst, false))
                                     broadcaster->AddListener(L"Title", Record(L"new"));
                             });

    broadcaster->UpdateListeners(L"Title");
    const std::vector<std::wstring> heardFirst = heard;
    broadcaster->UpdateListeners(L"Title");

    EXPECT_THAT(heardFirst, IsEmpty());
    EXPECT_THAT(heard, ElementsAre(L"new:Title"));
}

TEST_F(Listeners, ThatAreAddedMeanwhileHearANotificationFromInsideTheCall)
{
    bool isFirst = true;
    broadcaster->AddListener(L"Title",
                             [&](const OvxStringT&)
                             {
                                 if (!std::exchange(isFirst, false))
                                     return;
                                 broadcaster->AddListener(L"Title", Record(L"new"));
                                 broadcaster->UpdateListeners(L"Title");
                                 heard.push_back(L"inner done");
                             });

    broadcaster->UpdateListeners(L"Title");

    EXPECT_THAT(heard, ElementsAre(L"new:Title", L"inner done"));
}

TEST_F(Listeners, ThatAllEndInsideTheCallMayBeFollowedByNewOnes)
{
    ListenerToken token;
    token = broadcaster->AddListener(L"Title",
                                     [&](const OvxStringT&)
                                     {
                                         broadcaster->RemoveListener(token);
                                         broadcaster->AddListener(L"Title", Record(L"new"));
                                     });

    broadcaster->UpdateListeners(L"Title");
    broadcaster->UpdateListeners(L"Title");

    EXPECT_THAT(heard, ElementsAre(L"new:Title"));
}

TEST_F(Listeners, ThatEndInsideTheCallMayEndOthersWithWhatTheyHold)
{
    const ListenerToken other = broadcaster->AddListener(L"Title", Record(L"other"));
    std::shared_ptr<int> last(new int(1),
                              [&](const int* number)
                              {
                                  delete number;
                                  broadcaster->RemoveListener(other);
                              });
    ListenerToken token;
    token = broadcaster->AddListener(L"Title",
                                     [&, last](const OvxStringT&) { broadcaster->RemoveListener(token); });
    last.reset();

    broadcaster->UpdateListeners(L"Title");
    broadcaster->UpdateListeners(L"Title");

    EXPECT_THAT(heard, ElementsAre(L"other:Title"));
}

TEST_F(Listeners, MayDestroyTheBroadcasterAndNothingIsDeliveredAfterIt)
{
    broadcaster->AddListener(L"Title", [&](const OvxStringT&) { broadcaster.reset(); });
    broadcaster->AddListener(L"Title", Record(L"same name"));
    broadcaster->AddListener(L"Colour", Record(L"next name"));

    broadcaster->UpdateListeners(L"Title,Colour");

    EXPECT_EQ(broadcaster, nullptr);
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(Listeners, MayDestroyTheTextThatTheNamesLieIn)
{
    auto names = std::make_unique<OvxStringT>(L"a name of more than sixteen letters,Colour");
    broadcaster->AddListener(L"a name of more than sixteen letters",
                             [&](const OvxStringT&) { names.reset(); });
    broadcaster->AddListener(L"Colour", Record(L"colour"));

    broadcaster->UpdateListeners(*names);

    EXPECT_THAT(heard, ElementsAre(L"colour:Colour"));
}

TEST_F(Listeners, MayNotifyAgainFromInsideACall)
{
    broadcaster->AddListener(L"Title", [&](const OvxStringT&) { broadcaster->UpdateListeners(L"Colour"); });
    broadcaster->AddListener(L"Title", Record(L"title"));
    broadcaster->AddListener(L"Colour", Record(L"colour"));

    broadcaster->UpdateListeners(L"Title");

    EXPECT_THAT(heard, ElementsAre(L"colour:Colour", L"title:Title"));
}

TEST_F(Listeners, AreAllCalledAlthoughSomeThrowAndTheFirstFailureIsReported)
{
    broadcaster->AddListener(L"Title", [](const OvxStringT&) { throw std::runtime_error("first"); });
    broadcaster->AddListener(L"Title", [](const OvxStringT&) { throw std::runtime_error("second"); });
    broadcaster->AddListener(L"Title", Record(L"title"));
    broadcaster->AddListener(L"Colour", Record(L"colour"));

    std::string failure;
    try
    {
        broadcaster->UpdateListeners(L"Title,Colour");
    }
    catch (const std::runtime_error& thrown)
    {
        failure = thrown.what();
    }

    EXPECT_EQ(failure, "first");
    EXPECT_THAT(heard, ElementsAre(L"title:Title", L"colour:Colour"));
}

TEST_F(Listeners, LetGoOfWhatTheyHoldWhenTheyAreRemoved)
{
    auto held = std::make_shared<int>(1);
    const ListenerToken token = broadcaster->AddListener(L"Title", [held](const OvxStringT&) {});

    broadcaster->RemoveListener(token);

    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(Listeners, LetGoOfWhatTheyHoldWhenTheCallInWhichTheyEndIsOver)
{
    auto held = std::make_shared<int>(1);
    ListenerToken token;
    token = broadcaster->AddListener(L"Title",
                                     [&, held](const OvxStringT&) { broadcaster->RemoveListener(token); });

    broadcaster->UpdateListeners(L"Title");

    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(Listeners, AreCalledWithoutAnyAllocation)
{
    std::size_t calls = 0;
    for (int listener = 0; listener < 20; ++listener)
        broadcaster->AddListener(L"a name of many letters", [&calls](const OvxStringT&) { ++calls; });

    const std::size_t before = CountAllocations();
    broadcaster->UpdateListeners(L"a name of many letters");
    const std::size_t after = CountAllocations();

    EXPECT_EQ(calls, 20U);
    EXPECT_EQ(after, before);
}
