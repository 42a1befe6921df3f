#include "apps/desktop/WindowMemory.h"

#include "apps/desktop/WindowText.h"
#include "host/services/ConfigurationFolders.h"

#include <QDir>
#include <QSettings>

namespace Desktop
{
namespace
{

/// Empty where there is no place for it.
QString SettingsFile()
{
    const QString folder = ToQString(INIGetCustomDir());
    return folder.isEmpty() ? QString() : QDir(folder).filePath(QStringLiteral("desktop.ini"));
}

} // namespace

QVariant Recall(const QString& name)
{
    const QString file = SettingsFile();
    return file.isEmpty() ? QVariant() : QSettings(file, QSettings::IniFormat).value(name);
}

void Remember(const QString& name, const QVariant& value)
{
    const QString file = SettingsFile();
    if (!file.isEmpty())
        QSettings(file, QSettings::IniFormat).setValue(name, value);
}

} // namespace Desktop
