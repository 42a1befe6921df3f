// Creating a style from the selection, opening a style for editing, and making a style independent.

#include "tests/datasource/support/RecordingStylesEditor.h"
#include "tests/datasource/support/WritingTest.h"

namespace
{

using namespace Styles;
using OvxUtils::Any;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class CreateStyleFrom : public WritingTest
{
protected:
    int IsEnabledFor(const std::vector<Style*>& targets)
    {
        Target(panel, targets);
        return panel.Read<int>(L"CreateStyleFromEnable");
    }

    /// What the sheet and the source are asked for by the command.
    std::vector<std::string> Create()
    {
        log.Clear();
        panel.Invoke(L"OnCreateStyleFrom");
        return log.LinesOf({"sheet.", "source.CreateStyle"});
    }

    Style& base = styles.WithFill("base");
    Style& box = styles.WithFill("box");
};

TEST_F(CreateStyleFrom, TakesAnUnusedNameMadeOfTheCategory)
{
    Target(panel, {&box});

    EXPECT_THAT(Create(), ElementsAre("sheet.GetUnusedStyleName(fill)", "source.CreateStyle(fill, fill*)"));
}

TEST_F(CreateStyleFrom, TakesTheDerivedCategory)
{
    panel.category = OutlineStyleCategoryName;

    EXPECT_THAT(Create(),
                ElementsAre("sheet.GetUnusedStyleName(outline)", "source.CreateStyle(outline, outline*)"));
}

TEST_F(CreateStyleFrom, LeavesTheTargetsToTheSource)
{
    Target(panel, {});

    EXPECT_EQ(Create().size(), 2U) << "the enable is not asked";
}

TEST_F(CreateStyleFrom, DoesNothingWithoutASource)
{
    app.source = nullptr;

    EXPECT_THAT(Create(), IsEmpty());
}

TEST_F(CreateStyleFrom, DoesNothingWithoutASheet)
{
    source.sheet = nullptr;

    EXPECT_THAT(Create(), IsEmpty());
}

TEST_F(CreateStyleFrom, IsEnabledForAStyleThatNoOtherHolds)
{
    EXPECT_EQ(IsEnabledFor({&box}), 1);
    EXPECT_EQ(IsEnabledFor({&styles.OfCategory("alone", FillStyleCategoryName)}), 1);
}

TEST_F(CreateStyleFrom, IsDisabledForASubstyleWithoutAParent)
{
    box.SetParent(&base);

    EXPECT_EQ(IsEnabledFor({&FillOf(box)}), 0) << "the parent of its owner does not count";
}

TEST_F(CreateStyleFrom, IsEnabledForASubstyleWithAParent)
{
    FillOf(box).SetParent(&FillOf(base));

    EXPECT_EQ(IsEnabledFor({&FillOf(box)}), 1);
}

TEST_F(CreateStyleFrom, IsDisabledWithoutTargets)
{
    panel.hasTargets = true;

    EXPECT_EQ(IsEnabledFor({}), 0);
}

TEST_F(CreateStyleFrom, IsDisabledForANullFirst)
{
    EXPECT_EQ(IsEnabledFor({nullptr, &box}), 0);
}

TEST_F(CreateStyleFrom, LooksAtTheFirstTargetAlone)
{
    EXPECT_EQ(IsEnabledFor({&box, &FillOf(base), nullptr}), 1);
    EXPECT_EQ(IsEnabledFor({&FillOf(base), &box}), 0);
}

TEST_F(CreateStyleFrom, IsEnabledByTheFirstTargetItselfWhateverIsShownForIt)
{
    panel.givesTargetStyle = [](std::size_t) { return nullptr; };

    EXPECT_EQ(IsEnabledFor({&box}), 1);
}

// Edit style

class EditStyle : public WritingTest
{
protected:
    EditStyle()
    {
        NameInSheet(L"Base", base);
        context.dataSources[L"StylesDatasource"] = &editor;
        panel.SetDataSourceProvider(&context);
        Target(panel, {&box});
        log.Clear();
    }

    /// What context and editor are asked for by the command.
    std::vector<std::string> Edit()
    {
        panel.Invoke(L"OnEditStyle");
        return log.LinesOf({"context.", "editor."});
    }

    Style& base = styles.WithFill("base");
    Style& box = styles.WithFill("box", &base);
    RecordingStylesEditor editor{log};
};

TEST_F(EditStyle, OpensTheStyleThatTheFirstTargetInheritsFrom)
{
    EXPECT_EQ(panel.Read<int>(L"EditStyleEnable"), 1);

    EXPECT_THAT(Edit(), ElementsAre("context.GetDataSource(StylesDatasource)",
                                    "editor.EditStyle(Base, select=true, show=true)"));
}

TEST_F(EditStyle, GoesByWhatTheDerivedClassShowsFirst)
{
    Style& other = styles.WithFill("other");
    NameInSheet(L"Other", other);
    Style& circle = styles.WithFill("circle", &other);
    panel.givesTargetStyle = [&circle](std::size_t) { return &FillOf(circle); };

    EXPECT_EQ(panel.Read<int>(L"EditStyleEnable"), 1);
    EXPECT_THAT(Edit(), Contains("editor.EditStyle(Other, select=true, show=true)"));
}

TEST_F(EditStyle, IsDisabledWhereNothingShownHasANamedParent)
{
    sheet.entries.clear();

    EXPECT_EQ(panel.Read<int>(L"EditStyleEnable"), 0);
}

TEST_F(EditStyle, IsDisabledWithoutTargets)
{
    Target(panel, {});

    EXPECT_EQ(panel.Read<int>(L"EditStyleEnable"), 0);
}

TEST_F(EditStyle, IsDisabledWithoutASourceOrASheet)
{
    source.sheet = nullptr;
    EXPECT_EQ(panel.Read<int>(L"EditStyleEnable"), 0);

    app.source = nullptr;
    EXPECT_EQ(panel.Read<int>(L"EditStyleEnable"), 0);
}

TEST_F(EditStyle, HandsTheEditorAnEmptyNameWhereThereIsNone)
{
    Target(panel, {});
    log.Clear();

    EXPECT_THAT(Edit(), Contains("editor.EditStyle(, select=true, show=true)"))
        << "the enable is not asked, and the editor takes an empty name for none";
}

TEST_F(EditStyle, DoesNothingWithoutAnEditor)
{
    context.dataSources.clear();

    EXPECT_THAT(Edit(), ElementsAre("context.GetDataSource(StylesDatasource)"));
}

TEST_F(EditStyle, DoesNothingForADataSourceOfAnotherClass)
{
    PlainDataSource plain;
    context.dataSources[L"StylesDatasource"] = &plain;

    EXPECT_THAT(Edit(), ElementsAre("context.GetDataSource(StylesDatasource)"));
}

TEST_F(EditStyle, DoesNothingWithoutAContext)
{
    panel.SetDataSourceProvider(nullptr);

    EXPECT_THAT(Edit(), IsEmpty());
}

// No parent

class NoParent : public WritingTest
{
protected:
    NoParent()
    {
        FillOf(base).SetProperty(Key(L"type"), Any(4));
        log.Clear();
    }

    std::vector<std::string> Asked() const { return log.LinesOf({"source."}); }

    Style& base = styles.WithColor("base", 1);
    Style& box = styles.WithColor("box", 2, &base);
};

TEST_F(NoParent, ReplacesEveryPropertyByTheValueThatIsShown)
{
    panel.SetNoParent(&source, &box);

    EXPECT_THAT(Asked(), ElementsAre("source.ReplaceProperties(style=box, paths=[fill], "
                                     "values=style{fill.color=2, fill.type=4}, dropParent=true, "
                                     "reserved=false)"));
}

TEST_F(NoParent, ListsTheKeysInTheirOrder)
{
    panel.SetNoParent(&source, &FillOf(box));

    const PropertyPaths expected = MakePaths({Key(L"color"), Key(L"type")});
    EXPECT_THAT(Asked(), ElementsAre("source.ReplaceProperties(style=box.fill, paths=" + Describe(expected) +
                                     ", values=fill{color=2, type=4}, dropParent=true, reserved=false)"));
}

TEST_F(NoParent, AsksTheSourceThatItIsGiven)
{
    app.source = nullptr;

    panel.SetNoParent(&source, &box);

    EXPECT_EQ(Asked().size(), 1U);
}

TEST_F(NoParent, DoesNothingWithoutASource)
{
    panel.SetNoParent(nullptr, &box);

    EXPECT_THAT(Asked(), IsEmpty()) << "the active source is not looked for";
    EXPECT_EQ(box.GetParent(), &base);
}

TEST_F(NoParent, DoesNothingWithoutAStyle)
{
    panel.SetNoParent(&source, nullptr);

    EXPECT_THAT(Asked(), IsEmpty());
}

} // namespace
