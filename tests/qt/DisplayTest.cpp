// What fields, information panel and number pad show.
#include "WindowFixture.h"

#include <QApplication>
#include <QPalette>

#include <algorithm>
#include <cstdlib>

namespace tessarin {
namespace {

using DisplayTest = WindowTest;

TEST_F(DisplayTest, MarkWinsOverDeadAndDeadOverCursor) {
    MakeFieldOneDead();
    // C: the cursor is on it, L: it is locked, N, G: it is marked as neighbour or group member.
    using Row = std::tuple<int, QString, const char*>;
    for (const auto& [index, state, look] :
         {Row{80, "", " normal/text"}, Row{80, "L", " normal/red"}, Row{3, "", "2 normal/text"},
          Row{3, "CL", "2 green/red"}, Row{3, "N", "2 yellow/text"}, Row{3, "CLG", "2 yellow/red"},
          Row{1, "", " red/text"}, Row{1, "C", " red/text"}, Row{1, "CN", " yellow/text"}}) {
        Label& label = window.lblField(index);
        At(index).SetLocked(state.contains('L'));
        Grid().SetIndex(state.contains('C') ? index : 81);
        label.SetFont({.Name = "Arial", .Size = 12, .Italic = true});
        window.PaintField(index, state.contains('N'), state.contains('G'));
        EXPECT_EQ(Shows(index), look);
        const QColor seen = Widget(label.Name()).grab().toImage().pixel(3, 3);
        EXPECT_EQ(seen, label.BackColor() == Normal
                            ? QApplication::palette().color(QPalette::Base)
                            : QColor(label.BackColor() & 0xFF, label.BackColor() >> 8, 0));
        At(index).SetLocked(false);
    }
}

TEST_F(DisplayTest, InfoPanelDescribesTheFieldPaintedLast) {
    MakeFieldOneDead();
    At(11).SetLocked(true);
    goGame->Play->Retries = 7;
    Grid().SetIndex(11);
    window.PaintField(1);
    EXPECT_EQ(window.lblInfo.Caption(),
              "Index=1\r\nValue=0\r\n\r\nFreedom=0\r\nFreeValuesList=\r\n\r\nIsCursor=False\r\n"
              "IsLocked=False\r\nIsEmpty=True\r\nIsDeadCell=True\r\n\r\nRetries=7\r\nDeadCount=1");
    window.PaintField(0);
    EXPECT_EQ(window.lblInfo.Caption(),
              "Index=11\r\nValue=9\r\n\r\nFreedom=6\r\nFreeValuesList=3;4;5;6;7;8;\r\n\r\n"
              "IsCursor=True\r\nIsLocked=True\r\nIsEmpty=False\r\nIsDeadCell=False\r\n\r\n"
              "Retries=7\r\nDeadCount=1");
    Grid().SetIndex(0);
    window.RefreshAll();
    EXPECT_EQ(Shows(1), " red/text");
    EXPECT_EQ(Grid().Index(), 1);
    EXPECT_EQ(window.lblInfo.Caption().substr(0, 10), "Index=81\r\n");
}

// The field with the longest text: all its lines are seen, and nothing is cut off at the edges.
TEST_F(DisplayTest, AllLinesFitIntoTheInfoPanel) {
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

TEST_F(DisplayTest, NumberPadFollowsTheCurrentField) {
    using Row = std::tuple<std::vector<int>, bool, std::string, std::string, Color>;
    // Row 5 of the grid, with the current field in the middle.
    for (const auto& [values, locked, shown, enabled, frame] :
         {Row{{}, false, "0123456789XC", "0123456789C", Normal},
          Row{{1, 3, 4, 6, 0, 7, 8}, false, "0259XC", "0123456789C", Normal},
          Row{{1, 3, 4, 6, 5, 7, 8}, false, "029XC", "0123456789XC", Normal},
          Row{{1, 3, 4, 6, 5, 7, 8}, true, "029XC", "X", RedColor},
          Row{{1, 3, 4, 6, 0, 7, 8}, true, "0259XC", "X", RedColor}}) {
        Grid().Clear();
        Grid().SetIndex(41);
        Enter(37, values);
        At(41).SetLocked(locked);
        std::string visible, usable;
        for (int key = 0; key <= 11; ++key) {
            const QWidget& button = Widget(window.btnNumPad(key).Name());
            if (button.isVisible()) visible += window.btnNumPad(key).Caption();
            if (button.isEnabled()) usable += window.btnNumPad(key).Caption();
        }
        EXPECT_EQ(visible, shown);
        EXPECT_EQ(usable, enabled);
        EXPECT_EQ(window.fraNumPad.BackColor(), frame);
    }
}

TEST_F(DisplayTest, FreedomViewShowsHowManyValuesAreFree) {
    MakeFieldOneDead();
    Enter(74, {1, 2, 3, 4, 5, 6, 7, 8});
    Enter(37, {1, 3, 4, 6, 0, 7, 8});
    Grid().SetIndex(9);
    Answer(QMessageBox::Ok, [&] {
        EXPECT_EQ(Shows(1), "0 red/normal Arial 12 italic");
        EXPECT_EQ(Shows(73), "1 green/red Arial 12 italic");
        EXPECT_EQ(Shows(41), "3 yellow/red Arial 12 italic");
        EXPECT_EQ(Shows(9), "8 green/text");
    });
    ASSERT_TRUE(Menu("mnuViewFreedom"));
    EXPECT_EQ(Boxes, QStringList("Velmora Sudoku Solver: Freedoms of fields [OK]"));
    EXPECT_EQ(Shows(1), " normal/text") << "the view leaves dead fields plain";
    EXPECT_EQ(Shows(41), " normal/text");
    EXPECT_EQ(Shows(9), "8 green/text");
}

TEST_F(DisplayTest, DigitsCanBeReadInADarkTheme) {
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(0x23, 0x26, 0x29));
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::ButtonText, Qt::white);
    QApplication::setPalette(dark);
    Enter(12, {8});
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
