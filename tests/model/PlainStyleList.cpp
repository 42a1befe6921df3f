// The drop-down of named styles, and the dialog with those that do not fit.

#include "tests/model/PlainDescription.h"
#include "tests/model/PlainPanel.h"

namespace LibraryModel
{

std::string PlainNode::Text() const
{
    if (tree == nullptr)
        return "invalid";
    const auto tell = [](const PlainTree::Attributes& attributes)
    {
        std::string text = "<itemData";
        for (const auto& [name, value] : attributes)
        {
            text += ' ';
            text += name;
            text += "='" + value + "'";
        }
        return text + ">";
    };
    if (entry >= 0)
        return tell(tree->entries.at(static_cast<std::size_t>(entry)));
    std::string text = "<placeholderData>";
    for (const PlainTree::Attributes& attributes : tree->entries)
        text += tell(attributes);
    return text;
}

std::string PlainPanel::ParentNameOf(const PlainStyle* target, const PlainSheet& sheet) const
{
    return target == nullptr ? "" : host.GetStyleName(sheet, target->parent);
}

PlainNode PlainPanel::GetStyleResourceList()
{
    resourceList = PlainNode::NewList();
    newStyleListBuilt = false;
    visibleLimit = 18;
    const PlainSheet* sheet = host.HasSource() ? host.GetStyleSheet() : nullptr;
    if (sheet == nullptr)
        return resourceList;
    const PlainStyle* target = GetTargetStyle(0);
    if (target == nullptr)
        return resourceList;

    const std::string current = host.GetStyleName(*sheet, target->parent);
    std::vector<std::string> offered;
    for (const std::string& each : host.GetStyleNames(*sheet, category))
    {
        const PlainStyle* style = host.GetStyle(*sheet, each);
        if (style == nullptr || style == target)
            continue;
        if (style == target->parent || !InheritsFrom(*style, *target))
            offered.push_back(each);
    }

    auto& entries = resourceList.tree->entries;
    const std::string& none = ShownText(styleName.empty() ? "f28ee68b-9815-4dc6-8faa-529bd81fcb44"
                                                          : "d067aa9e-2e7b-48e4-b8f7-d1269f936601");
    entries.push_back({{"type", "statusText"},
                       {"styleName", ""},
                       {"text", none},
                       {"check", Tell(current.empty())},
                       {"enable", "true"},
                       {"guid", ""},
                       {"placeholderCommandID", "0"}});
    const bool overflows = offered.size() > 18;
    if (overflows)
        visibleLimit = 9;
    int id = 1;
    for (const std::string& each : offered)
    {
        const std::string escaped = Escape(each);
        if (id > visibleLimit && escaped != current)
            continue;
        entries.push_back({{"type", "statusText"},
                           {"text", escaped},
                           {"styleName", escaped},
                           {"check", Tell(escaped == current)},
                           {"enable", "true"},
                           {"guid", ""},
                           {"placeholderCommandID", std::to_string(id++)}});
    }
    if (overflows)
    {
        const std::string& more = ShownText("21f1822a-aa97-4a53-bd73-31d27c53fc3b");
        entries.push_back({{"type", "statusText"},
                           {"text", more},
                           {"styleName", more},
                           {"placeholderCommandID", std::to_string(id)}});
    }
    return resourceList;
}

PlainNode PlainPanel::GetNewStyleList()
{
    if (newStyleListBuilt)
        return resourceList;
    resourceList = PlainNode::NewList();
    newStyleListBuilt = true;
    currentListItem = PlainNode();
    const PlainSheet* sheet = host.HasSource() ? host.GetStyleSheet() : nullptr;
    if (sheet != nullptr)
        AddOverflowEntries(*sheet);
    return resourceList;
}

void PlainPanel::AddOverflowEntries(const PlainSheet& sheet)
{
    int counter = 0;
    std::string current;
    for (const std::string& each : host.GetStyleNames(sheet, category))
    {
        if (counter == visibleLimit)
        {
            const PlainStyle* target = GetTargetStyle(0);
            if (target == nullptr)
                return;
            current = host.GetStyleName(sheet, target->parent);
        }
        if (each == current)
            continue;
        if (counter >= visibleLimit)
            resourceList.tree->entries.push_back({{"type", "statusText"},
                                                  {"text", each},
                                                  {"styleName", each},
                                                  {"enable", "true"},
                                                  {"guid", ""},
                                                  {"placeholderCommandID", std::to_string(counter)}});
        ++counter;
    }
}

void PlainPanel::AskDialogService(const std::function<void(const std::string& key)>& ask)
{
    static const std::vector<std::pair<std::string, std::string>> keys = {
        {"outline", "0b965e6d-2a66-4c2f-a255-3f788991c9dc"},
        {"fill", "494d1725-676f-484b-9453-fe7fb1958759"},
        {"paragraph", "fb799669-a363-408d-bf0a-b2d3ea840de3"},
        {"character", "ead5c24a-060b-44d8-acf5-1d8df2e00d17"}};
    for (const auto& [word, key] : keys)
    {
        if (KeyOf(word) != category || context == nullptr)
            continue;
        host.Record("context.GetDialogService()");
        if (context->hasDialogs)
            ask(key);
    }
}

void PlainPanel::SetApplyStyleResource(unsigned id)
{
    const PlainSheet* sheet = host.HasSource() ? host.GetStyleSheet() : nullptr;
    if (sheet == nullptr)
        return;
    const std::string current = ParentNameOf(GetTargetStyle(0), *sheet);
    if (resourceList.tree == nullptr)
        return;
    PlainNode picked;
    for (std::size_t i = 0; i < resourceList.tree->entries.size() && picked.tree == nullptr; ++i)
    {
        const PlainNode entry{resourceList.tree, static_cast<int>(i)};
        if (entry.Attribute("placeholderCommandID") == std::to_string(static_cast<int>(id)))
            picked = entry;
    }
    if (picked.tree == nullptr || picked.Attribute("styleName") == current)
        return;
    if (static_cast<long long>(id) <= visibleLimit)
        ApplyStyleResource(picked.Attribute("styleName"));
    else
        AskDialogService([this](const std::string& key)
                         { host.Record("dialogs.ShowDialog(" + key + ", " + context->name + ")"); });
}

void PlainPanel::ApplyStyleResource(const std::string& applied)
{
    const PlainSheet* sheet = host.HasSource() ? host.GetStyleSheet() : nullptr;
    if (sheet == nullptr)
        return;
    PlainStyle* target = GetTargetStyle(0);
    if (applied == ParentNameOf(target, *sheet))
        return;
    if (applied.empty())
    {
        SetNoParent(true, target);
        return;
    }
    const PlainStyle* style = host.GetStyle(*sheet, applied);
    if (style == nullptr)
        return;
    if (styleName.empty())
    {
        host.Record("source.ApplyStyle(" + NameOf(style) + ", reserved=false)");
        return;
    }
    if (target != nullptr)
        host.Record("source.SetParent(target=" + NameOf(target) + ", parent=" + NameOf(style) +
                    ", reserved=true)");
}

void PlainPanel::SetCurrentListStyleItem(const PlainNode& item)
{
    currentListItem = item;
    Notify({"BaseStylePropertiesDatasourceOkEnabled"});
}

void PlainPanel::OnBaseStylePropertiesDatasourceOk()
{
    if (currentListItem.tree == nullptr)
        return;
    ApplyStyleResource(currentListItem.Attribute("styleName"));
    AskDialogService([this](const std::string& key)
                     { host.Record("dialogs.CloseDialog(" + key + ", 2, 0)"); });
}

std::string PlainPanel::GetPropertyPanelStateIdentifier()
{
    const bool isCurrent = host.hasUserInterface && context == host.ObjectPropertiesContext();
    return isCurrent ? "State.ObjectProperties" : "State.ObjectStyles";
}

} // namespace LibraryModel
