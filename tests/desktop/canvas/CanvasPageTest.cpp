#include "apps/desktop/canvas/CanvasPage.h"

#include "tests/reference_host/document/FlatDrawing.h"

#include "host/utils/Utf8.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace
{

/// A page and what is found on it.
class PagePointing : public testing::Test
{
protected:
    void Show(const std::string& shapes, const std::string& properties)
    {
        opened = FlatDrawing().Defaults("<style:graphic-properties " + properties + "/>").Page(shapes).Open();
        picture = opened.drawing->ReadPicture();
        materials.emplace(picture.definitions);
        page.emplace(picture.pages.at(0), *materials);
    }

    /// The id of what is there; "-" for nothing.
    std::string At(double x, double y, double tolerance = 0)
    {
        const ReferenceHost::DrawingObject* const found = page->FindAt({x, y}, tolerance);
        return found == nullptr ? "-" : OvxUtils::ToUtf8(found->GetId());
    }

    OpenedDrawing opened;
    ReferenceHost::DrawingPicture picture;
    std::optional<Desktop::PaintMaterials> materials;
    std::optional<Desktop::CanvasPage> page;
};

TEST_F(PagePointing, FindsAShapeInsideItsOutline)
{
    Show(R"(<draw:ellipse svg:width="2cm" svg:height="2cm"/>)", R"(draw:fill="solid" draw:stroke="none")");

    EXPECT_EQ(At(1000, 1000), "1/1");
    EXPECT_EQ(At(50, 50), "-") << "in the box and not in the ellipse";
}

TEST_F(PagePointing, FindsAShapeThatIsNotFilledAtItsLineOnly)
{
    Show(R"(<draw:rect svg:width="2cm" svg:height="2cm"/>)", R"(draw:fill="none" draw:stroke="solid")");

    EXPECT_EQ(At(1000, 1000, 10), "-");
    EXPECT_EQ(At(5, 1000, 10), "1/1");
}

TEST_F(PagePointing, FindsALineWithinTheToleranceAndItsWidth)
{
    Show(R"(<draw:line svg:x1="0cm" svg:y1="1cm" svg:x2="5cm" svg:y2="1cm"/>)",
         R"(draw:stroke="solid" svg:stroke-width="1mm")");

    EXPECT_EQ(At(2500, 1055, 10), "1/1");
    EXPECT_EQ(At(2500, 1065, 10), "-");
}

TEST_F(PagePointing, FindsAShapeAtItsText)
{
    Show(R"(<draw:rect svg:width="5cm" svg:height="2cm"><text:p>wide text</text:p></draw:rect>)",
         R"(draw:fill="none" draw:stroke="none")");

    EXPECT_EQ(At(500, 400), "1/1");
    EXPECT_EQ(At(500, 1900), "-");
}

TEST_F(PagePointing, FindsATurnedShapeWhereItIsSeen)
{
    Show(
        R"x(<draw:rect svg:width="4cm" svg:height="1cm" draw:transform="rotate (1.5707963267949) translate (2cm 6cm)"/>)x",
        R"(draw:fill="solid" draw:stroke="none")");

    EXPECT_EQ(At(2500, 3000), "1/1");
    EXPECT_EQ(At(4000, 5500), "-");
}

TEST_F(PagePointing, GivesOneFrameForAGroupThatIsSelected)
{
    Show(R"(<draw:g><draw:rect svg:width="1cm" svg:height="1cm"/>)"
         R"(<draw:rect svg:x="3cm" svg:width="1cm" svg:height="2cm"/></draw:g>)",
         "");
    auto& objects = opened.drawing->GetObjects();

    EXPECT_EQ(page->BoundsOf({&objects[0], &objects[1]}), std::vector{QRectF(0, 0, 4000, 2000)});
    EXPECT_EQ(page->BoundsOf({&objects[2]}), std::vector{QRectF(3000, 0, 1000, 2000)});
}

} // namespace
