// SPDX-License-Identifier: MIT
// What fields and panels show, and the views.
#include "FakeWindow.h"
#include "model/Groups.h"

namespace tessarin {

using ViewsTest = WindowFixture;

TEST_F(ViewsTest, DeadCellsAreRedWhileTheirNumberIsShown) {
    Fill("......... 12.345678 ......... 34.781256");
    At(75).SetValue(9);
    Meanwhile([&] { EXPECT_EQ(Seen({12, 30}), ".:red .:red"); });
    TELLS(Click("lblDeadEnd"), "Box(|Dead cells = 2|- OK)");
    EXPECT_EQ(Seen({12, 30}), ". .");
    // Only those that are dead at the end get their background back.
    Meanwhile([&] { At(75).SetValue(0); });
    Click("lblDeadEnd");
    EXPECT_EQ(Seen({12, 30}), ".:red .:red");
    Meanwhile([&] { window.Close(); });
    Click("lblDeadEnd");
    EXPECT_TRUE(platform.Closed);
}

TEST_F(ViewsTest, NeighboursAreYellowWhileTheirNumberIsShown) {
    Click(81);
    // A view does not pause after each field.
    Pace("800");
    Meanwhile([&] {
        EXPECT_EQ(Marked().size(), 21U);
        Click("btnNextFree");
        EXPECT_EQ(grid.Index(), 1);
    });
    // Spelled like that.
    TELLS(Click("mnuViewNeighbours"), "Box(|Neigbours = 21|- OK)");
    // Those that were marked are unmarked, wherever the cursor is by then.
    EXPECT_EQ(Marked(), std::vector<int>());
}

TEST_F(ViewsTest, FreedomsShowHowManyValuesAreFree) {
    Fill(".12345678 91234567. .1234567. ......... ......... ......... ......... ......... 1234567");
    grid.SetIndex(9);
    // Locked and dead, and yet it looks normal at the end.
    At(1).SetLocked(true);
    Meanwhile([&] {
        EXPECT_EQ(Seen({1, 19}), "0:red/normal:Arial 12 1:green/red:Arial 12");
        EXPECT_EQ(Seen({80, 9}), "2:yellow/red:Arial 12 8:green");
        EXPECT_EQ(window.lblField(1).AccessibleName(), "row 1, column 1: empty, locked, freedom 0");
    });
    TELLS(Click("mnuViewFreedom"), "Box(|Freedoms of fields|- OK)");
    EXPECT_EQ(Seen({1, 19, 80, 9}), ". . . 8:green");
}

TEST_F(ViewsTest, TheGroupsViewGoesOnWithItsGroupsAfterAnImport) {
    const std::weak_ptr<Group> last = game.Groups->Items.Item(27);
    Meanwhile([&] {
        // Its end enables the menus.
        Click("lblDeadEnd");
        Import("1;5;0");
        EXPECT_FALSE(last.expired());
    });
    Click("mnuViewGroups");
}

TEST_F(ViewsTest, WhatCanBeClickedHasANameAndAPlaceOfItsOwn) {
    std::vector<TextControl*> controls;
    for (const auto& command : toolkit.Commands())
        if (auto* const control = dynamic_cast<TextControl*>(&toolkit.Named(command)))
            controls.push_back(control);
    for (const TextControl* const control : controls) {
        const std::string& name = control->AccessibleName();
        EXPECT_TRUE(name.size() > 1 || name == "5" || name == "0") << control->Name();
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

// The bit of the taskbar entry is 0x40000. A change, so that the activation counts, and pumps.
TEST_F(ViewsTest, AnActivationInsideAnotherHasNoEffect) {
    Load("81;3;0");
    AtPump(1, [&] { window.RaiseActivate(); });
    TELLS(window.RaiseActivate(), "Lock(77) Hide(5) Style(5|0x40010) Show(5) Lock(0)");
}

TEST_F(ViewsTest, ARotorThatStartsAnewShowsOnePicture) {
    for (int ticks = 0; ticks < 3; ++ticks) {
        window.ctlRotor1.SetRunning(true);
        for (int i = 0; i <= ticks; ++i)
            toolkit.Tick();
    }
    window.ctlRotor1.SetRunning(true);
    toolkit.Tick();
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(toolkit.Named("Image1(" + std::to_string(i) + ")").Visible(), i == 1) << i;
}

} // namespace tessarin
