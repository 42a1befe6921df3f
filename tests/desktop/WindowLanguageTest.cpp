#include "apps/desktop/WindowText.h"
#include "reference_host/resources/Catalogue.h"
#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <map>
#include <set>

using DesktopTests::DialogAnswer;
using DesktopTests::OpenWindow;
using DesktopTests::WithoutMnemonics;
using WorkbenchTests::FourBoxes;

namespace
{

ReferenceHost::Catalogue Read(const char* language)
{
    const std::string file = std::string(CATALOGUES "/") + language + ".catalogue";
    return ReferenceHost::Catalogue::Parse(file, DesktopTests::ReadBytes(file));
}

/// What a text of a catalogue looks like wherever it is shown: with anything for its inserts.
QRegularExpression Shape(const OvxStringT& text)
{
    QString pattern = QRegularExpression::escape(WithoutMnemonics(Desktop::ToQString(text)));
    pattern.replace(QRegularExpression(QStringLiteral("\\\\%[1-9]")), QStringLiteral(".*"));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

bool HasWords(const OvxStringT& text)
{
    static const QRegularExpression kInserts(QStringLiteral("%[1-9]|[^\\p{L}]"));
    return Desktop::ToQString(text).remove(kInserts).size() > 1;
}

/// The English texts that no German text looks like.
std::vector<QRegularExpression> EnglishAlone()
{
    const ReferenceHost::Catalogue english = Read("en");
    const ReferenceHost::Catalogue german = Read("de");
    std::set<QString> germanTexts;
    for (const OvxStringT& key : german.GetKeys())
        germanTexts.insert(WithoutMnemonics(Desktop::ToQString(*german.Find(key))));
    std::vector<QRegularExpression> shapes;
    for (const OvxStringT& key : english.GetKeys())
    {
        const OvxStringT& text = *english.Find(key);
        if (HasWords(text) && !germanTexts.contains(WithoutMnemonics(Desktop::ToQString(text))))
            shapes.push_back(Shape(text));
    }
    return shapes;
}

void AddActions(const QWidget& widget, QStringList& texts)
{
    for (const QAction* const action : widget.actions())
    {
        texts.append(action->text());
        if (action->menu() != nullptr)
            AddActions(*action->menu(), texts);
    }
}

void AddTexts(const QWidget& widget, QStringList& texts)
{
    texts << widget.toolTip() << widget.accessibleName() << widget.accessibleDescription()
          << widget.windowTitle();
    if (const auto* const label = qobject_cast<const QLabel*>(&widget))
        texts << label->text();
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
        texts << button->text();
    if (const auto* const line = qobject_cast<const QLineEdit*>(&widget))
        texts << line->text() << line->placeholderText();
    if (const auto* const tree = qobject_cast<const QTreeWidget*>(&widget))
        texts << tree->headerItem()->text(0) << tree->headerItem()->text(1);
    if (const auto* const list = qobject_cast<const QComboBox*>(&widget))
        for (int entry = 0; entry < list->count(); ++entry)
            texts << list->itemText(entry);
    AddActions(widget, texts);
}

/// All that a widget and what is in it show, without what is not shown now.
QStringList TextsOf(const QWidget& whole)
{
    QStringList texts;
    AddTexts(whole, texts);
    for (const QWidget* const widget : whole.findChildren<QWidget*>())
    {
        if (widget->isVisibleTo(&whole))
            AddTexts(*widget, texts);
    }
    return texts;
}

QStringList EnglishOf(const QStringList& texts)
{
    static const std::vector<QRegularExpression> kShapes = EnglishAlone();
    QStringList found;
    for (const QString& text : texts)
    {
        for (const QRegularExpression& shape : kShapes)
        {
            if (shape.match(WithoutMnemonics(text)).hasMatch())
                found.append(text);
        }
    }
    return found;
}

QStringList Sorted(QStringList texts)
{
    texts.removeDuplicates();
    texts.sort();
    return texts;
}

/// The letters of a menu, and of those within it, that choose more than one of its entries.
QStringList AmbiguousLetters(const QWidget& menu)
{
    std::map<QChar, QStringList> entries;
    QStringList ambiguous;
    static const QRegularExpression kMnemonic(QStringLiteral("(?<!&)(?:&&)*&([^&])"));
    for (const QAction* const action : menu.actions())
    {
        const auto match = kMnemonic.match(action->text());
        if (match.hasMatch())
            entries[match.captured(1).front().toLower()].append(action->text());
        if (action->menu() != nullptr)
            ambiguous += AmbiguousLetters(*action->menu());
    }
    for (const auto& [letter, texts] : entries)
    {
        if (texts.size() > 1)
            ambiguous.append(texts.join(QLatin1String(" / ")));
    }
    return ambiguous;
}

struct WindowLanguage : testing::Test
{
    OpenWindow open{FourBoxes()};
};

} // namespace

TEST_F(WindowLanguage, IsEnglishAtFirst)
{
    open.Select(L"id:1/1,id:1/2");

    EXPECT_GT(EnglishOf(TextsOf(open.Window())).size(), 50);
}

TEST_F(WindowLanguage, LeavesNoTextInTheOneBefore)
{
    open.Select(L"id:1/1,id:1/2");

    open.Window().ShowLanguage("de");

    EXPECT_EQ(EnglishOf(TextsOf(open.Window())).join(QLatin1Char('|')).toStdString(), "");
}

TEST_F(WindowLanguage, IsThatOfTheTitlesOfPanels)
{
    open.Select(L"id:1/1");

    open.Window().ShowLanguage("de");

    EXPECT_EQ(open.Find<QToolButton>("fill.title").text().toStdString(), "F\u00fcllung: Base");
}

TEST_F(WindowLanguage, IsThatOfTheMenusOfRowsAndLists)
{
    open.Window().ShowLanguage("de");
    open.Select(L"id:1/2");

    QStringList texts;
    for (const char* button :
         {"fill.color.state", "fill.color", "fill.whole", "style.styles", "fill.presets"})
        texts += open.Entries(button);

    EXPECT_EQ(EnglishOf(texts.replaceInStrings(QRegularExpression(QStringLiteral("^[-*]")), {}))
                  .join(QLatin1Char('|'))
                  .toStdString(),
              "");
}

TEST_F(WindowLanguage, IsThatOfTheDialogs)
{
    open.Window().ShowLanguage("de");
    for (const char* key : {"window.edit.select", "window.edit.changes", "window.edit.palette"})
    {
        QStringList texts;
        {
            const DialogAnswer answer(
                [&](QDialog& dialog)
                {
                    texts = TextsOf(dialog);
                    dialog.reject();
                });
            open.Trigger(key);
        }
        EXPECT_GT(texts.size(), 3);
        EXPECT_EQ(EnglishOf(texts).join(QLatin1Char('|')).toStdString(), "") << key;
    }
}

TEST_F(WindowLanguage, IsThatOfTheDialogForColours)
{
    open.Window().ShowLanguage("de");
    open.Select(L"id:1/1");
    QStringList texts;
    {
        const DialogAnswer answer(
            [&](QDialog& dialog)
            {
                texts = TextsOf(dialog);
                dialog.reject();
            });
        open.Choose("fill.color", "Farbe w\u00e4hlen...");
    }

    EXPECT_TRUE(texts.contains(QStringLiteral("&Grundfarben"))) << texts.join(QLatin1Char('|')).toStdString();
    EXPECT_EQ(EnglishOf(texts).join(QLatin1Char('|')).toStdString(), "");
}

TEST_F(WindowLanguage, ComesBack)
{
    const QStringList before = Sorted(TextsOf(open.Window()));

    open.Window().ShowLanguage("de");
    open.Window().ShowLanguage("en");

    EXPECT_EQ(Sorted(TextsOf(open.Window())).join(QLatin1Char('|')).toStdString(),
              before.join(QLatin1Char('|')).toStdString());
}

TEST_F(WindowLanguage, ChoosesEveryEntryOfAMenuByALetterOfItsOwn)
{
    for (const char* const language : {"en", "de"})
    {
        open.Window().ShowLanguage(language);
        EXPECT_EQ(AmbiguousLetters(*open.Window().menuBar()).join(QLatin1Char('|')).toStdString(), "")
            << language;
    }
}

TEST_F(WindowLanguage, ChoosesEveryEntryOfTheMenuOfARowByALetterOfItsOwn)
{
    open.Select(L"id:1/2");
    for (const char* const language : {"en", "de"})
    {
        open.Window().ShowLanguage(language);
        static_cast<void>(open.Entries("fill.color.state"));
        const QMenu& menu = *open.Find<QWidget>("fill.color.state").findChild<QMenu*>();
        EXPECT_EQ(AmbiguousLetters(menu).join(QLatin1Char('|')).toStdString(), "") << language;
    }
}
