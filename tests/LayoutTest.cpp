// Where the controls lie and what they say.
#include "WindowScript.h"

namespace tessarin {

class LayoutTest : public WindowFixture {
protected:
    // Left, top, width and height, in twips, and the container.
    static std::string Place(const Control& control) {
        std::ostringstream text;
        text << control.Container()->Name() << " " << control.Left() << " " << control.Top() << " "
             << control.Width() << " " << control.Height();
        return text.str();
    }
};

TEST_F(LayoutTest, FieldsStandInBoxesAGapApart) {
    int k = 0;
    for (const int top : {420, 1020, 1620, 2370, 2970, 3570, 4320, 4920, 5520})
        for (const int left : {300, 900, 1500, 2250, 2850, 3450, 4200, 4800, 5400}) {
            EXPECT_EQ(Place(window.lblField(++k)), "frmTessarin " + std::to_string(left) + " " +
                                                       std::to_string(top) + " 600 600");
            EXPECT_TRUE(window.lblField(k).Visible());
        }
    EXPECT_FALSE(window.lblField(0).Visible());
    EXPECT_FALSE(window.lblField.Has(82));
    const Design& look = window.lblField(40).Properties();
    EXPECT_TRUE(look.Border == BorderStyle::FixedSingle && look.Align == Alignment::Center);
}

TEST_F(LayoutTest, EveryControlHasItsPlaceCaptionAndToolTip) {
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"lblFile", "frmTessarin 300 120 8535 255", "", ""},
        {"fraNumPad", "frmTessarin 6150 420 2400 3150", "", ""},
        {"btnNumPad(1)", "fraNumPad 150 150 600 600", "1", "1"},
        {"btnNumPad(2)", "fraNumPad 900 150 600 600", "2", "2"},
        {"btnNumPad(3)", "fraNumPad 1650 150 600 600", "3", "3"},
        {"btnNumPad(4)", "fraNumPad 150 900 600 600", "4", "4"},
        {"btnNumPad(5)", "fraNumPad 900 900 600 600", "5", "5"},
        {"btnNumPad(6)", "fraNumPad 1650 900 600 600", "6", "6"},
        {"btnNumPad(7)", "fraNumPad 150 1650 600 600", "7", "7"},
        {"btnNumPad(8)", "fraNumPad 900 1650 600 600", "8", "8"},
        {"btnNumPad(9)", "fraNumPad 1650 1650 600 600", "9", "9"},
        {"btnNumPad(11)", "fraNumPad 150 2400 600 600", "C", "clear"},
        {"btnNumPad(0)", "fraNumPad 900 2400 600 600", "0", ""},
        {"btnNumPad(10)", "fraNumPad 1650 2400 600 600", "X", "locke"},
        {"fraAction", "frmTessarin 6150 3690 2400 2430", "", ""},
        {"btnNextFree", "fraAction 150 150 600 600", ">", "goto next free field"},
        {"btnNextFreeAuto", "fraAction 900 150 600 600", ">I",
         "goto next free field and fill value in"},
        {"btnSolve", "fraAction 1650 150 600 600", "S", "solve the sudoku"},
        {"btnGoBack", "fraAction 150 900 600 600", "<", "go back to previous field"},
        {"btnGoBackToFreedom", "fraAction 900 900 600 600", "<<",
         "go back to last field with freedom"},
        {"btnNextFreeValue", "fraAction 1650 900 600 600", "F", "next free value"},
        {"lblDeadEnd", "fraAction 150 1650 600 600", "", "dead end"},
        {"btnInfo", "fraAction 900 1650 600 600", "I", "show/hide fild info"},
        {"lblWinner", "fraAction 1650 1650 600 600", "", "winner"},
        {"fraInfo", "frmTessarin 8790 420 2535 3375", "FieldInfo", ""},
        {"fraChill", "frmTessarin 8790 3900 2535 2175", "Chillout", ""},
        {"optChill(0)", "fraChill 1320 240 855 255", "Quiet", "only show result"},
        {"optChill(1)", "fraChill 240 240 855 255", "0", "ms"},
        {"optChill(2)", "fraChill 240 600 855 255", "100", "ms"},
        {"optChill(3)", "fraChill 240 960 855 255", "200", "ms"},
        {"optChill(4)", "fraChill 240 1320 855 255", "400", "ms"},
        {"optChill(5)", "fraChill 240 1680 855 255", "800", "ms"},
        {"optChill(6)", "fraChill 1320 600 855 255", "Step",
         "stop after every move / continue with solve"},
        {"fraRotor", "fraChill 1320 960 975 975", "", ""},
        {"ctlRotor1", "fraRotor 247.5 247.5 480 480", "", ""},
        {"Image1(11)", "ctlRotor1 0 0 480 480", "", ""}};
    for (const auto& [name, place, caption, toolTip] : rows) {
        const Control& control = toolkit.Find(name);
        EXPECT_EQ(Place(control), place) << name;
        EXPECT_EQ(control.Caption(), caption) << name;
        EXPECT_EQ(control.Properties().ToolTipText, toolTip) << name;
    }
    EXPECT_EQ(Place(window.lblInfo), "fraInfo 240 360 2055 2655");
    EXPECT_EQ(window.Caption(), "Velmora Sudoku Solver");
    EXPECT_EQ(
        Text(std::vector{static_cast<int>(window.Width()), static_cast<int>(window.Height())}),
        "8850 7170");
    window.ctlRotor1.SetWidth(900);
    EXPECT_EQ(window.ctlRotor1.Width(), 480) << "as wide as a picture";
}

TEST_F(LayoutTest, ButtonsAndIndicatorsHaveTheirFonts) {
    for (const auto& [name, size] : {std::pair{"btnNumPad(0)", 20.F},
                                     {"btnNumPad(11)", 20.F},
                                     {"btnNextFree", 14.F},
                                     {"btnInfo", 14.F}})
        EXPECT_EQ(toolkit.Find(name).Font(), (FontStyle{.Name = "Arial", .Size = size})) << name;
    Script("fields 40 > :normal/text & lights > normal normal");
}

} // namespace tessarin
