// The pixels on the screen.
#include "QtFixture.h"
#include "qt/QtLook.h"
#include "ui/Colors.h"

namespace tessarin {

class PaintingTest : public QtFixture {
protected:
    QImage Picture(const std::string& name) { return Widget(name).grab().toImage(); }
    // How bright a colour is to the eye, from 0 to 1.
    static double Brightness(QColor color) {
        return 0.2126 * std::pow(color.redF(), 2.2) + 0.7152 * std::pow(color.greenF(), 2.2) +
               0.0722 * std::pow(color.blueF(), 2.2);
    }
    // The best contrast of a pixel of `part` with the one at `where`, from 1 to 21.
    static double Contrast(const QImage& image, QRect part, QPoint where) {
        const double ground = Brightness(image.pixelColor(where)) + 0.05;
        double best = 1;
        for (int i = 0; i < part.width() * part.height(); ++i) {
            const QPoint place = part.topLeft() + QPoint(i % part.width(), i / part.width());
            const double other = Brightness(image.pixelColor(place)) + 0.05;
            best = std::max({best, other / ground, ground / other});
        }
        return best;
    }
};
TEST_F(PaintingTest, DigitsAndTheFocusCanBeReadOnEveryBackgroundAndTheme) {
    Do("index 12 & set 12 8");
    for (const QColor theme : {QColor(239, 239, 239), QColor(49, 54, 59)}) {
        QApplication::setPalette(theme);
        const QColor base = QApplication::palette().color(QPalette::Base);
        for (const auto& [color, seen] : {std::pair{WindowBackground, base},
                                          {Red, QColor(255, 0, 0)},
                                          {Green, QColor(0, 255, 0)},
                                          {Yellow, QColor(255, 255, 0)}}) {
            window.lblField(12).SetBackColor(color);
            Widget("btnInfo").setFocus();
            const QImage image = Picture("lblField(12)");
            EXPECT_EQ(image.pixelColor(3, 3), seen);
            EXPECT_GT(Contrast(image, {8, 8, 24, 24}, {6, 6}), 3) << "digit on " << color;
            Widget("lblField(12)").setFocus();
            EXPECT_GT(Contrast(Picture("lblField(12)"), {1, 20, 4, 1}, {6, 6}), 3) << color;
        }
    }
    QApplication::setPalette({});
    EXPECT_EQ(qt::TextColor(Red, Green), QColor(255, 0, 0)) << "a locked value";
    EXPECT_EQ(qt::ToQt(window.lblField(12).Font()).weight(), QFont::Black)
        << "also of a family that replaces Arial Black";
}

} // namespace tessarin
