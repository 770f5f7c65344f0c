// The pixels on the screen.
#include "QtFixture.h"
#include "qt/QtLook.h"
#include "ui/Colors.h"

namespace tessarin {

class PaintingTest : public QtFixture {
protected:
    QImage Picture(const std::string& name) { return Widget(name).grab().toImage(); }
    static bool Has(const QImage& image, QColor color) {
        for (int i = 0; i < image.width() * image.height(); ++i)
            if (image.pixelColor(i % image.width(), i / image.width()) == color) return true;
        return false;
    }
};

TEST_F(PaintingTest, DigitsAndTheFocusCanBeReadOnEveryBackgroundAndTheme) {
    Do("index 12 & set 12 8");
    for (const QColor theme : {QColor(239, 239, 239), QColor(49, 54, 59)}) {
        QApplication::setPalette(theme);
        const QColor base = QApplication::palette().color(QPalette::Base);
        const QColor onBase = base.lightness() > 128 ? Qt::black : Qt::white;
        for (const auto& [color, ground, digit] :
             {std::tuple{WindowBackground, base, onBase},
              {Red, QColor(Qt::red), QColor(Qt::white)},
              {Green, QColor(Qt::green), QColor(Qt::black)},
              {Yellow, QColor(Qt::yellow), QColor(Qt::black)}}) {
            window.lblField(12).SetBackColor(color);
            Widget("btnInfo").setFocus();
            const QImage image = Picture("lblField(12)").copy(1, 1, 38, 38);
            EXPECT_EQ(image.pixelColor(2, 2), ground);
            EXPECT_TRUE(Has(image, digit)) << color;
            Widget("lblField(12)").setFocus();
            const QImage frame = Picture("lblField(12)").copy(1, 1, 4, 38);
            EXPECT_TRUE(Has(frame, Qt::white) && Has(frame, Qt::black)) << color;
        }
    }
    QApplication::setPalette({});
    EXPECT_EQ(qt::TextColor(Red, Green), QColor(Qt::red)) << "a locked value";
}

} // namespace tessarin
