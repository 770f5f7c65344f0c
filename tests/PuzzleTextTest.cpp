// The CSV and SDK texts of a grid.
#include "GameFixture.h"

namespace tessarin {

class PuzzleTextTest : public GameFixture {
protected:
    PuzzleTextTest() {
        mCommands["frame"] = [this](int, auto& text) { mFrame = text; };
        // Fills the grid, loads the frame with its "@" replaced, and tells the grid's values.
        mCommands["load"] = [this](int, auto& text) {
            Fill(FullCells);
            Tell(Do(ReplaceAll(mFrame, "@", text)));
            Tell("has");
            Tell(Do("is"));
        };
        mCommands["sdktext"] = [this](int, auto&) { Tell(grid.TextSDK()); };
    }
    std::string mFrame;
};

TEST_F(PuzzleTextTest, BothFormats) {
    Script(R"(
        // Lines of CSV.
        frame csv Index;Value;Locked|5;3;1|@|9;9;0
        load 7;4;2 > Init has |5;3;1|7;4;0|9;9;0 & load 7;4;1;x > Init has |5;3;1|7;4;1|9;9;0
        load 7 ;  +4 ; 1 > Init has |5;3;1|7;4;1|9;9;0
        load 7;12;0||1;-3;1 > Init has |1;-3;1|5;3;1|7;12;0|9;9;0
        load 9;1;1|5;2147483647;-1|| > Init has |5;2147483647;0|9;9;0
        load 7 > Init ! too few items in "7" has |5;3;1 & load 7;4 > Init ! too few items in "7;4" has |5;3;1|7;4;0
        load 0;4;1 > Init ! no item at position 0 of 81 has |5;3;1 & load 82;x;1 > Init ! no item at position 82 of 81 has |5;3;1
        load x;4;1 > Init ! "x" is not a whole number has |5;3;1 & load 7;4; > Init ! "" is not a whole number has |5;3;1|7;4;0
        load 7;0x4;1 > Init ! "0x4" is not a whole number has |5;3;1
        load 7;1234567890123456789012345678901234567890;1 > Init ! "1234567890123456789012345678901234567890" is outside the 32-bit range has |5;3;1
        load 7;4;-12345678901234567890123456789012345678901 > Init ! "-123456789012345678901234567890123456789..." is outside the 32-bit range has |5;3;1|7;4;0
        load 7;4;-2147483649 > Init ! "-2147483649" is outside the 32-bit range has |5;3;1|7;4;0
        frame csv @ & load > Init has & load Index;Value;Locked;|5;3;1 > Init has
        load index;value;locked|5;3;1 > Init has & load |Index;Value;Locked|5;3;1 > Init has
        index 40 & playlock > 40=0 winner 0

        // Rows of SDK.
        fill 5..........3 & lock 1 1
        sdktext > "Sudoku"|5,0,0,0,0,0,0,0,0|0,0,3,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|
        sdk "Sudoku"|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0,25| > Init
        counts > 624 1 0 2 & is > |602;25;1

        frame sdk "Sudoku"|@|0|0|0|0|0|0|
        load 1, -2 ,12||3 > Init has |1;1;1|2;-2;1|3;12;1|19;3;1
        load 0,0,0,0,0,0,0,0,0,1,2|3|0 > Init has |10;3;1|11;2;1
        load 1,,3|0|0 > Init ! "" is not a whole number has |1;1;1
        load 1,x|0|0 > Init ! "x" is not a whole number has |1;1;1
        load 0,4,99999999999|0|0 > Init ! "99999999999" is outside the 32-bit range has |2;4;1
        frame sdk "Sudoku"|7|0|0|0|0|0|0|0|@|
        load 0,0,0,0,0,0,0,0,5,x > Init ! no item at position 82 of 81 has |1;7;1|81;5;1
        set 80 1 > 80=1 winner 0

        // What is refused leaves the grid.
        csv & index 40 & set 1 5 & sdk > & sdk "Sudoku" > & sdk "sudoku"|1|0|0|0|0|0|0|0|0| >
        sdk "Sudoku"|1|0|0|0|0|0|0|0| > & sdk "Sudoku"|1|0|0|0|0|0|0|0|0|0| >
        sdk "Sudoku"|1|0|0|0|0|0|0|0|0|| > & sdk "Sudoku"|1|0|0|0|0|0|0|0|0 >
        sdk "Sudoku"|1|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0| >
        is > |1;5;0 & playlock > 40=0
    )");
}

} // namespace tessarin
