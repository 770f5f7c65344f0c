// What can be seen of the controls: pixels.
#include "QtFixture.h"
#include "ui/Colors.h"

#include <QApplication>
#include <QPalette>

#include <algorithm>
#include <cstdlib>

namespace tessarin {
namespace {

// The argument: in a dark theme.
class PaintingTest : public QtFixture, public testing::WithParamInterface<bool> {
protected:
    PaintingTest() {
        QPalette dark(QColor(0x31, 0x36, 0x3B));
        dark.setColor(QPalette::Base, QColor(27, 30, 32));
        if (GetParam()) QApplication::setPalette(dark);
    }
    ~PaintingTest() override { QApplication::setPalette(mBefore); }

    QImage Picture(const std::string& name) { return Widget(name).grab().toImage(); }
    // The greatest difference in brightness between a pixel of the part and the one at `where`.
    static int Contrast(const QImage& image, QRect part, QPoint where) {
        int greatest = 0;
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x)
                greatest = std::max(greatest,
                                    std::abs(qGray(image.pixel(x, y)) - qGray(image.pixel(where))));
        return greatest;
    }

private:
    QPalette mBefore = QApplication::palette();
};
INSTANTIATE_TEST_SUITE_P(Themes, PaintingTest, testing::Bool());

TEST_P(PaintingTest, AFieldShowsItsBackground) {
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
TEST_P(PaintingTest, AllLinesFitIntoTheInfoPanel) {
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

TEST_P(PaintingTest, DigitsBordersAndTheFocusCanBeSeen) {
    Click("btnInfo");
    const int window_gray = qGray(QApplication::palette().color(QPalette::Window).rgb());
    for (const char* const name : {"lblField(40)", "lblDeadEnd", "lblWinner", "fraInfo"}) {
        const QImage image = Picture(name);
        const QPoint edge(0, image.height() / 2);
        EXPECT_GT(Contrast(image, {edge, edge}, edge + QPoint(1, 0)), 60) << name;
        EXPECT_GT(std::abs(qGray(image.pixel(edge)) - window_gray), 60) << name;
    }
    At(12).SetValue(8);
    Grid().SetIndex(12);
    for (const Color color : {WindowBackground, Red, Green, Yellow}) {
        window.lblField(12).SetBackColor(color);
        Widget("btnInfo").setFocus();
        EXPECT_GT(Contrast(Picture("lblField(12)"), {8, 8, 24, 24}, {6, 6}), 60) << color;
        Widget("lblField(12)").setFocus();
        EXPECT_GT(Contrast(Picture("lblField(12)"), {1, 20, 4, 1}, {6, 6}), 60) << color;
    }
}

} // namespace
} // namespace tessarin
