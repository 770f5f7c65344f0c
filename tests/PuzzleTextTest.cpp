// The two text formats of a grid.
#include "GameFixture.h"

#include "support/modStringLibrary.h"

namespace tessarin {

class PuzzleTextTest : public GameFixture {
protected:
    // Fills the grid, loads the text with its "@" replaced, and tells the values.
    void Load(const std::string& text) {
        mCommands["load"] = [=, this](int, auto& part) {
            Do("full");
            Tell(Told(ReplaceAll(text, "@", part)));
            Tell(Told("is"));
        };
    }
    PuzzleTextTest() {
        mCommands["sdk"] = [this](int, auto& t) { grid.SetTextSDK(ReplaceAll(t, "|", "\r\n")); };
    }
};

TEST_F(PuzzleTextTest, ALineOfCSVHasIndexValueAndLock) {
    Load("csv Index;Value;Locked|5;3;1|@|9;9;0");
    Do(R"(
        load 7;4;2 > |5;3;1|7;4;0|9;9;0
        load 7;4;1;x > |5;3;1|7;4;1|9;9;0
        load 7 ;  +4 ; 1 > |5;3;1|7;4;1|9;9;0
        load 7;12;0||1;-3;1 > |1;-3;1|5;3;1|7;12;0|9;9;0
        load 5;2147483647;-1|| > |5;2147483647;0|9;9;0
    )");
}

TEST_F(PuzzleTextTest, ABadLineOfCSVEndsTheLoad) {
    Load("csv Index;Value;Locked|5;3;1|@|9;9;0");
    Do(R"(
        load 7;4 > ! too few items in "7;4" |5;3;1|7;4;0
        load 0;4;1 > ! no item at position 0 of 81 |5;3;1
        load 82;x;1 > ! no item at position 82 of 81 |5;3;1
        load x;4;1 > ! "x" is not a whole number |5;3;1
        load 7;4; > ! "" is not a whole number |5;3;1|7;4;0
        load 7;0x4;1 > ! "0x4" is not a whole number |5;3;1
        load 7;4;-2147483649 > ! "-2147483649" is outside the 32-bit range |5;3;1|7;4;0
        load 7;1234567890123456789012345678901234567890;1 > ! "1234567890123456789012345678901234567890" is outside the 32-bit range |5;3;1
    )");
}

TEST_F(PuzzleTextTest, AnotherFirstLineOfCSVLoadsNothing) {
    Load("csv @");
    Do(R"(
        load >
        load Index;Value;Locked;|5;3;1 >
        load index;value;locked|5;3;1 >
        load |Index;Value;Locked|5;3;1 >
        index 40 & lock 40 1 > 40=0 winner 0
    )");
    grid.SetTextCSV("Index;Value;Locked\n1;5;1");
    EXPECT_EQ(grid.FreeCount(), 81) << "a line ends with CR and LF";
}

TEST_F(PuzzleTextTest, SDKKeepsTheValuesAndLocksThem) {
    Do("fill 5........ .3");
    const std::string rows = "0,0,0,0,0,0,0,0,0|";
    std::string text = "\"Sudoku\"|5,0,0,0,0,0,0,0,0|0,3,0,0,0,0,0,0,0|";
    for (int row = 3; row <= 9; ++row)
        text += rows;
    EXPECT_EQ(ReplaceAll(grid.TextSDK(), "\r\n", "|"), text);
    Do("sdk " + text);
    Do("is > |1;5;1|11;3;1");
    Do(R"(
        sdk "Sudoku"|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0,25| >
        counts > 624 1 0 2
        is > |602;25;1
    )");
}

TEST_F(PuzzleTextTest, RowsOfSDKMayBeShortOrLong) {
    Load("sdk \"Sudoku\"|@|0|0|0|0|0|0|");
    Do(R"(
        load 1, -2 ,12||3 > |1;1;1|2;-2;1|3;12;1|19;3;1
        load 0,0,0,0,0,0,0,0,0,1,2|3|0 > |10;3;1|11;2;1
        load 1,,3|0|0 > ! "" is not a whole number |1;1;1
        load 1,x|0|0 > ! "x" is not a whole number |1;1;1
        load 0,4,99999999999|0|0 > ! "99999999999" is outside the 32-bit range |2;4;1
    )");
    Load("sdk \"Sudoku\"|7|0|0|0|0|0|0|0|@|");
    Do("load 0,0,0,0,0,0,0,0,5,x > ! no item at position 82 of 81 |1;7;1|81;5;1");
    Do("set 80 1 > 80=1 winner 0");
}

TEST_F(PuzzleTextTest, OtherTextsOfSDKLeaveTheGrid) {
    Do(R"(
        index 40 & set 1 5
        sdk >
        sdk "Sudoku" >
        sdk "sudoku"|1|0|0|0|0|0|0|0|0| >
        sdk "Sudoku"|1|0|0|0|0|0|0|0| >
        sdk "Sudoku"|1|0|0|0|0|0|0|0|0|| >
        sdk "Sudoku"|1|0|0|0|0|0|0|0|0 >
        sdk "Sudoku"|1|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0| >
        is > |1;5;0
        cursor > 40
    )");
}

} // namespace tessarin
