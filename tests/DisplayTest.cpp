// Where the controls lie, in twips, and what fields, information panel and number pad show and say.
#include "WindowScript.h"

namespace tessarin {

using DisplayTest = WindowFixture;

TEST_F(DisplayTest, ControlsHaveTheirPlaces) {
    EXPECT_EQ(platform.Pumps, 88) << "while the window is built and activated";
    // The container if it is not the window, left, top, and the size if it is not 600 x 600.
    mCommands["at"] = [this](int, auto& name) {
        const Control& control = toolkit.Find(name);
        Tell(control.Container() == &window ? "" : control.Container()->Name());
        Tell(control.Left(), " ", control.Top());
        if (control.Width() != 600 || control.Height() != 600)
            Tell(control.Width(), " x ", control.Height());
    };
    Script(R"(
        at lblField(1) > 300 420 & at lblField(4) > 2250 420 & at lblField(9) > 5400 420
        at lblField(81) > 5400 5520 & at lblField(32) > 2850 2370 & at lblField(46) > 300 3570
        at lblFile > 300 120 8535 x 255 & at lblInfo > fraInfo 240 360 2055 x 2655
        at fraNumPad > 6150 420 2400 x 3150 & at fraAction > 6150 3690 2400 x 2430
        at fraInfo > 8790 420 2535 x 3375 & at fraChill > 8790 3900 2535 x 2175
        at btnNumPad(1) > fraNumPad 150 150 & at btnNumPad(3) > fraNumPad 1650 150
        at btnNumPad(7) > fraNumPad 150 1650 & at btnNumPad(9) > fraNumPad 1650 1650
        at btnNumPad(0) > fraNumPad 900 2400 & at btnNumPad(10) > fraNumPad 1650 2400
        at btnNumPad(11) > fraNumPad 150 2400 & at lblWinner > fraAction 1650 1650
        at btnNextFree > fraAction 150 150 & at btnNextFreeAuto > fraAction 900 150
        at btnSolve > fraAction 1650 150 & at btnGoBack > fraAction 150 900
        at btnGoBackToFreedom > fraAction 900 900 & at btnNextFreeValue > fraAction 1650 900
        at lblDeadEnd > fraAction 150 1650 & at btnInfo > fraAction 900 1650
        at fraRotor > fraChill 1320 960 975 x 975 & at optChill(0) > fraChill 1320 240 855 x 255
        at optChill(1) > fraChill 240 240 855 x 255 & at optChill(6) > fraChill 1320 600 855 x 255
        at optChill(2) > fraChill 240 600 855 x 255 & at ctlRotor1 > fraRotor 247.5 247.5 480 x 480
        at optChill(3) > fraChill 240 960 855 x 255 & at Image1(0) > ctlRotor1 0 0 480 x 480
        at optChill(4) > fraChill 240 1320 855 x 255 & at Image1(1) > ctlRotor1 0 0 480 x 480
        at optChill(5) > fraChill 240 1680 855 x 255
    )");
    EXPECT_FALSE(window.lblField(0).Visible());
    EXPECT_EQ(window.fraAction.BackColor(), WindowBackground);
    window.ctlRotor1.SetWidth(900);
    EXPECT_EQ(window.ctlRotor1.Width(), 480) << "as wide as a picture";
    EXPECT_EQ(window.btnNumPad(0).Font(), (FontStyle{.Name = "Arial", .Size = 20}));
}

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
        paint 0 & caption lblInfo > Index=11|Value=9||Freedom=6|FreeValuesList=3;4;5;6;7;8;||IsCursor=True|IsLocked=True|IsEmpty=False|IsDeadCell=False||Retries=1|DeadCount=1
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
        click mnuViewFreedom
    )");
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
        hear optChill(1) > pause 0 milliseconds & hear optChill(5) > pause 800 milliseconds
        hear optChill(0) > only show result & hear fraInfo > FieldInfo
        hear optChill(6) > stop after every move / continue with solve & hear btnNumPad(1) > 1
        hear btnNumPad(10) > locke & hear btnNumPad(11) > clear
        hear btnNextFree > goto next free field & hear btnInfo > show/hide fild info
        during hear lblField(2) => row 1, column 2: 1, marked & click mnuViewNeighbours & clear
        during hear lblField(1) => row 1, column 1: empty, current, freedom 9 & click mnuViewFreedom
    )");
}

} // namespace tessarin
