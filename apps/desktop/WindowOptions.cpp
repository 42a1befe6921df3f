#include "apps/desktop/WindowOptions.h"

#include <QCommandLineParser>

namespace Desktop
{
namespace
{

constexpr int kWrongUsage = 2;

const QString kSelect = QStringLiteral("select");
const QString kScreenshot = QStringLiteral("screenshot");
const QString kPage = QStringLiteral("page");
const QString kSize = QStringLiteral("size");
const QString kOpen = QStringLiteral("open");
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
         {kPage, QStringLiteral("The page that is shown at first, counted from 1."), QStringLiteral("N")},
         {kSize, QStringLiteral("How large the window is, in pixels."), QStringLiteral("WxH")},
         {kScreenshot, QStringLiteral("Write a picture of the window and exit."), QStringLiteral("OUT.png")},
         {kOpen,
          QStringLiteral("What is open in the picture: PANEL.styles, PANEL.presets, PANEL.whole, "
                         "PANEL.ROW.state for the menu of a row, PANEL.ROW for the list of its values, or "
                         "window.edit.select and the like for an entry of the menus."),
          QStringLiteral("NAME")},
         {kPanels, QStringLiteral("The folder of the panels."), QStringLiteral("DIR")},
         {kLanguage, QStringLiteral("The language of the window: en or de."), QStringLiteral("LANG")},
         {{QStringLiteral("h"), kHelp}, QStringLiteral("Show this help and exit.")},
         {kVersion, QStringLiteral("Show the version and exit.")}});
}

WindowCommand Refuse(const QString& problem)
{
    return {std::nullopt, problem, kWrongUsage};
}

/// A number from one on; none for anything else.
std::optional<int> ReadCount(const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number > 0 ? std::optional(number) : std::nullopt;
}

/// Reads "1280x860"; none for anything else.
std::optional<QSize> ReadSize(const QString& text)
{
    const QStringList sides = text.split(QLatin1Char('x'));
    const auto width = ReadCount(sides.value(0));
    const auto height = ReadCount(sides.value(1));
    return sides.size() == 2 && width && height ? std::optional(QSize(*width, *height)) : std::nullopt;
}

WindowCommand ReadOptions(const QCommandLineParser& parser)
{
    WindowOptions options;
    options.file = parser.positionalArguments().value(0);
    options.selector = parser.value(kSelect);
    options.screenshot = parser.value(kScreenshot);
    options.opened = parser.value(kOpen);
    options.panelFolder = parser.value(kPanels);
    options.language = parser.value(kLanguage);
    const auto page = parser.isSet(kPage) ? ReadCount(parser.value(kPage)) : options.page;
    const auto size = parser.isSet(kSize) ? ReadSize(parser.value(kSize)) : QSize();
    if (!page)
        return Refuse(QStringLiteral("--page: expected the number of a page, from 1 on."));
    if (!size)
        return Refuse(QStringLiteral("--size: expected a width and a height in pixels, such as 1280x860."));
    if (!options.opened.isEmpty() && options.screenshot.isEmpty())
        return Refuse(QStringLiteral("--open is for pictures; expected --screenshot beside it."));
    options.page = *page;
    options.size = *size;
    return {options, {}, 0};
}

} // namespace

WindowCommand ReadWindowOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    Declare(parser);
    const bool isRead = parser.parse(arguments);
    if (!isRead)
        return Refuse(parser.errorText());
    if (parser.isSet(kHelp))
        return {std::nullopt, parser.helpText(), 0};
    if (parser.isSet(kVersion))
        return {std::nullopt, QStringLiteral("styleprops-desktop " STYLEPROPERTIES_VERSION), 0};
    if (parser.positionalArguments().size() > 1)
        return Refuse(QStringLiteral("There is more than one FILE; expected one at most."));
    return ReadOptions(parser);
}

} // namespace Desktop
