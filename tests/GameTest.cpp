// The game's events and its puzzle files.
#include "GameFixture.h"

#include <sys/stat.h>

namespace tessarin {

class GameTest : public GameFixture {
protected:
    GameTest() {
        platform.Folder = folder.File("");
        platform.Folder.pop_back();
        platform.Time = {2022, 4, 29, 6, 49, 52};
    }
    std::string Path(const std::string& name) const { return folder.File(name); }
};

TEST_F(GameTest, GameRelaysTheEventsOfTheGrid) {
    EXPECT_EQ(goGame, &game);
    EXPECT_EQ(game.Groups->Items.Count(), 27);
    Listen(game.Events, "-");
    Script(R"(
        pumps & index 2 > -IndexChanged(2) IndexChanged(2) & pumps > 2
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

TEST_F(GameTest, ExportsCreateAFileOrTouchNothing) {
    Script("write mine mine & fill 5");
    const std::string csv = grid.TextCSV(), sdk = grid.TextSDK(), odd = "-\xC3\xA4 'b\"\n\xFF;*";
    std::filesystem::create_symlink(Path("nowhere"), Path("dangling"));
    std::filesystem::create_symlink(Path("mine"), Path("link"));
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

TEST_F(GameTest, UnusableFilesCountAsEmptyAndOnlyCSVResetsThePlayer) {
    mCommands["import"] = [&](int, auto& name) { game.FileImportCSV(Path(name)); };
    mCommands["importsdk"] = [&](int, auto& name) { game.FileImportSDK(Path(name)); };
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", Path("endless"));
    Do("fill 5");
    WriteTextFile(Path("wide"), grid.TextCSV(), "unicode", false);
    folder.Write("marked", BomUtf8() + grid.TextCSV());
    folder.Write("binary", std::string(100000, '\0') + "\xFF\xFE\r\n;;;");
    for (const std::string name : {"pipe", "endless", "wide", "marked", "binary", "missing", "."}) {
        Script("fill 5 & trace 4 & importsdk " + name + " > & is > |1;5;0");
        Script("import " + name + " > Init [none] & is >");
    }
    Do("fill 5");
    game.FileExportSDK(Path("rows"));
    Script(R"(
        fill & trace 4 & importsdk rows > Init & is > |1;5;1
        write bad Index;Value;Locked|1;9;1|x & import bad > type mismatch Init & is > |1;9;1
        write good Index;Value;Locked|2;9;1 & import good > Init [none] & is > |2;9;1
    )");
    EXPECT_FALSE(play.Tracing());
}

TEST_F(GameTest, TextFilesKeepEveryByte) {
    std::string bytes = BomUtf8() + "a\r\nb\nc\r";
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    folder.Write("all", "old");
    EXPECT_EQ(WriteTextFile(Path("all"), bytes, "utf-8", true), "");
    EXPECT_EQ(ReadTextFile(Path("all")), bytes);
    EXPECT_EQ(WriteTextFile(Path("wide"), "AB", "unicode", false), "");
    EXPECT_EQ(ReadTextFile(Path("wide")), std::string("A\0B\0", 4));
    for (const std::string& file : {Path("wide"), Path("missing/x"), std::string("/dev/full")}) {
        const std::string error = WriteTextFile(file, bytes, "", file == "/dev/full");
        EXPECT_EQ(error.substr(0, file.size() + 11), "File=" + file + ", Err=");
        EXPECT_GT(error.size(), file.size() + 11);
    }
    EXPECT_NE(WriteTextFile("/dev/full", std::string(1 << 20, 'x'), "", true), "");
    folder.Write("bom", BomUnicode());
    Script("write short \xEF\xBB & write empty");
    std::string sets;
    for (const char* const name : {"all", "bom", "short", "wide", "empty", "missing", "."})
        sets += DetectCharset(Path(name)) + "|";
    EXPECT_EQ(sets, "utf-8|unicode|x-ansi|x-ansi||||");
}

} // namespace tessarin
