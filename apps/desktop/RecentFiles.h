#pragma once

#include <QStringList>

namespace Desktop
{

/// The files that were opened last, kept in the person's configuration: the latest first, none twice.
[[nodiscard]] QStringList ReadRecentFiles();

/// Puts a file at the front; its absolute path is kept. Without a place for the configuration nothing is.
void AddRecentFile(const QString& file);

/// Forgets all.
void ClearRecentFiles();

} // namespace Desktop
