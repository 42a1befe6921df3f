// Groups and history: how edits become steps.

#include "host/data_binding/IAppEventBroadcaster.h"
#include "tests/workbench/EditorFixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Workbench::EditError;

namespace WorkbenchTests
{
namespace
{

/// Counts how often "StylePropertiesChange" is delivered.
class ChangeEvents
{
public:
    ChangeEvents()
        : token(Broadcaster().SubscribeGeneric(L"StylePropertiesChange",
                                               [this](const std::vector<OvxUtils::Any>&) { ++count; }))
    {
    }

    ChangeEvents(const ChangeEvents&) = delete;
    ChangeEvents& operator=(const ChangeEvents&) = delete;

    ~ChangeEvents() { Broadcaster().Unsubscribe(token); }

    int count = 0;

private:
    static IAppEventBroadcaster& Broadcaster()
    {
        return OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance();
    }

    ListenerToken token;
};

} // namespace

using GroupOfEdits = EditorOnFourBoxes;

TEST_F(GroupOfEdits, IsOneStepForAThousandWritesAndOneEvent)
{
    open.Select(L"name:A");
    const ChangeEvents events;

    editor.BeginGroup();
    for (int width = 1; width <= 1'000; ++width)
        editor.Set({{L"outline.width", OvxStringT(std::to_wstring(width)) + OvxStringViewT(L"pt")}});
    editor.EndGroup(true);

    EXPECT_EQ(editor.GetStepCount(), 1U);
    EXPECT_EQ(events.count, 1);
    EXPECT_EQ(open.ValueOf(L"outline.width"), "35278");
}

TEST_F(GroupOfEdits, LeavesNothingWhenItIsCancelled)
{
    open.Select(L"all");
    const std::string before = open.Dump();

    editor.BeginGroup();
    editor.Set({{L"fill.color", L"red"}, {L"outline.width", L"1mm"}, {L"character.size", L"30pt"}});
    open.Set(L"style.style", L"Accent");
    editor.Revert({L"fill"});
    editor.EndGroup(false);

    EXPECT_EQ(open.Dump(), before);
    EXPECT_EQ(editor.GetStepCount(), 0U);
    EXPECT_FALSE(editor.Redo());
    EXPECT_THAT(open.Changes(), IsEmpty());
}

TEST_F(GroupOfEdits, IsUndoneAndRedoneAtOnce)
{
    const std::string before = open.Dump();
    editor.BeginGroup();
    open.Set(L"fill.color", L"red");
    open.Set(L"outline.width", L"1mm");
    open.Set(L"fill.color", L"lime");
    editor.EndGroup(true);
    const std::string after = open.Dump();

    ASSERT_TRUE(editor.Undo());
    EXPECT_EQ(open.Dump(), before);
    ASSERT_TRUE(editor.Redo());
    EXPECT_EQ(open.Dump(), after);
}

TEST_F(GroupOfEdits, IsNoStepWhenItEndsWhereItBegan)
{
    open.Select(L"name:B");

    editor.BeginGroup();
    open.Set(L"fill.color", L"lime");
    open.Set(L"fill.color", L"#ff0000");
    editor.EndGroup(true);

    EXPECT_EQ(editor.GetStepCount(), 0U);
}

TEST_F(GroupOfEdits, KeepsWhatCameBeforeAnEditThatFails)
{
    open.Select(L"name:A");

    editor.BeginGroup();
    open.Set(L"fill.color", L"red");
    EXPECT_THROW(editor.Revert({L"outline.join"}), EditError);
    editor.EndGroup(true);

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#ff0000");
    EXPECT_EQ(editor.GetStepCount(), 1U);
}

TEST_F(GroupOfEdits, AllowsNothingThatWouldCutIt)
{
    editor.BeginGroup();
    std::vector<std::string> warnings;

    EXPECT_EQ(open.ErrorOf([&] { open.Select(L"name:A"); }),
              "another selection is not possible while a group is open: end the group first");
    EXPECT_THROW(editor.BeginGroup(), EditError);
    EXPECT_THROW(editor.Undo(), EditError);
    EXPECT_THROW(editor.Redo(), EditError);
    EXPECT_THROW(editor.EditStyle(L"fill"), EditError);
    EXPECT_THROW(editor.Save("never.fodg", {}, warnings), EditError);
    EXPECT_TRUE(editor.IsGroupOpen());
}

TEST_F(GroupOfEdits, CannotEndWhenNoneIsOpen)
{
    EXPECT_EQ(open.ErrorOf([&] { editor.EndGroup(true); }), "there is no group to end: none is open");
}

using GroupOnDefaultStyles = EditorOnFourBoxes;

TEST_F(GroupOnDefaultStyles, WritesEachPanelsValuesWhereTheyBelongWhenItEnds)
{
    open.Select(L"defaults");

    editor.BeginGroup();
    open.Set(L"fill.color", L"red");
    open.Set(L"outline.width", L"1mm");
    open.Set(L"outline.width", L"2mm");
    open.Set(L"fill.color", L"lime");
    const std::string during = open.ValueOf(L"outline.width");
    editor.EndGroup(true);

    EXPECT_EQ(during, "-");
    EXPECT_EQ(open.ValueOf(L"fill.color"), "#00ff00");
    EXPECT_EQ(open.ValueOf(L"outline.width"), "200");
    EXPECT_EQ(editor.GetStepCount(), 1U);
}

TEST_F(GroupOnDefaultStyles, LeavesNothingWhenItIsCancelled)
{
    open.Select(L"defaults");
    const std::string before = open.Dump();

    editor.BeginGroup();
    open.Set(L"fill.color", L"red");
    open.Set(L"outline.width", L"1mm");
    editor.EndGroup(false);

    EXPECT_EQ(open.Dump(), before);
    EXPECT_EQ(editor.GetStepCount(), 0U);
}

TEST_F(GroupOnDefaultStyles, TakesValuesAwayWhenItEnds)
{
    open.Select(L"defaults");
    open.Set(L"outline.width", L"1mm");

    editor.BeginGroup();
    open.Set(L"outline.width", L"2mm");
    editor.Clear({L"outline.width", L"fill.color"});
    editor.EndGroup(true);

    EXPECT_EQ(open.ValueOf(L"outline.width"), "-");
    EXPECT_EQ(open.ValueOf(L"fill.color"), "-");
}

using HistoryOfAnEditor = EditorOnFourBoxes;

TEST_F(HistoryOfAnEditor, GoesBackAndForthThroughEveryKindOfEdit)
{
    const std::string original = open.Dump();
    open.Set(L"fill.color", L"palette:Sea");
    open.Select(L"name:B");
    editor.Revert({L"fill"});
    open.Set(L"outline.width", L"3mm");
    editor.ApplyToParent({L"outline.width"});
    editor.CreateStyle(L"style", L"New");
    open.Set(L"style.style", L"Accent");
    editor.DefineColours({{L"Sea", L"black"}});
    open.Select(L"defaults");
    open.Set(L"character.size", L"9pt");
    const std::string edited = open.Dump();
    const std::size_t steps = editor.GetStepCount();

    while (editor.Undo())
    {
    }
    EXPECT_EQ(open.Dump(), original);
    while (editor.Redo())
    {
    }
    EXPECT_EQ(open.Dump(), edited);
    EXPECT_EQ(editor.GetStepCount(), steps);
}

TEST_F(HistoryOfAnEditor, TellsWhenThereIsNothingToGoBackTo)
{
    EXPECT_FALSE(editor.Undo());
    EXPECT_FALSE(editor.Redo());
}

TEST_F(HistoryOfAnEditor, RaisesOneEventForEachStepAndEachStepBack)
{
    const ChangeEvents events;

    open.Set(L"fill.color", L"red");
    EXPECT_EQ(events.count, 1);
    editor.Undo();
    EXPECT_EQ(events.count, 2);
    editor.Redo();
    EXPECT_EQ(events.count, 3);
}

TEST(GroupThatIsLeftOpen, IsDroppedWithTheEditor)
{
    OpenEditor open(FourBoxes());
    const std::string before = open.Dump();
    open.editor.BeginGroup();
    open.Set(L"fill.color", L"red");

    open.EndEditor();

    EXPECT_EQ(open.Dump(), before);
    EXPECT_FALSE(open.GetSession().GetDrawing().GetHistory().CanUndo());
}

} // namespace WorkbenchTests
