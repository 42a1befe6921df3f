#pragma once

#include "bench/contenders/QtTree.h"
#include "bench/workload/StyleTree.h"

#include <QByteArray>
#include <vector>

namespace Bench
{

/// Styles as Qt objects: values are dynamic properties, and the parent is the parent object.
class QtStyles
{
public:
    explicit QtStyles(const StyleTree& tree);

    /// Asks of each property whether the objects agree and where their values come from, and reads the value
    /// where they agree.
    [[nodiscard]] double Refresh() const;

private:
    [[nodiscard]] bool IsAmbiguous(const char* name) const;

    QtTree qt;
    std::vector<QByteArray> names;
};

} // namespace Bench
