// Puzzle files, text files, and helpers.
#include "GameFixture.h"
#include "support/modDateTime.h"
#include "support/modStringLibrary.h"
#include "support/modTaskBar.h"
#include "support/modTextStream.h"
#include "support/modWait.h"

#include <filesystem>
#include <iostream>
#include <sys/stat.h>

namespace tessarin {

class GameTest : public GameFixture {
protected:
    GameTest() {
        platform.Folder = folder;
        // Each gets a path in the test's folder, or none.
        const auto add = [this](const char* name, auto command) {
            mCommands[name] = [this, command](int, auto& file) {
                command(file.empty() ? "" : folder + file);
            };
        };
        add("tocsv", [this](const std::string& path) { game.FileExportCSV(path); });
        add("tosdk", [this](const std::string& path) { game.FileExportSDK(path); });
        add("fromcsv", [this](const std::string& path) { game.FileImportCSV(path); });
        add("fromsdk", [this](const std::string& path) { game.FileImportSDK(path); });
        mCommands["link"] = [this](int, auto& target) {
            std::filesystem::create_symlink(target, folder + "link");
        };
        mCommands["wait"] = [this](int milliseconds, auto&) {
            platform.TellsPumps = true;
            Wait(milliseconds);
        };
        mCommands["taskbar"] = [](int show, auto&) { ShowInTaskBar(5, show == 1); };
    }
};

const Stories<GameTest> stories("GameTest", R"(
    AnExportNeverReplacesAFile:
        set 1 5 & write mine mine
        tocsv mine > & tocsv gone/grid >
        tocsv . > & read mine > mine
    AnExportFollowsNoLink:
        link nowhere & tocsv link
        read nowhere > & tocsv nowhere
        read link > Index;Value;Locked
    AnExportWithoutNameLiesBesideTheProgram:
        set 1 5 & tocsv
        tosdk & set 1 6
        // Within the same second.
        tocsv & read Tessarin-20220429-064952.csv > Index;Value;Locked|1;5;0
        csv & fromsdk Tessarin-20220429-064952.sdk
        is > |1;5;1
    AFileThatNeverEndsCountsAsEmpty:
        link /dev/zero & fill 5
        fromsdk link > & is > |1;5;0
        fromcsv link > & is >
    OnlyAWholeImportOfCSVResetsThePlayer:
        fill 5 & tosdk rows
        trace 4 & fromsdk rows >
        write bad Index;Value;Locked|1;9;1|x & fromcsv bad > ! "x" is not a whole number
        is > |1;9;1 & write good Index;Value;Locked|2;9;1
        fromcsv good > -4 & history > off
    AWaitPumpsBeforeAndAfterItsPause:
        wait 100 > (1) Sleep(100) (1) & wait 0 > (1)
    TheTaskbarEntryChangesWithoutFlicker:
        taskbar 1 > Lock(77) Show(5|0) Get(5|-20) Set(5|-20|262160) Show(5|5) Lock(0)
        taskbar 0 > Lock(77) Show(5|0) Get(5|-20) Set(5|-20|16) Show(5|5) Lock(0)
)");

TEST_F(GameTest, TextFilesKeepEveryByteAndAreReadWhole) {
    const std::string bytes = BomUtf8() + "a\r\nb\n\xFF\r" + std::string(200'000, '\0');
    EXPECT_EQ(WriteTextFile(folder + "all", bytes, "utf-8", true), "");
    EXPECT_EQ(ReadTextFile(folder + "all"), bytes);
    EXPECT_EQ(DetectCharset(folder + "all"), "utf-8");
    WriteTextFile(folder + "wide", "A\xFF", "unicode", false);
    EXPECT_EQ(ReadTextFile(folder + "wide"), std::string("A\0\xFF\0", 4));
    ASSERT_EQ(mkfifo((folder + "pipe").c_str(), 0600), 0);
    EXPECT_EQ(ReadTextFile(folder + "pipe"), "");
    EXPECT_EQ(WriteTextFile("/dev/full", "x", "", true),
              "File=/dev/full, Err=No space left on device");
}

TEST_F(GameTest, AnErrorOfAHandlerIsPrinted) {
    std::ostringstream printed;
    auto* const screen = std::cerr.rdbuf(printed.rdbuf());
    NullPlatform().ReportError("the reason");
    std::cerr.rdbuf(screen);
    EXPECT_NE(printed.str().find("the reason"), std::string::npos);
}

TEST_F(GameTest, TextsArePaddedCutAndJoined) {
    EXPECT_EQ(PadLeft(" 12 ", 4, "0") + PadLeft(" 12 ", 1, "0") + PadLeft(" 12 "), "00122  12");
    EXPECT_EQ(PadNumber(7, 4, "") + PadNumber(12345, 4, "") + PadNumber(-5, 4, ""), "0007234500-5");
    EXPECT_EQ(DeleteChars("abcde", 2, 2) + DeleteChars("abcde", -1, 3), "adebcde");
    EXPECT_EQ(JoinPath(" C:\\a b\\", "\\b ") + JoinPath("", "b"), "C:\\a b\\b\\b");
    EXPECT_EQ(DateTimeStamp({2022, 4, 29, 6, 49, 5}) + DateTimeStamp({}),
              "20220429 064905               ");
}

} // namespace tessarin
