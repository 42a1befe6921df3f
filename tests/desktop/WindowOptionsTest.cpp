#include "apps/desktop/WindowOptions.h"

#include <gtest/gtest.h>

using Desktop::ReadWindowOptions;
using Desktop::WindowCommand;

TEST(WindowOptions, TakeAFileWithASelectionAndAPicture)
{
    const WindowCommand command =
        ReadWindowOptions({QStringLiteral("program"), QStringLiteral("a.odg"), QStringLiteral("--select"),
                           QStringLiteral("all"), QStringLiteral("--screenshot"), QStringLiteral("a.png")});

    ASSERT_TRUE(command.options);
    EXPECT_EQ(command.options->file, QStringLiteral("a.odg"));
    EXPECT_EQ(command.options->selector, QStringLiteral("all"));
    EXPECT_EQ(command.options->screenshot, QStringLiteral("a.png"));
}

TEST(WindowOptions, RefuseASecondFile)
{
    const WindowCommand command =
        ReadWindowOptions({QStringLiteral("program"), QStringLiteral("a.odg"), QStringLiteral("b.odg")});

    EXPECT_FALSE(command.options);
    EXPECT_EQ(command.status, 2);
}

TEST(WindowOptions, RefuseAnUnknownOption)
{
    const WindowCommand command = ReadWindowOptions({QStringLiteral("program"), QStringLiteral("--frame")});

    EXPECT_EQ(command.status, 2);
    EXPECT_TRUE(command.text.contains(QStringLiteral("frame"))) << command.text.toStdString();
}
