// What can be seen of the controls: pixels.
#include "QtFixture.h"
#include "ui/Colors.h"

#include <QApplication>
#include <QPalette>

#include <algorithm>
#include <cstdlib>

namespace tessarin {
namespace {

using PaintingTest = QtFixture;

TEST_F(PaintingTest, AFieldShowsItsBackground) {
    const QColor base = QApplication::palette().color(QPalette::Base);
    for (const auto& [color, seen] : {std::pair{WindowBackground, base},
                                      {Red, QColor(255, 0, 0)},
                                      {Green, QColor(0, 255, 0)},
                                      {Yellow, QColor(255, 255, 0)}}) {
        window.lblField(40).SetBackColor(color);
        EXPECT_EQ(Widget("lblField(40)").grab().toImage().pixelColor(3, 3), seen);
    }
}

// The field with the longest text: all its lines are seen, and nothing is cut off at the edges.
TEST_F(PaintingTest, AllLinesFitIntoTheInfoPanel) {
    Click("btnInfo");
    window.PaintField(41);
    const QImage image = Widget("lblInfo").grab().toImage();
    const auto isEmpty = [&](QRect part) {
        QImage empty = image.copy(part);
        empty.fill(image.pixel(image.width() - 1, image.height() - 1));
        return image.copy(part) == empty;
    };
    int lines = 0;
    for (int y = 1; y < image.height(); ++y)
        lines += isEmpty({0, y - 1, image.width(), 1}) && !isEmpty({0, y, image.width(), 1});
    EXPECT_GE(lines, 10); // and three empty ones
    EXPECT_TRUE(isEmpty({0, image.height() - 1, image.width(), 1}));
    EXPECT_TRUE(isEmpty({image.width() - 1, 0, 1, image.height()}));
}

TEST_F(PaintingTest, DigitsCanBeReadInADarkTheme) {
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(0x23, 0x26, 0x29));
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::ButtonText, Qt::white);
    QApplication::setPalette(dark);
    At(12).SetValue(8);
    for (const auto& [cursor, mark] : {std::pair{12, false}, {81, false}, {81, true}}) {
        Grid().SetIndex(cursor);
        window.PaintField(12, mark);
        const QImage image = Widget("lblField(12)").grab().toImage().copy(3, 3, 34, 34);
        int contrast = 0;
        for (int i = 0; i < 34 * 34; ++i)
            contrast = std::max(
                contrast, std::abs(qGray(image.pixel(i % 34, i / 34)) - qGray(image.pixel(0, 0))));
        EXPECT_GT(contrast, 120) << cursor << mark;
    }
    QApplication::setPalette(before);
}

} // namespace
} // namespace tessarin
