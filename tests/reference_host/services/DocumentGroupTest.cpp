#include "reference_host/services/DocumentStylesSource.h"

#include "reference_host/services/Idle.h"
#include "tests/reference_host/services/EditedDrawing.h"

#include <stdexcept>

using Styles::Style;

namespace
{

/// A drawing whose panels count how often they are told to read again.
class Groups : public EditedDrawing
{
protected:
    Groups()
    {
        ReferenceHost::RunIdle();
        token = Broadcaster().Subscribe<Styles::PropertyKey, OvxStringT>(
            L"StylePropertiesChange",
            [this](const Styles::PropertyKey& category, const OvxStringT& text)
            {
                ++announcements;
                EXPECT_EQ(category, Styles::StyleCategoryName);
                EXPECT_EQ(text, OvxStringT());
            });
    }

    ~Groups() override { Broadcaster().Unsubscribe(token); }

    static IAppEventBroadcaster& Broadcaster()
    {
        return OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance();
    }

    ListenerToken token;
    int announcements = 0;
};

} // namespace

TEST_F(Groups, MakeOneStepAndOneAnnouncementOfALongDrag)
{
    const std::vector<std::string> before = Dump();
    source.BeginGroup();
    for (int write = 0; write < 1000; ++write)
        WriteColour({Shape(1), Shape(2), Shape(3)}, static_cast<std::uint8_t>(write % 200 + 1));
    source.EndGroup(true);

    ReferenceHost::RunIdle();

    EXPECT_EQ(history.GetStepCount(), 1U);
    EXPECT_EQ(announcements, 1);
    ExpectExactUndo(before);
}

TEST_F(Groups, LeaveNothingWhenTheyAreCancelled)
{
    const std::vector<std::string> before = Dump();
    source.BeginGroup();
    WriteColour({Shape(1), Shape(2)}, 0x77);
    source.EndGroup(false);
    ReferenceHost::RunIdle();

    EXPECT_EQ(Dump(), before);
    EXPECT_EQ(history.GetStepCount(), 0U);
    EXPECT_EQ(announcements, 0);
}

TEST_F(Groups, AreCancelledWithinAGestureThatGoesOn)
{
    history.Open(L"Gesture");
    WriteColour({Shape(1)}, 0x44);
    source.BeginGroup();
    WriteColour({Shape(1), Shape(2)}, 0x77);
    source.EndGroup(false);
    WriteColour({Shape(3)}, 0x55);
    history.Close();

    EXPECT_EQ(OwnOf(Shape(1), "fill.color"), "#440000");
    EXPECT_EQ(OwnOf(Shape(2), "fill.color"), "#220000");
    EXPECT_EQ(OwnOf(Shape(3), "fill.color"), "#550000");
    EXPECT_EQ(history.GetUndoName(), OvxStringT(L"Gesture"));
}

TEST_F(Groups, EndOnlyWhenTheyWereBegun)
{
    history.Open(L"Gesture");
    WriteColour({Shape(1)}, 0x44);

    source.EndGroup(false);
    source.EndGroup(true);

    EXPECT_TRUE(history.Close());
    EXPECT_EQ(OwnOf(Shape(1), "fill.color"), "#440000");
}

TEST_F(Groups, HaveTransactionOverridesWhileTheyAreOpen)
{
    const Styles::IModifyStyleOverrides* const before = source.GetTransactionOverrides();
    source.BeginGroup();
    source.BeginGroup();
    source.EndGroup(true);
    const Styles::IModifyStyleOverrides* const inside = source.GetTransactionOverrides();
    source.EndGroup(true);

    EXPECT_EQ(before, nullptr);
    EXPECT_NE(inside, nullptr);
    EXPECT_EQ(source.GetTransactionOverrides(), nullptr);
}

TEST_F(Groups, AreAnnouncedAgainWhenTheyAreUndoneAndRedone)
{
    WriteColour({Shape(1)}, 0x44);
    history.Undo();
    history.Redo();

    ReferenceHost::RunIdle();

    EXPECT_EQ(announcements, 3);
}

TEST_F(Groups, AreNotAnnouncedWhenOnlyDefaultStylesChange)
{
    opened.drawing->GetDefaultStyle().SetPathProperty({Key(L"fill"), Key(L"color")}, Colour(0x44));
    ASSERT_EQ(history.GetStepCount(), 1U);
    ReferenceHost::RunIdle();
    const int afterWriting = announcements;

    history.Undo();
    ReferenceHost::RunIdle();

    EXPECT_EQ(afterWriting, 0);
    EXPECT_EQ(announcements, 1);
}

TEST_F(Groups, AreNotAnnouncedWhenNothingChanges)
{
    WriteColour({Shape(3)}, 0x33);

    ReferenceHost::RunIdle();

    EXPECT_EQ(announcements, 0);
}
