#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

using DesktopTests::DialogAnswer;
using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

/// Enters a name and accepts.
void NameIt(QDialog& dialog, const QString& name)
{
    dialog.findChild<QLineEdit*>()->setText(name);
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
}

struct PresetMenu : testing::Test
{
    OpenWindow open{FourBoxes()};

    void Add(const QString& name)
    {
        const DialogAnswer answer([&](QDialog& dialog) { NameIt(dialog, name); });
        open.Choose("fill.presets", "Add Preset...");
    }

    QMenu& Menu() { return *open.Find<QWidget>("fill.presets").findChild<QMenu*>(); }

    /// Chooses the preset in the menu of those to delete.
    void Delete(QMessageBox::StandardButton button)
    {
        const DialogAnswer answer([=](QDialog& dialog)
                                  { static_cast<QMessageBox&>(dialog).button(button)->click(); });
        Menu().popup(QPoint(10, 10));
        Menu().findChild<QMenu*>()->actions().front()->trigger();
        Menu().close();
    }
};

} // namespace

TEST_F(PresetMenu, OffersAPresetThatIsAdded)
{
    open.Select(L"id:1/2");

    Add(QStringLiteral("Warm & Bright"));

    EXPECT_EQ(open.Entries("fill.presets"), QStringList({"Warm & Bright", "Add Preset...", "Delete Preset"}));
}

TEST_F(PresetMenu, AppliesAPreset)
{
    open.Select(L"id:1/2");
    Add(QStringLiteral("Warm"));
    open.Select(L"id:1/1");

    open.Choose("fill.presets", "Warm");

    EXPECT_EQ(open.Shown("fill.color"), "#ff0000");
}

TEST_F(PresetMenu, ReplacesAPresetAfterAQuestion)
{
    open.Select(L"id:1/2");
    Add(QStringLiteral("Warm"));
    open.Select(L"id:1/3");
    {
        const DialogAnswer answers(
            {[](QDialog& dialog) { NameIt(dialog, QStringLiteral("Warm")); },
             [](QDialog& dialog) { static_cast<QMessageBox&>(dialog).button(QMessageBox::Yes)->click(); }});
        open.Choose("fill.presets", "Add Preset...");
    }

    open.Select(L"id:1/2");
    open.Choose("fill.presets", "Warm");

    EXPECT_EQ(open.Shown("fill.color"), "#00aa00");
}

TEST_F(PresetMenu, AddsNothingWhenTheDialogIsGivenUp)
{
    open.Select(L"id:1/2");
    const DialogAnswer answer([](QDialog& dialog) { dialog.reject(); });

    open.Choose("fill.presets", "Add Preset...");

    EXPECT_TRUE(open.GetConfiguration().PresetFiles().empty());
}

TEST_F(PresetMenu, DeletesAPresetAfterAQuestion)
{
    open.Select(L"id:1/2");
    Add(QStringLiteral("Warm"));

    Delete(QMessageBox::Yes);

    EXPECT_TRUE(open.GetConfiguration().PresetFiles().empty());
    EXPECT_EQ(open.Entries("fill.presets").front(), QStringLiteral("-No presets"));
}

TEST_F(PresetMenu, KeepsAPresetWhenTheQuestionIsAnsweredWithNo)
{
    open.Select(L"id:1/2");
    Add(QStringLiteral("Warm"));

    Delete(QMessageBox::No);

    EXPECT_EQ(open.GetConfiguration().PresetFiles().size(), 1U);
}

TEST_F(PresetMenu, TellsWhatAPresetSetsAndChangesNothing)
{
    open.Select(L"id:1/2");
    Add(QStringLiteral("Warm"));
    open.Select(L"id:1/1");
    Menu().popup(QPoint(10, 10));
    QAction& preset = *Menu().actions().front();

    Menu().setActiveAction(&preset);

    EXPECT_EQ(preset.toolTip(), QStringLiteral("Colour: #ff0000"));
    Menu().close();
    EXPECT_FALSE(open.GetDocument().IsModified());
    EXPECT_EQ(open.Shown("fill.color"), "#3366cc");
}

TEST_F(PresetMenu, ShowsAPictureOfWhatAPresetFillsWith)
{
    open.Select(L"id:1/2");
    Add(QStringLiteral("Warm"));
    Menu().popup(QPoint(10, 10));

    const QImage picture = Menu().actions().front()->icon().pixmap(32, 32).toImage();

    EXPECT_EQ(picture.pixelColor(picture.rect().center()), QColor(255, 0, 0));
    Menu().close();
}
