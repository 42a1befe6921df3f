#include "tests/reference_host/document/FlatDrawing.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// The drawing that the project ships to try panels on; every value below stands beside its attribute there.
class SampleDrawing : public testing::Test
{
protected:
    void SetUp() override { opened.drawing = ReferenceHost::Drawing::Open(SAMPLE_DRAWING, opened.warnings); }

    /// The first object with a name.
    [[nodiscard]] ReferenceHost::DrawingObject* Called(const std::wstring& name) const
    {
        for (ReferenceHost::DrawingObject& object : opened.drawing->GetObjects())
        {
            if (object.GetName() == OvxStringT(name))
                return &object;
        }
        return nullptr;
    }

    OpenedDrawing opened;
};

TEST_F(SampleDrawing, OpensWithoutAWarning)
{
    EXPECT_THAT(opened.warnings, IsEmpty());
    EXPECT_EQ(opened.drawing->GetPages().size(), 2U);
}

TEST_F(SampleDrawing, HasAChainOfNamedStyles)
{
    EXPECT_EQ(opened.ParentOf(opened.Named(L"Accent")), L"Mid One");
    EXPECT_EQ(opened.ParentOf(opened.Named(L"Mid One")), L"Base");
    EXPECT_EQ(opened.ParentOf(opened.Named(L"Base")), L"standard");
    EXPECT_TRUE(opened.drawing->IsHidden(L"Guide"));
}

TEST_F(SampleDrawing, HasAPlainShapeThatInheritsAll)
{
    Styles::Style* const tank = Called(L"Tank")->GetStyle();

    EXPECT_THAT(AllOwnOf(tank), IsEmpty());
    EXPECT_EQ(EffectiveOf(tank, "fill.type"), "solid");
    EXPECT_EQ(EffectiveOf(tank, "fill.color"), "#2a6f97@Water");
    EXPECT_EQ(EffectiveOf(tank, "outline.width"), "100");
    EXPECT_EQ(EffectiveOf(tank, "outline.color"), "#264653");
    EXPECT_EQ(EffectiveOf(tank, "outline.cap"), "butt");
}

TEST_F(SampleDrawing, HasOverridesOfFillAndOutline)
{
    EXPECT_THAT(AllOwnOf(Called(L"Pump")->GetStyle()),
                ElementsAre("fill.color=#e9c46a", "fill.transparency=30"));
    EXPECT_THAT(AllOwnOf(Called(L"Valve")->GetStyle()),
                ElementsAre("outline.color=#e76f51", "outline.join=miter", "outline.transparency=20",
                            "outline.width=100"));
    EXPECT_THAT(AllOwnOf(Called(L"Gradient")->GetStyle()),
                ElementsAre("fill.gradient=\"Deep Water\"", "fill.type=gradient"));
    EXPECT_THAT(
        AllOwnOf(Called(L"Hose")->GetStyle()),
        ElementsAre("outline.dash=\"Hose Line\"", "outline.start-arrow=\"Round End\"", "outline.type=dash"));
}

TEST_F(SampleDrawing, HasNestedGroups)
{
    EXPECT_EQ(Called(L"Bed")->GetId(), OvxStringT(L"1/7"));
    EXPECT_EQ(Called(L"Rosemary")->GetId(), OvxStringT(L"1/7/2/3"));
    EXPECT_EQ(EffectiveOf(Called(L"Rosemary")->GetStyle(), "fill.color"), "#588157@Leaf");
}

TEST_F(SampleDrawing, HasTextThatDiffersFromItsShape)
{
    auto& runs = Called(L"Title")->GetRuns();

    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(EffectiveOf(runs[0].GetStyle(), "character.size"), "280");
    EXPECT_EQ(EffectiveOf(runs[0].GetStyle(), "character.font"), "\"DejaVu Serif\"");
    EXPECT_EQ(EffectiveOf(runs[0].GetStyle(), "character.posture"), "normal");
    EXPECT_EQ(EffectiveOf(runs[1].GetStyle(), "character.posture"), "italic");
    EXPECT_EQ(EffectiveOf(runs[1].GetStyle(), "character.letter-spacing"), "50");
}

TEST_F(SampleDrawing, HasAShapeWithoutAStyle)
{
    Styles::Style* const plain = Called(L"Plain")->GetStyle();

    EXPECT_EQ(opened.ParentOf(plain), L"standard");
    EXPECT_EQ(EffectiveOf(plain, "fill.color"), "#dddddd");
    EXPECT_EQ(EffectiveOf(plain, "outline.width"), "20");
}

} // namespace
