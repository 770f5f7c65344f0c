// The two text formats of a grid.
#include "GameFixture.h"
#include "support/modStringLibrary.h"

namespace tessarin {

class PuzzleTextTest : public GameFixture {
protected:
    PuzzleTextTest() {
        mCommands["sdk"] = [this](int, auto& t) { grid.SetTextSDK(ReplaceAll(t, "|", "\r\n")); };
        mCommands["text"] = [this](int, auto&) { Tell(grid.TextSDK()); };
        // Fills the grid, loads the frame with "@" replaced, and tells the values.
        mCommands["frame"] = [this](int, auto& text) { mFrame = text; };
        mCommands["load"] = [this](int, auto& part) {
            Do("full");
            Tell(Told(ReplaceAll(mFrame, "@", part)));
            Tell(Told("is"));
        };
    }
    std::string mFrame;
};

const Stories<PuzzleTextTest> stories("PuzzleTextTest", R"(
    ALineOfCSVHasIndexValueAndLock:
        frame csv Index;Value;Locked|5;3;1|@|9;9;0
        load 7;4;2 > |5;3;1|7;4;0|9;9;0 & load 7;4;1;x > |5;3;1|7;4;1|9;9;0
        load 7 ;  +4 ; 1 > |5;3;1|7;4;1|9;9;0 & load 7;12;0||1;-3;1 > |1;-3;1|5;3;1|7;12;0|9;9;0
        load 5;2147483647;-1|| > |5;2147483647;0|9;9;0
    ABadLineOfCSVEndsTheLoad:
        frame csv Index;Value;Locked|5;3;1|@|9;9;0
        load 7;4 > ! too few items in "7;4" |5;3;1|7;4;0
        load 82;x;1 > ! no item at position 82 of 81 |5;3;1
        load x;4;1 > ! "x" is not a whole number |5;3;1
        load 7;4;0x4 > ! "0x4" is not a whole number |5;3;1|7;4;0
        load 7;4;-2147483649 > ! "-2147483649" is outside the 32-bit range |5;3;1|7;4;0
    AnotherFirstLineOfCSVLoadsNothing:
        frame csv @ & load >
        load Index;Value;Locked;|5;3;1 > & load index;value;locked|5;3;1 >
        load |Index;Value;Locked|5;3;1 >
        index 40 & lock 40 1 > 40=0 winner 0
    SDKHasARowOfValuesForEachRow:
        fill 5........ .3 & text > "Sudoku"|5,0,0,0,0,0,0,0,0|0,3,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|
        sdk "Sudoku"|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0,25| > & counts > 624 1 0 2
        is > |602;25;1
    ARowOfSDKMayBeShortOrLong:
        frame sdk "Sudoku"|@|0|0|0|0|0|0|
        load 1, -2 ,12||3 > |1;1;1|2;-2;1|3;12;1|19;3;1
        load 0,0,0,0,0,0,0,0,0,1,2|3|0 > |10;3;1|11;2;1
        load 1,,3|0|0 > ! "" is not a whole number |1;1;1
        frame sdk "Sudoku"|7|0|0|0|0|0|0|0|@|
        load 0,0,0,0,0,0,0,0,5,x > ! no item at position 82 of 81 |1;7;1|81;5;1
        set 80 1 > 80=1 winner 0
    OtherTextsOfSDKLeaveTheGrid:
        index 40 & set 1 5
        sdk "sudoku"|1|0|0|0|0|0|0|0|0| > & sdk "Sudoku"|1|0|0|0|0|0|0|0| >
        sdk "Sudoku"|1|0|0|0|0|0|0|0|0|| > & sdk "Sudoku"|1|0|0|0|0|0|0|0|0 >
        sdk "Sudoku"|1|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0| > & sdk >
        is > |1;5;0 & cursor > 40
)");

TEST_F(PuzzleTextTest, ALineOfCSVEndsWithTwoCharacters) {
    grid.SetTextCSV("Index;Value;Locked\n1;5;1");
    EXPECT_EQ(grid.FreeCount(), 81);
}

} // namespace tessarin
