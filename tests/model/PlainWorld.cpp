#include "tests/model/PlainWorld.h"

#include <algorithm>

namespace LibraryModel
{

namespace
{

bool InheritsDirectly(const PlainStyle& heir, const PlainStyle& style)
{
    if (heir.parent == &style)
        return true;
    return std::ranges::any_of(heir.substyles, [&style](const auto& entry)
                               { return InheritsDirectly(*entry.second, style); });
}

} // namespace

PlainWorld::PlainWorld() : heldLists(kPanels)
{
    host.contexts[0].name = "context0";
    host.contexts[1].name = "context1";
    for (const PooledStyle& pooled : StylePool())
    {
        styles.push_back(std::make_unique<PlainStyle>(KeyOf(pooled.category)));
        styles.back()->name = pooled.name;
    }
    dialog.context = host.contexts.data();
    for (std::size_t i = 0; i < kPanels; ++i)
    {
        panels.push_back(std::make_unique<PlainPanel>(host, dialog, "panel" + std::to_string(i)));
        panels.back()->context = host.contexts.data();
        panels.back()->StartAnew();
    }
    host.lines.clear();
}

PlainStyle* PlainWorld::Find(const StyleRef& ref) const
{
    if (ref.name.empty())
        return nullptr;
    PlainStyle* style = styles.at(PoolIndex(ref.name)).get();
    return ref.substyle.has_value() ? style->Substyle(*ref.substyle) : style;
}

std::vector<PlainStyle*> PlainWorld::Find(const StyleRefs& refs) const
{
    std::vector<PlainStyle*> found;
    for (const StyleRef& ref : refs)
        found.push_back(Find(ref));
    return found;
}

PlainPanel* PlainWorld::PanelOrNull(std::size_t panel)
{
    return panel < panels.size() ? panels[panel].get() : nullptr;
}

void PlainWorld::StartPanelAnew(std::size_t panel, PlainContext* context)
{
    for (const auto& other : panels)
        std::erase(other->siblings, panels[panel].get());
    panels[panel]->context = context;
    panels[panel]->StartAnew();
}

bool PlainWorld::MayInherit(const StyleRef& child, const StyleRef& parent)
{
    return !child.name.empty() && (parent.name.empty() || PoolIndex(parent.name) < PoolIndex(child.name));
}

bool PlainWorld::IsTarget(const PlainStyle& style) const
{
    return std::ranges::any_of(
        panels,
        [&style](const auto& panel)
        {
            return std::ranges::find(panel->ownStyles, &style) != panel->ownStyles.end() ||
                   std::ranges::find(panel->targetStyles, &style) != panel->targetStyles.end() ||
                   std::ranges::any_of(panel->objectStyles,
                                       [&style](const auto& entry) { return entry.first == &style; });
        });
}

bool PlainWorld::IsInUse(const PlainStyle& style) const
{
    return IsTarget(style) || InheritsDirectly(dialog.styleToSave, style) ||
           std::ranges::any_of(styles,
                               [&style](const auto& heir) { return InheritsDirectly(*heir, style); }) ||
           std::ranges::any_of(style.substyles, [this](const auto& entry) { return IsInUse(*entry.second); });
}

} // namespace LibraryModel
