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

TEST(WindowOptions, TakeAPageASizeAndWhatIsOpenInAPicture)
{
    const WindowCommand command = ReadWindowOptions(
        {QStringLiteral("program"), QStringLiteral("--page"), QStringLiteral("2"), QStringLiteral("--size"),
         QStringLiteral("900x600"), QStringLiteral("--open"), QStringLiteral("fill.styles"),
         QStringLiteral("--screenshot"), QStringLiteral("a.png")});

    ASSERT_TRUE(command.options) << command.text.toStdString();
    EXPECT_EQ(command.options->page, 2);
    EXPECT_EQ(command.options->size, QSize(900, 600));
    EXPECT_EQ(command.options->opened, QStringLiteral("fill.styles"));
}

TEST(WindowOptions, RefuseASizeThatIsNone)
{
    for (const char* size : {"900", "900x", "900x0", "900x600x1", "axb"})
    {
        const WindowCommand command =
            ReadWindowOptions({QStringLiteral("program"), QStringLiteral("--size"), QLatin1String(size)});

        EXPECT_EQ(command.status, 2) << size;
    }
}

TEST(WindowOptions, RefuseToOpenSomethingWithoutAPicture)
{
    const WindowCommand command = ReadWindowOptions(
        {QStringLiteral("program"), QStringLiteral("--open"), QStringLiteral("fill.styles")});

    EXPECT_EQ(command.status, 2);
    EXPECT_TRUE(command.text.contains(QStringLiteral("--screenshot"))) << command.text.toStdString();
}
