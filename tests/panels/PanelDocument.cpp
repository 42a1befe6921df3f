#include "tests/panels/PanelDocument.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/CategoryNames.h"
#include "reference_host/style_model/StyleHosting.h"

using namespace Styles;
using OvxUtils::Any;

namespace PanelTests
{

namespace
{

CLR_COLORSPEC::Rgb ToRgb(std::uint32_t rgb)
{
    return {static_cast<std::uint8_t>(rgb >> 16U), static_cast<std::uint8_t>(rgb >> 8U),
            static_cast<std::uint8_t>(rgb)};
}

} // namespace

PropertyKey Key(const OvxStringT& text)
{
    return PropertyKey(PooledString<StringPool>(text));
}

Any Colour(std::uint32_t rgb)
{
    return Any(CLR_COLORSPEC::FromRgb(ToRgb(rgb)));
}

Any PaletteColour(const OvxStringT& name, std::uint32_t rgb)
{
    return Any(CLR_COLORSPEC::FromResource(name, ToRgb(rgb)));
}

Any Number(int number)
{
    return Any(number);
}

Any Choice(const OvxStringT& text)
{
    return Any(Key(text));
}

Any Text(const OvxStringT& text)
{
    return Any(text);
}

PanelDocument::PanelDocument() : defaults(MakeWhole(nullptr))
{
}

PanelDocument::~PanelDocument() = default;

Style* PanelDocument::AddNamed(const OvxStringT& name, Style* parent)
{
    return sheet.Add(name, MakeWhole(parent));
}

Style* PanelDocument::AddObject(Style* parent)
{
    return objects.emplace_back(MakeWhole(parent)).get();
}

std::vector<Style*> PanelDocument::AddObjects(std::size_t count, Style* parent)
{
    std::vector<Style*> added;
    for (std::size_t number = 0; number < count; ++number)
        added.push_back(AddObject(parent));
    return added;
}

void PanelDocument::RemoveObjects()
{
    objects.clear();
}

StyleSheet* PanelDocument::GetStyleSheet()
{
    return &sheet;
}

std::vector<Style*> PanelDocument::GetDefaultStyles()
{
    return {defaults.get()};
}

bool PanelDocument::IsHidden(const OvxStringT& /*styleName*/) const
{
    return false;
}

OvxStringT PanelDocument::GetDisplayName(const OvxStringT& styleName) const
{
    return styleName;
}

Style* PanelDocument::AddStyle(const PropertyKey& /*category*/, const OvxStringT& /*name*/)
{
    return nullptr;
}

bool PanelDocument::RenameStyle(const OvxStringT& /*name*/, const OvxStringT& /*newName*/)
{
    return false;
}

std::unique_ptr<Style> PanelDocument::MakeWhole(Style* parent)
{
    auto whole = std::make_unique<Style>(parent, StyleCategoryName);
    for (const PropertyKey& category : {FillStyleCategoryName, OutlineStyleCategoryName,
                                        GetParagraphStyleCategoryName(), GetCharacterStyleCategoryName()})
        whole->GetSubstyleAndCreateIfMissing(category, category);
    ReferenceHost::SetDefaultStyle(*whole, defaults.get());
    ReferenceHost::SetJournal(*whole, &history);
    return whole;
}

void Set(Style* whole, const OvxStringT& category, const OvxStringT& key, const Any& value)
{
    whole->SetPathProperty({Key(category), Key(key)}, Any(value));
}

} // namespace PanelTests
