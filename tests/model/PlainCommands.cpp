// Revert, apply to parent, break the link of a colour, create, edit, and the texts of menus.

#include "tests/model/PlainDescription.h"
#include "tests/model/PlainPanel.h"

namespace LibraryModel
{

namespace
{

const PlainColor* ColorAt(const PlainValue& value)
{
    return std::get_if<PlainColor>(&value);
}

} // namespace

int PlainPanel::GetApplyToParentEnable()
{
    const State state = GetActivePropertyState(activeIdentifier);
    return state == kOverridden || state == kAmbiguous ? 1 : 0;
}

void PlainPanel::OnRevertToParent()
{
    if (GetApplyToParentEnable() == 0 || targetStyles.empty())
        return;
    if (activeIdentifier != "style")
    {
        ClearProperties(ParseActivePaths(activeIdentifier, true));
        return;
    }
    const PlainStyle* style = PanelStyle();
    if (style == nullptr)
        return;
    Paths paths;
    for (const Key key : CategoryProperties(style->category))
        paths.push_back({key});
    ClearProperties(paths);
}

void PlainPanel::OnApplyToParent()
{
    if (GetApplyToParentEnable() == 0 || targetStyles.empty() || activeIdentifier != "style")
        return;
    const PlainStyle* style = PanelStyle();
    if (style == nullptr || !host.HasSource())
        return;

    const PlainStyle* destination = style->parent;
    if (destination == nullptr && style->owner != nullptr && style->owner->parent != nullptr)
        destination = style->owner->parent->Substyle(style->category);
    if (destination == nullptr)
        return;

    PlainStyle copy(*style);
    copy.parent = nullptr;
    host.Record("source.ApplyToParent(destination=" + NameOf(destination) +
                ", paths=" + Tell(OwnPaths(copy)) + ", values=" + Tell(&copy) + ")");
    if (host.clearedPaths.has_value())
        ClearProperties(*host.clearedPaths);
}

std::optional<int> PlainPanel::GetBreakColorResourceEnable()
{
    if (targetStyles.size() != 1)
        return 0;
    for (const Path& path : ParseActivePaths(activeIdentifier, true))
    {
        const PlainStyle* style = PanelStyle();
        if (style == nullptr)
            continue;
        const PlainValue value = EffectiveValueAt(*style, path);
        const PlainColor* color = ColorAt(value);
        if (color == nullptr)
            return std::nullopt;
        if (!color->entry.empty())
            return 1;
    }
    return 0;
}

bool PlainPanel::OnBreakColorResource()
{
    if (targetStyles.size() != 1)
        return true;
    Change change = NewChange();
    const Paths paths = ParseActivePaths(activeIdentifier, true);
    for (const Path& path : paths)
    {
        const PlainStyle* style = PanelStyle();
        if (style == nullptr)
            continue;
        const PlainValue value = EffectiveValueAt(*style, path);
        const PlainColor* color = ColorAt(value);
        if (color == nullptr)
            return false;
        change->StoreAt(path, PlainColor{color->rgb, ""});
    }
    ModifyStyles(paths, std::move(change), nullptr);
    return true;
}

int PlainPanel::GetCreateStyleFromEnable()
{
    const PlainStyle* first = FirstTarget();
    if (first == nullptr)
        return 0;
    return first->owner == nullptr || first->parent != nullptr ? 1 : 0;
}

void PlainPanel::OnCreateStyleFrom()
{
    if (!host.HasSource() || host.GetStyleSheet() == nullptr)
        return;
    const std::string base = TextOf(category);
    host.Record("sheet.GetUnusedStyleName(" + base + ")");
    host.Record("source.CreateStyle(" + base + ", " + base + "*)");
}

int PlainPanel::GetEditStyleEnable()
{
    return GetStyleNameBasedOnHeirarchy(GetTargetStyle(0)).empty() ? 0 : 1;
}

void PlainPanel::OnEditStyle()
{
    if (context == nullptr)
        return;
    host.Record("context.GetDataSource(StylesDatasource)");
    if (context->editor != PlainContext::Editor::Styles)
        return;
    const std::string edited = GetStyleNameBasedOnHeirarchy(GetTargetStyle(0));
    host.Record("editor.EditStyle(" + edited + ", select=true, show=true)");
}

std::string PlainPanel::ParentStyleName()
{
    const std::string& fallback = ShownText("1afd0b33-8a69-4ebe-bfcd-a0c00531518a");
    if (!host.HasSource())
        return fallback;
    const std::string parentName = GetStyleNameBasedOnHeirarchy(GetTargetStyle(0));
    return parentName.empty() ? fallback : host.GetDisplayStyleName(parentName);
}

std::string PlainPanel::MenuString(const std::string& textKey)
{
    return Fill(ShownText(textKey), {Escape(ParentStyleName())});
}

void PlainPanel::SetNoParent(bool withSource, const PlainStyle* style)
{
    if (style == nullptr || !withSource)
        return;
    const std::unique_ptr<PlainStyle> flattened = Flattened(*style);
    std::set<Key> keys;
    for (const auto& [key, value] : flattened->properties)
        keys.insert(key);
    for (const auto& [key, substyle] : flattened->substyles)
        keys.insert(key);
    Paths paths;
    for (const Key key : keys)
        paths.push_back({key});
    host.Record("source.ReplaceProperties(style=" + NameOf(style) + ", paths=" + Tell(paths) +
                ", values=" + Tell(flattened.get()) + ", dropParent=true, reserved=false)");
}

} // namespace LibraryModel
