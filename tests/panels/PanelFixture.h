#pragma once

#include "datasource/ActivePropertyState.h"
#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/services/Application.h"
#include "reference_host/services/DataContext.h"
#include "reference_host/services/DocumentStylesSource.h"
#include "reference_host/services/LoadedModule.h"
#include "tests/panels/PanelDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <vector>

namespace PanelTests
{

/// Everything that the bound names of one row answer.
struct RowAnswers
{
    OvxUtils::Any value = {};
    ActivePropertyState state = ActivePropertyState::None;
    int ambiguous = 0;
    OvxStringT origin = {};
    OvxStringT link = {};
    OvxUtils::Any parentValue = {};

    friend bool operator==(const RowAnswers&, const RowAnswers&) = default;
    friend void PrintTo(const RowAnswers& answers, std::ostream* out);
};

/// Reads the row whose value is bound as `property`.
[[nodiscard]] RowAnswers ReadRow(const IReflectable& panel, const OvxStringT& property);

/// Hands in targets as whoever opens a panel does.
void SetTargets(BaseStylePropertiesDatasource& panel, const std::vector<Styles::Style*>& targets);

/// SetTargets() with one path that shows as ambiguous, from the category down.
void SetTargetsForcing(BaseStylePropertiesDatasource& panel, const std::vector<Styles::Style*>& targets,
                       const OvxStringT& category, const Styles::PropertyPath& forced);

/// The file of a panel module that the build made.
[[nodiscard]] std::filesystem::path FileOf(const OvxStringT& module);

/// An application with one open document, and panels made from their modules.
class PanelFixture : public testing::Test
{
protected:
    PanelFixture();
    ~PanelFixture() override;

    /// Loads a module and makes its data source, which lives as long as the test.
    BaseStylePropertiesDatasource& OpenPanel(const OvxStringT& module, const OvxStringT& className);

    ReferenceHost::Application application;
    PanelDocument document;
    ReferenceHost::DocumentStylesSource source{document};
    std::vector<std::unique_ptr<ReferenceHost::LoadedModule>> modules;
    ReferenceHost::DataContext context{nullptr, nullptr};
};

} // namespace PanelTests
