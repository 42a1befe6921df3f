#include "reference_host/document/CascadeStyles.h"

#include "reference_host/document/StyleParents.h"
#include "reference_host/style_model/StyleData.h"
#include "reference_host/style_model/StyleHosting.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/CategoryNames.h"

#include <algorithm>
#include <functional>

namespace ReferenceHost
{

namespace
{

std::size_t HashOf(OwnValues::Scope scope, const Styles::Style* parent,
                   std::span<const StyleRecord* const> levels)
{
    // The factor spreads addresses, which differ in few bits.
    constexpr std::size_t kFactor = 0x9E3779B97F4A7C15ULL;
    std::size_t hash = std::hash<const void*>()(parent) + static_cast<std::size_t>(scope);
    for (const StyleRecord* const level : levels)
        hash = (hash ^ (hash >> 29U)) * kFactor + std::hash<const void*>()(level);
    hash *= kFactor;
    return hash ^ (hash >> 32U);
}

/// Tells whether a predicate holds for any value that the levels give.
template <class Predicate>
bool AnyValue(const std::vector<const StyleRecord*>& levels, const Predicate& matches)
{
    return std::ranges::any_of(levels, [&matches](const StyleRecord* level)
                               { return std::ranges::any_of(level->values, matches); });
}

bool IsRelative(const StyleValue& value)
{
    return value.value.IsEmpty();
}

/// Clears the parents of substyles that do not concern text.
void ForgetParentsOfGraphics(Styles::Style& style, const PropertyMappings& table)
{
    for (const Styles::PropertyKey& category : table.GetCategories())
    {
        const bool concernsText = std::ranges::any_of(
            table.GetRows(), [&](const PropertyMapping& row)
            { return row.category == category && row.element != PropertyElement::Graphic; });
        if (!concernsText)
            style.GetSubstyle(category, false)->SetParent(nullptr);
    }
}

} // namespace

CascadeStyles::CascadeStyles(const PropertyMappings& properties, Styles::Style& defaultStyle)
    : table(properties), defaults(defaultStyle)
{
}

std::size_t CascadeStyles::Intern(OwnValues::Scope scope, Styles::Style* parent,
                                  std::span<const StyleRecord* const> levels)
{
    if (2 * (cascades.size() + 1) > slots.size())
        GrowSlots();
    const std::size_t hash = HashOf(scope, parent, levels);
    const auto isSame = [&](const Cascade& cascade) {
        return cascade.scope == scope && cascade.parent == parent &&
               std::ranges::equal(cascade.levels, levels);
    };
    std::uint32_t& slot = slots[FindSlot(hash, isSame)];
    if (slot != 0)
    {
        ++cascades[slot - 1].uses;
        return slot - 1;
    }
    cascades.push_back({scope, parent, {levels.begin(), levels.end()}, hash, 1, nullptr});
    slot = static_cast<std::uint32_t>(cascades.size());
    return cascades.size() - 1;
}

template <class Predicate>
std::size_t CascadeStyles::FindSlot(std::size_t hash, const Predicate& isSame) const
{
    const std::size_t mask = slots.size() - 1;
    std::size_t place = hash & mask;
    while (slots[place] != 0)
    {
        const Cascade& cascade = cascades[slots[place] - 1];
        if (cascade.hash == hash && isSame(cascade))
            break;
        place = (place + 1) & mask;
    }
    return place;
}

void CascadeStyles::GrowSlots()
{
    constexpr std::size_t kFirst = 64; // Powers of two, so that a hash is cut to a place by a mask.
    slots.assign(slots.empty() ? kFirst : 2 * slots.size(), 0);
    const auto isSame = [](const Cascade& /*cascade*/) { return false; };
    for (std::size_t number = 0; number < cascades.size(); ++number)
        slots[FindSlot(cascades[number].hash, isSame)] = static_cast<std::uint32_t>(number + 1);
}

std::unique_ptr<Styles::Style> CascadeStyles::Make(std::size_t number)
{
    const Cascade& cascade = cascades[number];
    if (cascade.uses == 1 && cascade.prototype == nullptr)
        return Build(cascade);
    return std::make_unique<Styles::Style>(GetPrototype(number));
}

const Styles::Style& CascadeStyles::GetPrototype(std::size_t number)
{
    Cascade& cascade = cascades[number];
    if (cascade.prototype == nullptr)
        cascade.prototype = Build(cascade);
    return *cascade.prototype;
}

std::unique_ptr<Styles::Style> CascadeStyles::MakeFor(const StyleUser& user, std::size_t number)
{
    std::unique_ptr<Styles::Style> style = Make(number);
    users.insert_or_assign(&Styles::StyleData::Of(*style), user);
    ReferenceHost::SetJournal(*style, journal.GetIfUsed());
    return style;
}

StyleUser CascadeStyles::FindUser(const Styles::StyleData& wholeStyle) const
{
    const auto found = users.find(&wholeStyle);
    return found == users.end() ? StyleUser() : found->second;
}

std::vector<StyleUser> CascadeStyles::GetUsers() const
{
    std::vector<StyleUser> all;
    all.reserve(users.size());
    for (const auto& [style, user] : users)
        all.push_back(user);
    return all;
}

void CascadeStyles::FixRelativeValues()
{
    for (Cascade& cascade : cascades)
    {
        if (cascade.prototype == nullptr && AnyValue(cascade.levels, IsRelative))
            cascade.prototype = Build(cascade);
    }
}

std::vector<bool> CascadeStyles::FindRelative(const std::set<std::size_t>& rows) const
{
    std::vector<bool> found(cascades.size());
    for (std::size_t number = 0; number < cascades.size(); ++number)
        found[number] = AnyValue(cascades[number].levels, [&rows](const StyleValue& value)
                                 { return IsRelative(value) && rows.contains(value.row); });
    return found;
}

bool CascadeStyles::HasRelativeValues(std::size_t number) const
{
    return AnyValue(cascades[number].levels, IsRelative);
}

bool CascadeStyles::HasSubstyleParents(std::size_t number) const
{
    return std::ranges::any_of(cascades[number].levels,
                               [](const StyleRecord* level) { return !level->substyleParents.empty(); });
}

bool CascadeStyles::RefersToPalette(std::size_t number, const OvxStringT& entry) const
{
    return AnyValue(cascades[number].levels,
                    [&entry](const StyleValue& value) { return RefersToPaletteEntry(value.value, entry); });
}

std::unique_ptr<Styles::Style> CascadeStyles::Build(const Cascade& cascade) const
{
    std::unique_ptr<Styles::Style> style = MakeWholeStyle(cascade.parent, table);
    SetDefaultStyle(*style, &defaults);
    OwnValues values(table, cascade.scope);
    for (const StyleRecord* const level : cascade.levels)
    {
        SetSubstyleParents(*style, *level);
        values.Add(*level);
    }
    if (cascade.scope == OwnValues::Scope::Text)
        ForgetParentsOfGraphics(*style, table);
    // A percentage of nothing was reported with the style that it stands in, if nothing at all can be
    // inherited there.
    values.WriteTo(*style);
    return style;
}

bool RefersToPaletteEntry(const OvxUtils::Any& value, const OvxStringT& entry)
{
    const auto* const colour = value.TryGet<CLR_COLORSPEC>();
    return colour != nullptr && colour->GetModel() == CLR_COLORSPEC::kResource &&
           colour->GetResourceName() == entry;
}

std::unique_ptr<Styles::Style> MakeWholeStyle(Styles::Style* parent, const PropertyMappings& table)
{
    auto style = std::make_unique<Styles::Style>(parent, Styles::StyleCategoryName);
    for (const Styles::PropertyKey& category : table.GetCategories())
        style->GetSubstyleAndCreateIfMissing(category, category);
    return style;
}

} // namespace ReferenceHost
