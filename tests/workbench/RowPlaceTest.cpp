#include "apps/workbench/RowPlace.h"

#include "apps/workbench/PanelFolder.h"
#include "apps/workbench/Session.h"
#include "apps/workbench/UsageError.h"
#include "tests/reference_host/document/FlatDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using testing::HasSubstr;
using Workbench::RowPlace;
using Workbench::UsageError;

namespace
{

class RowOfAPanel : public testing::Test
{
protected:
    RowOfAPanel() { EXPECT_THAT(session.LoadPanels(folder.panels), testing::IsEmpty()); }

    template <class Find>
    [[nodiscard]] std::string ErrorOf(Find find, const wchar_t* name) const
    {
        try
        {
            static_cast<void>(find(session.GetPanels(), name));
        }
        catch (const UsageError& error)
        {
            return error.what();
        }
        return "no error";
    }

    ScratchFolder scratch;
    Workbench::PanelFolder folder = Workbench::ReadPanelFolder(SHIPPED_PANELS);
    Workbench::Session session{scratch.Write("drawing.fodg", FlatDrawing().Page("").Text()), folder.panels};
};

} // namespace

TEST_F(RowOfAPanel, IsFoundByPanelAndIdentifier)
{
    const RowPlace place = Workbench::FindRow(session.GetPanels(), L"outline.start-arrow");

    EXPECT_EQ(place.panel->GetDescription().name, L"outline");
    ASSERT_NE(place.row, nullptr);
    EXPECT_EQ(place.row->property, L"OutlineStartArrow");
    EXPECT_EQ(place.GetName(), L"outline.start-arrow");
    EXPECT_EQ(place.GetIdentifier(), L"start-arrow");
    EXPECT_FALSE(place.IsStyleParent());
}

TEST_F(RowOfAPanel, StandsForTheWholeStyleWhenThePanelIsNamedAlone)
{
    const RowPlace place = Workbench::FindRowOrPanel(session.GetPanels(), L"fill");

    EXPECT_EQ(place.row, nullptr);
    EXPECT_EQ(place.GetName(), L"fill");
    EXPECT_EQ(place.GetIdentifier(), L"style");
}

TEST_F(RowOfAPanel, IsTheParentOfTheStyleInTheStylePanelAlone)
{
    EXPECT_TRUE(Workbench::FindRow(session.GetPanels(), L"style.style").IsStyleParent());
    EXPECT_FALSE(Workbench::FindRowOrPanel(session.GetPanels(), L"style").IsStyleParent());
}

TEST_F(RowOfAPanel, NamesThePanelsWhenThereIsNoSuchOne)
{
    EXPECT_EQ(ErrorOf(Workbench::FindRow, L"paint.color"),
              "there is no panel \"paint\"; expected one of \"style\", \"fill\", \"outline\", \"character\", "
              "\"paragraph\"");
    EXPECT_THAT(ErrorOf(Workbench::FindPanel, L"fill.color"), HasSubstr("there is no panel \"fill.color\""));
}

TEST_F(RowOfAPanel, NamesTheRowsOfThePanelWhenThereIsNoSuchOne)
{
    EXPECT_EQ(ErrorOf(Workbench::FindRow, L"fill.colour"),
              "there is no row \"fill.colour\"; expected one of \"fill.type\", \"fill.color\", "
              "\"fill.transparency\", \"fill.gradient\", \"fill.hatch\", \"fill.bitmap\"");
}

TEST_F(RowOfAPanel, NamesTheRowsWhenAPanelIsNamedAloneWhereARowIsAsked)
{
    EXPECT_THAT(ErrorOf(Workbench::FindRow, L"style"),
                HasSubstr("\"style\" is a panel and no row; expected one of \"style.style\""));
}
