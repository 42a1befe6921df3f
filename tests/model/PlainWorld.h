#pragma once

#include "tests/model/PlainPanel.h"
#include "tests/model/StylePool.h"

#include <functional>
#include <memory>

namespace LibraryModel
{

/// The model's side of a sequence: its host, its styles, and three panels with their dialog of presets.
class PlainWorld
{
public:
    static constexpr std::size_t kPanels = 3;

    PlainWorld();
    PlainWorld(const PlainWorld&) = delete;
    PlainWorld& operator=(const PlainWorld&) = delete;

    /// Null where there is none.
    [[nodiscard]] PlainStyle* Find(const StyleRef& ref) const;
    [[nodiscard]] std::vector<PlainStyle*> Find(const StyleRefs& refs) const;

    /// The panel itself; null for a number beyond the last one.
    PlainPanel* PanelOrNull(std::size_t panel);

    /// Ends a panel and makes it anew in a context; null for none.
    void StartPanelAnew(std::size_t panel, PlainContext* context);

    /// Whether anything refers to a style or to one within it, so that it must not go.
    [[nodiscard]] bool IsInUse(const PlainStyle& style) const;

    /// Whether a style may become the parent of another: it stands earlier in the pool.
    [[nodiscard]] static bool MayInherit(const StyleRef& child, const StyleRef& parent);

    /// Which of two styles the host's memory holds first: the order of maps by style.
    std::function<bool(const StyleRef&, const StyleRef&)> liesBefore;

    PlainHost host;
    std::vector<std::unique_ptr<PlainStyle>> styles; ///< As in the pool.
    PlainPresetDialog dialog{host};
    std::vector<std::unique_ptr<PlainPanel>> panels;
    std::vector<PlainNode> heldLists; ///< The list that each panel gave last.

private:
    [[nodiscard]] bool IsTarget(const PlainStyle& style) const;
};

} // namespace LibraryModel
