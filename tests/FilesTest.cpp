// The two text formats of a grid, and their files.
#include "GameFixture.h"
#include "support/modTextStream.h"

namespace tessarin {

using FilesTest = GameFixture;

const Stories<GameFixture> stories("FilesTest", R"(
    ALineOfCSVHasIndexValueAndLock:
        fill 123 & csv Index;Value;Locked|5;3;1|7;4;2|8;1;1;x|| 9 ;  +9 ; 0
        is > |5;3;1|7;4;0|8;1;1|9;9;0 & counts > 77 2
        csv Index;Value;Locked|5;2147483647;-1|1;-3;1|| & is > |1;-3;1|5;2147483647;0
    ABadLineOfCSVEndsTheLoad:
        csv Index;Value;Locked|5;3;1|7;4|9;9;0 > ! too few items in "7;4" & is > |5;3;1|7;4;0
        csv Index;Value;Locked|5;3;1|82;x;1|9;9;0 > ! no item at position 82 of 81 & is > |5;3;1
        csv Index;Value;Locked|7;4;0x4|9;9;0 > ! "0x4" is not a whole number & is > |7;4;0
        csv Index;Value;Locked|7;4;-2147483649 > ! "-2147483649" is outside the 32-bit range & counts > 80 0
        // Another first line loads nothing.
        csv index;value;locked|5;3;1 & is >
    ARowOfSDKMayBeShortOrLong:
        sdk "Sudoku"|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0,25| > & counts > 624 1
        sdk "Sudoku"|1, -2 ,12||3|0|0|0|0|0|0| & is > |1;1;1|2;-2;1|3;12;1|19;3;1
        sdk "Sudoku"|1,,3|0|0|0|0|0|0|0|0| > ! "" is not a whole number & counts > 80 1
        sdk "Sudoku"|7|0|0|0|0|0|0|0|0,0,0,0,0,0,0,0,5,x| > ! no item at position 82 of 81 & is > |1;7;1|81;5;1
    OtherTextsOfSDKLeaveTheGrid:
        set 1 5 & sdk "sudoku"|1|0|0|0|0|0|0|0|0|
        sdk "Sudoku"|1|0|0|0|0|0|0|0|0 & is > |1;5;0
    AnExportNeverReplacesAFile:
        set 1 5 & write mine mine
        tocsv mine > & tocsv gone/grid >
        read mine > mine & read gone/grid >
    AnExportWithoutNameLiesBesideTheProgram:
        set 1 5 & tosdk
        tocsv & read Tessarin-20220429-064952.csv > Index;Value;Locked|1;5;0
        csv & fromsdk Tessarin-20220429-064952.sdk
        is > |1;5;1
    OnlyAWholeImportOfCSVResetsThePlayer:
        fill 5 & tosdk rows
        trace 4 & fromsdk rows >
        write bad Index;Value;Locked|1;9;1|x & fromcsv bad > ! "x" is not a whole number
        write good Index;Value;Locked|2;9;1 & fromcsv good > -4
        is > |2;9;1
)");

TEST_F(FilesTest, ALineOfCSVEndsWithTwoCharacters) {
    grid.SetTextCSV("Index;Value;Locked\n1;5;1\r\n2;6;1");
    EXPECT_EQ(grid.FreeCount(), 81);
}

TEST_F(FilesTest, FilesKeepEveryByteAndAreReadWhole) {
    const std::string bytes = BomUtf8() + "a\r\nb\n\xFF\r" + std::string(200'000, '\0');
    EXPECT_EQ(WriteTextFile(folder + "all", bytes, "utf-8", true), "");
    EXPECT_EQ(ReadTextFile(folder + "all"), bytes);
    EXPECT_EQ(ReadTextFile("/dev/zero"), "");
    EXPECT_NE(WriteTextFile("/dev/full", "x", "", true), "");
}

} // namespace tessarin
