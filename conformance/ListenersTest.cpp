#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/data_binding/IBroadcaster.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

HOST_TESTS_SUBJECT(ListenersTest);

// Who is told that a property changed, when and in which order.
namespace HostTests
{

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class Broadcaster : public IBroadcaster
{
};

/// Listeners that take down what they hear. There is no host here: a broadcaster needs none.
class Listener : public testing::Test
{
protected:
    /// Adds a listener that takes down "WHO NAME", then does something more.
    ListenerToken Add(const wchar_t* name, const std::wstring& who, std::function<void()> andThen = {})
    {
        return broadcaster->AddListener(name,
                                        [this, who, andThen](const OvxStringT& changed)
                                        {
                                            heard.push_back(who + L" " + changed.Wide());
                                            if (andThen)
                                                andThen();
                                        });
    }

    std::unique_ptr<Broadcaster> broadcaster = std::make_unique<Broadcaster>();
    std::vector<std::wstring> heard;
};

} // namespace

TEST_F(Listener, HearsItsNameInTheOrderInWhichTheyCame)
{
    Add(L"Color", L"first");
    Add(L"Width", L"other");
    Add(L"Color", L"second");

    broadcaster->UpdateListeners(L"Color");

    EXPECT_THAT(heard, ElementsAre(L"first Color", L"second Color"));
}

TEST_F(Listener, HearsNamesJoinedByCommasOneByOne)
{
    Add(L"DeletePresetEnabled", L"enable");
    Add(L"CurrentPreset", L"preset");
    Add(L"Current", L"beginning");
    Add(L"CurrentPresets", L"longer");

    broadcaster->UpdateListeners(L"CurrentPreset,DeletePresetEnabled");

    EXPECT_THAT(heard, ElementsAre(L"preset CurrentPreset", L"enable DeletePresetEnabled"));
}

TEST_F(Listener, HearsNothingOfEmptyNames)
{
    Add(L"", L"empty");
    Add(L"Color", L"color");

    broadcaster->UpdateListeners(L"");
    broadcaster->UpdateListeners(L",Color,,");

    EXPECT_THAT(heard, ElementsAre(L"color Color"));
}

TEST_F(Listener, HearsNothingOnceItWasRemoved)
{
    const ListenerToken token = Add(L"Color", L"removed");
    Add(L"Color", L"kept");

    broadcaster->RemoveListener(token);
    broadcaster->RemoveListener(ListenerToken());
    broadcaster->UpdateListeners(L"Color");

    EXPECT_THAT(heard, ElementsAre(L"kept Color"));
}

TEST_F(Listener, HasATokenOfItsOwn)
{
    const ListenerToken first = Add(L"Color", L"first");
    broadcaster->RemoveListener(first);

    const ListenerToken second = Add(L"Color", L"second");

    EXPECT_NE(second, first);
    EXPECT_NE(second, ListenerToken());
}

TEST_F(Listener, MayRemoveItself)
{
    ListenerToken token;
    token = Add(L"Color", L"once", [&] { broadcaster->RemoveListener(token); });
    Add(L"Color", L"always");

    broadcaster->UpdateListeners(L"Color");
    broadcaster->UpdateListeners(L"Color");

    EXPECT_THAT(heard, ElementsAre(L"once Color", L"always Color", L"always Color"));
}

TEST_F(Listener, ThatIsRemovedBeforeItsTurnHearsNothing)
{
    ListenerToken later;
    ListenerToken ofAnotherName;
    Add(L"Color", L"first",
        [&]
        {
            broadcaster->RemoveListener(later);
            broadcaster->RemoveListener(ofAnotherName);
        });
    later = Add(L"Color", L"later");
    ofAnotherName = Add(L"Width", L"other");

    broadcaster->UpdateListeners(L"Color,Width");

    EXPECT_THAT(heard, ElementsAre(L"first Color"));
}

TEST_F(Listener, ThatIsAddedMeanwhileHearsTheNextChange)
{
    ListenerToken token;
    token = Add(L"Color", L"first",
                [&]
                {
                    broadcaster->RemoveListener(token);
                    Add(L"Color", L"new");
                });

    broadcaster->UpdateListeners(L"Color");
    EXPECT_THAT(heard, ElementsAre(L"first Color"));

    broadcaster->UpdateListeners(L"Color");
    EXPECT_THAT(heard, ElementsAre(L"first Color", L"new Color"));
}

TEST_F(Listener, MayDestroyTheBroadcaster)
{
    Add(L"Color", L"destroying", [&] { broadcaster.reset(); });
    Add(L"Color", L"behind");
    Add(L"Width", L"later");

    broadcaster->UpdateListeners(L"Color,Width");

    EXPECT_THAT(heard, ElementsAre(L"destroying Color"));
}

TEST_F(Listener, MayTellOfAnotherChange)
{
    Add(L"Color", L"first", [&] { broadcaster->UpdateListeners(L"Width"); });
    Add(L"Color", L"second");
    Add(L"Width", L"inner");

    broadcaster->UpdateListeners(L"Color");

    EXPECT_THAT(heard, ElementsAre(L"first Color", L"inner Width", L"second Color"));
}

TEST_F(Listener, IsCalledAlthoughOneBeforeItThrewAndTheFirstFailureComesThrough)
{
    Add(L"Color", L"first", [] { throw std::runtime_error("first"); });
    Add(L"Color", L"second", [] { throw std::logic_error("second"); });
    Add(L"Width", L"third");

    EXPECT_THROW(broadcaster->UpdateListeners(L"Color,Width"), std::runtime_error);

    EXPECT_THAT(heard, ElementsAre(L"first Color", L"second Color", L"third Width"));
}

TEST_F(Listener, LetsGoOfWhatItHoldsWhenItIsRemoved)
{
    const auto held = std::make_shared<int>(1);
    const ListenerToken token =
        broadcaster->AddListener(L"Color", [held](const OvxStringT&) { static_cast<void>(held); });

    broadcaster->RemoveListener(token);

    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(Listener, OfOneBroadcasterHearsNothingOfAnother)
{
    Add(L"Color", L"here");
    Broadcaster another;

    another.UpdateListeners(L"Color");

    EXPECT_THAT(heard, IsEmpty());
}

} // namespace HostTests
