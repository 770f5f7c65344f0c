// Puzzle files, text files and small helpers.
#include "GameFixture.h"

#include "support/modDateTime.h"
#include "support/modStringLibrary.h"
#include "support/modTaskBar.h"
#include "support/modTextStream.h"
#include "support/modWait.h"

#include <filesystem>
#include <sys/stat.h>

namespace tessarin {

class GameTest : public GameFixture {
protected:
    GameTest() {
        platform.Folder = folder;
        const auto add = [this](const char* name, auto function) {
            mCommands[name] = [=, this](int, auto& file) {
                (game.*function)(file.empty() ? "" : folder + file);
            };
        };
        add("tocsv", &Game::FileExportCSV);
        add("tosdk", &Game::FileExportSDK);
        add("fromcsv", &Game::FileImportCSV);
        add("fromsdk", &Game::FileImportSDK);
    }
};

TEST_F(GameTest, AnExportNeverReplacesAFile) {
    std::filesystem::create_symlink(folder + "mine", folder + "link");
    std::filesystem::create_symlink(folder + "nowhere", folder + "dangling");
    Do(R"(
        set 1 5 & write mine mine
        tocsv mine >
        tocsv link >
        tocsv dangling >
        tocsv gone/grid >
        tocsv . >
        read mine > mine
    )");
    EXPECT_FALSE(std::filesystem::exists(folder + "nowhere"));
}

TEST_F(GameTest, AnExportWithoutNameLiesBesideTheProgram) {
    Do(R"(
        set 1 5 & tocsv
        tosdk
        // Within the same second.
        set 1 6 & tocsv
        read Tessarin-20220429-064952.csv > Index;Value;Locked|1;5;0
        csv & fromsdk Tessarin-20220429-064952.sdk
        is > |1;5;1
    )");
}

TEST_F(GameTest, FilesThatCannotBeReadCountAsEmpty) {
    ASSERT_EQ(mkfifo((folder + "pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", folder + "endless");
    WriteTextFile(folder + "wide", grid.TextCSV(), "unicode", false);
    for (const std::string name : {"pipe", "endless", "wide", "missing", "."}) {
        Do("fill 5 & fromsdk " + name);
        Do("is > |1;5;0");
        Do("fromcsv " + name);
        Do("is >");
    }
}

TEST_F(GameTest, OnlyAWholeImportOfCSVResetsThePlayer) {
    Do(R"(
        fill 5 & tosdk rows
        trace 4 & fromsdk rows >
        write bad Index;Value;Locked|1;9;1|x
        fromcsv bad > ! "x" is not a whole number
        is > |1;9;1
        write good Index;Value;Locked|2;9;1
        fromcsv good > -4
        history > off
    )");
}

TEST_F(GameTest, TextFilesKeepEveryByteAndAreReadWhole) {
    std::string bytes = BomUtf8() + "a\r\nb\nc\r";
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    bytes += std::string(200'000, 'x');
    EXPECT_EQ(WriteTextFile(folder + "all", bytes, "utf-8", true), "");
    EXPECT_EQ(ReadTextFile(folder + "all"), bytes);
    EXPECT_EQ(DetectCharset(folder + "all"), "utf-8");
    EXPECT_EQ(WriteTextFile(folder + "wide", "A\xFF", "unicode", false), "");
    EXPECT_EQ(ReadTextFile(folder + "wide"), std::string("A\0\xFF\0", 4));
    EXPECT_EQ(WriteTextFile("/dev/full", "x", "", true),
              "File=/dev/full, Err=No space left on device");
}

TEST_F(GameTest, AWaitPumpsBeforeAndAfterItsPause) {
    platform.TellsPumps = true;
    mCommands["wait"] = [](int milliseconds, auto&) { Wait(milliseconds); };
    Do(R"(
        wait 100 > (1) Sleep(100) (1)
        wait 0 > (1)
    )");
}

TEST_F(GameTest, TheTaskbarEntryChangesWithoutFlicker) {
    mCommands["taskbar"] = [](int show, auto&) { ShowInTaskBar(5, show == 1); };
    Do(R"(
        taskbar 1 > Lock(77) Show(5|0) Get(5|-20) Set(5|-20|262160) Show(5|5) Lock(0)
        taskbar 0 > Lock(77) Show(5|0) Get(5|-20) Set(5|-20|16) Show(5|5) Lock(0)
    )");
}

TEST_F(GameTest, AboutShowsTheVersionRecord) {
    ShowAbout();
    EXPECT_EQ(gsAboutText, "FileDescription: Solves\r\nCopyright: by X\r\nInternet: https://x\r\n"
                           "Version: 01.06.048\r\nRelease: 29.04.2022 - 06:49:52");
}

TEST(SupportTest, TextsArePaddedCutAndJoined) {
    EXPECT_EQ(PadLeft(" 12 ", 4, "0") + PadLeft(" 12 ", 1, "0") + PadLeft(" 12 "), "00122  12");
    EXPECT_EQ(PadNumber(7, 4, "") + PadNumber(12345, 4, "") + PadNumber(-5, 4, ""), "0007234500-5");
    EXPECT_EQ(ReplaceAll("aaa", "a", "aa") + ReplaceAll("abc", "", "x"), "aaaaaaabc");
    EXPECT_EQ(DeleteChars("abcde", 2, 2) + DeleteChars("abcde", -1, 3), "adebcde");
    EXPECT_EQ(DeleteChars("abcde", 4, 32767) + DeleteChars("abcde", 3, 0), "abcabcde");
    EXPECT_EQ(InsertText("abc", "X", 1) + InsertText("abc", "X", 4), "XabcabcX");
    EXPECT_EQ(InsertText("abc", "X", 0) + InsertText("abc", "X", 5), "abcabc");
    EXPECT_EQ(JoinPath(" C:\\a b\\", "\\b ") + JoinPath("", "b"), "C:\\a b\\b\\b");
    EXPECT_EQ(DateTimeStamp({2022, 4, 29, 6, 49, 5}) + DateTimeStamp({}),
              "20220429 064905               ");
}

} // namespace tessarin
