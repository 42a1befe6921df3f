#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"

#include <gtest/gtest.h>

#include <string>

HOST_TESTS_SUBJECT(SubstylesTest);

// The styles within a style.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::OutlineStyleCategoryName;
using Styles::PropertyKey;
using Styles::Style;
using Styles::StyleCategoryName;

namespace
{

class Substyle : public HostTest
{
protected:
    Style whole{nullptr, StyleCategoryName};
};

} // namespace

TEST_F(Substyle, IsNotThereBeforeItWasMade)
{
    EXPECT_EQ(whole.GetSubstyle(FillStyleCategoryName, true), nullptr);
    EXPECT_EQ(whole.GetSubstyle(FillStyleCategoryName, false), nullptr);
}

TEST_F(Substyle, IsMadeWithTheCategoryAskedForAndOwned)
{
    Style* const made = whole.GetSubstyleAndCreateIfMissing(Key(L"first"), FillStyleCategoryName);

    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetCategoryName(), FillStyleCategoryName);
    EXPECT_EQ(made->GetOwner(), &whole);
    EXPECT_EQ(made->GetParent(), nullptr);
    EXPECT_TRUE(made->IsEmpty());
    EXPECT_EQ(whole.GetSubstyle(Key(L"first"), true), made);
    EXPECT_EQ(whole.GetSubstyle(Key(L"first"), false), made);
}

TEST_F(Substyle, ThatIsThereIsGivenAsItIs)
{
    Style* const made = whole.GetSubstyleAndCreateIfMissing(Key(L"first"), FillStyleCategoryName);

    EXPECT_EQ(whole.GetSubstyleAndCreateIfMissing(Key(L"first"), OutlineStyleCategoryName), made);
    EXPECT_EQ(made->GetCategoryName(), FillStyleCategoryName);
}

TEST_F(Substyle, KeepsItsAddressWhileOthersAreMade)
{
    Style* const made = whole.GetSubstyleAndCreateIfMissing(FillStyleCategoryName, FillStyleCategoryName);

    for (int i = 0; i < 50; ++i)
    {
        const PropertyKey key = Key(std::to_wstring(i).c_str());
        whole.GetSubstyleAndCreateIfMissing(key, key);
    }

    EXPECT_EQ(whole.GetSubstyle(FillStyleCategoryName, false), made);
}

TEST_F(Substyle, IsReplacedByACopy)
{
    const auto values = Change(FillStyleCategoryName, L"color", 1);

    whole.SetSubstyle(FillStyleCategoryName, values.get());
    values->SetProperty(Key(L"color"), Number(2));

    const Style* const kept = whole.GetSubstyle(FillStyleCategoryName, false);
    ASSERT_NE(kept, nullptr);
    EXPECT_EQ(kept->GetProperty(Key(L"color")), Number(1));
    EXPECT_EQ(kept->GetCategoryName(), FillStyleCategoryName);
    EXPECT_EQ(kept->GetOwner(), &whole);
}

TEST_F(Substyle, ThatIsReplacedStaysTheSameObjectAndForgetsWhatItSet)
{
    Style* const made = whole.GetSubstyleAndCreateIfMissing(FillStyleCategoryName, FillStyleCategoryName);
    made->SetProperty(Key(L"type"), Number(3));

    whole.SetSubstyle(FillStyleCategoryName, Change(FillStyleCategoryName, L"color", 1).get());

    EXPECT_EQ(whole.GetSubstyle(FillStyleCategoryName, false), made);
    EXPECT_EQ(OwnValue(*made, Path({L"type"})), Nothing());
    EXPECT_EQ(OwnValue(*made, Path({L"color"})), Number(1));
}

TEST_F(Substyle, IsRemovedByNull)
{
    whole.SetSubstyle(FillStyleCategoryName, Change(FillStyleCategoryName, L"color", 1).get());

    whole.SetSubstyle(FillStyleCategoryName, nullptr);

    EXPECT_EQ(whole.GetSubstyle(FillStyleCategoryName, false), nullptr);
    EXPECT_TRUE(whole.IsEmpty());
}

TEST_F(Substyle, IsNeverKeptUnderTheEmptyKey)
{
    whole.SetSubstyle(PropertyKey::Empty, Change(FillStyleCategoryName, L"color", 1).get());

    EXPECT_EQ(whole.GetSubstyle(PropertyKey::Empty, false), nullptr);
    EXPECT_EQ(whole.GetSubstyleAndCreateIfMissing(PropertyKey::Empty, FillStyleCategoryName), nullptr);
}

TEST_F(Substyle, MakesItsOwnerNotEmptyEvenWhenItIsEmpty)
{
    ASSERT_TRUE(whole.IsEmpty());

    whole.GetSubstyleAndCreateIfMissing(FillStyleCategoryName, FillStyleCategoryName);

    EXPECT_FALSE(whole.IsEmpty());
}

TEST_F(Substyle, GoesWhenItIsClearedAsEmptyTogetherWithWhatHoldsNothingElse)
{
    Style* const fill = whole.GetSubstyleAndCreateIfMissing(FillStyleCategoryName, FillStyleCategoryName);
    fill->GetSubstyleAndCreateIfMissing(Key(L"shade"), Key(L"shade"));
    whole.SetPathProperty(Path({L"outline", L"width"}), Number(1));

    Styles::ClearEmptySubstyles(whole);

    EXPECT_EQ(whole.GetSubstyle(FillStyleCategoryName, false), nullptr);
    EXPECT_NE(whole.GetSubstyle(OutlineStyleCategoryName, false), nullptr);
}

TEST_F(Substyle, KnowsWhoOwnsIt)
{
    const Style* const fill =
        whole.GetSubstyleAndCreateIfMissing(FillStyleCategoryName, FillStyleCategoryName);

    EXPECT_EQ(Styles::GetSubstyleParent(*fill), &whole);
    EXPECT_EQ(Styles::GetSubstyleParent(whole), nullptr);
    EXPECT_EQ(whole.GetOwner(), nullptr);
}

TEST_F(Substyle, OfACategoryIsTheStyleItselfWhenItIsOfThatCategory)
{
    Style fill(nullptr, FillStyleCategoryName);

    EXPECT_EQ(Styles::GetStyleOrSubstyle(&fill, FillStyleCategoryName, false), &fill);
    EXPECT_EQ(Styles::GetStyleOrSubstyle(&whole, StyleCategoryName, true), &whole);
}

TEST_F(Substyle, OfACategoryIsMadeOnlyOnDemand)
{
    EXPECT_EQ(Styles::GetStyleOrSubstyle(&whole, FillStyleCategoryName, false), nullptr);

    Style* const made = Styles::GetStyleOrSubstyle(&whole, FillStyleCategoryName, true);

    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetCategoryName(), FillStyleCategoryName);
    EXPECT_EQ(Styles::GetStyleOrSubstyle(&whole, FillStyleCategoryName, false), made);
}

TEST_F(Substyle, OfNoStyleIsNone)
{
    EXPECT_EQ(Styles::GetStyleOrSubstyle(nullptr, FillStyleCategoryName, true), nullptr);
}

TEST_F(Substyle, OfAnObjectCanBeHadForEachCategory)
{
    Style& object = *host->AddObject().style;

    for (const PropertyKey& category :
         {FillStyleCategoryName, OutlineStyleCategoryName, Styles::GetParagraphStyleCategoryName(),
          Styles::GetCharacterStyleCategoryName()})
    {
        EXPECT_EQ(Part(object, category).GetCategoryName(), category);
        EXPECT_EQ(Part(object, category).GetOwner(), &object);
    }
}

} // namespace HostTests
