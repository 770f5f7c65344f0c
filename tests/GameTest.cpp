#include "GameFixture.h"
#include "support/modTextStream.h"

#include <csignal>
#include <filesystem>
#include <random>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>

namespace tessarin {

using GameTest = GameFixture;

TEST_F(GameTest, RelayPassesOnWhatTheGridTells) {
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
        std::filesystem::create_directory(mFolder);
        platform.Folder = mFolder.string();
        platform.Time = {2022, 4, 29, 6, 49, 52};
        Do("fill 5");
    }
    ~GameFilesTest() override { std::filesystem::remove_all(mFolder); }

    std::string Path(const std::string& name) const { return (mFolder / name).string(); }
    std::string Content(const std::string& name) const { return ReadTextFile(Path(name)); }

private:
    std::filesystem::path mFolder = std::filesystem::temp_directory_path() /
                                    ("tessarin-test-" + std::to_string(std::random_device{}()));
};

TEST_F(GameFilesTest, ExportsCreateAFileOrTouchNothing) {
    const std::string csv = grid.TextCSV(), sdk = grid.TextSDK();
    const std::string odd = "-\xC3\xA4 'b\"\n\xFF;*", gone = "gone/grid";
    std::filesystem::create_symlink(Path("nowhere"), Path("dangling"));
    std::filesystem::create_symlink(Path("mine"), Path("link"));
    WriteTextFile(Path("mine"), "mine", "", false);
    for (int value = 5; value <= 6; ++value) { // the second time within the same second
        At(1).SetValue(value);
        game.FileExportCSV();
        game.FileExportSDK();
        game.FileExportSDK(Path("rows.txt"));
        for (const std::string& name : {odd, gone, std::string("dangling"), std::string("link"),
                                        std::string(), std::string(300, 'x')})
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

TEST_F(GameFilesTest, OneOfTwoProgramsWritesTheFile) {
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

TEST_F(GameFilesTest, AFullDiskIsReported) {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{.rlim_cur = 100, .rlim_max = limit.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    for (const std::size_t size : {101U, 1U << 20U})
        EXPECT_NE(WriteTextFile(Path("big"), std::string(size, 'x'), "", true), "") << size;
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(WriteTextFile(Path("big"), "fits", "", true), "");
}

TEST_F(GameFilesTest, WhatIsNoTextFileIsAnEmptyOne) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    WriteTextFile(Path("wide"), grid.TextCSV(), "unicode", false);
    WriteTextFile(Path("marked"), BomUtf8() + grid.TextCSV(), "", false);
    WriteTextFile(Path("binary"), std::string(100000, '\0') + "\xFF\xFE\r\n;;;", "", false);
    for (const std::string& file : {Path("pipe"), Path("wide"), Path("marked"), Path("binary"),
                                    Path("missing"), Path("."), std::string("/dev/zero")}) {
        Do("fill 5");
        game.FileImportCSV(file);
        EXPECT_EQ(grid.FreeCount(), 81) << file;
        Do("fill 5");
        game.FileImportSDK(file);
        EXPECT_EQ(grid.FreeCount(), 80) << file;
    }
}

TEST_F(GameFilesTest, OnlyImportsOfCSVResetThePlayer) {
    game.FileExportSDK(Path("rows"));
    WriteTextFile(Path("grid"), "Index;Value;Locked\r\n2;9;1", "", false);
    WriteTextFile(Path("bad"), "Index;Value;Locked\r\n1;9;1\r\nx", "", false);
    mCommands["import"] = [&](int, auto& name) { game.FileImportCSV(Path(name)); };
    mCommands["importsdk"] = [&](int, auto& name) { game.FileImportSDK(Path(name)); };
    Script(R"(
        trace 4
        importsdk rows > Init
        importsdk missing >
        is > |1;5;1
        import bad > type mismatch Init
        is > |1;9;1
        import grid > Init [none]
        is > |2;9;1
        trace 4
        import missing > Init [none]
        is >
    )");
    EXPECT_FALSE(play.Tracing());
}

TEST_F(GameFilesTest, TextFilesKeepEveryByte) {
    std::string bytes = BomUtf8() + "a\r\nb\nc\r";
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    EXPECT_EQ(WriteTextFile(Path("all"), "old", "", false), "");
    EXPECT_EQ(WriteTextFile(Path("all"), bytes, "utf-8", true), "");
    EXPECT_EQ(Content("all"), bytes);
    EXPECT_EQ(WriteTextFile(Path("wide"), "AB", "unicode", false), "");
    for (const std::string& file : {Path("wide"), Path("missing/x")}) {
        const std::string error = WriteTextFile(file, "new", "", false);
        EXPECT_EQ(error.substr(0, file.size() + 11), std::string("File=") + file + ", Err=");
        EXPECT_GT(error.size(), file.size() + 11);
    }
    EXPECT_EQ(Content("wide"), std::string("A\0B\0", 4));
    WriteTextFile(Path("bom"), BomUnicode(), "", false);
    WriteTextFile(Path("short"), "\xEF\xBB", "", false);
    WriteTextFile(Path("empty"), "", "", false);
    const std::pair<std::string, std::string> charsets[] = {
        {"all", "utf-8"},   {"bom", "unicode"}, {"short", "x-ansi"},
        {"wide", "x-ansi"}, {"empty", ""},      {"missing", ""},
        {".", ""}};
    for (const auto& [file, charset] : charsets)
        EXPECT_EQ(DetectCharset(Path(file)), charset);
    EXPECT_EQ(Content("empty") + Content("missing") + Content("."), "");
}

} // namespace tessarin
