#include "apps/workbench/StepNames.h"

#include "reference_host/resources/Language.h"
#include "tests/workbench/EditorFixture.h"

using Workbench::NameStep;

namespace WorkbenchTests
{
namespace
{

class NameOfAStep : public EditorOnFourBoxes
{
protected:
    ~NameOfAStep() override { ReferenceHost::SetLanguage("en"); }

    [[nodiscard]] OvxStringT NameOf(const std::vector<OvxStringT>& names)
    {
        std::vector<Workbench::RowPlace> places;
        for (const OvxStringT& name : names)
            places.push_back(Workbench::FindRowOrPanel(open.GetSession().GetPanels(), name));
        return NameStep(Workbench::kSetStep, places);
    }
};

} // namespace

TEST_F(NameOfAStep, TellsPanelAndRow)
{
    EXPECT_EQ(NameOf({L"fill.color"}), L"Set Fill Colour");
}

TEST_F(NameOfAStep, TellsThePanelForAWholeStyleAndForSeveralRows)
{
    EXPECT_EQ(NameOf({L"outline"}), L"Set Outline");
    EXPECT_EQ(NameOf({L"outline.width", L"outline.color"}), L"Set Outline");
}

TEST_F(NameOfAStep, TellsNoPanelForSeveral)
{
    EXPECT_EQ(NameOf({L"outline.width", L"fill.color"}), L"Set Properties");
}

TEST_F(NameOfAStep, IsInTheLanguageInForce)
{
    ReferenceHost::SetLanguage("de");

    EXPECT_EQ(NameOf({L"fill.color"}), L"Füllung: Farbe setzen");
    EXPECT_EQ(NameStep(Workbench::kPaletteStep, L"Meer 100%1"), L"Farbe Meer 100%1 festlegen");
    EXPECT_EQ(Workbench::NameGroup(), L"Eigenschaften ändern");
}

} // namespace WorkbenchTests
