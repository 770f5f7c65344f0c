// SPDX-License-Identifier: MIT
// Stories of the window. What they leave out is in its model: see AgreementTest.cpp.
#include "FakeWindow.h"
#include "support/modTaskBar.h"

namespace tessarin {

class CommandsTest : public testing::Test, protected FakeWindow {
    void TearDown() override { platform.ExpectNothingLeft(); }
};

TEST_F(CommandsTest, APuzzleIsWorkedByHand) {
    // 7, 8 and 9 are left for the row.
    const std::string given = "2;1;1|3;2;1|4;3;1|5;4;1|6;5;1|7;6;1";
    const std::string file = Import(given);
    EXPECT_EQ(window.lblFile.Caption(), file);
    Click(50);
    Click("btnNextFree");
    EXPECT_EQ(grid.Index(), 1);
    Click("btnNextFreeAuto");
    Click("btnNextFreeAuto");
    Click("btnNextFreeValue");
    EXPECT_EQ(Grid(), "1;7;0|" + given + "|8;9;0");
    // Empties field 8, and goes back to the one before.
    Click("btnGoBack");
    Click("btnNextFreeValue");
    EXPECT_EQ(Grid(), "1;8;0|" + given);
    Click(8);
    Click("btnNumPad(7)");
    Click("btnGoBackToFreedom");
    TELLS(Click("btnGoBackToFreedom"), "Beep");
    Click("mnuEditClearAll", "No");
    TELLS(Click("mnuEditClearFree", "Yes"), "Box(|Clear Free?|? Yes No)");
    EXPECT_EQ(Grid(), given);
    TELLS(Click("mnuFileExportCSV", folder + "new.csv"), "Export File to save");
    EXPECT_EQ(Read("new.csv"), "Index;Value;Locked|" + given);
}

TEST_F(CommandsTest, AnErrorLeavesAUsableWindow) {
    FullBut({1, 11, 21});
    Meanwhile([] { throw "something that is no exception"; });
    TELLS(Click("btnSolve"), "! an error of an unknown kind");
    EXPECT_EQ(grid.FreeCount(), 2);
    Click("btnSolve");
    EXPECT_EQ(grid.FreeCount(), 0);
}

// The step has asked for the end of the solve by then.
TEST_F(CommandsTest, APaceThatIsChosenWhenTheRotorOfAStepStopsGoesOn) {
    FullBut({1, 11, 21});
    Pace("Step");
    bool chosen = false;
    platform.EachPump = [&] {
        if (!window.ctlRotor1.Running() && !std::exchange(chosen, true)) Pace("0");
    };
    Click("btnSolve");
    EXPECT_EQ(grid.FreeCount(), 0);
}

TEST_F(CommandsTest, WhatOnlyCodeAsksFor) {
    const float width = window.Width();
    window.SetInfoVisible(false); // as it is
    EXPECT_EQ(window.Width(), width);
    Click(50);
    window.PaintField(1);
    window.PaintField(-1); // the current field
    EXPECT_TRUE(window.lblInfo.Caption().starts_with("Index=50"));
    EXPECT_THROW(window.PaceOption("8"), std::out_of_range);
    // It always has the size of a picture.
    window.ctlRotor1.SetWidth(9);
    window.ctlRotor1.SetHeight(9);
    EXPECT_EQ(window.ctlRotor1.Width() + window.ctlRotor1.Height(), 2 * 480);
    TELLS(ShowInTaskBar(5, false), "Lock(77) Hide(5) Style(5|0x10) Show(5) Lock(0)");
}

TEST_F(CommandsTest, ARotorThatRunsMayStartAnew) {
    window.ctlRotor1.SetRunning(true);
    Tick();
    Tick();
    window.ctlRotor1.SetRunning(true);
    Tick();
    const auto& picture = dynamic_cast<const Picture&>(toolkit.Named("Image1(1)"));
    EXPECT_TRUE(picture.Visible());
    EXPECT_EQ(picture.File, "rotor-1.png");
    EXPECT_EQ(picture.Top(), 0);
    platform.EachPump = [&] { EXPECT_FALSE(picture.Visible()) << "two pictures are seen"; };
    Tick();
}

TEST_F(CommandsTest, WhatCanBeClickedHasANameAndAPlaceOfItsOwn) {
    std::vector<TextControl*> controls;
    for (const auto& name : toolkit.Names())
        if (auto* const control = dynamic_cast<TextControl*>(&toolkit.Named(name)))
            if (toolkit.IsClickable(name)) controls.push_back(control);
    std::string names;
    for (const TextControl* const control : controls) {
        const std::string& name = control->AccessibleName();
        if (!control->Name().starts_with("lblField")) names += name + "; ";
        EXPECT_TRUE(name.size() > 1 || control->Name().starts_with("btnNumPad")) << name;
        if (const auto* const panel = dynamic_cast<const Frame*>(control->Container())) {
            EXPECT_LE(control->Left() + control->Width(), panel->Width()) << name;
            EXPECT_LE(control->Top() + control->Height(), panel->Height()) << name;
        }
        for (const TextControl* const other : controls) {
            if (other == control || other->Container() != control->Container()) continue;
            EXPECT_TRUE(control->Left() >= other->Left() + other->Width() ||
                        other->Left() >= control->Left() + control->Width() ||
                        control->Top() >= other->Top() + other->Height() ||
                        other->Top() >= control->Top() + control->Height())
                << control->Name() << " and " << other->Name();
        }
    }
    EXPECT_EQ(names, "go back to previous field; go back to last field with freedom; "
                     "show/hide fild info; goto next free field; goto next free field and fill "
                     "value in; next free value; 0; 1; locke; clear; 2; 3; 4; 5; 6; 7; 8; 9; "
                     "solve the sudoku; dead end: not lit; only show result; "
                     "pause 0 milliseconds; pause 100 milliseconds; pause 200 milliseconds; "
                     "pause 400 milliseconds; pause 800 milliseconds; "
                     "stop after every move / continue with solve; ");
    EXPECT_EQ(window.lblWinner.AccessibleName(), "winner: not lit");
}

} // namespace tessarin
