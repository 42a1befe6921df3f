#include "bench/contenders/QtTree.h"

#include <utility>

namespace Bench
{

QtTree::QtTree(const StyleTree& tree)
{
    std::vector<QByteArray> names;
    for (std::size_t property = 0; property < StyleTree::kProperties; ++property)
        names.push_back(NameOf(property));

    for (std::size_t level = 0; level < StyleTree::kLevels; ++level)
    {
        const std::vector<QObject*> above = std::exchange(objects, {});
        for (std::size_t index = 0; index < tree.CountAt(level); ++index)
        {
            QObject* const style = level == 0 ? &root : new QObject(above[tree.ParentOf(level, index)]);
            for (std::size_t property = 0; property < StyleTree::kProperties; ++property)
            {
                if (const auto value = tree.OwnValue(level, index, property))
                    style->setProperty(names[property].constData(), static_cast<double>(*value));
            }
            objects.push_back(style);
        }
    }
}

QByteArray QtTree::NameOf(std::size_t property)
{
    return QByteArray::fromStdString(StyleTree::NameOf(property));
}

QVariant QtTree::Effective(const QObject* style, const char* name)
{
    QVariant value = style->property(name);
    while (!value.isValid())
    {
        style = style->parent();
        value = style->property(name);
    }
    return value;
}

} // namespace Bench
