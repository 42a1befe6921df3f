#pragma once

#include "tests/datasource/support/CallLog.h"
#include "tests/datasource/support/Description.h"
#include "tests/datasource/support/RecordingApp.h"
#include "tests/datasource/support/RecordingPanel.h"
#include "tests/datasource/support/RecordingSheet.h"
#include "tests/datasource/support/RecordingStylesSource.h"
#include "tests/datasource/support/StyleWorkshop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// Fails the test when styles are left over that the test has made. The outermost base, so that it looks when
/// everything else of the test is gone.
class StyleLeakTest : public testing::Test
{
protected:
    StyleLeakTest();
    ~StyleLeakTest() override;

private:
    std::size_t styleCountBefore;
};

/// A running host that takes down what it is asked: an application with a style source, a sheet and services
/// for styles, all of it handed to the library, and one complete fill panel.
class HostedTest : public StyleLeakTest
{
protected:
    HostedTest();
    ~HostedTest() override;

    /// Puts a style into the sheet.
    void NameInSheet(const wchar_t* name, Styles::Style& style) { sheet.entries.push_back({name, &style}); }

    /// Hands targets to a panel, forcing nothing.
    static void Target(RecordingPanel& shownBy, const std::vector<Styles::Style*>& targets,
                       bool isDefault = false);

    CallLog log;
    StyleWorkshop styles{log};
    RecordingSheet sheet{log};
    RecordingStylesSource source{log};
    RecordingStylesApp stylesApp{log};
    RecordingApp app{log};
    RecordingPanel panel{log, "panel"};
};
