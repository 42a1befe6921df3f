#include "apps/desktop/rows/StateIcon.h"

#include "tests/desktop/rows/Contrast.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace
{

constexpr const wchar_t* kImages[] = {L"NoneImage", L"OverriddenImage", L"InheritedImage", L"AmbiguousImage"};

/// How clearly the icon stands out from a ground: by the pixel that does so most.
double ContrastOn(const QColor& ground, const wchar_t* image)
{
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(ground);
    QPainter painter(&picture);
    Desktop::MakeStateIcon(image).paint(&painter, picture.rect());
    painter.end();
    return DesktopTests::MostContrast(picture, ground);
}

} // namespace

TEST(StateIcon, StandsOutOnLightGround)
{
    for (const wchar_t* const image : kImages)
        EXPECT_GE(ContrastOn(QColor(0xef, 0xef, 0xef), image), 3) << OvxStringT(image).c_str();
}

TEST(StateIcon, StandsOutOnDarkGround)
{
    for (const wchar_t* const image : kImages)
        EXPECT_GE(ContrastOn(QColor(0x35, 0x35, 0x35), image), 3) << OvxStringT(image).c_str();
}

TEST(StateIcon, IsSharpWhereTwoPixelsMakeOne)
{
    constexpr double kPixelRatio = 2;

    const QPixmap pixmap = Desktop::MakeStateIcon(L"OverriddenImage").pixmap(QSize(16, 16), kPixelRatio);

    EXPECT_EQ(pixmap.size(), QSize(32, 32));
}

TEST(StateIcon, IsTheEmptyCircleForANameWithoutAPicture)
{
    const QImage unknown = Desktop::MakeStateIcon(L"SundialImage").pixmap(64).toImage();

    EXPECT_EQ(unknown, Desktop::MakeStateIcon(L"NoneImage").pixmap(64).toImage());
    EXPECT_NE(unknown, Desktop::MakeStateIcon(L"InheritedImage").pixmap(64).toImage());
}
