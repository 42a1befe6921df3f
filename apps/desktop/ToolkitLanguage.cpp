#include "apps/desktop/ToolkitLanguage.h"

#include "apps/desktop/WindowText.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace Desktop
{
namespace
{

/// A text of the toolkit, and the key of ours for it.
struct ToolkitText
{
    std::string_view context;
    std::string_view source;
    OvxStringViewT key;
};

constexpr ToolkitText kToolkitTexts[] = {
    {"QDockWidget", "Close", L"window.toolkit.dock.close"},
    {"QDockWidget", "Closes the dock widget", L"window.toolkit.dock.close.more"},
    {"QDockWidget", "Float", L"window.toolkit.dock.float"},
    {"QDockWidget", "Undocks and re-attaches the dock widget", L"window.toolkit.dock.float.more"},
    {"QColorDialog", "&Basic colors", L"window.toolkit.colour.basic"},
    {"QColorDialog", "&Custom colors", L"window.toolkit.colour.custom"},
    {"QColorDialog", "&Add to Custom Colors", L"window.toolkit.colour.add"},
    {"QColorDialog", "&Pick Screen Color", L"window.toolkit.colour.pick"},
    {"QColorDialog", "Hu&e:", L"window.toolkit.colour.hue"},
    {"QColorDialog", "&Sat:", L"window.toolkit.colour.saturation"},
    {"QColorDialog", "&Val:", L"window.toolkit.colour.value"},
    {"QColorDialog", "&Red:", L"window.toolkit.colour.red"},
    {"QColorDialog", "&Green:", L"window.toolkit.colour.green"},
    {"QColorDialog", "Bl&ue:", L"window.toolkit.colour.blue"},
    {"QColorDialog", "&HTML:", L"window.toolkit.colour.html"},
    {"QPlatformTheme", "OK", L"window.ok"},
    {"QPlatformTheme", "Cancel", L"window.cancel"},
    {"QPlatformTheme", "Close", L"window.close"}};

/// Takes what the toolkit shows in the window from the catalogue in force.
class CatalogueTranslator final : public QTranslator
{
public:
    using QTranslator::QTranslator;

    [[nodiscard]] QString translate(const char* context, const char* sourceText, const char*,
                                    int) const override
    {
        const auto* const found = std::find_if(
            std::begin(kToolkitTexts), std::end(kToolkitTexts),
            [&](const ToolkitText& each) { return each.context == context && each.source == sourceText; });
        return found == std::end(kToolkitTexts) ? QString() : TextOf(found->key);
    }

    [[nodiscard]] bool isEmpty() const override { return false; }
};

/// Puts a translator in place of the one of that name; none is left of it if it is not to be used.
void Replace(QTranslator* translator, const QString& name, bool isUsed)
{
    QCoreApplication& application = *QCoreApplication::instance();
    delete application.findChild<QTranslator*>(name, Qt::FindDirectChildrenOnly);
    translator->setObjectName(name);
    translator->setParent(&application);
    if (isUsed)
        QCoreApplication::installTranslator(translator);
}

} // namespace

void TranslateToolkit(const std::string& language)
{
    auto* const whole = new QTranslator;
    const bool isThere = whole->load(QLocale(QString::fromStdString(language)), QStringLiteral("qtbase"),
                                     QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    Replace(whole, QStringLiteral("toolkitTranslator"), isThere);
    // Asked before the other, because it is installed later.
    Replace(new CatalogueTranslator, QStringLiteral("catalogueTranslator"), true);
}

} // namespace Desktop
