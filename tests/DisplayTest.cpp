// What fields, information panel and number pad show and say.
#include "WindowScript.h"

namespace tessarin {

using DisplayTest = WindowFixture;

TEST_F(DisplayTest, FieldsInformationAndPad) {
    Script(R"(
        // A mark wins over dead, and dead over the cursor.
        fill .12345678.9 & index 81 & paint 1 & fields 1 2 10 > :red/text 1:normal/text :normal/text
        lock 1 1 & lock 2 1 & paint 1 & paint 2 & fields 1 2 > :red/red 1:normal/red
        index 1 & fields 1 > :red/red & paint 1 N & fields 1 > :yellow/red & paint 1
        index 2 & fields 1 2 > :red/red 1:green/red & lock 2 0 & fields 2 > 1:green/text
        paint 2 N & paint 10 G & fields 2 10 > 1:yellow/text :yellow/text

        // The panel describes the field that was painted last.
        lock 1 0 & lock 11 1 & index 11 & retreat & paint 1
        caption lblInfo > Index=1|Value=0||Freedom=0|FreeValuesList=||IsCursor=False|IsLocked=False|IsEmpty=True|IsDeadCell=True||Retries=1|DeadCount=1
        paint 0
        caption lblInfo > Index=11|Value=9||Freedom=6|FreeValuesList=3;4;5;6;7;8;||IsCursor=True|IsLocked=True|IsEmpty=False|IsDeadCell=False||Retries=1|DeadCount=1
        index 0 & refresh & fields 1 > :red/text & cursor > 1

        // The pad follows the current field, here with the values of its row.
        clear & index 41 & pad > 0123456789XC 0123456789C normal
        fill ....................................1349.78 & pad > 0256XC 0123456789C normal
        lock 41 1 & pad > 0256XC X red & lock 41 0 & set 41 5
        pad > 026XC 0123456789XC normal & lock 41 1 & pad > 026XC X red

        // At most one field is green. A click inside the cursor move paints its field as current.
        clear & set 60 7
    )");
    platform.AtPump(1, [&] { Click("lblField(60)"); });
    Script(R"(
        index 50 & cursor > 50 & fields 50 60 > :green/text 7:normal/text

        // Fields of a larger grid have no labels.
        init 5 & refresh & index 625 & set 625 25 & set 81 24 & fields 81 > 24:normal/text
    )");
    window.PaintFreedoms();
}

TEST_F(DisplayTest, ScreenReadersHearWhatTheColoursTell) {
    mCommands["hear"] = [this](int, auto& name) { Tell(toolkit.Find(name).AccessibleName()); };
    Script(R"(
        hear lblField(12) > row 2, column 3: empty & hear lblField(9) > row 1, column 9: empty
        index 12 & set 12 5 & hear lblField(12) > row 2, column 3: 5, current
        playlock & hear lblField(12) > row 2, column 3: 5, locked, current
        index 13 & hear lblField(12) > row 2, column 3: 5, locked
        hear lblDeadEnd > dead end: not lit & hear lblWinner > winner: not lit
        fill .12345678. & set 10 9 & hear lblDeadEnd > dead end: lit
        index 1 & hear lblField(1) > row 1, column 1: empty, current, dead
        hear optChill(2) > pause 100 milliseconds & hear optChill(0) > only show result
        hear optChill(6) > stop after every move / continue with solve & hear fraInfo > FieldInfo
        hear btnNumPad(1) > 1 & hear btnNumPad(10) > locke & hear btnNumPad(11) > clear
        hear btnNextFree > goto next free field & hear btnInfo > show/hide fild info
        during hear lblField(2) => row 1, column 2: 1, marked & click mnuViewNeighbours & clear
        during hear lblField(2) => row 1, column 2: empty, freedom 9 & click mnuViewFreedom
    )");
}

} // namespace tessarin
