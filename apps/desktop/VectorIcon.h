#pragma once

#include <QIcon>
#include <QString>

namespace Desktop
{

/// An icon from one of the program's own pictures, such as "none" for icons/none.svg. Empty for any other
/// name.
[[nodiscard]] QIcon MakeVectorIcon(const QString& name);

} // namespace Desktop
