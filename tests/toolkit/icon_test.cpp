// Pictures by name: every stock name shows something, sharp at its size, and nothing is ever an empty square.
#include "toolkit/testing/robot.h"
#include "toolkit/views/icons/icon_names.h"
#include "toolkit/views/icons/icons.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace orba;
using orba::testing::Toolkit;

namespace {

QImage drawn(const QString& name, int size, qreal scale = 1) {
    QPixmap pixmap = icons::iconByName(name).pixmap(QSize(size, size), scale);
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
}

int visiblePixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) count += qAlpha(image.pixel(x, y)) > 64;
    return count;
}

bool hasColour(const QImage& image) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = QColor::fromRgba(image.pixel(x, y));
            if (pixel.alpha() > 64 && pixel.saturation() > 40) return true;
        }
    return false;
}

} // namespace

TEST(Icons, EveryStockNameHasAPictureAtEverySize) {
    const Toolkit toolkit(Toolkit::Master::none);
    const QStringList names = icons::stockNames();
    ASSERT_GE(names.size(), 300);
    for (const int size : {16, 22, 23, 32, 44}) {
        const QImage missing = drawn("no such name", size);
        for (const QString& name : names) {
            const QImage image = drawn(name, size);
            ASSERT_EQ(image.size(), QSize(size, size)) << name.toStdString();
            EXPECT_GE(visiblePixels(image), size / 2) << name.toStdString() << " at " << size;
            EXPECT_NE(image, missing) << name.toStdString() << " at " << size;
        }
    }
}

TEST(Icons, NamesInEverySpellingOfMenusAndBars) {
    const Toolkit toolkit(Toolkit::Master::none);
    constexpr const char* spellings[][2] = {{"filenew", "filenew&"},  {"Menu", "menu&"},
                                            {"Listbox", "listbox"},   {"Check", "check"},
                                            {"MBIG1042", "mbig1042"}, {"mthumb03", "MTHUMB03"}};
    for (const auto& [one, other] : spellings) {
        EXPECT_TRUE(icons::iconExists(one)) << one;
        EXPECT_EQ(drawn(one, 22), drawn(other, 22)) << one << " and " << other;
    }
    for (const char* unknown : {"MBIG1000", "MBIG1101", "MSML1", "mthumb09", "mstd1028", "mbig", ""})
        EXPECT_FALSE(icons::iconExists(unknown)) << unknown;
}

TEST(Icons, TheGreyVariantHasNoColour) {
    const Toolkit toolkit(Toolkit::Master::none);
    EXPECT_TRUE(hasColour(drawn("unadopt", 22)));
    EXPECT_FALSE(hasColour(drawn("unadopt#", 22)));
    EXPECT_GT(visiblePixels(drawn("unadopt#", 22)), 22);
}

TEST(Icons, DrawnAfreshOnScreensOfHighDensity) {
    const Toolkit toolkit(Toolkit::Master::none);
    const QImage once = drawn("tabdia", 22), twice = drawn("tabdia", 22, 2);
    EXPECT_EQ(twice.size(), QSize(44, 44));
    EXPECT_NE(twice,
              once.scaled(44, 44, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(twice.format()));
}

TEST(Icons, LinesFollowADarkDesktop) {
    const Toolkit toolkit(Toolkit::Master::none);
    const QPalette before = QGuiApplication::palette();
    const auto brightest = [](const QImage& image) {
        int most = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qAlpha(image.pixel(x, y)) > 200) most = qMax(most, qGray(image.pixel(x, y)));
        return most;
    };
    EXPECT_LT(brightest(drawn("cut", 22)), 100);
    QPalette dark = before;
    dark.setColor(QPalette::Window, QColor(40, 44, 48));
    dark.setColor(QPalette::WindowText, QColor(240, 240, 240));
    QGuiApplication::setPalette(dark);
    EXPECT_GT(brightest(drawn("cut", 22)), 200);
    EXPECT_GT(brightest(drawn("panel", 22)), 200);
    QGuiApplication::setPalette(before);
}

TEST(Icons, LinesOnASelectedRowAreInItsTextColour) {
    const Toolkit toolkit(Toolkit::Master::none);
    const QIcon icon = icons::iconByName("newform");
    const QImage plain = icon.pixmap(22, 22).toImage(),
                 selected = icon.pixmap(QSize(22, 22), QIcon::Selected).toImage();
    EXPECT_NE(plain, selected);
    EXPECT_EQ(selected.pixelColor(11, 5).rgb(), QGuiApplication::palette().color(QPalette::HighlightedText).rgb());
}

TEST(Icons, FilesByPathByNameAndByResourceScript) {
    const Toolkit toolkit(Toolkit::Master::none);
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    QImage red(32, 32, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save("lamp.bmp"));
    ASSERT_TRUE(red.save("other name.png"));
    QFile script(QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName() + "rc.rc");
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("CREATEPROCESS_MANIFEST_RESOURCE_ID RT_MANIFEST \"x\"\nother_name ICON \"other name.png\"\n");
    script.close();
    for (const QString& name : {QString("lamp.bmp"), QString("lamp"), folder.filePath("lamp.bmp"),
                                QString("C:\\pictures\\lamp.bmp"), QString("other_name")}) {
        EXPECT_TRUE(icons::iconExists(name)) << name.toStdString();
        EXPECT_EQ(drawn(name, 16).pixelColor(8, 8), QColor(Qt::red)) << name.toStdString();
    }
    EXPECT_EQ(icons::imageFromFile("lamp.bmp").size(), QSize(32, 32));
    EXPECT_TRUE(icons::imageFromFile("nothing.bmp").isNull());
    QDir::setCurrent(before);
}

TEST(Icons, ResourceNumbersStandForNames) {
    const Toolkit toolkit(Toolkit::Master::none);
    EXPECT_EQ(owGetIconResource(""), 0);
    const int save = owGetIconResource("save&"), undo = owGetIconResource("undo&");
    EXPECT_GT(save, 0);
    EXPECT_NE(save, undo);
    EXPECT_EQ(owGetIconResource("save&"), save);
    EXPECT_TRUE(icons::iconOfResource(0).isNull());
    EXPECT_TRUE(icons::iconOfResource(1000000).isNull());
    EXPECT_FALSE(icons::iconOfResource(owGetIconResource("no picture has this name")).isNull());
}
