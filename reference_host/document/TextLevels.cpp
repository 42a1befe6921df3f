#include "reference_host/document/TextLevels.h"

#include "reference_host/document/Measures.h"

#include "host/colour/CLR_COLORSPEC.h"

#include <algorithm>
#include <optional>

namespace ReferenceHost
{

namespace
{

using OvxUtils::Any;

const StyleValue* FindValue(const StyleRecord* record, std::size_t row)
{
    if (record == nullptr)
        return nullptr;
    const auto found = std::ranges::find(record->values, row, &StyleValue::row);
    return found == record->values.end() ? nullptr : &*found;
}

/// A value that is looked for from the inside to the outside, through percentages of what is farther out.
class Search
{
public:
    /// Takes the next value into account.
    ///
    /// @returns whether the search has come to its end.
    bool Take(const Any& value, double percent)
    {
        if (!value.IsEmpty())
        {
            found = isOpen ? PartOf(value) : value;
            return true;
        }
        fraction = isOpen ? fraction * percent / 100.0 : percent / 100.0;
        isOpen = true;
        return false;
    }

    /// What came out; `inherited` is what is outside of all.
    [[nodiscard]] Any Finish(const Any& inherited) const
    {
        const bool isUndecided = found.IsEmpty() && isOpen && !inherited.IsEmpty();
        return isUndecided ? PartOf(inherited) : found;
    }

private:
    [[nodiscard]] Any PartOf(const Any& value) const
    {
        // Nothing of a colour is the colour of the window, which is black on paper.
        if (fraction == 0)
            return Any(CLR_COLORSPEC());
        const int* const whole = value.TryGet<int>();
        const std::optional<int> part = whole == nullptr ? std::nullopt : RoundToInt(*whole * fraction);
        return part ? Any(*part) : Any();
    }

    Any found;
    double fraction = 0;
    bool isOpen = false;
};

const Any& ValueAt(const PropertyValues& values, std::size_t row)
{
    static const Any none;
    const auto found = values.find(row);
    return found == values.end() ? none : found->second;
}

} // namespace

TextLevels::TextLevels(const SavingContext& savingContext, const Styles::Style& inherited)
    : context(savingContext), inheritance(inherited)
{
}

std::size_t TextLevels::AddLevel(const StyleReference& reference, std::size_t outer)
{
    TextLevel level;
    level.reference = reference;
    level.outer = outer;
    const StyleRecord* record = reference.record;
    if (record != nullptr && record->origin == StyleOrigin::Automatic)
    {
        level.automatic = record;
        record = record->parent;
    }
    // The graphic style's parent is what all text inherits from in the end.
    for (; record != nullptr && reference.family != StyleFamily::Graphic; record = record->parent)
        level.named.push_back(record);
    levels.push_back(std::move(level));
    return levels.size() - 1;
}

Any TextLevels::Evaluate(std::size_t place, std::size_t row) const
{
    Search search;
    for (; place != TextLevel::kOutermost; place = levels[place].outer)
    {
        const TextLevel& level = levels[place];
        if (level.isRepeated)
            continue;
        const auto change = level.changes.find(row);
        if (change != level.changes.end())
        {
            if (!change->second.IsEmpty() && search.Take(change->second, 0))
                return search.Finish({});
        }
        else if (const StyleValue* const value = FindValue(level.automatic, row);
                 value != nullptr && search.Take(value->value, value->percentOfInherited))
            return search.Finish({});
        for (const StyleRecord* const record : level.named)
        {
            const StyleValue* const value = FindValue(record, row);
            if (value != nullptr && search.Take(value->value, value->percentOfInherited))
                return search.Finish({});
        }
    }
    const PropertyMapping& mapping = context.data.table.GetRows()[row];
    return search.Finish(inheritance.GetPathProperty({mapping.category, mapping.key}));
}

PropertyValues TextLevels::EvaluateAll(std::size_t level, PropertyElement element) const
{
    PropertyValues values;
    const PropertyMappings& table = context.data.table;
    for (std::size_t row = 0; row < table.GetRows().size(); ++row)
    {
        if (table.GetFirstRow(row) != row || table.GetRows()[row].element != element)
            continue;
        Any value = Evaluate(level, row);
        if (!value.IsEmpty())
            values.emplace(row, std::move(value));
    }
    return values;
}

void TextLevels::Settle(std::size_t row, std::vector<TextLeaf>& leaves, const PropertyValues* ofShape)
{
    TakeUnreachable(row, leaves);
    const std::vector<bool> closed = FindClosed(row, leaves);
    std::vector<std::vector<TextLeaf*>> leavesOf(levels.size());
    for (TextLeaf& leaf : leaves)
        leavesOf[leaf.level].push_back(&leaf);
    for (std::size_t level = 0; level < levels.size(); ++level)
    {
        if (closed[level] && FindValue(levels[level].automatic, row) != nullptr)
            levels[level].changes[row] = Any();
        if (level == 0)
            SettleShape(row, closed[level], ofShape);
        SettleLeaves(row, level, closed[level], leavesOf[level]);
    }
}

void TextLevels::TakeUnreachable(std::size_t row, std::vector<TextLeaf>& leaves)
{
    for (TextLeaf& leaf : leaves)
    {
        if (leaf.wanted.contains(row))
            continue;
        const StyleRecord* setter = nullptr;
        for (std::size_t place = leaf.level; place != TextLevel::kOutermost; place = levels[place].outer)
        {
            for (const StyleRecord* const record : levels[place].named)
            {
                if (setter == nullptr && FindValue(record, row) != nullptr)
                    setter = record;
            }
        }
        if (setter == nullptr)
            continue;
        const PropertyMapping& mapping = context.data.table.GetRows()[row];
        const Any& inherited = inheritance.GetPathProperty({mapping.category, mapping.key});
        if (!inherited.IsEmpty())
        {
            leaf.wanted[row] = inherited;
            continue;
        }
        context.warnings.AddAbout(*setter,
                                  "it sets " + NameOfProperty(mapping) +
                                      " for text that shall not have it; the text keeps it in the file");
        Any value = Evaluate(leaf.level, row);
        if (!value.IsEmpty())
            leaf.wanted[row] = std::move(value);
    }
}

std::vector<bool> TextLevels::FindClosed(std::size_t row, const std::vector<TextLeaf>& leaves) const
{
    std::vector<bool> closed(levels.size());
    for (const TextLeaf& leaf : leaves)
    {
        if (leaf.wanted.contains(row))
            continue;
        for (std::size_t place = leaf.level; place != TextLevel::kOutermost; place = levels[place].outer)
            closed[place] = true;
    }
    return closed;
}

void TextLevels::SettleShape(std::size_t row, bool isClosed, const PropertyValues* ofShape)
{
    if (ofShape == nullptr || isClosed)
        return;
    const Any& wanted = ValueAt(*ofShape, row);
    if (Evaluate(0, row) != wanted)
        levels.front().changes[row] = wanted;
}

void TextLevels::SettleLeaves(std::size_t row, std::size_t level, bool isClosed,
                              const std::vector<TextLeaf*>& own)
{
    if (own.empty())
        return;
    const auto wantedOf = [row](const TextLeaf* leaf) { return ValueAt(leaf->wanted, row); };
    const Any wanted = wantedOf(own.front());
    const bool agree =
        std::ranges::all_of(own, [&](const TextLeaf* leaf) { return wantedOf(leaf) == wanted; });
    if (agree && !isClosed && Evaluate(level, row) != wanted)
        levels[level].changes[row] = wanted;
    const Any given = Evaluate(level, row);
    for (TextLeaf* const leaf : own)
    {
        if (wantedOf(leaf) != given && !wantedOf(leaf).IsEmpty())
            leaf->wrapped[row] = wantedOf(leaf);
    }
}

bool TextLevels::HasChanges() const
{
    return std::ranges::any_of(levels, [](const TextLevel& level) { return !level.changes.empty(); });
}

void TextLevels::StartAgain(std::vector<TextLeaf>& leaves)
{
    for (TextLevel& level : levels)
    {
        level.changes.clear();
        level.isRepeated = false;
    }
    for (TextLeaf& leaf : leaves)
        leaf.wrapped.clear();
}

} // namespace ReferenceHost
