// What is painted anew when styles were edited: where shapes were, and where they are.

#include "tests/desktop/canvas/CanvasFixture.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"
#include "reference_host/document/Drawing.h"
#include "reference_host/document/DrawingObject.h"

#include <string>
#include <utility>

namespace
{

const QColor kWhite(255, 255, 255);
const QColor kBlack(0, 0, 0);

/// A level line of 1 mm in black, and what becomes of it.
class RefreshedStyles : public CanvasTest
{
protected:
    void ShowLine(const std::string& properties = "")
    {
        Show(
            FlatDrawing()
                .Styles(R"(<draw:marker draw:name="A" svg:viewBox="0 0 20 20" svg:d="m10 0-10 20h20z"/>)")
                .Defaults(
                    R"(<style:graphic-properties draw:fill="none" draw:stroke="solid" svg:stroke-color="#000000" svg:stroke-width="1mm" )" +
                    properties + "/>")
                .Page(R"(<draw:line svg:x1="4cm" svg:y1="10cm" svg:x2="12cm" svg:y2="10cm"/>)"));
        static_cast<void>(Picture());
    }

    void SetOutline(const wchar_t* key, OvxUtils::Any value)
    {
        const auto keyOf = [](const wchar_t* text)
        { return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(text)); };
        session->GetDrawing().GetObjects().front().GetStyle()->SetPathProperty(
            {Styles::OutlineStyleCategoryName, keyOf(key)}, std::move(value));
        canvas.RefreshStyles();
    }

    /// Tells whether the canvas shows what one does that paints everything now.
    bool ShowsWhatIsThere()
    {
        const QImage shown = Picture();
        canvas.SetPage(0);
        return shown == Picture();
    }
};

TEST_F(RefreshedStyles, ReachAsFarAsALineThatBecameWider)
{
    ShowLine();
    ASSERT_EQ(ColourAt(8000, 11500), kWhite);

    SetOutline(L"width", OvxUtils::Any(4000));

    EXPECT_EQ(ColourAt(8000, 11500), kBlack);
    EXPECT_TRUE(ShowsWhatIsThere());
}

TEST_F(RefreshedStyles, LeaveNothingOfALineThatBecameThinner)
{
    ShowLine();
    SetOutline(L"width", OvxUtils::Any(4000));
    ASSERT_EQ(ColourAt(8000, 11500), kBlack);

    SetOutline(L"width", OvxUtils::Any(100));

    EXPECT_EQ(ColourAt(8000, 11500), kWhite);
    EXPECT_TRUE(ShowsWhatIsThere());
}

TEST_F(RefreshedStyles, LeaveNothingOfAnArrowThatWasTakenAway)
{
    ShowLine(R"(draw:marker-end-width="4cm")");
    SetOutline(L"end-arrow", OvxUtils::Any(OvxStringT(L"A")));
    ASSERT_EQ(ColourAt(9000, 11000), kBlack);

    SetOutline(L"end-arrow", OvxUtils::Any(OvxStringT()));

    EXPECT_EQ(ColourAt(9000, 11000), kWhite);
    EXPECT_TRUE(ShowsWhatIsThere());
}

TEST_F(RefreshedStyles, ReachAsFarAsTheShadowOfALineThatBecameWider)
{
    ShowLine(
        R"(draw:shadow="visible" draw:shadow-offset-x="0cm" draw:shadow-offset-y="8cm" draw:shadow-color="#000000")");
    ASSERT_EQ(ColourAt(8000, 19500), kWhite);

    SetOutline(L"width", OvxUtils::Any(4000));

    EXPECT_EQ(ColourAt(8000, 19500), kBlack);
    EXPECT_TRUE(ShowsWhatIsThere());
}

TEST_F(RefreshedStyles, LeaveNothingOfTheShadowOfALineThatBecameThinner)
{
    ShowLine(
        R"(draw:shadow="visible" draw:shadow-offset-x="0cm" draw:shadow-offset-y="8cm" draw:shadow-color="#000000")");
    SetOutline(L"width", OvxUtils::Any(4000));
    ASSERT_EQ(ColourAt(8000, 19500), kBlack);

    SetOutline(L"width", OvxUtils::Any(100));

    EXPECT_EQ(ColourAt(8000, 19500), kWhite);
    EXPECT_TRUE(ShowsWhatIsThere());
}

} // namespace
