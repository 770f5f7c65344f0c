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
    EXPECT_EQ(window.ctlRotor1.Left() + window.ctlRotor1.Top(), 2 * 247.5) << "not in the middle";
    // Also when the window has no entry any more.
    for (int i = 0; i < 2; ++i)
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
    platform.EachPump = [&] { EXPECT_FALSE(picture.Visible()) << "two pictures are seen"; };
    Tick();
}

TEST_F(CommandsTest, WhatCanBeClickedHasANameAndAPlaceOfItsOwn) {
    std::vector<TextControl*> controls;
    for (const auto& name : toolkit.Names())
        if (auto* const control = dynamic_cast<TextControl*>(&toolkit.Named(name)))
            if (toolkit.IsClickable(name)) controls.push_back(control);
    for (const TextControl* const control : controls) {
        const std::string& name = control->AccessibleName();
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
}

TEST_F(CommandsTest, EachControlHasItsPlaceAndItsName) {
    struct Row {
        std::string Control;
        std::string Place; // in its container: left, top, width and height in twips
        std::string Name;  // as a screen reader says it; not of all
    };
    const Row rows[] = {
        {"lblFile", "300 120 8535 255", ""},
        {"lblField(1)", "300 420 600 600", "row 1, column 1: empty, current"},
        {"lblField(12)", "1500 1020 600 600", "row 2, column 3: empty"},
        {"lblField(81)", "5400 5520 600 600", "row 9, column 9: empty"},
        {"fraNumPad", "6150 420 2400 3150", ""},
        {"btnNumPad(1)", "150 150 600 600", "1"},
        {"btnNumPad(5)", "900 900 600 600", "5"},
        {"btnNumPad(11)", "150 2400 600 600", "clear"},
        {"btnNumPad(0)", "900 2400 600 600", "0"},
        {"btnNumPad(10)", "1650 2400 600 600", "locke"},
        {"fraAction", "6150 3690 2400 2430", ""},
        {"btnNextFree", "150 150 600 600", "goto next free field"},
        {"btnNextFreeAuto", "900 150 600 600", "goto next free field and fill value in"},
        {"btnSolve", "1650 150 600 600", "solve the sudoku"},
        {"btnGoBack", "150 900 600 600", "go back to previous field"},
        {"btnGoBackToFreedom", "900 900 600 600", "go back to last field with freedom"},
        {"btnNextFreeValue", "1650 900 600 600", "next free value"},
        {"lblDeadEnd", "150 1650 600 600", "dead end: not lit"},
        {"btnInfo", "900 1650 600 600", "show/hide fild info"},
        {"lblWinner", "1650 1650 600 600", "winner: not lit"},
        {"fraInfo", "8790 420 2535 3375", "FieldInfo"},
        {"lblInfo", "240 360 2055 2655", ""},
        {"fraChill", "8790 3900 2535 2175", "Chillout"},
        {"optChill(1)", "240 240 855 255", "pause 0 milliseconds"},
        {"optChill(2)", "240 600 855 255", "pause 100 milliseconds"},
        {"optChill(3)", "240 960 855 255", "pause 200 milliseconds"},
        {"optChill(4)", "240 1320 855 255", "pause 400 milliseconds"},
        {"optChill(5)", "240 1680 855 255", "pause 800 milliseconds"},
        {"optChill(0)", "1320 240 855 255", "only show result"},
        {"optChill(6)", "1320 600 855 255", "stop after every move / continue with solve"},
        {"fraRotor", "1320 960 975 975", ""},
        {"Image1(5)", "0 0 480 480", ""}};
    for (const auto& [name, place, spoken] : rows) {
        const auto& control = dynamic_cast<const PlacedControl&>(toolkit.Named(name));
        std::ostringstream has;
        has << control.Left() << " " << control.Top() << " " << control.Width() << " "
            << control.Height();
        EXPECT_EQ(has.str(), place) << name;
        if (spoken.empty()) continue;
        EXPECT_EQ(dynamic_cast<const TextControl&>(control).AccessibleName(), spoken) << name;
    }
}

} // namespace tessarin
