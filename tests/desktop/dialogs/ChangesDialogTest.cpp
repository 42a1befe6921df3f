#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QLabel>
#include <QTreeWidget>

using DesktopTests::DialogAnswer;
using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

struct ChangesDialog : testing::Test
{
    OpenWindow open{FourBoxes()};

    /// The lines of the list, each with its columns joined by bars.
    QStringList Lines()
    {
        QStringList lines;
        const DialogAnswer answer(
            [&](QDialog& dialog)
            {
                const auto* const list = dialog.findChild<QTreeWidget*>();
                for (int line = 0; line < list->topLevelItemCount(); ++line)
                {
                    QStringList columns;
                    for (int column = 0; column < list->columnCount(); ++column)
                        columns.append(list->topLevelItem(line)->text(column));
                    lines.append(columns.join(QLatin1Char('|')));
                }
                dialog.reject();
            });
        open.Trigger("window.edit.changes");
        return lines;
    }
};

} // namespace

TEST_F(ChangesDialog, ListsWhatIsDifferentFromTheFile)
{
    open.Select(L"id:1/1");
    open.Choose("fill.color", "Sea");

    EXPECT_EQ(Lines(), QStringList({QStringLiteral("1/1|Fill: Colour|#3366cc|#2a6f97 (Sea)|local")}));
}

TEST_F(ChangesDialog, ListsNothingThatWasUndone)
{
    open.Select(L"id:1/1");
    open.Choose("fill.color", "Sea");
    open.Trigger("window.edit.undo");

    EXPECT_EQ(Lines(), QStringList());
}

TEST_F(ChangesDialog, ListsAColourOfThePalette)
{
    open.GetDocument().Edit([](Workbench::Editor& editor) { editor.DefineColours({{L"Sand", L"#e9c46a"}}); });

    EXPECT_EQ(Lines(), QStringList({QStringLiteral("palette:Sand|Colour|not set|#e9c46a|")}));
}
