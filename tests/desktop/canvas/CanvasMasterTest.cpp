// What master pages show behind the shapes of pages.

#include "tests/desktop/canvas/CanvasFixture.h"
#include "tests/reference_host/document/ZipBuilder.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"
#include "reference_host/document/Drawing.h"

#include <string>

namespace
{

const QColor kWhite(255, 255, 255);
const QColor kRed(255, 0, 0);
const QColor kBlue(0, 0, 255);

/// A blue square of 8 cm at (2, 2) cm by a style of its own, which a red one by the style "Red" lies beside.
constexpr const char* kMasterShapes =
    R"(<draw:g><draw:rect draw:style-name="Mgr1" svg:x="2cm" svg:y="2cm" svg:width="8cm" svg:height="8cm"/></draw:g>)"
    R"(<draw:rect draw:style-name="Mgr2" svg:x="12cm" svg:y="2cm" svg:width="4cm" svg:height="4cm"/>)"
    R"(<draw:rect presentation:class="title" draw:style-name="Mgr1" svg:x="2cm" svg:y="14cm" svg:width="8cm" svg:height="4cm"/>)";

constexpr const char* kMasterStyles =
    R"(<style:style style:name="Mgr1" style:family="graphic"><style:graphic-properties draw:fill="solid" draw:fill-color="#0000ff" draw:stroke="none"/></style:style>)"
    R"(<style:style style:name="Mgr2" style:family="graphic" style:parent-style-name="Red"/>)";

std::string Masters()
{
    return R"(<office:master-styles xmlns:presentation="urn:oasis:names:tc:opendocument:xmlns:presentation:1.0"><style:master-page style:name="M">)" +
           std::string(kMasterShapes) + "</style:master-page></office:master-styles>";
}

/// Puts a text before the first occurrence of another one.
std::string Inserted(std::string text, const std::string& before, const std::string& added)
{
    return text.insert(text.find(before), added);
}

class MasterPages : public CanvasTest
{
protected:
    MasterPages()
    {
        drawing
            .Named(
                R"(style:name="Red")",
                R"(<style:graphic-properties draw:fill="solid" draw:fill-color="#ff0000" draw:stroke="none"/>)")
            .Page(
                R"(<draw:rect draw:style-name="Red" svg:x="4cm" svg:y="4cm" svg:width="4cm" svg:height="4cm"/>)");
    }

    /// The text of the pages, which refer to the master page.
    static std::string Referring(std::string text)
    {
        const std::string page = "<draw:page";
        return text.insert(text.find(page) + page.size(), R"( draw:master-page-name="M")");
    }

    void ShowFlat()
    {
        const std::string text = Inserted(Referring(drawing.Text()), "<office:body>", Masters());
        ShowText(Inserted(text, "</office:automatic-styles>", kMasterStyles));
    }

    FlatDrawing drawing;
};

TEST_F(MasterPages, ShowTheirShapesBelowThoseOfThePage)
{
    ShowFlat();

    EXPECT_EQ(ColourAt(3000, 3000), kBlue);
    EXPECT_EQ(ColourAt(6000, 6000), kRed) << "the shape of the page";
    EXPECT_EQ(ColourAt(14000, 4000), kRed);
}

TEST_F(MasterPages, ShowNoPlaceholders)
{
    ShowFlat();

    EXPECT_EQ(ColourAt(6000, 16000), kWhite);
}

TEST_F(MasterPages, LetNobodySelectTheirShapes)
{
    ShowFlat();
    const std::size_t objects = session->GetDrawing().GetObjects().size();

    Click(6000, 6000);
    Click(3000, 3000);

    EXPECT_EQ(objects, 1U);
    EXPECT_EQ(Selected(), "") << "a click beside the shape of the page";
}

TEST_F(MasterPages, LookAsTheStylesBesideThemInPackages)
{
    const std::string styles = Inserted(drawing.StylesText(), "</office:document-styles>",
                                        "<office:automatic-styles>" + std::string(kMasterStyles) +
                                            "</office:automatic-styles>" + Masters());

    ShowText(ZipBuilder()
                 .Add("mimetype", "application/vnd.oasis.opendocument.graphics")
                 .Add("content.xml", Referring(drawing.ContentText()))
                 .Add("styles.xml", styles)
                 .Build());

    EXPECT_EQ(ColourAt(3000, 3000), kBlue);
    EXPECT_EQ(ColourAt(6000, 6000), kRed);
    EXPECT_EQ(ColourAt(14000, 4000), kRed);
}

TEST_F(MasterPages, FollowTheNamedStylesOfTheirShapes)
{
    ShowFlat();
    static_cast<void>(Picture());
    Styles::Style* const red = session->GetDrawing().GetStyleSheet().GetStyle(L"Red");
    const Styles::PropertyKey type(Styles::PooledString<Styles::StringPool>(L"type"));
    const Styles::PropertyKey none(Styles::PooledString<Styles::StringPool>(L"none"));

    red->SetPathProperty({Styles::FillStyleCategoryName, type}, OvxUtils::Any(none));
    canvas.RefreshStyles();

    EXPECT_EQ(ColourAt(14000, 4000), kWhite);
}

} // namespace
