#include "apps/workbench/Session.h"

#include "apps/workbench/Editor.h"
#include "apps/workbench/PanelFolder.h"
#include "module/StylesCommon.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/style_model/StyleHosting.h"
#include "tests/reference_host/document/FlatDrawing.h"
#include "tests/workbench/ScratchConfiguration.h"
#include "tests/workbench/ThirdPartyFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <utility>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Workbench::Editor;
using Workbench::PanelFolder;
using Workbench::PanelReport;
using Workbench::ParseSelector;
using Workbench::ReadPanelFolder;
using Workbench::Report;
using Workbench::ReportValue;
using Workbench::RowOrigin;
using Workbench::RowReport;
using Workbench::Session;
using WorkbenchTests::ThirdPartyFolder;

namespace
{

/// The row of a report with this bound name.
const RowReport& RowOf(const Report& report, const wchar_t* property)
{
    for (const PanelReport& panel : report.panels)
    {
        const auto row =
            std::find_if(panel.rows.begin(), panel.rows.end(),
                         [&](const RowReport& each) { return each.description->property == property; });
        if (row != panel.rows.end())
            return *row;
    }
    throw std::out_of_range("no such row");
}

class SessionOnADrawing : public testing::Test
{
protected:
    [[nodiscard]] std::filesystem::path Write(const FlatDrawing& drawing) const
    {
        return scratch.Write("drawing.fodg", drawing.Text());
    }

    ScratchFolder scratch;
    ThirdPartyFolder thirdParty;
};

/// A rectangle that inherits its colour from "Base" and sets its outline itself, and one that sets the
/// colour.
FlatDrawing TwoBoxes()
{
    return FlatDrawing()
        .Named("style:name='Base'",
               "<style:graphic-properties draw:fill-color='#3366cc' draw:shadow='visible'/>")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'",
                   "<style:graphic-properties svg:stroke-width='0.35cm' draw:shadow-offset-x='0.3cm'/>")
        .Automatic("graphic", "style:name='gr2' style:parent-style-name='Base'",
                   "<style:graphic-properties draw:fill-color='#ff0000'/>")
        .Page("<draw:rect draw:name='A' draw:style-name='gr1'/><draw:rect draw:name='B' "
              "draw:style-name='gr2'/>");
}

} // namespace

TEST_F(SessionOnADrawing, ShowsTheShippedPanelsForASelection)
{
    const PanelFolder folder = ReadPanelFolder(SHIPPED_PANELS);
    Session session(Write(TwoBoxes()), folder.panels);
    ASSERT_THAT(session.LoadPanels(folder.panels), IsEmpty());

    const Report report = session.Inspect(session.Select(ParseSelector(L"name:A")));

    EXPECT_THAT(report.panels, SizeIs(folder.panels.size()));
    const RowReport& colour = RowOf(report, L"FillColor");
    EXPECT_EQ(colour.value, ReportValue(OvxStringT(L"#3366cc")));
    EXPECT_EQ(colour.state, ActivePropertyState::Inherited);
    EXPECT_EQ(colour.origin, (RowOrigin{RowOrigin::Kind::Style, L"Base"}));
    const RowReport& width = RowOf(report, L"OutlineWidth");
    EXPECT_EQ(width.value, ReportValue(350));
    EXPECT_EQ(width.state, ActivePropertyState::Overridden);
    EXPECT_EQ(width.image, L"OverriddenImage");
}

TEST_F(SessionOnADrawing, DescribesTheSelectedObjects)
{
    Session session(Write(TwoBoxes()), {});

    const Report report = session.Inspect(session.Select(ParseSelector(L"name:B")));

    EXPECT_EQ(report.selector, L"name:B");
    ASSERT_THAT(report.targets, SizeIs(1));
    EXPECT_EQ(report.targets[0].id, L"1/2");
    EXPECT_EQ(report.targets[0].name, L"B");
    EXPECT_EQ(report.targets[0].kind, L"rect");
    EXPECT_EQ(report.targets[0].style, L"Base");
    EXPECT_THAT(report.targets[0].parents, IsEmpty());
    EXPECT_EQ(report.targets[0].units, 0U);
}

TEST_F(SessionOnADrawing, ShowsNoValueWhereTheObjectsDiffer)
{
    const PanelFolder folder = ReadPanelFolder(SHIPPED_PANELS);
    Session session(Write(TwoBoxes()), folder.panels);
    ASSERT_THAT(session.LoadPanels(folder.panels), IsEmpty());

    const Report report = session.Inspect(session.Select(ParseSelector(L"all")));

    EXPECT_TRUE(RowOf(report, L"FillColor").isAmbiguous);
    EXPECT_EQ(RowOf(report, L"FillColor").value, ReportValue());
    EXPECT_EQ(RowOf(report, L"FillColor").state, ActivePropertyState::Ambiguous);
}

TEST_F(SessionOnADrawing, ReadsTheCategoryThatAPanelBrings)
{
    thirdParty.Write("shadow", WorkbenchTests::ShadowDescription());
    const PanelFolder folder = ReadPanelFolder(thirdParty.GetPath());
    Session session(Write(TwoBoxes()), folder.panels);
    ASSERT_THAT(session.LoadPanels(folder.panels), IsEmpty());

    const Report report = session.Inspect(session.Select(ParseSelector(L"name:A")));

    EXPECT_EQ(report.panels.at(0).title, L"Shadow: Base");
    EXPECT_EQ(RowOf(report, L"ShadowVisibility").value, ReportValue(OvxStringT(L"visible")));
    EXPECT_EQ(RowOf(report, L"ShadowVisibility").origin, (RowOrigin{RowOrigin::Kind::Style, L"Base"}));
    EXPECT_EQ(RowOf(report, L"ShadowDistance").value, ReportValue(300));
    EXPECT_EQ(RowOf(report, L"ShadowDistance").state, ActivePropertyState::Overridden);
}

TEST_F(SessionOnADrawing, ReportsAPanelThatCannotBeLoadedAndKeepsTheOthers)
{
    thirdParty.Write("bad", WorkbenchTests::DescriptionOf("bad", "FailingPanelDatasource"));
    thirdParty.Write("shadow", WorkbenchTests::ShadowDescription());
    const PanelFolder folder = ReadPanelFolder(thirdParty.GetPath());
    Session session(Write(TwoBoxes()), folder.panels);

    const std::vector<std::string> problems = session.LoadPanels(folder.panels);

    EXPECT_THAT(problems, ElementsAre(testing::HasSubstr("the licence of this panel has run out")));
    ASSERT_THAT(session.GetPanels(), SizeIs(1));
    EXPECT_EQ(session.GetPanels()[0]->GetDescription().name, L"shadow");
}

TEST_F(SessionOnADrawing, KeepsTheWarningsOfTheDrawing)
{
    Session session(Write(FlatDrawing().Named("style:name='Base' style:parent-style-name='Gone'").Page("")),
                    {});

    EXPECT_THAT(session.GetWarnings(), ElementsAre(testing::HasSubstr("Gone")));
}

TEST_F(SessionOnADrawing, LeavesNothingBehind)
{
    const std::size_t before = ReferenceHost::LiveStyleCount();
    {
        const PanelFolder folder = ReadPanelFolder(SHIPPED_PANELS);
        Session session(Write(TwoBoxes()), folder.panels);
        ASSERT_THAT(session.LoadPanels(folder.panels), IsEmpty());
        static_cast<void>(session.Inspect(session.Select(ParseSelector(L"all"))));
    }

    EXPECT_EQ(ReferenceHost::LiveStyleCount(), before);
    EXPECT_EQ(StylesCommon::GetApp(), nullptr);
    EXPECT_EQ(ReferenceHost::Application::GetCurrent(), nullptr);
}

TEST_F(SessionOnADrawing, LeavesNothingBehindWhenTheDrawingCannotBeRead)
{
    EXPECT_THROW(Session(scratch.GetPath() / "missing.fodg", {}), ReferenceHost::DocumentError);

    EXPECT_EQ(StylesCommon::GetApp(), nullptr);
    EXPECT_EQ(ReferenceHost::Application::GetCurrent(), nullptr);
}

TEST_F(SessionOnADrawing, TakesADrawingThatWasOpenedWhileAnotherSessionWentOn)
{
    thirdParty.Write("shadow", WorkbenchTests::ShadowDescription());
    const PanelFolder folder = ReadPanelFolder(thirdParty.GetPath());
    auto before = std::make_unique<Session>(folder.panels);
    Session::OpenedDrawing opened = Session::OpenDrawing(Write(TwoBoxes()), folder.panels);
    before.reset();

    Session session(std::move(opened));

    ASSERT_THAT(session.LoadPanels(folder.panels), IsEmpty());
    const Report report = session.Inspect(session.Select(ParseSelector(L"name:A")));
    EXPECT_EQ(RowOf(report, L"ShadowDistance").value, ReportValue(300));
}

TEST_F(SessionOnADrawing, KeepsTheWarningsOfADrawingThatWasOpenedBefore)
{
    FlatDrawing drawing;
    drawing.Named("style:name='Orphan' style:parent-style-name='Nobody'").Page("<draw:rect/>");

    const Session session(Session::OpenDrawing(Write(drawing), {}));

    ASSERT_THAT(session.GetWarnings(), SizeIs(1));
    EXPECT_THAT(session.GetWarnings().front(), testing::HasSubstr("Nobody"));
}

TEST_F(SessionOnADrawing, LeavesASessionAloneWhenOpeningIsCancelled)
{
    Session session(Write(TwoBoxes()), {});
    const auto stop = [](const ReferenceHost::Progress&) { return ReferenceHost::ProgressAnswer::Stop; };

    EXPECT_THROW(static_cast<void>(Session::OpenDrawing(Write(TwoBoxes()), {}, stop)),
                 ReferenceHost::OperationCancelled);

    EXPECT_THAT(session.Inspect(session.Select(ParseSelector(L"all"))).targets, SizeIs(2));
}

TEST_F(SessionOnADrawing, GivesPresetsOfAPanelToItsOwnCategory)
{
    const WorkbenchTests::ScratchConfiguration configuration;
    std::string description = WorkbenchTests::ShadowDescription();
    description.replace(description.find("ShadowPanelDatasource"), 6, "StoredShadow");
    thirdParty.Write("shadow", description);
    const PanelFolder folder = ReadPanelFolder(thirdParty.GetPath());
    Session session(Write(TwoBoxes()), folder.panels);
    ASSERT_THAT(session.LoadPanels(folder.panels), IsEmpty());
    Editor editor(session);
    editor.AddPreset(L"shadow", L"Deep", std::nullopt);
    editor.Select(ParseSelector(L"name:B"));

    editor.ApplyPreset(L"shadow", L"Deep");

    const Report report = session.Inspect(editor.GetSelection());
    EXPECT_EQ(RowOf(report, L"ShadowDistance").value, ReportValue(300));
    EXPECT_EQ(RowOf(report, L"ShadowDistance").state, ActivePropertyState::Overridden);
    EXPECT_THAT(editor.ListPresets(L"shadow"), SizeIs(1));
}

TEST_F(SessionOnADrawing, KeepsTheWarningsOfPresetsUntilTheyAreTaken)
{
    Session session(Write(TwoBoxes()), {});

    EXPECT_THAT(session.TakePresetWarnings(), IsEmpty());
    EXPECT_EQ(session.TakePresetFailure(), "");
}

TEST(SessionWithoutADrawing, HasOneObjectAndNoStyles)
{
    const PanelFolder folder = ReadPanelFolder(SHIPPED_PANELS);
    Session session(folder.panels);
    ASSERT_THAT(session.LoadPanels(folder.panels), IsEmpty());

    const Report report = session.Inspect(session.Select(ParseSelector(L"all")));

    ASSERT_THAT(report.targets, SizeIs(1));
    EXPECT_EQ(report.targets[0].style, L"");
    EXPECT_THAT(report.panels, SizeIs(folder.panels.size()));
    EXPECT_THAT(session.GetStyles().GetStyleNames(), IsEmpty());
    EXPECT_THAT(session.GetWarnings(), IsEmpty());
}

TEST(SessionWithoutADrawing, HoldsThePresetsOfThePerson)
{
    const WorkbenchTests::ScratchConfiguration configuration;
    const PanelFolder folder = ReadPanelFolder(SHIPPED_PANELS);
    Session session(folder.panels);
    ASSERT_THAT(session.LoadPanels(folder.panels), IsEmpty());
    Editor editor(session);
    editor.Select(ParseSelector(L"defaults"));
    editor.AddPreset(L"fill", L"Plain", std::nullopt);

    editor.DeletePreset(L"fill", L"Plain");

    EXPECT_THAT(editor.ListPresets(L"fill"), IsEmpty());
    EXPECT_EQ(editor.GetStepCount(), 0U);
}

TEST(SessionWithoutADrawing, LeavesNothingBehind)
{
    const std::size_t before = ReferenceHost::LiveStyleCount();
    {
        const PanelFolder folder = ReadPanelFolder(SHIPPED_PANELS);
        Session session(folder.panels);
        ASSERT_THAT(session.LoadPanels(folder.panels), IsEmpty());
    }

    EXPECT_EQ(ReferenceHost::LiveStyleCount(), before);
    EXPECT_EQ(ReferenceHost::Application::GetCurrent(), nullptr);
}
