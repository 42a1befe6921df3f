#include "apps/desktop/dialogs/MoreStylesDialog.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using Desktop::MoreStylesDialog;

namespace
{

Workbench::StyleList ThreeStyles()
{
    Workbench::StyleList list;
    list.part = Workbench::StyleListPart::More;
    for (const wchar_t* name : {L"Ground", L"Water", L"Waterfall"})
    {
        Workbench::StyleListEntry entry;
        entry.text = entry.styleName = name;
        list.entries.push_back(entry);
    }
    return list;
}

} // namespace

TEST(MoreStylesDialog, ShowsOnlyStylesThatHoldWhatIsTyped)
{
    MoreStylesDialog dialog(ThreeStyles(), nullptr);

    QTest::keyClicks(dialog.findChild<QLineEdit*>(), QStringLiteral("FALL"));

    const QListWidget& list = *dialog.findChild<QListWidget*>();
    EXPECT_TRUE(list.item(0)->isHidden());
    EXPECT_TRUE(list.item(1)->isHidden());
    EXPECT_FALSE(list.item(2)->isHidden());
    EXPECT_EQ(dialog.GetChosen(), 2U);
}

TEST(MoreStylesDialog, CannotBeAcceptedWhenNothingIsLeft)
{
    MoreStylesDialog dialog(ThreeStyles(), nullptr);

    QTest::keyClicks(dialog.findChild<QLineEdit*>(), QStringLiteral("air"));

    EXPECT_EQ(dialog.GetChosen(), std::nullopt);
    EXPECT_FALSE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
}

TEST(MoreStylesDialog, MovesThroughTheListWithArrowsWhileTyping)
{
    MoreStylesDialog dialog(ThreeStyles(), nullptr);
    dialog.show();

    QTest::keyClicks(dialog.findChild<QLineEdit*>(), QStringLiteral("water"));
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Down);

    EXPECT_EQ(dialog.GetChosen(), 2U);
}
