#include "host/data_binding/IReflectable.h"

#include "host/data_binding/ID_CString.h"
#include "tests/reference_host/data_binding/BoundNames.h"
#include "tests/reference_host/data_binding/CountedAllocations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using BoundNames::AddCommand;
using BoundNames::AddReadOnly;
using BoundNames::AddWritable;
using OvxUtils::Any;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace
{

/// A lamp with a level to read and write, a price to read, and a switch to press.
class Lamp : public IReflectable
{
public:
    Lamp()
    {
        AddWritable<int>(
            *this, L"Level", [this] { return level; }, [this](const int& newLevel) { level = newLevel; });
        AddCommand(*this, L"OnSwitch", [this] { level = level == 0 ? 100 : 0; });
        AddReadOnly<OvxStringT>(*this, L"Price", [] { return OvxStringT(L"19.90"); });
    }

    int level = 40;
};

template <class Exception, class Call>
std::string MessageOf(Call call)
{
    try
    {
        call();
    }
    catch (const Exception& failure)
    {
        return failure.what();
    }
    return "nothing was thrown";
}

} // namespace

TEST(BoundNames, AreListedInOrderOfRegistrationWithoutPrefixes)
{
    const Lamp lamp;

    EXPECT_THAT(lamp.GetNames(),
                ElementsAre(OvxStringT(L"Level"), OvxStringT(L"OnSwitch"), OvxStringT(L"Price")));
}

TEST(BoundNames, KeepTheirPlaceWhenTheyAreRegisteredAgain)
{
    Lamp lamp;

    AddReadOnly<int>(lamp, L"Level", [] { return 7; });

    EXPECT_THAT(lamp.GetNames(),
                ElementsAre(OvxStringT(L"Level"), OvxStringT(L"OnSwitch"), OvxStringT(L"Price")));
    EXPECT_EQ(lamp.Read<int>(L"Level"), 7);
}

TEST(BoundNames, OfCommandsMayBeginLikeGetters)
{
    Lamp lamp;
    int count = 0;

    AddCommand(lamp, L"get_ready", [&] { ++count; });
    lamp.Invoke(L"get_ready");

    EXPECT_EQ(lamp.GetNames().back(), OvxStringT(L"get_ready"));
    EXPECT_EQ(count, 1);
}

TEST(BoundNames, OfAnyLengthAreFound)
{
    Lamp lamp;
    const OvxStringT longName(std::wstring(500, L'n'));
    AddReadOnly<int>(lamp, longName, [] { return 5; });

    const int value = lamp.Read<int>(longName);

    EXPECT_EQ(value, 5);
}

TEST(Property, IsReadWithItsType)
{
    const Lamp lamp;

    EXPECT_EQ(lamp.Read<int>(L"Level"), 40);
    EXPECT_EQ(lamp.Read<OvxStringT>(L"Price"), OvxStringT(L"19.90"));
}

TEST(Property, IsWrittenWithItsType)
{
    Lamp lamp;

    lamp.Write<int>(L"Level", 65);

    EXPECT_EQ(lamp.level, 65);
}

TEST(Property, IsReadAndWrittenWithoutAllocating)
{
    Lamp lamp;
    const std::size_t before = CountAllocations();

    const int level = lamp.Read<int>(L"Level");
    lamp.Write<int>(L"Level", level + 1);

    EXPECT_EQ(CountAllocations(), before);
    EXPECT_EQ(lamp.level, 41);
}

TEST(Property, IsReadAndWrittenWithoutNamingItsType)
{
    Lamp lamp;

    lamp.WriteAny(L"Level", Any(12));

    EXPECT_EQ(lamp.ReadAny(L"Level"), Any(12));
}

TEST(Property, RefusesToBeReadAsAnotherType)
{
    const Lamp lamp;

    EXPECT_THROW((void)lamp.Read<bool>(L"Level"), std::bad_cast);
}

TEST(Property, RefusesToBeWrittenAsAnotherTypeAndStaysAsItIs)
{
    Lamp lamp;

    EXPECT_THROW(lamp.WriteAny(L"Level", Any(OvxStringT(L"12"))), std::bad_cast);
    EXPECT_THROW(lamp.Write<bool>(L"Level", true), std::bad_cast);
    EXPECT_EQ(lamp.level, 40);
}

TEST(Property, ThatIsUnknownIsNamedInTheFailure)
{
    const Lamp lamp;

    const std::string message = MessageOf<std::out_of_range>([&] { (void)lamp.ReadAny(L"Colour"); });

    EXPECT_THAT(message, HasSubstr("Colour"));
}

TEST(Property, WithoutASetterCannotBeWritten)
{
    Lamp lamp;

    EXPECT_THROW(lamp.WriteAny(L"Price", Any(OvxStringT(L"5"))), std::out_of_range);
}

TEST(Property, MayRegisterItselfAnewWhileItIsRead)
{
    Lamp lamp;
    AddReadOnly<int>(lamp, L"Once",
                     [&lamp, kept = std::string("a text that is too long to lie inside")]
                     {
                         AddReadOnly<int>(lamp, L"Once", [] { return 2; });
                         return static_cast<int>(kept.size());
                     });

    const int first = lamp.Read<int>(L"Once");

    EXPECT_EQ(first, 37);
    EXPECT_EQ(lamp.Read<int>(L"Once"), 2);
}

TEST(Property, OfTypeAnyReceivesTheCallersOwnAny)
{
    Lamp lamp;
    const Any question(ID_CString{L"color", {}});
    const Any* received = nullptr;
    AddWritable<Any>(
        lamp, L"Icon", [] { return Any(); }, [&](const Any& written) { received = &written; });

    lamp.WriteAny(L"Icon", question);

    EXPECT_EQ(received, &question);
}

TEST(Property, OfTypeAnyGivesItsValueAsItIs)
{
    Lamp lamp;
    AddReadOnly<Any>(lamp, L"Icon", [] { return Any(3); });

    const Any value = lamp.ReadAny(L"Icon");

    EXPECT_EQ(value, Any(3));
}

TEST(Command, RunsByItsName)
{
    Lamp lamp;

    lamp.Invoke(L"OnSwitch");

    EXPECT_EQ(lamp.level, 0);
}

TEST(Command, ThatIsUnknownIsNamedInTheFailure)
{
    Lamp lamp;

    const std::string message = MessageOf<std::out_of_range>([&] { lamp.Invoke(L"OnExplode"); });

    EXPECT_THAT(message, HasSubstr("OnExplode"));
}

TEST(Command, IsNoProperty)
{
    Lamp lamp;

    EXPECT_FALSE(lamp.HasProperty(L"OnSwitch"));
    EXPECT_FALSE(lamp.IsWritableProperty(L"OnSwitch"));
    EXPECT_THROW((void)lamp.ReadAny(L"OnSwitch"), std::out_of_range);
}

TEST(Command, IsNotReachedThroughTheDelegateOfAProperty)
{
    Lamp lamp;

    EXPECT_THROW(lamp.Invoke(L"Level"), std::out_of_range);
    EXPECT_THROW(lamp.Invoke(L"get_Level"), std::out_of_range);
}

TEST(TypeRecord, TellsTypeAndConstness)
{
    const Lamp lamp;

    EXPECT_EQ(lamp.GetTypeOf(L"Level"), runtime_type<int>());
    EXPECT_EQ(lamp.GetTypeOf(L"Price"), runtime_type<const OvxStringT>());
    EXPECT_EQ(lamp.GetTypeOf(L"OnSwitch"), runtime_type<void()>());
}

TEST(TypeRecord, OfAnUnknownNameIsThatOfNothing)
{
    const Lamp lamp;

    EXPECT_TRUE(lamp.GetTypeOf(L"Colour").IsEmpty());
    EXPECT_TRUE(lamp.GetTypeOf(L"get_Level").IsEmpty());
}

TEST(TypeRecord, DecidesWhatCanBeWritten)
{
    const Lamp lamp;

    EXPECT_TRUE(lamp.IsWritableProperty(L"Level"));
    EXPECT_FALSE(lamp.IsWritableProperty(L"Price"));
    EXPECT_FALSE(lamp.IsWritableProperty(L"Colour"));
}

namespace
{

/// Answers to one name beyond those that were registered.
class Chameleon : public Lamp
{
public:
    Chameleon()
    {
        skin.callback = OvxUtils::RepeatingCallbackMemento(
            OvxUtils::RepeatingCallback<int()>(std::function<int()>([] { return 99; })));
        skin.type = runtime_type<int()>();
    }

    const DynamicDelegate* GetDynamicDelegate(OvxStringViewT name) const override
    {
        return name == L"get_Skin" ? &skin : Lamp::GetDynamicDelegate(name);
    }

    RuntimeType GetDynamicType(OvxStringViewT name) const override
    {
        return name == L"Skin" ? runtime_type<const int>() : Lamp::GetDynamicType(name);
    }

private:
    DynamicDelegate skin;
};

} // namespace

TEST(DynamicNames, AreReadLikeRegisteredOnes)
{
    const Chameleon chameleon;

    EXPECT_TRUE(chameleon.HasProperty(L"Skin"));
    EXPECT_EQ(chameleon.Read<int>(L"Skin"), 99);
    EXPECT_EQ(chameleon.GetTypeOf(L"Skin"), runtime_type<const int>());
    EXPECT_FALSE(chameleon.IsWritableProperty(L"Skin"));
}

TEST(DynamicNames, LeaveRegisteredOnesInForce)
{
    const Chameleon chameleon;

    EXPECT_EQ(chameleon.Read<int>(L"Level"), 40);
}
