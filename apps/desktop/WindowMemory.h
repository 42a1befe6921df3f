#pragma once

#include <QString>
#include <QVariant>

namespace Desktop
{

/// What the window remembers from one run to the next under a name, in the person's configuration; invalid
/// for what it does not.
[[nodiscard]] QVariant Recall(const QString& name);

/// Remembers a value in place of what had that name. Without a place for the configuration nothing is kept.
void Remember(const QString& name, const QVariant& value);

} // namespace Desktop
