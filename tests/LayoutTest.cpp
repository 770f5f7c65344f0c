// Where the controls lie, in twips.
#include "WindowScript.h"

namespace tessarin {

class LayoutTest : public WindowFixture {
protected:
    static std::string Place(const Control& control) {
        std::ostringstream text;
        text << control.Container()->Name() << " " << control.Left() << " " << control.Top() << " "
             << control.Width() << " " << control.Height();
        return text.str();
    }
};

TEST_F(LayoutTest, BoxesOfFieldsAreAGapApart) {
    int k = 0;
    for (const int top : {420, 1020, 1620, 2370, 2970, 3570, 4320, 4920, 5520})
        for (const int left : {300, 900, 1500, 2250, 2850, 3450, 4200, 4800, 5400}) {
            EXPECT_EQ(Place(window.lblField(++k)), "frmTessarin " + std::to_string(left) + " " +
                                                       std::to_string(top) + " 600 600");
            EXPECT_TRUE(window.lblField(k).Visible());
        }
    EXPECT_FALSE(window.lblField(0).Visible());
    const Design& look = window.lblField(40).Properties();
    EXPECT_TRUE(look.Border == BorderStyle::FixedSingle && look.Align == Alignment::Center);
}

// Each with its container, left, top, width and height.
TEST_F(LayoutTest, ControlsHaveTheirPlaces) {
    std::istringstream rows(R"(
        lblFile frmTessarin 300 120 8535 255;      lblInfo fraInfo 240 360 2055 2655
        fraNumPad frmTessarin 6150 420 2400 3150;  fraAction frmTessarin 6150 3690 2400 2430
        btnNumPad(1) fraNumPad 150 150 600 600;    btnNextFree fraAction 150 150 600 600
        btnNumPad(2) fraNumPad 900 150 600 600;    btnNextFreeAuto fraAction 900 150 600 600
        btnNumPad(3) fraNumPad 1650 150 600 600;   btnSolve fraAction 1650 150 600 600
        btnNumPad(4) fraNumPad 150 900 600 600;    btnGoBack fraAction 150 900 600 600
        btnNumPad(5) fraNumPad 900 900 600 600;    btnGoBackToFreedom fraAction 900 900 600 600
        btnNumPad(6) fraNumPad 1650 900 600 600;   btnNextFreeValue fraAction 1650 900 600 600
        btnNumPad(7) fraNumPad 150 1650 600 600;   lblDeadEnd fraAction 150 1650 600 600
        btnNumPad(8) fraNumPad 900 1650 600 600;   btnInfo fraAction 900 1650 600 600
        btnNumPad(9) fraNumPad 1650 1650 600 600;  lblWinner fraAction 1650 1650 600 600
        btnNumPad(11) fraNumPad 150 2400 600 600;  btnNumPad(0) fraNumPad 900 2400 600 600
        btnNumPad(10) fraNumPad 1650 2400 600 600; fraRotor fraChill 1320 960 975 975
        fraInfo frmTessarin 8790 420 2535 3375;    fraChill frmTessarin 8790 3900 2535 2175
        optChill(0) fraChill 1320 240 855 255;     optChill(1) fraChill 240 240 855 255
        optChill(6) fraChill 1320 600 855 255;     optChill(2) fraChill 240 600 855 255
        ctlRotor1 fraRotor 247.5 247.5 480 480;    optChill(3) fraChill 240 960 855 255
        Image1(0) ctlRotor1 0 0 480 480;           optChill(4) fraChill 240 1320 855 255
        Image1(11) ctlRotor1 0 0 480 480;          optChill(5) fraChill 240 1680 855 255
    )");
    for (std::string line, row; std::getline(rows >> std::ws, line);)
        for (std::istringstream half(line); std::getline(half >> std::ws, row, ';');) {
            const auto end = row.find(' ');
            EXPECT_EQ(Place(toolkit.Find(row.substr(0, end))), row.substr(end + 1)) << row;
        }
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
