#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/IMultipleStyleModifier.h"
#include "host/style_model/StyleSheet.h"

#include <gtest/gtest.h>

#include <memory>

HOST_TESTS_SUBJECT(GroupedChangesTest);

// Many writes that are one change, kept or taken back together.
namespace HostTests
{

using Styles::FillStyleCategoryName;
using Styles::Style;
using Styles::StyleCategoryName;

namespace
{

class Group : public HostTest
{
protected:
    Group() { fill.SetProperty(Key(L"color"), Number(1)); }

    void Write(const wchar_t* key, int value)
    {
        IMultipleStyleModifier& modifier = *GetSource().GetMultipleStyleModifier();
        modifier.Begin();
        modifier.Modify({&fill}, {}, {Path({key})}, Change(FillStyleCategoryName, key, value), {}, false,
                        true, GetSource().GetTransactionOverrides());
        modifier.End();
    }

    Style& named = *host->AddNamedStyle(StyleCategoryName, L"Named");
    Style& object = *host->AddObject().style;
    Style& fill = Part(object, FillStyleCategoryName);
};

} // namespace

TEST_F(Group, ThatIsCommittedKeepsWhatWasWritten)
{
    GetSource().BeginGroup();
    Write(L"color", 2);
    Write(L"type", 3);
    GetSource().EndGroup(true);

    EXPECT_EQ(OwnValue(fill, Path({L"color"})), Number(2));
    EXPECT_EQ(OwnValue(fill, Path({L"type"})), Number(3));
}

TEST_F(Group, ShowsWhatIsWrittenWhileItIsOpen)
{
    GetSource().BeginGroup();
    Write(L"color", 2);

    EXPECT_EQ(fill.GetProperty(Key(L"color")), Number(2));
    GetSource().EndGroup(false);
}

TEST_F(Group, ThatIsNotCommittedTakesBackWhatWasWritten)
{
    GetSource().BeginGroup();
    Write(L"color", 2);
    Write(L"color", 3);
    Write(L"type", 4);
    GetSource().EndGroup(false);

    EXPECT_EQ(OwnValue(fill, Path({L"color"})), Number(1));
    EXPECT_EQ(OwnValue(fill, Path({L"type"})), Nothing());
}

TEST_F(Group, ThatIsNotCommittedTakesBackParentsToo)
{
    Style& base = *host->AddNamedStyle(StyleCategoryName, L"Base");
    Style& another = *host->AddObject().style;
    object.SetParent(&base);

    GetSource().BeginGroup();
    GetSource().SetParent(&object, &named, true);
    GetSource().SetParent(&another, &named, true);
    GetSource().EndGroup(false);

    EXPECT_EQ(object.GetParent(), &base);
    EXPECT_EQ(another.GetParent(), nullptr);
}

TEST_F(Group, ThatIsNotCommittedTakesBackNamedStylesToo)
{
    GetSource().BeginGroup();
    GetSource().CreateStyle(FillStyleCategoryName, L"Made in a group");
    ASSERT_NE(GetSource().GetStyleSheet()->GetStyle(L"Made in a group"), nullptr);
    GetSource().EndGroup(false);

    EXPECT_EQ(GetSource().GetStyleSheet()->GetStyle(L"Made in a group"), nullptr);
}

// A drag over default styles is written at its end, past the modifier.
TEST_F(Group, ThatIsNotCommittedTakesBackWhatWasWrittenToDefaultStyles)
{
    if (GetSource().GetDefaultStyles().empty())
        GTEST_SKIP() << "the document has no default styles";
    Style& defaults = Part(*GetSource().GetDefaultStyles().front(), FillStyleCategoryName);
    defaults.SetProperty(Key(L"color"), Number(1));

    GetSource().BeginGroup();
    defaults.SetProperties({Path({L"color"})}, Change(FillStyleCategoryName, L"color", 2).get());
    GetSource().EndGroup(false);

    EXPECT_EQ(OwnValue(defaults, Path({L"color"})), Number(1));
}

TEST_F(Group, LeavesWhatWasWrittenBeforeAndAfterItAlone)
{
    Write(L"type", 2);
    GetSource().BeginGroup();
    Write(L"type", 3);
    GetSource().EndGroup(false);
    Write(L"width", 4);

    EXPECT_EQ(OwnValue(fill, Path({L"type"})), Number(2));
    EXPECT_EQ(OwnValue(fill, Path({L"width"})), Number(4));
}

TEST_F(Group, MayBeEmpty)
{
    GetSource().BeginGroup();
    GetSource().EndGroup(true);
    GetSource().BeginGroup();
    GetSource().EndGroup(false);

    EXPECT_EQ(OwnValue(fill, Path({L"color"})), Number(1));
}

} // namespace HostTests
