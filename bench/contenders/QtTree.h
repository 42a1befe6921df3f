#pragma once

#include "bench/workload/StyleTree.h"

#include <QByteArray>
#include <QObject>
#include <QVariant>
#include <vector>

namespace Bench
{

/// The styles of a StyleTree as Qt objects: values are dynamic properties, and the parent is the parent
/// object.
struct QtTree
{
    explicit QtTree(const StyleTree& tree);

    [[nodiscard]] static QByteArray NameOf(std::size_t property);

    /// The value of a property that the style or one of its parents sets.
    [[nodiscard]] static QVariant Effective(const QObject* style, const char* name);

    QObject root;
    std::vector<QObject*> objects; ///< Owned by their parents.
};

} // namespace Bench
