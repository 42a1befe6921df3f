// The texts of the menu entries of the style commands: each names what the first target inherits from.

#include "tests/datasource/support/ShownTexts.h"
#include "tests/datasource/support/WritingTest.h"

namespace
{

using namespace Styles;
using testing::ElementsAre;
using testing::IsEmpty;

class CommandMenu : public WritingTest
{
protected:
    CommandMenu() { TargetInheriting(L"Base"); }

    void TargetInheriting(const wchar_t* name)
    {
        sheet.entries = {{name, &base}};
        Target(panel, {&box});
        log.Clear();
    }

    OvxStringT Revert() const { return panel.Read<OvxStringT>(L"RevertToMenuString"); }

    Style& base = styles.WithFill("base");
    Style& box = styles.WithFill("box", &base);
};

TEST_F(CommandMenu, NamesTheParentStyleInEachEntry)
{
    EXPECT_EQ(Revert(), L"Revert to <Base>");
    EXPECT_EQ(panel.Read<OvxStringT>(L"ApplyToMenuString"), L"Apply to <Base>");
    EXPECT_EQ(panel.Read<OvxStringT>(L"EditStyleMenuString"), L"Edit <Base>");
}

TEST_F(CommandMenu, NamesItAsPeopleReadIt)
{
    EXPECT_EQ(Revert(), L"Revert to <Base>");
    EXPECT_THAT(log.LinesOf({"stylesApp"}), ElementsAre("stylesApp.GetDisplayStyleName(Base)"));
}

TEST_F(CommandMenu, NamesItAsItIsWithoutServicesForStyles)
{
    app.stylesApp = nullptr;

    EXPECT_EQ(Revert(), L"Revert to Base");
}

TEST_F(CommandMenu, DoublesTheAmpersandsOfTheName)
{
    TargetInheriting(L"R&D && More");

    EXPECT_EQ(Revert(), L"Revert to <R&&D &&&& More>");
}

TEST_F(CommandMenu, LeavesInsertsWithinTheNameAsTheyAre)
{
    TargetInheriting(L"%1 100%% %2");

    EXPECT_EQ(Revert(), L"Revert to <%1 100%% %2>");
}

TEST_F(CommandMenu, SpeaksOfTheParentStyleWhereItHasNoName)
{
    sheet.entries.clear();

    EXPECT_EQ(Revert(), L"Revert to " + ShownTexts::Of(ShownTexts::kUnnamedParent));
    EXPECT_THAT(log.LinesOf({"stylesApp"}), IsEmpty());
}

TEST_F(CommandMenu, SpeaksOfTheParentStyleWithoutTargets)
{
    Target(panel, {});

    EXPECT_EQ(Revert(), L"Revert to " + ShownTexts::Of(ShownTexts::kUnnamedParent));
}

TEST_F(CommandMenu, SpeaksOfTheParentStyleWithoutASheet)
{
    source.sheet = nullptr;

    EXPECT_EQ(Revert(), L"Revert to " + ShownTexts::Of(ShownTexts::kUnnamedParent));
}

TEST_F(CommandMenu, SpeaksOfTheParentStyleWithoutASource)
{
    app.source = nullptr;

    EXPECT_EQ(Revert(), L"Revert to " + ShownTexts::Of(ShownTexts::kUnnamedParent));
    EXPECT_THAT(log.LinesOf({"panel.GetTargetStyle"}), IsEmpty()) << "nothing is asked for a name";
}

TEST_F(CommandMenu, GoesByWhatTheDerivedClassShowsFirst)
{
    Style& other = styles.WithFill("other");
    sheet.entries.push_back({L"Other", &other});
    Style& circle = styles.WithFill("circle", &other);
    panel.givesTargetStyle = [&circle](std::size_t) { return &FillOf(circle); };

    EXPECT_EQ(Revert(), L"Revert to <Other>");
}

} // namespace
