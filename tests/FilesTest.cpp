// SPDX-License-Identifier: MIT
// The two text formats of a grid, and their files.
#include "GameFixture.h"
#include "model/Errors.h"
#include "support/modTextStream.h"

#include <csignal>
#include <filesystem>
#include <sys/resource.h>

namespace tessarin {

// An argument of WriteTextFile.
constexpr bool Replace = true;

using FilesTest = GameFixture;

TEST_F(FilesTest, ALineOfCSVHasIndexValueAndLock) {
    Load("5;3;1|7;4;2|8;1;1;x|| 9 ;  +9 ; 0");
    EXPECT_EQ(Grid(), "5;3;1|7;4;0|8;1;1|9;9;0");
    EXPECT_EQ(At(1).TextCSV(/*WithEmpty=*/true), "1;0;0");
    Load("5;2147483647;-1|1;-3;1||");
    EXPECT_EQ(Grid(), "1;-3;1|5;2147483647;0");
}

TEST_F(FilesTest, ABadLineOfCSVEndsTheLoad) {
    TELLS(Load("5;3;1|7;4|9;9;0"), "Init 0 ! too few items in \"7;4\"");
    EXPECT_EQ(Grid(), "5;3;1|7;4;0");
    EXPECT_THROW(Load("5;+-5;0"), TypeMismatchError);
}

TEST_F(FilesTest, AnExportNeverReplacesAFile) {
    At(1).SetValue(5);
    game.FileExportCSV(Write("mine", "my text"));
    game.FileExportSDK(folder + "mine");
    EXPECT_EQ(Read("mine"), "my text");
    // A backslash belongs to the name.
    game.FileExportCSV(folder + "new\\grid");
    EXPECT_EQ(Read("new\\grid"), "Index;Value;Locked|1;5;0");
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
    game.FileExportSDK(folder + "named");
    At(1).SetValue(0);
    game.FileImportSDK(folder + "Tessarin-20230102-030405.sdk");
    EXPECT_EQ(Grid(), "1;5;1");
    EXPECT_EQ(Read("named"), Read("Tessarin-20230102-030405.sdk"));
}

TEST_F(FilesTest, TheFirstBytesTellTheCharset) {
    EXPECT_EQ(DetectCharset(Write("text", "\xFF\xFE")), "unicode");
    EXPECT_EQ(DetectCharset(Write("text", "\xEF\xBB\xBF")), "utf-8");
    EXPECT_EQ(DetectCharset(Write("text", "text")), "x-ansi");
    EXPECT_EQ(DetectCharset(Write("text", "")), "");
    // Two bytes for each character, without a mark.
    WriteTextFile(folder + "text", "A\xE4", "unicode", Replace);
    EXPECT_EQ(ReadTextFile(folder + "text"), std::string("A\0\xE4\0", 4));
}

TEST_F(FilesTest, FilesKeepEveryByteAndAreReadWhole) {
    const std::string bytes = BomUtf8() + "a\r\nb\n\xFF\r" + std::string(200'000, '\0');
    EXPECT_EQ(WriteTextFile(folder + "all", bytes, "utf-8", Replace), "");
    EXPECT_EQ(ReadTextFile(folder + "all"), bytes);
    std::filesystem::create_symlink(folder + "all", folder + "link");
    EXPECT_EQ(ReadTextFile(folder + "link"), bytes);
    // A device is not read, because it may never end; a film that is chosen by mistake neither.
    EXPECT_EQ(ReadTextFile("/dev/zero"), "");
    const std::string large(16 << 20, 'x');
    EXPECT_EQ(ReadTextFile(Write("large", large)), large);
    EXPECT_EQ(ReadTextFile(Write("film", large + "x")), "");
    EXPECT_EQ(ReadTextFile(std::string(300, 'x')), "") << "no system has such a name";
    for (const std::string& text : {std::string("x"), bytes})
        EXPECT_EQ(WriteTextFile("/dev/full", text, "", Replace),
                  "File=/dev/full, Err=No space left on device");
}

} // namespace tessarin
