#include "host/style_model/Style.h"

#include "reference_host/style_model/StyleData.h"
#include "reference_host/style_model/StyleHosting.h"
#include "reference_host/style_model/StyleInheritance.h"
#include "reference_host/style_model/StyleResolution.h"

#include <atomic>
#include <utility>

namespace Styles
{

namespace
{

constinit std::atomic<std::size_t> liveStyles = 0;

/// The effective value of `key` at the place `below` under `style`.
const OvxUtils::Any& FindEffectiveBelow(const Style& style, ReferenceHost::Names below,
                                        const PropertyKey& key)
{
    const OvxUtils::Any* found = nullptr;
    ReferenceHost::VisitSources(style, below,
                                [&found, &key](const StyleData& source)
                                {
                                    found = source.FindOwn(key);
                                    return found != nullptr;
                                });
    return found == nullptr ? ReferenceHost::NoValue() : *found;
}

const StyleRelations::ExternalSheet* FindExternalSheet(const Style& style)
{
    const StyleData& outermost = StyleData::Of(ReferenceHost::OutermostOwner(style));
    return outermost.relations == nullptr ? nullptr : outermost.relations->external.get();
}

} // namespace

Style::Style() : Style(nullptr, PropertyKey::Empty)
{
}

Style::Style(Style* parent, const PropertyKey& category) : data(std::make_unique<StyleData>(category))
{
    data->LinkParent(parent);
    ++liveStyles;
}

Style::Style(const Style& other) : Style(other.GetParent(), other.data->category)
{
    data->LinkDefaults(other.data->GetDefaults());
    data->StoreAll(other.data->properties);
    for (const OwnSubstyle& substyle : other.data->substyles)
        data->Place(*this, substyle.key, std::make_unique<Style>(*substyle.style));
}

Style& Style::operator=(const Style& other)
{
    if (this == &other)
        return *this;

    // The other may lie within this style and go with the substyles that are replaced.
    Style copy(other);
    while (!data->substyles.empty())
        data->Place(*this, data->substyles.back().key, nullptr);
    data->StoreAll(std::move(copy.data->properties));
    for (OwnSubstyle& substyle : copy.data->substyles)
        data->Place(*this, substyle.key, std::move(substyle.style));
    copy.data->substyles.clear();
    data->SetCategory(copy.data->category);
    SetParent(copy.GetParent());
    if (data->GetDefaults() == nullptr)
        data->LinkDefaults(copy.data->GetDefaults());
    return *this;
}

Style::~Style()
{
    --liveStyles;
}

const OvxUtils::Any& Style::GetProperty(const PropertyKey& key) const
{
    return ReferenceHost::GetEffective(*this, key);
}

const OvxUtils::Any& Style::GetPathProperty(const PropertyPath& path) const
{
    if (path.empty())
        return ReferenceHost::NoValue();

    // As deep as this style's own substyles go, what stands there decides; below that, what corresponds to
    // it.
    ReferenceHost::Names below(path.data(), path.size() - 1);
    const Style* place = this;
    while (!below.empty())
    {
        const Style* next = place->data->FindSubstyle(below.front());
        if (next == nullptr)
            break;
        place = next;
        below = below.subspan(1);
    }
    return below.empty() ? place->GetProperty(path.back()) : FindEffectiveBelow(*place, below, path.back());
}

void Style::SetProperty(const PropertyKey& key, const OvxUtils::Any& value)
{
    data->Store(key, value);
}

void Style::SetPathProperty(const PropertyPath& path, OvxUtils::Any&& value)
{
    if (path.empty())
        return;

    Style* place = this;
    for (std::size_t i = 0; i + 1 < path.size(); ++i)
    {
        // Removing needs no substyle that is not there.
        place = value.IsEmpty() ? place->data->FindSubstyle(path[i])
                                : place->GetSubstyleAndCreateIfMissing(path[i], path[i]);
        if (place == nullptr)
            return;
    }
    place->data->Store(path.back(), std::move(value));
}

Style* Style::GetSubstyle(const PropertyKey& key, [[maybe_unused]] bool walkingPath) const
{
    return data->FindSubstyle(key);
}

Style* Style::GetSubstyleAndCreateIfMissing(const PropertyKey& key, const PropertyKey& category)
{
    if (key == PropertyKey::Empty)
        return nullptr;
    if (Style* found = data->FindSubstyle(key))
        return found;

    data->Place(*this, key, std::make_unique<Style>(nullptr, category));
    return data->FindSubstyle(key);
}

void Style::SetSubstyle(const PropertyKey& key, const Style* substyle)
{
    if (key == PropertyKey::Empty)
        return;

    if (substyle == nullptr)
        data->Place(*this, key, nullptr);
    else if (Style* existing = data->FindSubstyle(key))
        *existing = *substyle;
    else
        data->Place(*this, key, std::make_unique<Style>(*substyle));
}

void Style::SetParent(Style* newParent)
{
    if (newParent == data->GetParent())
        return;
    if (newParent != nullptr && ReferenceHost::WouldCloseCycle(*this, *newParent))
        return;
    data->LinkParent(newParent);
}

bool Style::IsEmpty() const
{
    return data->properties.empty() && data->substyles.empty();
}

bool Style::IsExternal() const
{
    return FindExternalSheet(*this) != nullptr;
}

PropertyKey Style::GetCategoryName() const
{
    return data->category;
}

bool Style::HasParentalDependency(std::span<Style* const> styles) const
{
    return ReferenceHost::InheritsFromAny(*this, styles);
}

Style* Style::GetParent() const
{
    return data->GetParent();
}

Style* Style::GetOwner() const
{
    return data->owner;
}

OvxStringT Style::GetExternalStyleSheetName() const
{
    const StyleRelations::ExternalSheet* sheet = FindExternalSheet(*this);
    return sheet == nullptr ? OvxStringT() : sheet->name;
}

OvxStringT Style::GetExternalLink() const
{
    const StyleRelations::ExternalSheet* sheet = FindExternalSheet(*this);
    return sheet == nullptr ? OvxStringT() : sheet->link;
}

std::size_t Style::GetOwnPropertyCount() const
{
    return data->properties.size();
}

} // namespace Styles

namespace ReferenceHost
{

void SetDefaultStyle(Styles::Style& style, Styles::Style* defaults)
{
    Styles::StyleData::Of(style).LinkDefaults(defaults);
}

Styles::Style* GetDefaultStyle(const Styles::Style& style)
{
    return Styles::StyleData::Of(style).GetDefaults();
}

void SetExternalSheet(Styles::Style& style, const OvxStringT& sheetName, const OvxStringT& link)
{
    Styles::StyleData::Of(style).SetExternal(
        sheetName.empty() ? nullptr
                          : std::make_unique<Styles::StyleRelations::ExternalSheet>(
                                Styles::StyleRelations::ExternalSheet{sheetName, link}));
}

void SetJournal(Styles::Style& style, IStyleJournal* journal)
{
    Styles::StyleData::Of(style).SetJournal(journal);
}

std::size_t LiveStyleCount() noexcept
{
    return Styles::liveStyles;
}

} // namespace ReferenceHost
