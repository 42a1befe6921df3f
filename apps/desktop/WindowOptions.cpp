#include "apps/desktop/WindowOptions.h"

#include <QCommandLineParser>

namespace Desktop
{
namespace
{

constexpr int kWrongUsage = 2;

const QString kSelect = QStringLiteral("select");
const QString kScreenshot = QStringLiteral("screenshot");
const QString kPanels = QStringLiteral("panels");
const QString kLanguage = QStringLiteral("lang");
const QString kHelp = QStringLiteral("help");
const QString kVersion = QStringLiteral("version");

void Declare(QCommandLineParser& parser)
{
    parser.setApplicationDescription(QStringLiteral("Shows a drawing with its style panels."));
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("A drawing: .odg, .otg or .fodg."),
                                 QStringLiteral("[FILE]"));
    parser.addOptions(
        {{kSelect,
          QStringLiteral("What is selected at first: all, page:N, name:GLOB, style:GLOB, kind:GLOB, "
                         "id:1/4/2, defaults or sheet:NAME."),
          QStringLiteral("SELECTOR")},
         {kScreenshot, QStringLiteral("Write a picture of the window and exit."), QStringLiteral("OUT.png")},
         {kPanels, QStringLiteral("The folder of the panels."), QStringLiteral("DIR")},
         {kLanguage, QStringLiteral("The language of the window: en or de."), QStringLiteral("LANG")},
         {{QStringLiteral("h"), kHelp}, QStringLiteral("Show this help and exit.")},
         {kVersion, QStringLiteral("Show the version and exit.")}});
}

} // namespace

WindowCommand ReadWindowOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    Declare(parser);
    const bool isRead = parser.parse(arguments);
    const QStringList files = parser.positionalArguments();
    if (!isRead)
        return {std::nullopt, parser.errorText(), kWrongUsage};
    if (parser.isSet(kHelp))
        return {std::nullopt, parser.helpText(), 0};
    if (parser.isSet(kVersion))
        return {std::nullopt, QStringLiteral("styleprops-desktop " STYLEPROPERTIES_VERSION), 0};
    if (files.size() > 1)
        return {std::nullopt, QStringLiteral("There is more than one FILE; expected one at most."),
                kWrongUsage};
    WindowOptions options;
    options.file = files.value(0);
    options.selector = parser.value(kSelect);
    options.screenshot = parser.value(kScreenshot);
    options.panelFolder = parser.value(kPanels);
    options.language = parser.value(kLanguage);
    return {options, {}, 0};
}

} // namespace Desktop
