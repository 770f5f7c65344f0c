#include "GameFixture.h"
#include "ScratchFolder.h"
#include "support/modTextStream.h"

#include <thread>

#include <sys/stat.h>

namespace tessarin {

using GameTest = GameFixture;

TEST_F(GameTest, GameRelaysTheEventsOfTheGrid) {
    EXPECT_EQ(goGame, &game);
    EXPECT_EQ(game.Groups->Items.Count(), 27);
    Listen(game.Events, "-");
    mCommands["pumps"] = [this](int, auto&) {
        Tell(std::to_string(std::exchange(platform.Pumps, 0)));
    };
    Do("pumps");
    Script(R"(
        index 2 > -IndexChanged(2) IndexChanged(2) & pumps > 2
        index 1 > -BeforeIndexChanged(2) BeforeIndexChanged(2) -IndexChanged(1) IndexChanged(1)
        pumps > 4 & set 81 1 > -StatusChanged(81) StatusChanged(81) & pumps > 84
        fill .23456789 & pumps
        set 10 1 > -StatusChanged(10) StatusChanged(10) -IsDeadEnd(1) IsDeadEnd(1) & pumps > 86
        set 1 1 > -StatusChanged(1) StatusChanged(1) -IsDeadEnd(0) IsDeadEnd(0) & pumps > 86
        csv > Init & pumps > 0
    )");
    Do("fill " + FullCells.substr(0, 79) + ".8");
    Script(R"(
        set 80 2 > -StatusChanged(80) StatusChanged(80) -IsWinner(80) IsWinner(80)
        set 81 0 > -StatusChanged(81) StatusChanged(81) -IsWinner(0) IsWinner(0)
    )");
}

class GameFilesTest : public GameFixture {
protected:
    GameFilesTest() {
        platform.Folder = folder.File("");
        platform.Folder.pop_back();
        platform.Time = {2022, 4, 29, 6, 49, 52};
        Do("fill 5");
    }
    std::string Path(const std::string& name) const { return folder.File(name); }
    std::string Content(const std::string& name) const { return ReadTextFile(Path(name)); }

    const ScratchFolder folder;
};

TEST_F(GameFilesTest, ExportsCreateAFileOrTouchNothing) {
    const std::string csv = grid.TextCSV(), sdk = grid.TextSDK(), odd = "-\xC3\xA4 'b\"\n\xFF;*";
    std::filesystem::create_symlink(Path("nowhere"), Path("dangling"));
    std::filesystem::create_symlink(Path("mine"), Path("link"));
    folder.Write("mine", "mine");
    for (int value = 5; value <= 6; ++value) { // twice within the same second
        At(1).SetValue(value);
        game.FileExportCSV();
        game.FileExportSDK();
        game.FileExportSDK(Path("rows.txt"));
        for (const std::string& name : {odd, std::string("gone/grid"), std::string("dangling"),
                                        std::string("link"), std::string(), std::string(300, 'x')})
            game.FileExportCSV(Path(name));
    }
    const std::map<std::string, std::string> files{{"Tessarin-20220429-064952.csv", csv},
                                                   {"Tessarin-20220429-064952.sdk", sdk},
                                                   {"rows.txt", sdk},
                                                   {odd, csv},
                                                   {"mine", "mine"},
                                                   {"link", "mine"},
                                                   {"dangling", ""}};
    std::map<std::string, std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(platform.Folder))
        found[entry.path().filename()] = ReadTextFile(entry.path());
    EXPECT_EQ(found, files);
}

TEST_F(GameFilesTest, OnlyOneOfTwoWritersCreatesTheFile) {
    for (int round = 0; round < 50; ++round) {
        const std::string file = Path(std::to_string(round));
        std::string results[2];
        std::thread other([&] { results[0] = WriteTextFile(file, "0", "", false); });
        results[1] = WriteTextFile(file, "1", "", false);
        other.join();
        EXPECT_NE(results[0].empty(), results[1].empty());
        EXPECT_EQ(ReadTextFile(file), results[0].empty() ? "0" : "1");
    }
}

TEST_F(GameFilesTest, UnusableFilesCountAsEmpty) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    WriteTextFile(Path("wide"), grid.TextCSV(), "unicode", false);
    folder.Write("marked", BomUtf8() + grid.TextCSV());
    folder.Write("binary", std::string(100000, '\0') + "\xFF\xFE\r\n;;;");
    for (const std::string name :
         {"pipe", "wide", "marked", "binary", "missing", ".", "/dev/zero"}) {
        Do("fill 5");
        game.FileImportCSV(name[0] == '/' ? name : Path(name));
        EXPECT_EQ(grid.FreeCount(), 81) << name;
        Do("fill 5");
        game.FileImportSDK(name[0] == '/' ? name : Path(name));
        EXPECT_EQ(grid.FreeCount(), 80) << name;
    }
}

TEST_F(GameFilesTest, OnlyACSVImportResetsThePlayer) {
    game.FileExportSDK(Path("rows"));
    folder.Write("grid", "Index;Value;Locked\r\n2;9;1");
    folder.Write("bad", "Index;Value;Locked\r\n1;9;1\r\nx");
    mCommands["import"] = [&](int, auto& name) { game.FileImportCSV(Path(name)); };
    mCommands["importsdk"] = [&](int, auto& name) { game.FileImportSDK(Path(name)); };
    Script(R"(
        trace 4 & importsdk rows > Init & importsdk missing > & is > |1;5;1
        import bad > type mismatch Init & is > |1;9;1
        import grid > Init [none] & is > |2;9;1 & trace 4 & import missing > Init [none] & is >
    )");
    EXPECT_FALSE(play.Tracing());
}

TEST_F(GameFilesTest, TextFilesKeepEveryByte) {
    std::string bytes = BomUtf8() + "a\r\nb\nc\r";
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    folder.Write("all", "old");
    EXPECT_EQ(WriteTextFile(Path("all"), bytes, "utf-8", true), "");
    EXPECT_EQ(Content("all"), bytes);
    EXPECT_EQ(WriteTextFile(Path("wide"), "AB", "unicode", false), "");
    EXPECT_EQ(Content("wide"), std::string("A\0B\0", 4));
    for (const std::string& file : {Path("wide"), Path("missing/x"), std::string("/dev/full")}) {
        const std::string error = WriteTextFile(file, bytes, "", file == "/dev/full");
        EXPECT_EQ(error.substr(0, file.size() + 11), std::string("File=") + file + ", Err=");
        EXPECT_GT(error.size(), file.size() + 11);
    }
    EXPECT_NE(WriteTextFile("/dev/full", std::string(1 << 20, 'x'), "", true), "");
    folder.Write("bom", BomUnicode());
    folder.Write("short", "\xEF\xBB");
    folder.Write("empty", "");
    const std::pair<std::string, std::string> charsets[] = {
        {"all", "utf-8"},   {"bom", "unicode"}, {"short", "x-ansi"},
        {"wide", "x-ansi"}, {"empty", ""},      {"missing", ""},
        {".", ""}};
    for (const auto& [file, charset] : charsets)
        EXPECT_EQ(DetectCharset(Path(file)), charset);
}

} // namespace tessarin
