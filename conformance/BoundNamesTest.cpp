#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/data_binding/ID_CString.h"
#include "host/data_binding/IReflectable.h"
#include "host/utils/RepeatingCallback.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

HOST_TESTS_SUBJECT(BoundNamesTest);

// Properties and commands by their names, registered as the library registers them.
namespace HostTests
{

using OvxUtils::Any;
using OvxUtils::RepeatingCallback;
using OvxUtils::RepeatingCallbackMemento;
using testing::ElementsAre;

namespace
{

/// An object with a property to write, one to read, one of any type, and a command.
class Panel : public IReflectable
{
public:
    Panel()
    {
        Register<OvxStringT>(L"ActiveIdentifier", [this] { return identifier; });
        _AddDelegate(L"put_ActiveIdentifier",
                     RepeatingCallbackMemento(RepeatingCallback<void(const OvxStringT&)>(
                         [this](const OvxStringT& text) { identifier = text; })),
                     runtime_type<void(const OvxStringT&)>());
        _AddType(L"ActiveIdentifier", runtime_type<OvxStringT>());

        Register<int>(L"IsStyle", [] { return 1; });
        _AddType(L"IsStyle", runtime_type<const int>());

        Register<Any>(L"PropertyIcon", [] { return Any(7); });
        _AddDelegate(L"put_PropertyIcon",
                     RepeatingCallbackMemento(RepeatingCallback<void(const Any&)>([this](const Any& question)
                                                                                  { asked = &question; })),
                     runtime_type<void(const Any&)>());
        _AddType(L"PropertyIcon", runtime_type<Any>());

        _AddDelegate(L"OnRevert",
                     RepeatingCallbackMemento(RepeatingCallback<void()>([this] { ++revertCount; })),
                     runtime_type<void()>());
    }

    template <class T>
    void Register(const wchar_t* name, std::function<T()> getter)
    {
        _AddDelegate(OvxStringViewT(L"get_") + OvxStringViewT(name),
                     RepeatingCallbackMemento(RepeatingCallback<T()>(std::move(getter))),
                     runtime_type<T()>());
    }

    OvxStringT identifier = L"color";
    const Any* asked = nullptr;
    int revertCount = 0;
};

/// Answers to one name more than those that were registered.
class PanelWithDynamicName : public Panel
{
public:
    PanelWithDynamicName()
    {
        dynamic.callback =
            RepeatingCallbackMemento(RepeatingCallback<int()>(std::function<int()>([] { return 99; })));
        dynamic.type = runtime_type<int()>();
    }

    [[nodiscard]] const DynamicDelegate* GetDynamicDelegate(OvxStringViewT name) const override
    {
        return name == L"get_Dynamic" ? &dynamic : Panel::GetDynamicDelegate(name);
    }

    [[nodiscard]] RuntimeType GetDynamicType(OvxStringViewT name) const override
    {
        return name == L"Dynamic" ? runtime_type<const int>() : Panel::GetDynamicType(name);
    }

private:
    DynamicDelegate dynamic;
};

class BoundName : public testing::Test
{
protected:
    Panel panel;
};

} // namespace

TEST_F(BoundName, IsListedWithoutPrefixInOrderOfRegistration)
{
    EXPECT_THAT(panel.GetNames(), ElementsAre(OvxStringT(L"ActiveIdentifier"), OvxStringT(L"IsStyle"),
                                              OvxStringT(L"PropertyIcon"), OvxStringT(L"OnRevert")));
}

TEST_F(BoundName, KeepsItsPlaceAndTakesTheNewCallWhenItIsRegisteredAgain)
{
    panel.Register<int>(L"IsStyle", [] { return 0; });

    EXPECT_EQ(panel.GetNames().size(), 4U);
    EXPECT_EQ(panel.GetNames()[1], L"IsStyle");
    EXPECT_EQ(panel.Read<int>(L"IsStyle"), 0);
}

TEST_F(BoundName, IsReadAndWritten)
{
    panel.Write<OvxStringT>(L"ActiveIdentifier", L"width");

    EXPECT_EQ(panel.identifier, L"width");
    EXPECT_EQ(panel.Read<OvxStringT>(L"ActiveIdentifier"), L"width");
}

TEST_F(BoundName, IsReadAndWrittenWithoutNamingItsType)
{
    panel.WriteAny(L"ActiveIdentifier", Any(OvxStringT(L"width")));

    EXPECT_EQ(panel.ReadAny(L"ActiveIdentifier"), Any(OvxStringT(L"width")));
    EXPECT_EQ(panel.ReadAny(L"IsStyle"), Any(1));
}

TEST_F(BoundName, OfAPropertyOfAnyTypeHandsOnTheVeryValue)
{
    const Any question(ID_CString{L"color", L""});

    panel.WriteAny(L"PropertyIcon", question);
    EXPECT_EQ(panel.asked, &question);

    panel.Write<Any>(L"PropertyIcon", question);
    EXPECT_EQ(panel.asked, &question);
    EXPECT_EQ(panel.ReadAny(L"PropertyIcon"), Any(7));
}

TEST_F(BoundName, OfACommandRunsIt)
{
    panel.Invoke(L"OnRevert");

    EXPECT_EQ(panel.revertCount, 1);
    EXPECT_FALSE(panel.HasProperty(L"OnRevert"));
    EXPECT_TRUE(panel.HasProperty(L"IsStyle"));
}

TEST_F(BoundName, OfAPropertyRunsNothing)
{
    EXPECT_THROW(panel.Invoke(L"IsStyle"), std::out_of_range);
    EXPECT_THROW(panel.Invoke(L"get_IsStyle"), std::out_of_range);
    EXPECT_THROW(static_cast<void>(panel.ReadAny(L"OnRevert")), std::out_of_range);
}

TEST_F(BoundName, ThatIsUnknownIsRefused)
{
    EXPECT_FALSE(panel.HasProperty(L"Unknown"));
    EXPECT_THROW(static_cast<void>(panel.Read<int>(L"Unknown")), std::out_of_range);
    EXPECT_THROW(panel.Write<int>(L"Unknown", 1), std::out_of_range);
    EXPECT_THROW(panel.WriteAny(L"Unknown", Any(1)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(panel.ReadAny(L"Unknown")), std::out_of_range);
    EXPECT_THROW(panel.Invoke(L"Unknown"), std::out_of_range);
}

TEST_F(BoundName, WithoutASetterIsNotWritten)
{
    EXPECT_THROW(panel.Write<int>(L"IsStyle", 0), std::out_of_range);
    EXPECT_THROW(panel.WriteAny(L"IsStyle", Any(0)), std::out_of_range);
}

TEST_F(BoundName, OfAnotherTypeIsRefused)
{
    EXPECT_THROW(static_cast<void>(panel.Read<int>(L"ActiveIdentifier")), std::bad_cast);
    EXPECT_THROW(panel.Write<int>(L"ActiveIdentifier", 1), std::bad_cast);
    EXPECT_THROW(panel.WriteAny(L"ActiveIdentifier", Any(1)), std::bad_cast);
    EXPECT_EQ(panel.identifier, L"color");
}

TEST_F(BoundName, TellsItsTypeAndWhetherItCanBeWritten)
{
    EXPECT_EQ(panel.GetTypeOf(L"ActiveIdentifier"), runtime_type<OvxStringT>());
    EXPECT_EQ(panel.GetTypeOf(L"IsStyle"), runtime_type<const int>());
    EXPECT_EQ(panel.GetTypeOf(L"OnRevert"), runtime_type<void()>());
    EXPECT_TRUE(panel.GetTypeOf(L"Unknown").IsEmpty());
    EXPECT_EQ(panel.GetDynamicType(L"IsStyle"), runtime_type<const int>());
    EXPECT_TRUE(panel.IsWritableProperty(L"ActiveIdentifier"));
    EXPECT_FALSE(panel.IsWritableProperty(L"IsStyle"));
    EXPECT_FALSE(panel.IsWritableProperty(L"OnRevert"));
    EXPECT_FALSE(panel.IsWritableProperty(L"Unknown"));
}

TEST_F(BoundName, MayBeRegisteredAnewWhileItIsRead)
{
    panel.Register<int>(L"Once",
                        [this, kept = std::string("a text that is too long to lie inside")]
                        {
                            panel.Register<int>(L"Once", [] { return 2; });
                            return static_cast<int>(kept.size());
                        });

    EXPECT_EQ(panel.Read<int>(L"Once"), 37);
    EXPECT_EQ(panel.Read<int>(L"Once"), 2);
}

TEST_F(BoundName, ThatComesAndGoesIsReadLikeARegisteredOne)
{
    const PanelWithDynamicName changing;

    EXPECT_TRUE(changing.HasProperty(L"Dynamic"));
    EXPECT_EQ(changing.Read<int>(L"Dynamic"), 99);
    EXPECT_EQ(changing.ReadAny(L"Dynamic"), Any(99));
    EXPECT_EQ(changing.GetTypeOf(L"Dynamic"), runtime_type<const int>());
    EXPECT_FALSE(changing.IsWritableProperty(L"Dynamic"));
    EXPECT_EQ(changing.Read<int>(L"IsStyle"), 1);
}

TEST_F(BoundName, HasACallUnderItsPrefixes)
{
    ASSERT_NE(panel.GetDynamicDelegate(L"get_IsStyle"), nullptr);
    EXPECT_EQ(panel.GetDynamicDelegate(L"get_IsStyle")->callback.Invoke(), Any(1));
    EXPECT_EQ(panel.GetDynamicDelegate(L"get_IsStyle")->type, runtime_type<int()>());
    EXPECT_NE(panel.GetDynamicDelegate(L"put_ActiveIdentifier"), nullptr);
    EXPECT_NE(panel.GetDynamicDelegate(L"OnRevert"), nullptr);
    EXPECT_EQ(panel.GetDynamicDelegate(L"put_IsStyle"), nullptr);
    EXPECT_EQ(panel.GetDynamicDelegate(L"IsStyle"), nullptr);
}

} // namespace HostTests
