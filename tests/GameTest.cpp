#include "GameFixture.h"
#include "support/modTextStream.h"

#include <filesystem>
#include <random>

namespace tessarin {

using GameTest = GameFixture;

TEST_F(GameTest, RelayPassesOnWhatTheGridTells) {
    EXPECT_EQ(goGame, &game);
    EXPECT_EQ(game.Groups->Items.Count(), 27);
    auto& events = game.Events;
    Listen(events.BeforeIndexChanged, "-before");
    Listen(events.IndexChanged, "-index");
    Listen(events.StatusChanged, "-status");
    Listen(events.IsWinner, "-winner");
    Listen(events.IsDeadEnd, "-dead");
    const std::pair<std::string, int> steps[] = {
        {"index 2 > -index(2) IndexChanged(2)", 2},
        {"index 1 > -before(2) BeforeIndexChanged(2) -index(1) IndexChanged(1)", 4},
        {"set 81 1 > -status(81) StatusChanged(81)", 2 + 81 + 1},
        {"set 10 1 > -status(10) StatusChanged(10) -dead(1) IsDeadEnd(1)", 2 + 81 + 3},
        {"set 1 1 > -status(1) StatusChanged(1) -dead(0) IsDeadEnd(0)", 2 + 81 + 3},
        {"set 80 2 > -status(80) StatusChanged(80) -winner(80) IsWinner(80)", 2 + 81 + 3},
        {"set 81 0 > -status(81) StatusChanged(81) -winner(0) IsWinner(0)", 2 + 81 + 3},
        {"csv > Init", 0}};
    for (const auto& [step, pumps] : steps) {
        if (step.starts_with("set 10")) Do("fill .23456789");
        if (step.starts_with("set 80")) Do("fill " + FullCells.substr(0, 79) + ".8");
        platform.Pumps = 0;
        Script(step);
        EXPECT_EQ(platform.Pumps, pumps);
    }
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

TEST_F(GameFilesTest, ExportsKeepExistingFiles) {
    const std::string csv = grid.TextCSV(), sdk = grid.TextSDK();
    for (int value = 5; value <= 6; ++value) { // the second time within the same second
        At(1).SetValue(value);
        game.FileExportCSV();
        game.FileExportSDK();
        game.FileExportCSV(Path("grid"));
        game.FileExportSDK(Path("rows.txt"));
        game.FileExportCSV(Path("missing/grid"));
    }
    EXPECT_EQ(Content("Tessarin-20220429-064952.csv"), csv);
    EXPECT_EQ(Content("Tessarin-20220429-064952.sdk"), sdk);
    EXPECT_EQ(Content("grid"), csv);
    EXPECT_EQ(Content("rows.txt"), sdk);
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
