// Where the controls lie, in twips.
#include "WindowScript.h"

namespace tessarin {

using LayoutTest = WindowFixture;

TEST_F(LayoutTest, ControlsHaveTheirPlaces) {
    // The container if it is not the window, left, top, and the size if it is not 600 x 600.
    mCommands["at"] = [this](int, auto& name) {
        const Control& control = toolkit.Find(name);
        std::ostringstream place;
        if (control.Container() != &window) place << control.Container()->Name() << " ";
        place << control.Left() << " " << control.Top();
        if (control.Width() != 600 || control.Height() != 600)
            place << " " << control.Width() << " x " << control.Height();
        Tell(place.str());
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
        at optChill(4) > fraChill 240 1320 855 x 255 & at Image1(11) > ctlRotor1 0 0 480 x 480
        at optChill(5) > fraChill 240 1680 855 x 255
    )");
    EXPECT_FALSE(window.lblField(0).Visible());
    EXPECT_EQ(window.fraAction.BackColor(), WindowBackground);
    EXPECT_TRUE(window.Width() == 8850 && window.Height() == 7170);
    window.ctlRotor1.SetWidth(900);
    EXPECT_EQ(window.ctlRotor1.Width(), 480) << "as wide as a picture";
    EXPECT_EQ(window.btnNumPad(0).Font(), (FontStyle{.Name = "Arial", .Size = 20}));
    EXPECT_EQ(window.btnNumPad(11).Font(), window.btnNumPad(0).Font());
    EXPECT_EQ(window.btnInfo.Font(), (FontStyle{.Name = "Arial", .Size = 14}));
}

TEST(LayoutPumpsTest, EventsArePumpedAfterEachStep) {
    WindowParts parts;
    EXPECT_EQ(parts.OwnPlatform.Pumps, 1 + 4) << "the new player pumps, too";
}

} // namespace tessarin
