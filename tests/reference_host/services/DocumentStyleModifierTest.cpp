#include "reference_host/services/DocumentStyleModifier.h"

#include "reference_host/services/TransactionOverrides.h"
#include "tests/reference_host/services/EditedDrawing.h"

using Styles::PropertyPaths;
using Styles::Style;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class StyleModifier : public EditedDrawing
{
protected:
    void Modify(const std::vector<Style*>& targets, const std::map<Style*, std::size_t>& objects,
                const PropertyPaths& paths, std::unique_ptr<Style> change,
                const PropertyPaths& overridePaths = {})
    {
        source.GetMultipleStyleModifier()->Modify(targets, objects, paths, std::move(change), overridePaths,
                                                  false, true, source.GetTransactionOverrides());
    }

    PropertyPaths fillColour{{Key(L"fill"), Key(L"color")}};
};

} // namespace

TEST_F(StyleModifier, WritesToEachTargetAndPassesOverNull)
{
    Modify({Shape(1), nullptr, Shape(3)}, {}, fillColour, Wrapped(*Change(L"fill", L"color", Colour(0x77))));

    EXPECT_EQ(OwnOf(Shape(1), "fill.color"), "#770000");
    EXPECT_EQ(OwnOf(Shape(2), "fill.color"), "#220000");
    EXPECT_EQ(OwnOf(Shape(3), "fill.color"), "#770000");
    EXPECT_EQ(OwnOf(Shape(1), "outline.width"), "100");
}

TEST_F(StyleModifier, ClearsWhatTheChangeDoesNotHold)
{
    Modify({Shape(1)}, {}, fillColour, Wrapped(Style(nullptr, Key(L"fill"))));

    EXPECT_EQ(OwnOf(Shape(1), "fill.color"), "-");
    EXPECT_EQ(EffectiveOf(Shape(1), "fill.color"), "#110000");
}

TEST_F(StyleModifier, WritesNothingWithoutAChange)
{
    Modify({Shape(1)}, {}, fillColour, nullptr);

    EXPECT_EQ(OwnOf(Shape(1), "fill.color"), "#220000");
    EXPECT_EQ(history.GetStepCount(), 0U);
}

TEST_F(StyleModifier, TakesTheCategoryOfATargetForTheTargetItself)
{
    Style change(nullptr, Styles::StyleCategoryName);
    change.SetPathProperty({Key(L"fill"), Key(L"color")}, Colour(0x77));

    Modify({Shape(1)}, {},
           {{Key(L"style"), Key(L"fill"), Key(L"color")}, {Key(L"style"), Key(L"outline"), Key(L"width")}},
           Wrapped(change));

    EXPECT_EQ(OwnOf(Shape(1), "fill.color"), "#770000");
    EXPECT_EQ(OwnOf(Shape(1), "outline.width"), "-");
    EXPECT_EQ(Shape(1)->GetSubstyle(Key(L"style"), false), nullptr);
}

TEST_F(StyleModifier, TakesTheCategoryAloneForEverythingThatTheTargetSets)
{
    Style change(nullptr, Styles::StyleCategoryName);
    change.SetPathProperty({Key(L"fill"), Key(L"transparency")}, OvxUtils::Any(30));

    Modify({Shape(2)}, {}, {{Key(L"style")}}, Wrapped(change));

    EXPECT_THAT(AllOwnOf(Shape(2)), ElementsAre("fill.transparency=30"));
}

TEST_F(StyleModifier, WritesToNamedStylesOfOneCategory)
{
    Style* const glow = opened.drawing->AddStyle(Styles::FillStyleCategoryName, L"Glow");

    Modify({glow}, {}, {{Key(L"color")}}, Change(L"fill", L"color", Colour(0x77)));
    Modify({glow}, {}, {{Key(L"fill"), Key(L"transparency")}},
           Wrapped(*Change(L"fill", L"transparency", OvxUtils::Any(30))));

    EXPECT_EQ(glow->GetProperty(Key(L"color")), Colour(0x77));
    EXPECT_EQ(glow->GetProperty(Key(L"transparency")), OvxUtils::Any(30));
}

TEST_F(StyleModifier, WritesOverridesToTheStylesOfTheObjects)
{
    Modify({opened.Named(L"Base")}, {{Shape(3), 1}}, {}, Wrapped(*Change(L"fill", L"color", Colour(0x77))),
           fillColour);

    EXPECT_EQ(OwnOf(opened.Named(L"Base"), "fill.color"), "#110000");
    EXPECT_EQ(OwnOf(Shape(3), "fill.color"), "#770000");
}

TEST_F(StyleModifier, WritesOverridesToTheTargetsWithoutObjects)
{
    Modify({Shape(3)}, {}, {}, Wrapped(*Change(L"fill", L"color", Colour(0x77))), fillColour);

    EXPECT_EQ(OwnOf(Shape(3), "fill.color"), "#770000");
}

TEST_F(StyleModifier, WritesOverridesOfOneCategoryToThatPartOfAnObject)
{
    Modify({}, {{Shape(3), 1}}, {}, Change(L"fill", L"color", Colour(0x77)), {{Key(L"color")}});

    EXPECT_EQ(OwnOf(Shape(3), "fill.color"), "#770000");
}

TEST_F(StyleModifier, LeavesExternalStylesWithoutALinkAlone)
{
    ReferenceHost::SetExternalSheet(*opened.Named(L"Base"), L"corporate", L"");
    ReferenceHost::SetExternalSheet(*opened.Named(L"Child"), L"corporate", L"here");

    Modify({opened.Named(L"Base"), opened.Named(L"Child")}, {}, fillColour,
           Wrapped(*Change(L"fill", L"color", Colour(0x77))));

    EXPECT_EQ(OwnOf(opened.Named(L"Base"), "fill.color"), "#110000");
    EXPECT_EQ(OwnOf(opened.Named(L"Child"), "fill.color"), "#770000");
}

TEST_F(StyleModifier, IsOneStepFromBeginToEnd)
{
    const std::vector<std::string> before = Dump();
    IMultipleStyleModifier& modifier = *source.GetMultipleStyleModifier();

    modifier.Begin();
    WriteColour({Shape(1)}, 0x77);
    WriteColour({Shape(2), Shape(3)}, 0x78);
    modifier.End();

    EXPECT_EQ(history.GetStepCount(), 1U);
    ExpectExactUndo(before);
}

TEST_F(StyleModifier, IgnoresAnEndWithoutABegin)
{
    history.Open(L"Gesture");

    source.GetMultipleStyleModifier()->End();

    EXPECT_TRUE(history.IsOpen());
}

TEST_F(StyleModifier, IsAStepByItselfOutsideOfBeginAndEnd)
{
    Modify({Shape(1), Shape(2)}, {}, fillColour, Wrapped(*Change(L"fill", L"color", Colour(0x77))));

    EXPECT_FALSE(history.IsOpen());
    EXPECT_EQ(history.GetStepCount(), 1U);
}

TEST_F(StyleModifier, RecordsNothingForAValueThatIsThere)
{
    WriteColour({Shape(3)}, 0x33);

    EXPECT_EQ(history.GetStepCount(), 0U);
}

TEST_F(StyleModifier, RecordsAValueThatIsOnlyInherited)
{
    Modify({Shape(3)}, {}, fillColour, Wrapped(Style(nullptr, Key(L"fill"))));

    WriteColour({Shape(3)}, 0x11);

    EXPECT_EQ(OwnOf(Shape(3), "fill.color"), "#110000");
    EXPECT_EQ(history.GetStepCount(), 2U);
}

TEST_F(StyleModifier, NotesWhatItWritesToObjectsInAGroup)
{
    source.BeginGroup();
    WriteColour({Shape(1)}, 0x77);
    WriteColour({Shape(1)}, 0x78);
    Modify({Shape(1)}, {}, {}, Wrapped(*Change(L"outline", L"width", OvxUtils::Any(1))),
           {{Key(L"outline"), Key(L"width")}});

    const auto* const noted =
        static_cast<ReferenceHost::TransactionOverrides*>(source.GetTransactionOverrides());
    const std::set<Styles::PropertyPath> expected{{Key(L"fill"), Key(L"color")},
                                                  {Key(L"outline"), Key(L"width")}};
    EXPECT_EQ(noted->GetPaths(), expected);
    source.EndGroup(true);
}

TEST_F(StyleModifier, NotesNothingThatItWritesToNamedStyles)
{
    source.BeginGroup();
    source.GetMultipleStyleModifier()->Modify({opened.Named(L"Base")}, {}, fillColour,
                                              Wrapped(*Change(L"fill", L"color", Colour(0x77))), {}, false,
                                              /*bound*/ false, source.GetTransactionOverrides());

    const auto* const noted =
        static_cast<ReferenceHost::TransactionOverrides*>(source.GetTransactionOverrides());
    EXPECT_THAT(noted->GetPaths(), IsEmpty());
    source.EndGroup(true);
}
