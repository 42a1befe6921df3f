#pragma once

#include "apps/workbench/Editor.h"
#include "apps/workbench/PanelFolder.h"
#include "apps/workbench/Session.h"

#include <string>

namespace Fuzz
{

/// A small drawing with the shipped panels, on which inputs are tried one after the other: each leaves it as
/// it was, see Restore(). Presets are kept in the scratch place.
class Workplace
{
public:
    /// The one of the process.
    [[nodiscard]] static Workplace& Get();

    Workplace();
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;

    [[nodiscard]] const Workbench::PanelFolder& GetPanels() const noexcept { return folder; }

    [[nodiscard]] Workbench::Session& GetSession() noexcept { return session; }

    [[nodiscard]] Workbench::Editor& GetEditor() noexcept { return editor; }

    /// One of a few selections of all scopes, by any number.
    [[nodiscard]] Workbench::Selector GetSelector(unsigned number) const;

    /// The bytes that the drawing would be saved as now.
    [[nodiscard]] std::string GetBytes();

    /// Takes back all that was done, demands that the drawing is as it was, and drops all presets.
    void Restore();

private:
    Workbench::PanelFolder folder;
    Workbench::Session session;
    Workbench::Editor editor;
    std::string bytes; ///< Of the drawing as it was opened.
};

} // namespace Fuzz
