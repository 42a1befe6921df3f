#include "reference_host/document/Drawing.h"

#include "reference_host/document/DrawingData.h"
#include "reference_host/document/NamedStyleChanges.h"
#include "reference_host/document/PaletteChange.h"
#include "reference_host/document/StyleNames.h"
#include "reference_host/style_model/StyleData.h"

#include "host/resources/Resources.h"
#include "host/style_model/CategoryNames.h"

#include <algorithm>

// What changes in a drawing beside the values of its styles: named styles and the palette.
namespace ReferenceHost
{

namespace
{

using Styles::Style;
using Styles::StyleData;

OvxStringT StepName(const wchar_t* key)
{
    return Framework::Resources::GetString(key);
}

/// Gives the colours that refer to a palette entry its look, in a style and its substyles.
void Recolour(Style& style, const OvxStringT& entry, CLR_COLORSPEC::Rgb look)
{
    StyleData& data = StyleData::Of(style);
    for (std::size_t i = 0; i < data.properties.size(); ++i)
    {
        if (RefersToPaletteEntry(data.properties[i].value, entry))
            data.Store(data.properties[i].key, OvxUtils::Any(CLR_COLORSPEC::FromResource(entry, look)));
    }
    for (const Styles::OwnSubstyle& substyle : data.substyles)
        Recolour(*substyle.style, entry, look);
}

/// Makes the styles of those that the file gives a colour by a palette entry.
void MakeStylesReferringTo(const OvxStringT& entry, DrawingData& data)
{
    const auto make = [&](auto& user)
    {
        if (data.cascades.RefersToPalette(user.GetCascade(), entry))
            static_cast<void>(user.GetStyle());
    };
    for (DrawingObject& object : data.objects)
    {
        if (object.IsGroup())
            continue;
        make(object);
        std::ranges::for_each(object.GetParagraphs(), make);
        std::ranges::for_each(object.GetRuns(), make);
    }
}

} // namespace

History& Drawing::GetHistory() noexcept
{
    return data->history;
}

Styles::Style* Drawing::AddStyle(const Styles::PropertyKey& category, const OvxStringT& name)
{
    const auto& known = data->table.GetCategories();
    const bool isKnown =
        category == Styles::StyleCategoryName || std::ranges::find(known, category) != known.end();
    if (!isKnown || name.empty() || !CanBeSavedAsName(name) || FindStyle(name) != nullptr)
        return nullptr;

    const History::Step step(data->history, StepName(L"history.create-style"));
    data->history.Perform(std::make_unique<NamedStyleAddition>(
        data->sheet, data->history, name, MakeNamedStyle(category, data->table, *data->defaultStyle)));
    return data->sheet.GetStyle(name);
}

bool Drawing::RenameStyle(const OvxStringT& name, const OvxStringT& newName)
{
    if (data->sheet.GetStyle(name) == nullptr)
        return false;
    if (newName.empty() || !CanBeSavedAsName(newName) || FindStyle(newName) != nullptr)
        return false;

    const History::Step step(data->history, StepName(L"history.rename-style"));
    data->history.Perform(
        std::make_unique<NamedStyleRenaming>(data->sheet, data->appearances, name, newName));
    return true;
}

bool Drawing::DefinePaletteColour(const OvxStringT& name, CLR_COLORSPEC::Rgb look)
{
    if (name.empty() || !CanBeSavedAsName(name) || FindPaletteColour(name) == look)
        return false;

    const History::Step step(data->history, StepName(L"history.palette"));
    data->history.Perform(std::make_unique<PaletteChange>(data->palette, PaletteEntry{name, look}));
    MakeStylesReferringTo(name, *data);
    for (const StyleUser& user : data->cascades.GetUsers())
        Recolour(user.unit == nullptr ? *user.object->GetStyle() : *user.unit->GetStyle(), name, look);
    for (const OvxStringT& styleName : data->sheet.GetNames())
        Recolour(*data->sheet.GetStyle(styleName), name, look);
    Recolour(*data->defaultStyle, name, look);
    return true;
}

} // namespace ReferenceHost
