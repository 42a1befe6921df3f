#include "apps/desktop/WindowText.h"

#include "host/resources/Resources.h"
#include "reference_host/services/NativePaths.h"

namespace Desktop
{

QString ToQString(OvxStringViewT text)
{
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

OvxStringT FromQString(const QString& text)
{
    return OvxStringT(text.toStdWString());
}

QString PathToQString(const std::filesystem::path& path)
{
    return QString::fromStdString(ReferenceHost::PathToUtf8(path));
}

std::filesystem::path PathFromQString(const QString& text)
{
    return ReferenceHost::PathFromText(FromQString(text));
}

QString TextOf(OvxStringViewT key)
{
    return ToQString(Framework::Resources::GetString(OvxStringT(key)));
}

QString TextOf(OvxStringViewT key, const QString& insert)
{
    const OvxStringT pattern = Framework::Resources::GetString(OvxStringT(key));
    return ToQString(OvxStringT::FormatMessageInserts(pattern, {FromQString(insert)}));
}

QString EscapeMnemonics(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace Desktop
