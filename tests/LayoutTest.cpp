// Where the controls lie, in twips.
#include "WindowScript.h"

namespace tessarin {

using LayoutTest = WindowFixture;

TEST_F(LayoutTest, ControlsHaveTheirPlaces) {
    mCommands["at"] = [this](int, auto& name) {
        const Control& control = toolkit.Find(name);
        std::ostringstream place;
        place << control.Container()->Name() << " " << control.Left() << " " << control.Top() << " "
              << control.Width() << " " << control.Height();
        Tell(place.str());
    };
    // Container, left, top, width and height.
    Script(R"(
        at lblField(1) > frmTessarin 300 420 600 600 & at lblField(4) > frmTessarin 2250 420 600 600
        at lblField(9) > frmTessarin 5400 420 600 600
        at lblField(81) > frmTessarin 5400 5520 600 600
        at lblField(32) > frmTessarin 2850 2370 600 600
        at lblField(46) > frmTessarin 300 3570 600 600 & at lblFile > frmTessarin 300 120 8535 255
        at lblInfo > fraInfo 240 360 2055 2655 & at fraNumPad > frmTessarin 6150 420 2400 3150
        at fraAction > frmTessarin 6150 3690 2400 2430 & at btnNumPad(1) > fraNumPad 150 150 600 600
        at btnNextFree > fraAction 150 150 600 600 & at btnNumPad(2) > fraNumPad 900 150 600 600
        at btnNextFreeAuto > fraAction 900 150 600 600
        at btnNumPad(3) > fraNumPad 1650 150 600 600 & at btnSolve > fraAction 1650 150 600 600
        at btnNumPad(4) > fraNumPad 150 900 600 600 & at btnGoBack > fraAction 150 900 600 600
        at btnNumPad(5) > fraNumPad 900 900 600 600
        at btnGoBackToFreedom > fraAction 900 900 600 600
        at btnNumPad(6) > fraNumPad 1650 900 600 600
        at btnNextFreeValue > fraAction 1650 900 600 600
        at btnNumPad(7) > fraNumPad 150 1650 600 600 & at lblDeadEnd > fraAction 150 1650 600 600
        at btnNumPad(8) > fraNumPad 900 1650 600 600 & at btnInfo > fraAction 900 1650 600 600
        at btnNumPad(9) > fraNumPad 1650 1650 600 600 & at lblWinner > fraAction 1650 1650 600 600
        at btnNumPad(11) > fraNumPad 150 2400 600 600 & at btnNumPad(0) > fraNumPad 900 2400 600 600
        at btnNumPad(10) > fraNumPad 1650 2400 600 600 & at fraRotor > fraChill 1320 960 975 975
        at fraInfo > frmTessarin 8790 420 2535 3375 & at fraChill > frmTessarin 8790 3900 2535 2175
        at optChill(0) > fraChill 1320 240 855 255 & at optChill(1) > fraChill 240 240 855 255
        at optChill(6) > fraChill 1320 600 855 255 & at optChill(2) > fraChill 240 600 855 255
        at ctlRotor1 > fraRotor 247.5 247.5 480 480 & at optChill(3) > fraChill 240 960 855 255
        at Image1(0) > ctlRotor1 0 0 480 480 & at optChill(4) > fraChill 240 1320 855 255
        at Image1(11) > ctlRotor1 0 0 480 480 & at optChill(5) > fraChill 240 1680 855 255
    )");
    EXPECT_FALSE(window.lblField(0).Visible());
    EXPECT_EQ(window.fraAction.BackColor(), WindowBackground);
    EXPECT_TRUE(window.Width() == 8850 && window.Height() == 7170);
    window.ctlRotor1.SetWidth(900);
    EXPECT_EQ(window.ctlRotor1.Width(), 480) << "as wide as a picture";
    for (const auto& [name, size] : {std::pair{"btnNumPad(0)", 20.F},
                                     {"btnNumPad(11)", 20.F},
                                     {"btnNextFree", 14.F},
                                     {"btnInfo", 14.F}})
        EXPECT_EQ(toolkit.Find(name).Font(), (FontStyle{.Name = "Arial", .Size = size})) << name;
}

TEST(LayoutPumpsTest, EventsArePumpedAfterEachStep) {
    WindowParts parts;
    EXPECT_EQ(parts.OwnPlatform.Pumps, 1 + 4) << "the new player pumps, too";
}

} // namespace tessarin
