// SPDX-License-Identifier: MIT
// The two text formats of a grid, and their files.
#include "GameFixture.h"
#include "support/modStringLibrary.h"
#include "support/modTextStream.h"

#include <csignal>
#include <sys/resource.h>

namespace tessarin {

// An argument of WriteTextFile.
constexpr bool Replace = true;

class FilesTest : public GameFixture {
protected:
    /// Loads rows of SDK, each with a bar behind it, without their first line.
    void LoadSDK(const std::string& rows) {
        grid.SetTextSDK("\"Sudoku\"\r\n" + ReplaceAll(rows, "|", "\r\n"));
    }
};

TEST_F(FilesTest, ALineOfCSVHasIndexValueAndLock) {
    Fill("123");
    Load("5;3;1|7;4;2|8;1;1;x|| 9 ;  +9 ; 0");
    EXPECT_EQ(Grid(), "5;3;1|7;4;0|8;1;1|9;9;0");
    EXPECT_EQ(At(1).TextCSV(/*WithEmpty=*/true), "1;0;0");
    Load("5;2147483647;-1|1;-3;1||");
    EXPECT_EQ(Grid(), "1;-3;1|5;2147483647;0");
}

TEST_F(FilesTest, ABadLineOfCSVEndsTheLoad) {
    TELLS(Load("5;3;1|7;4|9;9;0"), "! too few items in \"7;4\"");
    EXPECT_EQ(Grid(), "5;3;1|7;4;0");
    TELLS(Load("5;3;1|82;x;1|9;9;0"), "! no item at position 82 of 81");
    EXPECT_EQ(Grid(), "5;3;1");
    // Changes are told again.
    TELLS(At(9).SetValue(4), "9=4");
    TELLS(Load("7;4;0x4|9;9;0"), "! \"0x4\" is not a whole number");
    EXPECT_EQ(Grid(), "7;4;0");
    TELLS(Load("7;4;-2147483649"), "! \"-2147483649\" is outside the 32-bit range");
}

TEST_F(FilesTest, OtherTextsOfCSVEmptyTheGrid) {
    Load("1;5;1");
    grid.SetTextCSV("index;value;locked\r\n5;3;1");
    EXPECT_EQ(Grid(), "");
    // "\n" alone ends no line.
    grid.SetTextCSV("Index;Value;Locked\n1;5;1\r\n2;6;1");
    EXPECT_EQ(Grid(), "");
}

TEST_F(FilesTest, RowsOfSDKTellTheDimension) {
    At(1).SetValue(5);
    // Refused: no line break behind the last row; another first line.
    LoadSDK("1|0|0|0|0|0|0|0|0");
    grid.SetTextSDK("\"sudoku\"\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n");
    EXPECT_EQ(Grid(), "1;5;0");
    LoadSDK("0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0|0,25|");
    EXPECT_EQ(Grid(), "602;25;1");
    EXPECT_EQ(grid.FreeCount(), 624);
}

TEST_F(FilesTest, AnExportNeverReplacesAFile) {
    At(1).SetValue(5);
    game.FileExportCSV(Write("mine", "my text"));
    game.FileExportSDK(folder + "mine");
    EXPECT_EQ(Read("mine"), "my text");
    // Nor does it report that it cannot write.
    TELLS(game.FileExportCSV(folder + "no folder/grid"), "");
}

TEST_F(FilesTest, AnExportThatFoundNoRoomCanBeRepeated) {
    At(1).SetValue(5);
    // Every write is an error, as on a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit room{};
    getrlimit(RLIMIT_FSIZE, &room);
    const rlimit none{0, room.rlim_max};
    setrlimit(RLIMIT_FSIZE, &none);
    game.FileExportCSV(folder + "grid");
    setrlimit(RLIMIT_FSIZE, &room);
    game.FileExportCSV(folder + "grid");
    EXPECT_EQ(Read("grid"), "Index;Value;Locked|1;5;0");
}

TEST_F(FilesTest, AnExportWithoutNameLiesBesideTheProgram) {
    At(1).SetValue(5);
    game.FileExportCSV();
    EXPECT_EQ(Read("Tessarin-20230102-030405.csv"), "Index;Value;Locked|1;5;0");
    game.FileExportSDK();
    At(1).SetValue(0);
    game.FileImportSDK(folder + "Tessarin-20230102-030405.sdk");
    EXPECT_EQ(Grid(), "1;5;1");
}

TEST_F(FilesTest, OnlyAWholeImportOfCSVResetsThePlayer) {
    Trace({4});
    game.FileExportSDK(folder + "rows");
    TELLS(game.FileImportSDK(folder + "rows"), "");
    TELLS(game.FileImportCSV(Write("bad", "Index;Value;Locked|1;9;1|x")),
          "! \"x\" is not a whole number");
    TELLS(game.FileImportCSV(Write("good", "Index;Value;Locked|2;9;1")), "-4");
    EXPECT_EQ(Grid(), "2;9;1");
}

TEST_F(FilesTest, TheFirstBytesTellTheCharset) {
    const std::pair<std::string, const char*> texts[] = {
        {"\xFF\xFE", "unicode"}, {"\xEF\xBB\xBF", "utf-8"}, {"text", "x-ansi"}, {"", ""}};
    for (const auto& [text, charset] : texts)
        EXPECT_EQ(DetectCharset(Write("text", text)), charset);
    // Two bytes for each character, without a mark.
    WriteTextFile(folder + "text", "AB", "unicode", Replace);
    EXPECT_EQ(ReadTextFile(folder + "text"), std::string("A\0B\0", 4));
}

TEST_F(FilesTest, FilesKeepEveryByteAndAreReadWhole) {
    const std::string bytes = BomUtf8() + "a\r\nb\n\xFF\r" + std::string(200'000, '\0');
    EXPECT_EQ(WriteTextFile(folder + "all", bytes, "utf-8", Replace), "");
    EXPECT_EQ(ReadTextFile(folder + "all"), bytes);
    // A device is not read, because it may never end; a film that is chosen by mistake neither.
    EXPECT_EQ(ReadTextFile("/dev/zero"), "");
    EXPECT_EQ(ReadTextFile(Write("film", std::string(17'000'000, 'x'))), "");
    // A full device is an error.
    EXPECT_NE(WriteTextFile("/dev/full", "x", "", Replace), "");
}

} // namespace tessarin
