// A panel as its author writes one: a class, a table, and overrides that the rows honour.

#include "host/data_binding/DataSource.h"
#include "host/style_model/CategoryNames.h"
#include "panels/PanelDatasource.h"
#include "panels/PanelRegistration.h"
#include "tests/panels/PanelFixture.h"

using OvxUtils::Any;
using State = ActivePropertyState;

namespace PanelTests
{

/// Stands at namespace scope, where an author's class stands: its type key tells.
class AuthorsPanelDatasource : public Panels::PanelDatasource, public DataSource<AuthorsPanelDatasource, true>
{
public:
    void FillDataSourceMap()
    {
        static constexpr auto kRows = Panels::Rows({
            {L"First", L"first"},
            {L"Second", L"second"},
            {L"Nested", L"group.inner"},
        });
        RegisterRows(kRows);
    }

    /// What the overrides answer instead of the base; empty for the base's own answers.
    Any shownValue;
    bool claimsLocal = false;
    State claimedState = State::None;
    bool claimsState = false;

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override { return Key(L"authors"); }

    [[nodiscard]] Any ReadValue(Styles::Style& categoryStyle, const Styles::PropertyPath& path) const override
    {
        return shownValue.IsEmpty() ? PanelDatasource::ReadValue(categoryStyle, path) : shownValue;
    }

    [[nodiscard]] bool DoesOverrideProperty(Styles::Style* style,
                                            const Styles::PropertyPath& path) const override
    {
        return claimsLocal || PanelDatasource::DoesOverrideProperty(style, path);
    }

    [[nodiscard]] ActivePropertyState GetActivePropertyState(const OvxStringT& identifier) const override
    {
        return claimsState ? claimedState : PanelDatasource::GetActivePropertyState(identifier);
    }
};

namespace
{

class AuthorsPanel : public PanelFixture
{
protected:
    Panels::PanelRegistration<AuthorsPanelDatasource> registration;
    AuthorsPanelDatasource& panel = dynamic_cast<AuthorsPanelDatasource&>(
        *context.CreateDataSource(L"PanelTests::AuthorsPanelDatasource"));
    Styles::Style* base = document.AddNamed(L"Base");
    Styles::Style* object = document.AddObject(base);
};

TEST_F(AuthorsPanel, ShowsTheValuesOfItsOwnCategory)
{
    Set(object, L"authors", L"second", Number(7));
    SetTargets(panel, {object});

    const RowAnswers answers = ReadRow(panel, L"Second");

    EXPECT_EQ(answers.value, Number(7));
    EXPECT_EQ(answers.origin, OvxStringT(L"local"));
}

TEST_F(AuthorsPanel, ShowsAPropertyInASubstyleOfItsCategory)
{
    base->SetPathProperty({Key(L"authors"), Key(L"group"), Key(L"inner")}, Number(3));
    object->SetPathProperty({Key(L"authors"), Key(L"group"), Key(L"inner")}, Number(4));
    SetTargets(panel, {object});

    const RowAnswers answers = ReadRow(panel, L"Nested");

    EXPECT_EQ(
        answers,
        (RowAnswers{
            .value = Number(4), .state = State::Overridden, .origin = L"local", .parentValue = Number(3)}));
}

TEST_F(AuthorsPanel, ShowsAnInheritedPropertyInASubstyleOfItsCategory)
{
    base->SetPathProperty({Key(L"authors"), Key(L"group"), Key(L"inner")}, Number(3));
    SetTargets(panel, {object});

    const RowAnswers answers = ReadRow(panel, L"Nested");

    EXPECT_EQ(answers.value, Number(3));
    EXPECT_EQ(answers.origin, OvxStringT(L"style:Base"));
    EXPECT_EQ(answers.parentValue, Number(3));
}

TEST_F(AuthorsPanel, ShowsAPropertyBelowAForcedOneAsAmbiguous)
{
    SetTargetsForcing(panel, document.AddObjects(2, base), L"authors", {Key(L"authors"), Key(L"group")});

    EXPECT_EQ(panel.Read<int>(L"NestedAmbiguous"), 1);
    EXPECT_EQ(panel.Read<int>(L"FirstAmbiguous"), 0);
}

TEST_F(AuthorsPanel, WritesAPropertyInASubstyleOfItsCategory)
{
    SetTargets(panel, {object});

    panel.WriteAny(L"Nested", Number(5));

    EXPECT_EQ(object->GetPathProperty({Key(L"authors"), Key(L"group"), Key(L"inner")}), Number(5));
    EXPECT_EQ(panel.Read<OvxStringT>(L"NestedOrigin"), OvxStringT(L"local"));
}

TEST_F(AuthorsPanel, AppliesAPropertyInASubstyleOfItsCategoryToTheParent)
{
    base->SetPathProperty({Key(L"authors"), Key(L"group"), Key(L"inner")}, Number(3));
    SetTargets(panel, {object});
    panel.WriteAny(L"Nested", Number(5));

    panel.Invoke(L"NestedApplyToParent");

    EXPECT_EQ(ReadRow(panel, L"Nested"), (RowAnswers{.value = Number(5),
                                                     .state = State::Inherited,
                                                     .origin = L"style:Base",
                                                     .parentValue = Number(5)}));
}

TEST_F(AuthorsPanel, TakesAPropertyInASubstyleOfItsCategoryAway)
{
    base->SetPathProperty({Key(L"authors"), Key(L"group"), Key(L"inner")}, Number(3));
    SetTargets(panel, {object});
    panel.WriteAny(L"Nested", Number(5));

    panel.WriteAny(L"Nested", Any());

    EXPECT_EQ(ReadRow(panel, L"Nested").origin, OvxStringT(L"style:Base"));
}

TEST_F(AuthorsPanel, ShowsWhatItsOverrideReads)
{
    panel.shownValue = Text(L"shown instead");
    SetTargets(panel, {object});

    EXPECT_EQ(panel.Read<Any>(L"First"), Text(L"shown instead"));
}

TEST_F(AuthorsPanel, TakesItsOverridesWordForWhatIsLocal)
{
    panel.claimsLocal = true;
    SetTargets(panel, {object});

    EXPECT_EQ(panel.Read<OvxStringT>(L"FirstOrigin"), OvxStringT(L"local"));
}

TEST_F(AuthorsPanel, ShowsTheStateThatItsOverrideTells)
{
    panel.claimsState = true;
    panel.claimedState = State::AmbiguousParent;
    SetTargets(panel, {object});

    EXPECT_EQ(panel.Read<int>(L"FirstState"), 4);
}

TEST_F(AuthorsPanel, AnswersFromTheTargetsAsTheyAreNow)
{
    Set(object, L"authors", L"first", Number(1));
    SetTargets(panel, {object});
    Set(object, L"authors", L"first", Number(2));

    EXPECT_EQ(panel.Read<Any>(L"First"), Number(2));
}

} // namespace

} // namespace PanelTests
