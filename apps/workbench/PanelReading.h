#pragma once

#include "apps/workbench/PanelDescription.h"
#include "apps/workbench/Report.h"
#include "apps/workbench/TargetHandover.h"
#include "host/data_binding/IReflectable.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringViewT.h"

#include <optional>
#include <vector>

namespace Workbench
{

/// Reads what a panel shows, through its bound names alone. Leaves the active identifier empty.
///
/// @throws ReferenceHost::DocumentError when a row answers something that no panel should.
[[nodiscard]] PanelReport ReadPanel(IReflectable& panel, const PanelDescription& description,
                                    const HandedTargets& handed);

/// All readable properties that are numbers or texts, in order of registration. An enable that fails for want
/// of a colour counts as not enabled.
[[nodiscard]] std::vector<PropertyReport> ReadProperties(const IReflectable& panel);

/// The value of a row in words; none for a type that no row should have.
[[nodiscard]] std::optional<ReportValue> ToReportValue(const OvxUtils::Any& value);

/// The origin that a row answers as text: "local", "style:NAME", "default" or nothing; none for another text.
[[nodiscard]] std::optional<RowOrigin> ParseOrigin(OvxStringViewT text);

/// The name of a state's enumerator.
[[nodiscard]] OvxStringViewT StateName(ActivePropertyState state);

} // namespace Workbench
