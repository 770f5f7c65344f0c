// The pixels on the screen.
#include "QtFixture.h"
#include "qt/QtLook.h"
#include "ui/Colors.h"

namespace tessarin {

// The parameter is true for a dark theme.
class PaintingTest : public QtFixture, public testing::WithParamInterface<bool> {
protected:
    PaintingTest() {
        QPalette dark(QColor(0x31, 0x36, 0x3B));
        dark.setColor(QPalette::Base, QColor(27, 30, 32));
        if (GetParam()) QApplication::setPalette(dark);
        form->move(10, 220); // all of it on the screen even when it is wide, and below its tool tip
        Do("click btnInfo");
        platform.QtPlatform::Sleep(100); // until the window manager has moved and widened it
    }
    ~PaintingTest() override { QApplication::setPalette({}); }

    // A picture of a control on the screen. Sleeps first, so that the control is painted.
    QImage Picture(const std::string& name) {
        platform.QtPlatform::Sleep(5);
        const QRect place(Widget(name).mapTo(form, QPoint()), Widget(name).size());
        return form->screen()
            ->grabWindow(form->winId(), place.x(), place.y(), place.width(), place.height())
            .toImage();
    }
    // How bright a colour is to the eye, from 0 to 1.
    static double Brightness(QColor color) {
        return 0.2126 * std::pow(color.redF(), 2.2) + 0.7152 * std::pow(color.greenF(), 2.2) +
               0.0722 * std::pow(color.blueF(), 2.2);
    }
    // The best contrast of a pixel of `part` with the one at `where`, from 1 to 21.
    static double Contrast(const QImage& image, QRect part, QPoint where) {
        const double ground = Brightness(image.pixelColor(where)) + 0.05;
        double best = 1;
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x) {
                const double other = Brightness(image.pixelColor(x, y)) + 0.05;
                best = std::max({best, other / ground, ground / other});
            }
        return best;
    }
};
INSTANTIATE_TEST_SUITE_P(Themes, PaintingTest, testing::Bool());

TEST_P(PaintingTest, DigitsAndTheFocusCanBeReadOnEveryBackground) {
    Do("index 12 & set 12 8");
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
        EXPECT_EQ(Contrast(image, {2, 2, 6, 36}, {6, 6}), 1) << "in the middle";
        Widget("lblField(12)").setFocus();
        EXPECT_GT(Contrast(Picture("lblField(12)"), {1, 20, 4, 1}, {6, 6}), 3) << color;
    }
    EXPECT_EQ(qt::TextColor(Red, Green), QColor(255, 0, 0)) << "a locked value";
    EXPECT_EQ(qt::ToQt(window.lblField(12).Font()).weight(), QFont::Black)
        << "also of a family that replaces Arial Black";
}

TEST_P(PaintingTest, BordersAndCaptionsCanBeSeen) {
    for (const char* const name : {"lblField(40)", "lblDeadEnd", "lblWinner", "fraInfo"}) {
        const QImage image = Picture(name);
        const int right = image.width() - 1, bottom = image.height() - 1;
        for (const auto& [edge, inside] : {std::pair{QPoint(0, 20), QPoint(1, 20)},
                                           {{right, 20}, {right - 1, 20}},
                                           {{20, bottom}, {20, bottom - 1}}})
            EXPECT_GT(Contrast(image, {edge, edge}, inside), 3) << name;
    }
    const QImage rotor = Widget("Image1(0)").grab().toImage();
    EXPECT_GT(Contrast(rotor, rotor.rect(), {0, 0}), 3);
    EXPECT_GT(Contrast(Picture("fraInfo"), {8, 2, 60, 10}, {4, 2}), 3) << "caption";
    EXPECT_EQ(Contrast(Picture("fraInfo"), {9, 0, 1, 12}, {9, 0}), 1) << "no line behind it";
    EXPECT_EQ(Contrast(Picture("fraAction"), {0, 0, 160, 9}, {0, 0}), 1) << "no border";
}

// The last line of the longest field data is not cut off; a long path loses only its middle.
TEST_P(PaintingTest, LongTextsFitIntoTheirPlaces) {
    window.PaintField(41);
    const QImage image = Picture("lblInfo");
    const auto lastRows = [&](int count) {
        return Contrast(image, image.rect().adjusted(0, image.height() - count, 0, 0), {0, 0});
    };
    EXPECT_EQ(lastRows(3), 1);
    EXPECT_GT(lastRows(30), 3);
    const auto show = [this, folders = std::string(150, '/')](const std::string& middle) {
        window.lblFile.SetCaption("/home" + folders + middle + folders + "puzzle.csv");
        return Picture("lblFile");
    };
    const auto tip = [this] {
        QHelpEvent event(QEvent::ToolTip, {}, {});
        QApplication::sendEvent(&Widget("lblFile"), &event);
        return QToolTip::text().toStdString();
    };
    window.lblFile.SetCaption("/home/puzzle.csv");
    Picture("lblFile");
    EXPECT_EQ(tip(), "") << "a path that fits";
    const QImage path = show("here");
    EXPECT_NE(tip().find(window.lblFile.Caption()), std::string::npos) << "shown whole in the tip";
    EXPECT_TRUE(path == show("there"));
    EXPECT_GT(Contrast(path, path.rect().adjusted(path.width() - 20, 0, 0, 0), {0, 0}), 3);
}

} // namespace tessarin
