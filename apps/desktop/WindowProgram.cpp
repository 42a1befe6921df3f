#include "apps/desktop/WindowProgram.h"

#include "apps/desktop/MainWindow.h"
#include "apps/desktop/ToolkitLanguage.h"
#include "apps/desktop/VectorIcon.h"
#include "apps/desktop/WindowOptions.h"
#include "apps/desktop/WindowPicture.h"
#include "apps/desktop/WindowText.h"
#include "apps/desktop/canvas/CanvasWidget.h"
#include "apps/workbench/FailedWrites.h"
#include "apps/workbench/PanelFolder.h"
#include "reference_host/resources/Language.h"

#include <QApplication>
#include <QLocale>
#include <QPixmap>

#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

namespace Desktop
{
namespace
{

constexpr int kBadInput = 1;
constexpr int kWrongUsage = 2;

void WriteLine(std::ostream& stream, const QString& text)
{
    stream << text.toStdString() << '\n';
}

/// A picture of the window can be made where there is no screen to show it on.
void NeedNoScreenForPictures(int argumentCount, const char* const* arguments)
{
    const bool hasScreen =
        qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (hasScreen || qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
    for (int index = 1; index < argumentCount; ++index)
    {
        const std::string_view argument = arguments[index];
        if (argument.starts_with("--screenshot") || argument == "--help" || argument == "--version")
            qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

/// Puts the texts of the person's language in force, or of the one that was asked for.
bool ChooseLanguage(const QString& asked)
{
    const std::string language = asked.isEmpty()
                                     ? ReferenceHost::FindLanguageFor(QLocale().name().toStdString())
                                     : asked.toStdString();
    QLocale::setDefault(QLocale(QString::fromStdString(language)));
    if (!ReferenceHost::SetLanguage(language))
        return false;
    TranslateToolkit(language);
    return true;
}

/// Opens what the options name. Without anybody at the window, what fails goes to the terminal.
bool Begin(MainWindow& window, const WindowOptions& options)
{
    QObject::connect(&window.GetDocument(), &Document::failed,
                     [](const QString& message) { WriteLine(std::cerr, message); });
    if (!options.file.isEmpty() && !window.OpenFile(PathFromQString(options.file)))
        return false;
    const int pages = window.GetCanvas().PageCount();
    if (options.page > 1 && options.page > pages)
    {
        WriteLine(std::cerr, QStringLiteral("--page %1: expected a page of the drawing, which has %2")
                                 .arg(options.page)
                                 .arg(pages));
        return false;
    }
    window.GetCanvas().SetPage(options.page - 1);
    return options.selector.isEmpty() || window.GetDocument().Select(FromQString(options.selector));
}

int WriteScreenshot(MainWindow& window, const WindowOptions& options)
{
    const QPixmap picture = PaintWindow(window, options.opened);
    if (picture.isNull())
    {
        WriteLine(std::cerr,
                  options.opened + QLatin1String(": there is nothing of that name to open; expected "
                                                 "a name such as fill.presets; see --help"));
        return kBadInput;
    }
    if (picture.save(options.screenshot))
        return 0;
    WriteLine(std::cerr,
              options.screenshot +
                  QLatin1String(": cannot be written; expected a place for a picture, such as window.png"));
    return kBadInput;
}

int Run(const WindowOptions& options)
{
    if (!ChooseLanguage(options.language))
    {
        WriteLine(std::cerr, QLatin1String("there are no texts in the language \"") + options.language +
                                 QLatin1String("\"; expected en or de"));
        return kWrongUsage;
    }
    std::optional<std::filesystem::path> chosen;
    if (!options.panelFolder.isEmpty())
        chosen = PathFromQString(options.panelFolder);
    MainWindow window(Workbench::ReadPanelFolder(Workbench::FindPanelFolder(chosen)));
    const bool isAttended = options.screenshot.isEmpty();
    window.SetAttended(isAttended);
    // Pictures do not depend on how somebody left a window.
    if (isAttended)
        window.RestoreLayout();
    if (options.size.isValid())
        window.resize(options.size);
    const bool hasBegun = Begin(window, options);
    if (!isAttended)
        return hasBegun ? WriteScreenshot(window, options) : kBadInput;
    window.show();
    return QApplication::exec();
}

} // namespace

int RunWindow(int argumentCount, char** arguments)
{
    Workbench::OutliveFailedWrites();
    NeedNoScreenForPictures(argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    QApplication::setApplicationName(QStringLiteral("styleprops-desktop"));
    QApplication::setDesktopFileName(QStringLiteral("styleprops-desktop"));
    QApplication::setWindowIcon(MakeVectorIcon(QStringLiteral("styleprops-desktop")));
    const WindowCommand command = ReadWindowOptions(QApplication::arguments());
    if (!command.options)
    {
        WriteLine(command.status == 0 ? std::cout : std::cerr, command.text);
        return command.status;
    }
    try
    {
        return Run(*command.options);
    }
    catch (const std::exception& error)
    {
        WriteLine(std::cerr, QString::fromUtf8(error.what()));
        return kBadInput;
    }
}

} // namespace Desktop
