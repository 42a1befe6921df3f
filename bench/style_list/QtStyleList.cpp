#include "bench/style_list/QtStyleList.h"

#include <algorithm>
#include <string_view>

namespace Bench
{

namespace
{

bool InheritsFrom(const QtNamedStyle& style, const QtNamedStyle* ancestor)
{
    const QtNamedStyle* above = style.parent;
    while (above != nullptr && above != ancestor)
        above = above->parent;
    return above != nullptr;
}

void AddRow(RowSum& sum, const QAbstractItemModel& list, int row)
{
    const QString text = list.index(row, 0).data().toString();
    sum.Add(std::u16string_view(QStringView(text).utf16(), static_cast<std::size_t>(text.size())));
}

} // namespace

QtStyleModel::QtStyleModel(const NamedStyles& named)
{
    for (std::size_t style = 0; style < named.Count(); ++style)
    {
        const QtNamedStyle* const parent = NamedStyles::ParentOf(style) ? target : nullptr;
        styles.push_back({QString::fromStdString(NamedStyles::NameOf(style)), true, parent});
        target = &styles.back();
        if (NamedStyles::IsBeforeOther(style))
            styles.push_back({QString::fromStdString(NamedStyles::NameOfOther(style)), false, nullptr});
    }
    const QString edited = QString::fromStdString(NamedStyles::NameOf(named.Target()));
    target = &*std::find_if(styles.begin(), styles.end(),
                            [&](const QtNamedStyle& style) { return style.name == edited; });
    currentRow = static_cast<int>(std::find_if(styles.begin(), styles.end(),
                                               [this](const QtNamedStyle& style)
                                               { return &style == target->parent; }) -
                                  styles.begin());
}

QModelIndex QtStyleModel::GetCurrent() const
{
    return index(currentRow);
}

int QtStyleModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(styles.size());
}

QVariant QtStyleModel::data(const QModelIndex& index, int role) const
{
    const QtNamedStyle& style = styles[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole)
        return style.name;
    return role == kStyleRole ? QVariant::fromValue(&style) : QVariant();
}

void QtOfferedStyles::SetTarget(const QtNamedStyle* newTarget)
{
    target = newTarget;
    invalidateFilter();
}

bool QtOfferedStyles::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const auto* const style =
        sourceModel()->index(row, 0, parent).data(QtStyleModel::kStyleRole).value<const QtNamedStyle*>();
    if (!style->isListed)
        return false;
    return target == nullptr || (style != target && !InheritsFrom(*style, target));
}

QtStyleList::QtStyleList(const NamedStyles& named) : model(named)
{
    offered.setSourceModel(&model);
    all.setSourceModel(&model);
}

double QtStyleList::Open()
{
    RowSum sum;
    ReadMain(sum);
    return sum.Get();
}

double QtStyleList::OpenWhole()
{
    RowSum sum;
    ReadMain(sum);
    ReadFurther(sum);
    return sum.Get();
}

void QtStyleList::ReadMain(RowSum& sum)
{
    offered.SetTarget(&model.GetTarget());
    const int count = offered.rowCount();
    const bool overflows = count > static_cast<int>(kLongestList);
    const int shown = overflows ? static_cast<int>(kShownOfMore) : count;
    for (int row = 0; row < shown; ++row)
        AddRow(sum, offered, row);
    const int current = offered.mapFromSource(model.GetCurrent()).row();
    if (current >= shown)
        AddRow(sum, offered, current);
}

void QtStyleList::ReadFurther(RowSum& sum)
{
    all.SetTarget(nullptr);
    const int current = all.mapFromSource(model.GetCurrent()).row();
    const int first =
        static_cast<int>(offered.rowCount() > static_cast<int>(kLongestList) ? kShownOfMore : kLongestList);
    const int count = all.rowCount();
    for (int row = first; row < count; ++row)
    {
        if (row != current)
            AddRow(sum, all, row);
    }
}

} // namespace Bench
