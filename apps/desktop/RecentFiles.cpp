#include "apps/desktop/RecentFiles.h"

#include "apps/desktop/WindowMemory.h"

#include <QFileInfo>

namespace Desktop
{
namespace
{

constexpr qsizetype kMost = 10;

QString Name()
{
    return QStringLiteral("recentFiles");
}

} // namespace

QStringList ReadRecentFiles()
{
    return Recall(Name()).toStringList();
}

void AddRecentFile(const QString& file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    QStringList files = ReadRecentFiles();
    files.removeAll(path);
    files.prepend(path);
    Remember(Name(), files.mid(0, kMost));
}

void ClearRecentFiles()
{
    Remember(Name(), QStringList());
}

} // namespace Desktop
