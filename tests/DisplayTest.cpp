// What fields, information panel and number pad show.
#include "WindowScript.h"

namespace tessarin {

using DisplayTest = WindowFixture;

TEST_F(DisplayTest, MarkWinsOverDeadAndDeadOverCursor) {
    Do("fill .12345678.9");
    // C: cursor, L: locked, N: marked as a neighbour, G: marked as a member of a group.
    using Row = std::tuple<int, std::string, const char*>;
    for (const auto& [index, state, look] :
         {Row{1, "", ":red/text"}, Row{1, "C", ":red/text"}, Row{1, "L", ":red/red"},
          Row{1, "CN", ":yellow/text"}, Row{1, "G", ":yellow/text"}, Row{2, "", "1:normal/text"},
          Row{2, "C", "1:green/text"}, Row{2, "L", "1:normal/red"}, Row{2, "CL", "1:green/red"},
          Row{2, "CLG", "1:yellow/red"}, Row{10, "", ":normal/text"}}) {
        SCOPED_TRACE(std::to_string(index) + state);
        const auto is = [&state = state](char letter) {
            return state.find(letter) != std::string::npos;
        };
        grid.SetIndex(is('C') ? index : 81);
        At(index).SetLocked(is('L'));
        window.lblField(index).SetFont({.Name = "Arial", .Size = 12, .Italic = true});
        window.PaintField(index, is('N'), is('G'));
        EXPECT_EQ(Shows(index), look);
        At(index).SetLocked(false);
    }
}

TEST_F(DisplayTest, InfoPanelDescribesTheFieldPaintedLast) {
    Do("fill .12345678.9");
    At(11).SetLocked(true);
    play.Retries = 7;
    grid.SetIndex(11);
    window.PaintField(1);
    EXPECT_EQ(window.lblInfo.Caption(),
              "Index=1\r\nValue=0\r\n\r\nFreedom=0\r\nFreeValuesList=\r\n\r\nIsCursor=False\r\n"
              "IsLocked=False\r\nIsEmpty=True\r\nIsDeadCell=True\r\n\r\nRetries=7\r\nDeadCount=1");
    window.PaintField(0);
    EXPECT_EQ(window.lblInfo.Caption(),
              "Index=11\r\nValue=9\r\n\r\nFreedom=6\r\nFreeValuesList=3;4;5;6;7;8;\r\n\r\n"
              "IsCursor=True\r\nIsLocked=True\r\nIsEmpty=False\r\nIsDeadCell=False\r\n\r\n"
              "Retries=7\r\nDeadCount=1");
    grid.SetIndex(0);
    window.RefreshAll();
    Script("fields 1 > :red/text & cursor > 1");
    EXPECT_EQ(window.lblInfo.Caption().substr(0, 10), "Index=81\r\n");
}

TEST_F(DisplayTest, NumberPadFollowsTheCurrentField) {
    const std::string before(36, '.'); // the values go into row 5, around the current field
    Script("index 41 & pad > 0123456789XC 0123456789C normal");
    Do("fill " + before + "1346.78");
    Script("pad > 0259XC 0123456789C normal & lock 41 1 & pad > 0259XC X red & lock 41 0");
    Script("set 41 5 & pad > 029XC 0123456789XC normal & lock 41 1 & pad > 029XC X red");
}

TEST_F(DisplayTest, ScreenReadersHearWhatTheColoursTell) {
    mCommands["hear"] = [this](int, auto& name) { Tell(toolkit.Find(name).AccessibleName()); };
    Script(R"(
        hear lblField(12) > row 2, column 3: empty
        index 12 & set 12 5 & hear lblField(12) > row 2, column 3: 5, current
        playlock & hear lblField(12) > row 2, column 3: 5, locked, current
        index 13 & hear lblField(12) > row 2, column 3: 5, locked
        hear lblDeadEnd > dead end: not lit & hear lblWinner > winner: not lit
        fill .12345678. & set 10 9 & hear lblDeadEnd > dead end: lit
        index 1 & hear lblField(1) > row 1, column 1: empty, current, dead
        hear optChill(2) > pause 100 milliseconds & hear optChill(0) > only show result
        hear optChill(6) > stop after every move / continue with solve & hear fraInfo > FieldInfo
        hear btnNumPad(1) > 1 & hear btnNumPad(10) > locke & hear btnNumPad(11) > clear
        hear btnNextFree > goto next free field & hear btnSolve > solve the sudoku
        hear btnNextFreeAuto > goto next free field and fill value in
        hear btnGoBack > go back to previous field & hear btnNextFreeValue > next free value
        hear btnGoBackToFreedom > go back to last field with freedom
        hear btnInfo > show/hide fild info
    )");
    std::string whileShown;
    platform.AtBox = [&] { whileShown += Do("hear lblField(2)") + "; "; };
    for (const char* const step : {"click mnuViewNeighbours", "clear", "click mnuViewFreedom"})
        Do(step);
    EXPECT_EQ(whileShown, "row 1, column 2: 1, marked; row 1, column 2: empty, freedom 9; ");
}

TEST_F(DisplayTest, AtMostOneFieldIsGreen) {
    Do("set 60 7"); // a click in the middle of a cursor move paints its field as current
    platform.AtPump(1, [&] { Click("lblField(60)"); });
    Script("index 50 & cursor > 50 & fields 50 60 > :green/text 7:normal/text");
}

TEST_F(DisplayTest, FieldsWithoutALabelAreNotPainted) {
    grid.Init(5);
    window.RefreshAll();
    Script("index 625 & set 625 25 & set 81 24 & fields 81 > 24:normal/text");
    window.PaintFreedoms();
}

} // namespace tessarin
