// What holds for edits however many objects are selected.

#include "host/utils/Utf8.h"
#include "tests/workbench/EditorFixture.h"

#include <map>

using testing::Values;
using State = ActivePropertyState;

namespace WorkbenchTests
{
namespace
{

/// An editor on that many objects that inherit everything from "Base".
class EditorOnMany : public testing::TestWithParam<std::size_t>
{
protected:
    EditorOnMany() { open.Select(L"name:X"); }

    /// How often each name of each panel is heard of during `work`.
    template <class Work>
    [[nodiscard]] std::map<OvxStringT, int> Listen(const Work& work)
    {
        std::map<OvxStringT, int> heard;
        for (const auto& panel : open.GetSession().GetPanels())
        {
            const OvxStringT prefix = panel->GetDescription().name + OvxStringViewT(L" ");
            for (const OvxStringT& name : panel->GetBoundNames().GetNames())
                panel->GetDataSource().AddListener(name, [&heard, prefix](const OvxStringT& changed)
                                                   { ++heard[prefix + changed]; });
        }
        work();
        return heard;
    }

    OpenEditor open{ManyBoxes(GetParam())};
    Workbench::Editor& editor = open.editor;
};

std::string NameOf(const testing::TestParamInfo<std::size_t>& count)
{
    return std::to_string(count.param);
}

/// For what is done to whole styles, which takes long over many: every row of every panel is looked at.
class WholeStylesOfMany : public EditorOnMany
{
};

INSTANTIATE_TEST_SUITE_P(Count, EditorOnMany, Values(1, 2, 3, 500, 501, 10'000), NameOf);
INSTANTIATE_TEST_SUITE_P(Count, WholeStylesOfMany, Values(1, 2, 3, 500, 501), NameOf);

} // namespace

TEST_P(EditorOnMany, WritesToAllInOneStep)
{
    editor.Set({{L"fill.color", L"red"}, {L"outline.width", L"1mm"}});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#ff0000");
    EXPECT_EQ(open.Row(L"fill.color").state, State::Overridden);
    EXPECT_EQ(open.ValueOf(L"outline.width"), "100");
    EXPECT_EQ(editor.GetStepCount(), 1U);
    EXPECT_EQ(editor.DescribeChanges().size(), 2 * GetParam());
}

TEST_P(EditorOnMany, TellsEachNameOnceWhateverTheNumber)
{
    const auto heard = Listen([&] { open.Set(L"fill.color", L"red"); });

    EXPECT_EQ(heard.at(L"fill FillColor"), 1);
    EXPECT_EQ(heard.at(L"outline OutlineWidth"), 1);
    for (const auto& [name, count] : heard)
        EXPECT_EQ(count, 1) << OvxUtils::ToUtf8(name);
}

TEST_P(EditorOnMany, RevertsToWhatItWas)
{
    open.Set(L"fill.color", L"red");

    editor.Revert({L"fill.color"});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#3366cc");
    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
    EXPECT_TRUE(editor.DescribeChanges().empty());
}

TEST_P(WholeStylesOfMany, KeepsTheLookWhenTheWholeFillIsAppliedToTheParent)
{
    editor.Set({{L"fill.color", L"red"}, {L"fill.transparency", L"30"}});

    editor.ApplyToParent({L"fill"});

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#ff0000");
    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
    EXPECT_EQ(open.ValueOf(L"sheet:Base", L"fill.transparency"), "30");
    EXPECT_EQ(open.ValueOf(L"name:B", L"fill.color"), "#ff0000");
    EXPECT_EQ(editor.GetStepCount(), 2U);
}

TEST_P(EditorOnMany, TakesBackADragThatIsCancelled)
{
    editor.BeginGroup();
    for (const wchar_t* colour : {L"red", L"lime", L"blue"})
        open.Set(L"fill.color", colour);
    editor.EndGroup(false);

    EXPECT_EQ(open.ValueOf(L"fill.color"), "#3366cc");
    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
    EXPECT_EQ(editor.GetStepCount(), 0U);
}

TEST_P(WholeStylesOfMany, CreatesOneStyleForThoseThatAreAlike)
{
    open.Set(L"fill.color", L"red");

    editor.CreateStyle(L"style", L"Red");

    EXPECT_EQ(open.ValueOf(L"style.style"), "Red");
    EXPECT_EQ(open.ValueOf(L"fill.color"), "#ff0000");
    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
}

TEST_P(WholeStylesOfMany, UndoesAndRedoesEverything)
{
    open.Set(L"fill.color", L"red");
    open.Set(L"style.style", L"Accent");

    ASSERT_TRUE(editor.Undo());
    ASSERT_TRUE(editor.Undo());
    EXPECT_EQ(open.ValueOf(L"fill.color"), "#3366cc");
    EXPECT_EQ(open.Row(L"fill.color").state, State::Inherited);
    ASSERT_TRUE(editor.Redo());
    ASSERT_TRUE(editor.Redo());
    EXPECT_EQ(open.ValueOf(L"style.style"), "Accent");
    EXPECT_EQ(open.ValueOf(L"fill.color"), "#ff0000");
}

} // namespace WorkbenchTests
