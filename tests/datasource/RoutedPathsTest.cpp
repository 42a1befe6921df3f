// Which paths the modifier is given as overrides and which as ordinary ones, and what it is told of the
// transaction.

#include "module/StylesCommon.h"
#include "tests/datasource/support/WritingTest.h"

namespace
{

using namespace Styles;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class RoutedPaths : public WritingTest
{
protected:
    RoutedPaths() { Target(panel, {&styles.OfCategory("alone", FillStyleCategoryName)}); }

    /// What the modifier is given for these lists.
    RecordedChange Write(const PropertyPaths& paths, const PropertyPaths* overridePaths)
    {
        panel.ModifyStyles(paths, Change(3), overridePaths);
        return modifier.Last();
    }

    RecordedChange Write(const PropertyPaths& paths, const PropertyPaths& overridePaths)
    {
        return Write(paths, &overridePaths);
    }
};

TEST_F(RoutedPaths, LoseOneThatIsWrittenAsAnOverride)
{
    const RecordedChange change = Write(Paths({L"color", L"type"}), Paths({L"color"}));

    EXPECT_EQ(change.paths, "[type]");
    EXPECT_EQ(change.overridePaths, "[color]");
}

TEST_F(RoutedPaths, LoseOnlyTheFirstOfEqualOnesForEachOverride)
{
    EXPECT_EQ(Write(Paths({L"color", L"type", L"color"}), Paths({L"color"})).paths, "[type, color]");
}

TEST_F(RoutedPaths, LoseOneForEachOfEqualOverrides)
{
    const RecordedChange change =
        Write(Paths({L"color", L"type", L"color", L"color"}), Paths({L"color", L"color"}));

    EXPECT_EQ(change.paths, "[type, color]");
    EXPECT_EQ(change.overridePaths, "[color, color]");
}

TEST_F(RoutedPaths, KeepTheirOrderWhateverThatOfTheOverrides)
{
    EXPECT_EQ(Write(Paths({L"c", L"b", L"a", L"d"}), Paths({L"a", L"c"})).paths, "[b, d]");
}

TEST_F(RoutedPaths, StayWhereAnOverrideIsNotAmongThem)
{
    const RecordedChange change = Write(Paths({L"color"}), Paths({L"type"}));

    EXPECT_EQ(change.paths, "[color]");
    EXPECT_EQ(change.overridePaths, "[type]");
}

TEST_F(RoutedPaths, StayWhereAnOverrideOnlyBeginsAlike)
{
    EXPECT_EQ(
        Write({Path({L"gradient"}), Path({L"gradient", L"start"})}, {Path({L"gradient", L"end"})}).paths,
        "[gradient, gradient.start]");
}

TEST_F(RoutedPaths, MayAllBeOverrides)
{
    const RecordedChange change = Write(Paths({L"color"}), Paths({L"color"}));

    EXPECT_EQ(change.paths, "[]");
    EXPECT_EQ(change.changeStyle, "fill{color=3}");
}

TEST_F(RoutedPaths, ComeWithAnEmptyOverrideListForNone)
{
    const RecordedChange change = Write(Paths({L"color"}), nullptr);

    EXPECT_EQ(change.paths, "[color]");
    EXPECT_EQ(change.overridePaths, "[]");
}

TEST_F(RoutedPaths, AreComparedBehindTheCategoryForWholeStyles)
{
    Target(panel, {&styles.WithFill("box")});

    const RecordedChange change = Write(Paths({L"color", L"type"}), Paths({L"type"}));

    EXPECT_EQ(change.paths, "[fill.color]");
    EXPECT_EQ(change.overridePaths, "[fill.type]");
}

class RoutedTransaction : public WritingTest
{
protected:
    RoutedTransaction()
    {
        source.transactionOverrides = transaction;
        Target(panel, {&box});
        log.Clear();
    }

    void NameTheTarget()
    {
        NameInSheet(L"Box", box);
        Target(panel, {&box});
        log.Clear();
    }

    Style& box = styles.WithFill("box");
};

TEST_F(RoutedTransaction, IsToldForObjectsOwnStyles)
{
    WriteColor(3);

    EXPECT_TRUE(modifier.Last().bound);
    EXPECT_EQ(modifier.Last().transactionOverrides, "transaction");
}

TEST_F(RoutedTransaction, IsNotToldNorAskedForWhenTheFirstTargetIsANamedStyle)
{
    NameTheTarget();

    WriteColor(3);

    EXPECT_FALSE(modifier.Last().bound);
    EXPECT_EQ(modifier.Last().transactionOverrides, "null");
    EXPECT_THAT(log.LinesOf({"panel.GetTransactionOverrides", "source.GetTransactionOverrides"}), IsEmpty());
}

TEST_F(RoutedTransaction, IsNotToldForANamedStyleThatIsExcluded)
{
    stylesApp.excludedNames = {L"Box"};
    NameTheTarget();

    WriteColor(3);

    EXPECT_FALSE(modifier.Last().bound);
}

TEST_F(RoutedTransaction, IsWhatTheDerivedClassSays)
{
    panel.transactionOverrides = nullptr;

    WriteColor(3);

    EXPECT_TRUE(modifier.Last().bound);
    EXPECT_EQ(modifier.Last().transactionOverrides, "null");
    EXPECT_THAT(log.Lines(), Contains("panel.GetTransactionOverrides()"));
    EXPECT_THAT(log.Lines(), Not(Contains("source.GetTransactionOverrides()")));
}

TEST_F(RoutedTransaction, IsNeverReserved)
{
    WriteColor(3);
    EXPECT_FALSE(modifier.Last().reserved);

    NameTheTarget();
    WriteColor(3);
    EXPECT_FALSE(modifier.Last().reserved);
}

TEST_F(RoutedTransaction, IsThatOfTheSource)
{
    EXPECT_EQ(panel.GetTransactionOverrides(), transaction);
    EXPECT_THAT(log.LinesOf({"source."}), ElementsAre("source.GetTransactionOverrides()"));
}

TEST_F(RoutedTransaction, IsNullWhereTheSourceHasNone)
{
    source.transactionOverrides = nullptr;

    EXPECT_EQ(panel.GetTransactionOverrides(), nullptr);
}

TEST_F(RoutedTransaction, IsNullWithoutASource)
{
    app.source = nullptr;

    EXPECT_EQ(panel.GetTransactionOverrides(), nullptr);
}

TEST_F(RoutedTransaction, IsNullWithoutAnApplication)
{
    StylesCommon::GetInstance().Initialize(nullptr);

    EXPECT_EQ(panel.GetTransactionOverrides(), nullptr);
}

} // namespace
