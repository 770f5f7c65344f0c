// The commands of buttons and menus, and the automatic solve.
#include "FakeWindow.h"

namespace tessarin {

using CommandsTest = WindowFixture;

const Stories<WindowFixture> stories("CommandsTest", R"(
    APuzzleIsWorkedByHand:
        import 2;1;1|3;2;1|4;3;1|5;4;1|6;5;1|7;6;1 > Open & click btnNextFree
        click btnNextFreeAuto > +1 & click btnNextFreeAuto > +8
        click btnNextFreeValue > & fields 1 8 > 7 9:green
        click btnGoBack > -8 & click btnNextFreeValue >
        click btnNextFreeAuto > +8 & click btnGoBackToFreedom > -8
        click btnGoBackToFreedom > -1 Beep & fields 1 8 > 8:green .
    ThePadFollowsTheCurrentField:
        pad > 0123456789XC 0123456789C normal
        fill ......... ......... ......... ......... 1349.78 & click lblField(41)
        pad > 0256XC 0123456789C normal & set 41 5
        pad > 026XC 0123456789XC normal & lock 41 1
        pad > 026XC X red & click lblField(81)
    AllValuesAreLockedAndUnlocked:
        set 1 5 & set 2 3
        click mnuEditLockAllSet & fields 1 2 3 > 5:green/red 3/red .
        click mnuEditLockClear & fields 1 2 > 5:green 3
        // A grid that comes meanwhile is left alone.
        pump 1 import 5;3;0|9;4;0 & click mnuEditLockAllSet > Open
        fields 5 9 > 3 4
    ClearingAsksFirst:
        import 1;5;1|2;3;0 & answer No
        click mnuEditClearFree > Box(|Clear Free?|? Yes No) & answer No
        click mnuEditClearAll > Box(|Clear All?|? Yes No) & fields 1 2 > 5:green/red 3
        answer Yes & click mnuEditClearFree
        is > |1;5;1 & file > import.csv
        answer Yes & click mnuEditClearAll
        fields 1 2 > .:green . & file >
    TheLightsStayUntilTheNextEventOrImport:
        full 81 & set 81 8
        lights > normal green & answer Yes
        click mnuEditClearAll & lights > normal green
        fill .12345678 & set 10 9
        // The import may be cancelled.
        lights > red green & click mnuFileImportCSV > Open
        lights > normal normal & fields 2 > 1
    AboutIsShownAgain:
        click mnuAbout & click mnuAbout > Box(About Tessarin|FileDescription: Solves|Copyright: by X|Internet: https://x|Version: 01.06.048|Release: 29.04.2022 - 06:49:52|- OK)
    WhatCanBeReadOfABadFileIsShown:
        set 81 7 & import 12;3;0|13;x;0|14;4;0
        is > |12;3;0 & fields 1 12 81 > .:green 3 .
        choose missing.csv & click mnuFileImportCSV
        file > missing.csv & is >
    AnExportWritesANewFileAndStartsTheHistory:
        set 1 5 & choose new.csv
        click mnuFileExportCSV & file >
        read new.csv > Index;Value;Locked|1;5;0 & click btnNumPad(9) > +1
    AnImportKeepsItsNameInSpiteOfANestedDialog:
        write good.csv Index;Value;Locked|1;5;1 & choose good.csv
        index 2 & pump 1 import 2;5;1
        click mnuFileImportCSV & file > good.csv
        is > |1;5;1
    // A cursor move paints two fields and a value one.
    APaceIsThePauseAfterEachPaintedField:
        full 1 11 & pace 800
        click btnSolve > +1 Sleep(800) Sleep(800) Sleep(800) Sleep(800) +11
        fields 1 11 > 1 5:green & lights > normal green
    QuietPaintsNothingUntilTheEnd:
        full 1 11 21 & pace Quiet
        during fields 1 > .:green
        click btnSolve & fields 1 11 21 > 1 5 9:green
    QuietChosenInASolveRepaintsAtItsEnd:
        full 1 11 21
        during pace Quiet
        // A command still paints.
        during click mnuEditLockAllSet & fields 2 81 > 2/red 8/red
        click btnSolve & fields 1 11 21 > 1/red 5 9:green
    StepMakesOneCycleForEachClick:
        full 1 11 21 & pace Step
        during hourglass > 0
        click btnSolve > +1 & fields 1 11 > 1:green .
        faults > & click btnSolve > +11
    APaceForgetsTheCancelOfAStep:
        full 1 11 21 & pace Step
        during pace 0
        click btnSolve > +1 +11 +21 & faults >
    AnErrorLeavesAUsableWindow:
        full 1 11 21
        during fail
        click btnSolve > ! an error of an unknown kind & faults >
        click btnSolve > +11 +21
)");

TEST_F(CommandsTest, AnImportShowsNeitherTheOldNameNorTheOldGridMeanwhile) {
    Do("import 1;5;1 & set 81 7");
    const auto loading = grid.Events.Init.Connect([this] { Do("file > & fields 81 > ."); });
    Do("import 2;5;1 & file > import.csv");
}

TEST_F(CommandsTest, TheRotorStartsAgainAfterItsFirstPicture) {
    auto& timer = dynamic_cast<Timer&>(toolkit.Find("Timer1"));
    for (const int picture : {1, 2, 1, 2}) {
        if (picture == 1) window.ctlRotor1.SetRunning(true);
        timer.RaiseTick();
        EXPECT_TRUE(toolkit.Find("Image1(" + std::to_string(picture) + ")").Visible());
    }
}

// Every pump brings more clicks: far more than the stack could hold if they nested.
TEST_F(CommandsTest, AFloodOfClicksIsAnsweredInOrder) {
    int sent = 0, answered = 0;
    window.lblField.Click = [&](int index) {
        EXPECT_EQ(index, answered++ % 80 + 1);
        grid.SetIndex(index);
    };
    window.btnInfo.Click = [] { ADD_FAILURE() << "it is disabled by then"; };
    const std::function<void()> user = [&] {
        if (sent < 20'000) platform.AtPump(1, user);
        window.btnInfo.SetEnabled(sent > 2000); // now its click waits
        window.btnInfo.RaiseClick();
        window.btnInfo.SetEnabled(false);
        for (int i = 0; i < 80; ++i)
            window.lblField(sent++ % 80 + 1).RaiseClick();
    };
    user();
    while (answered < sent || sent < 20'000)
        PumpEvents();
}

} // namespace tessarin
