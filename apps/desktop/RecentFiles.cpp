#include "apps/desktop/RecentFiles.h"

#include "apps/desktop/WindowText.h"
#include "host/services/ConfigurationFolders.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace Desktop
{
namespace
{

constexpr qsizetype kMost = 10;

/// The file in which the window keeps what it remembers; empty where there is no place for it.
QString SettingsFile()
{
    const QString folder = ToQString(INIGetCustomDir());
    return folder.isEmpty() ? QString() : QDir(folder).filePath(QStringLiteral("desktop.ini"));
}

QString Key()
{
    return QStringLiteral("recentFiles");
}

void Write(const QStringList& files)
{
    const QString file = SettingsFile();
    if (!file.isEmpty())
        QSettings(file, QSettings::IniFormat).setValue(Key(), files);
}

} // namespace

QStringList ReadRecentFiles()
{
    const QString file = SettingsFile();
    return file.isEmpty() ? QStringList() : QSettings(file, QSettings::IniFormat).value(Key()).toStringList();
}

void AddRecentFile(const QString& file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    QStringList files = ReadRecentFiles();
    files.removeAll(path);
    files.prepend(path);
    Write(files.mid(0, kMost));
}

void ClearRecentFiles()
{
    Write({});
}

} // namespace Desktop
