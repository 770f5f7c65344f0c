// The CSV and SDK texts of a grid.
#include "GameFixture.h"

namespace tessarin {

class PuzzleTextTest : public GameFixture {
protected:
    // Runs a script whose "load" replaces "@" in `frame` by its argument, loads the result and
    // records the values in the grid.
    void Loads(const std::string& format, const std::string& frame, const std::string& script) {
        mCommands["load"] = [&](int, auto& text) {
            Fill(FullCells);
            const auto load = [&] { mCommands.at(format)(0, ReplaceAll(frame, "@", text)); };
            Tell(ErrorOf(load) + "has");
            ExpectRightStatus();
            mCommands.at("is")(0, "");
            const std::string told = mTold;
            At(2).SetLocked(!At(2).Locked());
            EXPECT_NE(std::exchange(mTold, told), told) << "changes are no longer reported";
        };
        Script(script);
    }
};

const std::string Rows3 = "0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|0,0,0,0,0,0,0,0,0|";

TEST_F(PuzzleTextTest, BothFormatsOfOneGrid) {
    Script("fill 5..........3 & lock 1 1 & lock 2 1 & is > |1;5;1|12;3;0");
    std::string all = "Index;Value;Locked\r\n1;5;1\r\n2;0;1", sdk = grid.TextSDK();
    for (int i = 3; i <= 81; ++i)
        all += "\r\n" + std::to_string(i) + (i == 12 ? ";3;0" : ";0;0");
    EXPECT_EQ(grid.TextCSV(true), all);
    EXPECT_EQ(ReplaceAll(sdk, "\r\n", "|"), "\"Sudoku\"|5,0,0,0,0,0,0,0,0|0,0,3,0,0,0,0,0,0|" +
                                                Rows3.substr(0, 18) + Rows3 + Rows3);
    grid.SetTextSDK(sdk);
    Script("is > |1;5;1|12;3;1");
    grid.SetTextCSV(all);
    EXPECT_EQ(grid.TextCSV(true), all);
    sdk = "\"Sudoku\"\r\n"; // of dimension 5
    for (int i = 0; i < 625; ++i)
        sdk += std::to_string(i == 0 ? 0 : i % 25 + 1) + (i % 25 == 24 ? "\r\n" : ",");
    grid.SetTextSDK(sdk);
    EXPECT_EQ(grid.TextSDK(), sdk);
    Script("counts > 1 624 0 0 1");
}

TEST_F(PuzzleTextTest, LinesOfCSV) {
    Loads("csv", "Index;Value;Locked|5;3;1|@|9;9;0", R"(
        load 7;4;2 > Init has |5;3;1|7;4;0|9;9;0
        load 7;4;1;x > Init has |5;3;1|7;4;1|9;9;0
        load 7 ;  +4 ; 1 > Init has |5;3;1|7;4;1|9;9;0
        load 7;12;0||1;-3;1 > Init has |1;-3;1|5;3;1|7;12;0|9;9;0
        load 9;1;1|5;2147483647;-1|| > Init has |5;2147483647;0|9;9;0
        load 7 > Init out of range has |5;3;1 & load 7;4 > Init out of range has |5;3;1|7;4;0
        load 0;4;1 > Init out of range has |5;3;1 & load 82;x;1 > Init out of range has |5;3;1
        load x;4;1 > Init type mismatch has |5;3;1 & load ;4;1 > Init type mismatch has |5;3;1
        load 7;;1 > Init type mismatch has |5;3;1 & load 7;4; > Init type mismatch has |5;3;1|7;4;0
        load 7;4.0;1 > Init type mismatch has |5;3;1 & load 7;0x4;1 > Init type mismatch has |5;3;1
        load 7;4 4;1 > Init type mismatch has |5;3;1 & load 7;+-4;1 > Init type mismatch has |5;3;1
        load 7;2147483648;1 > Init overflow has |5;3;1
        load 7;4;-2147483649 > Init overflow has |5;3;1|7;4;0
        load 99999999999;x;1 > Init overflow has |5;3;1
    )");
    Loads("csv", "Index;Value;Locked|7;4;1\n8;1;1", "load > Init type mismatch has |7;4;0");
    Loads("csv", "Index;Value;Locked\n5;3;1", "load > Init has");
    Loads("csv", "@", R"(
        load > Init has & load index;value;locked|5;3;1 > Init has
        load |Index;Value;Locked|5;3;1 > Init has & load Index;Value;Locked;|5;3;1 > Init has
    )");
}

TEST_F(PuzzleTextTest, RowsOfSDK) {
    Loads("sdk", "\"Sudoku\"|@|" + Rows3 + Rows3, R"(
        load 1, -2 ,12||3 > Init has |1;1;1|2;-2;1|3;12;1|19;3;1
        load 0,0,0,0,0,0,0,0,0,1,2|3|0 > Init has |10;3;1|11;2;1
        load 1,,3|0|0 > Init type mismatch has |1;1;1 & load 1,x|0|0 > Init type mismatch has |1;1;1
        load 0,4,99999999999|0|0 > Init overflow has |2;4;1
    )");
    Loads("sdk", "\"Sudoku\"|7|" + Rows3.substr(36) + Rows3 + Rows3 + "@|",
          "load 0,0,0,0,0,0,0,0,5,x > Init out of range has |1;7;1|81;5;1");
}

TEST_F(PuzzleTextTest, RefusedSDKLeavesTheGrid) {
    const std::string eight = Rows3 + Rows3 + Rows3.substr(18), nine = Rows3 + Rows3 + Rows3;
    std::string sixteen;
    for (int i = 0; i < 16; ++i)
        sixteen += "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16|";
    Script("index 40 & set 1 5");
    for (const std::string& text :
         {std::string(), std::string("\"Sudoku\""), "\"sudoku\"|" + nine, "\"Sudoku\"|" + eight,
          "\"Sudoku\"|" + nine + Rows3.substr(36), "\"Sudoku\"|" + nine + "|",
          "\"Sudoku\"|" + nine.substr(0, 161), "\"Sudoku\"|" + sixteen})
        Script("sdk " + text + " > & is > |1;5;0 & playlock > StatusChanged(40) & playlock");
}

TEST_F(PuzzleTextTest, AnErrorQuotesTheItem) {
    for (const auto& [size, end] : {std::pair{40U, "\""}, {41U, "...\""}}) {
        const std::string item(size, 'x');
        std::string told;
        try {
            grid.SetTextCSV("Index;Value;Locked\r\n" + item + ";1;1");
        } catch (const TypeMismatchError& error) {
            told = error.what();
        }
        EXPECT_EQ(told, "\"" + item.substr(0, 40) + end + " is not a whole number");
    }
}

} // namespace tessarin
