// What mouse and keys do to the controls, also during an automatic solve.
#include "QtFixture.h"

namespace tessarin {

using InputTest = QtFixture;

const Stories<QtFixture> stories("InputTest", R"(
    EachLeftClickAnswersOnce:
        record & rightclick lblField(40) >
        press lblField(40) >
        release lblField(41) > & press lblField(40) >
        rightclick lblField(40) > & release lblField(40) > field 40
        click lblField(40) > field 40 & doubleclick lblField(40) > field 40 field 40
    AFieldGetsTheFocusOnceItIsCurrent:
        focus btnSolve & press lblField(40)
        focused > btnSolve & release lblField(40)
        focused > lblField(40)
    ArrowsMoveFromTheCurrentField:
        index 41 & key Left
        focused > lblField(40) & key Num+Down
        cursor > 49 & key Home
        cursor > 46 & key Up
        key End & key Right
        cursor > 45 & key Ctrl+Home
        key Up & cursor > 1
        key Ctrl+End & key Shift+Left
        cursor > 81 & record
        key Space > field 81 & key Enter > field 81
    ACharacterClicksTheButtonWithThisCaption:
        key 5 & key Num+7
        key Ctrl+3 & is > |1;7;0
        key F & key X
        // Disabled for a locked field.
        key C & is > |1;8;1
        key X & key C
        // A hidden key: 6 stands in the row.
        set 2 6 & key 6
        is > |2;6;0 & index 81
        key Shift+> & cursor > 1
        // The keyboard is in the menu bar or in a box.
        key Alt & key 4
        key Esc & focused > lblField(1)
        during key 4
        click lblDeadEnd & is > |2;6;0
    AHeldKeyClicksOnceButArrowsGoOn:
        record & focus btnInfo
        down 1000 Space & down 1200 Space
        down 1230 Space & up 1240 Space > info
        focus lblField(1) & down 2000 Space > field 1
        down 2200 Space > & up 2210 Space >
        down 4000 Right > field 2 & down 4200 Right > field 2
    AClickBesideTheGridLeavesTheKeyboardThere:
        click btnNumPad(5) & click btnInfo
        pace 200 & click lblDeadEnd
        focused > lblField(1) & key Right
        focus btnNumPad(6) & key Space
        // The key is hidden now.
        is > |1;5;0|2;6;0 & focused > lblField(2)
    AfterASolveTheFocusComesBackUnlessTheUserHasMovedIt:
        full 1 11 21 & focus btnSolve
        key Space & focused > btnSolve
        full 1 11 21 & focus btnSolve
        during click lblField(5)
        // The grid has it, where the last move has led.
        key Space & focused > lblField(21)
        // A key that is hidden now does not get it later.
        trace & full 1
        focus btnNumPad(1) & key S
        key C & focused > lblField(1)
    AClickElsewhereLeavesTheMenuBar:
        focus btnNumPad(5) & key Alt
        click btnInfo & focused > btnNumPad(5)
        // Now that key cannot have the keyboard any more.
        key Alt & lock 1 1
        key Alt & focused > lblField(1)
        // Alt was not pressed alone.
        down 9000 Alt & click lblField(5)
        up 9100 Alt & focused > lblField(5)
    CommandsHaveKeys:
        key 5 & key Delete
        is > & key 5
        key Backspace & is >
        key PgDown & trace 1
        key Ctrl+O > Open & key Ctrl+S > Save
        is > |1;1;0 & key PgUp > -1
        key Ctrl+Q & open > 0
    KeysOpenTheMenus:
        set 1 5 & key Alt
        key Down & key Return > Open
        key Alt+E & key Up
        key Right & key Return
        fields 1 > 5:green/red
    TabStopsOnceInTheGrid:
        click btnInfo & click lblField(12)
        key Tab & focused > btnNumPad(1)
        key Shift+Tab & key Shift+Tab
        focused > optChill(1) & key Tab
        focused > lblField(12)
    PanelsAreDisabledDuringASolveAndTheWindowStaysOpen:
        full 1 11 21 31
        during click btnInfo & click btnGoBack
        during click lblDeadEnd & click btnNumPad(11)
        during close & click mnuFileQuit
        during counts > 3 0 & hourglass > 1
        during click lblField(5) & cursor > 5
        click btnSolve & counts > 0 0
        hourglass > 0 & open > 1
    ABoxInASolveHasTheUsualPointer:
        full 1 11
        during during hourglass > 0
        during click mnuAbout & hourglass > 1
        click btnSolve
    AnEscThatClosesSomethingDoesNotAsk:
        // It closes a submenu alone: the next keys go to its menu.
        click mnuEditLockAll & key Esc
        answer Esc & key Up
        key Right & key Return
        click mnuFileExportCSV & click mnuFile
        key Esc & key Alt
        key Esc & esc > 0
    APressCountsOnceAndWhileItIsHeld:
        down 1000 Esc & esc > 1
        esc > 1 & up 1100 Esc
        esc > 0 & down 1200 Esc
        up 1210 Esc & esc > 1
        // Its release goes to another program.
        down 2000 Esc & away
        esc > 1 & esc > 0
        down 2500 Esc & esc > 1
    // The first repeat after the focus has changed is not marked as a repeat.
    RepeatsOfAHeldEscDoNotAnswerItsQuestion:
        full 1 11 & down 1000 Esc
        during down 1500 Esc & up 1600 Esc
        during down 1600 Esc & down 1630 Esc
        during up 1700 Esc & answer Yes
        click btnSolve > +1 Box(ESC gedrückt|Abbrechen?)
)");

TEST_F(InputTest, TheRotorTurnsInPauses) {
    platform.ReallySleeps = true;
    int shown = -1, turns = 0;
    platform.EachPump = [&] {
        for (int i = 0; i < 12; ++i)
            if (!Widget("Image1(" + std::to_string(i) + ")").isHidden())
                turns += std::exchange(shown, i) == i ? 0 : 1;
    };
    QElapsedTimer time;
    time.start();
    Do("full 1 11 21 & click btnInfo");
    Do("pace 100 & click btnSolve");
    EXPECT_GE(turns, 7);
    EXPECT_GE(time.elapsed(), 600);
}

} // namespace tessarin
