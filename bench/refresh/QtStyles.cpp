#include "bench/refresh/QtStyles.h"

#include "bench/workload/RefreshSum.h"

#include <QVariant>
#include <algorithm>

namespace Bench
{

namespace
{

bool Sets(const QObject* style, const char* name)
{
    return style->property(name).isValid();
}

} // namespace

QtStyles::QtStyles(const StyleTree& tree) : qt(tree)
{
    for (std::size_t property = 0; property < StyleTree::kProperties; ++property)
        names.push_back(QtTree::NameOf(property));
}

bool QtStyles::IsAmbiguous(const char* name) const
{
    const QVariant first = QtTree::Effective(qt.objects.front(), name);
    return std::any_of(qt.objects.begin() + 1, qt.objects.end(),
                       [&](const QObject* object) { return QtTree::Effective(object, name) != first; });
}

double QtStyles::Refresh() const
{
    RefreshSum sum;
    for (const QByteArray& name : names)
    {
        const bool isAmbiguous = IsAmbiguous(name.constData());
        const bool overrides = Sets(qt.objects.front(), name.constData());
        Origin origin = overrides ? Origin::Overridden : Origin::Inherited;
        for (std::size_t index = 1; index < qt.objects.size() && origin != Origin::Ambiguous; ++index)
        {
            if (qt.objects[index]->parent() == nullptr)
            {
                origin = Origin::AmbiguousParent;
                break;
            }
            if (Sets(qt.objects[index], name.constData()) != overrides)
                origin = Origin::Ambiguous;
        }
        sum.Add(origin,
                isAmbiguous
                    ? std::nullopt
                    : std::optional(QtTree::Effective(qt.objects.front(), name.constData()).toDouble()));
    }
    return sum.Get();
}

} // namespace Bench
