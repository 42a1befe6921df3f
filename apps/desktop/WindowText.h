#pragma once

#include "host/utils/OvxStringT.h"
#include "host/utils/OvxStringViewT.h"

#include <QString>

#include <filesystem>

namespace Desktop
{

/// A text of the project as the window's toolkit holds it.
[[nodiscard]] QString ToQString(OvxStringViewT text);

/// The other way round.
[[nodiscard]] OvxStringT FromQString(const QString& text);

/// A path as people see it.
[[nodiscard]] QString PathToQString(const std::filesystem::path& path);

/// The path that a text stands for.
[[nodiscard]] std::filesystem::path PathFromQString(const QString& text);

/// The text of a key of the catalogues, in the language in force.
[[nodiscard]] QString TextOf(OvxStringViewT key);

/// The same, with "%1" filled in.
[[nodiscard]] QString TextOf(OvxStringViewT key, const QString& insert);

/// A text as menus and buttons show it as it is: every "&" doubled.
[[nodiscard]] QString EscapeMnemonics(QString text);

} // namespace Desktop
