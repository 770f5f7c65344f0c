#include "ScriptedPlatform.h"
#include "play/modGame.h"
#include "support/modDateTime.h"
#include "support/modKbd.h"
#include "support/modStringLibrary.h"
#include "support/modTaskBar.h"
#include "support/modWait.h"

#include <gtest/gtest.h>

namespace tessarin {

std::string Joined(std::initializer_list<std::string> texts) {
    std::string joined;
    for (const auto& text : texts)
        joined += text + "|";
    return joined;
}

TEST(SupportTest, TextsAndDates) {
    EXPECT_EQ(Joined({PadLeft(" 12 ", 4, "0"), PadLeft(" 12 ", 1, "0"), PadLeft(" 12 "),
                      PadLeft("12", 0, "0"), PadLeft("12", 4, "xy"), PadLeft("12", 4, "")}),
              "0012|2|  12||xx12|  12|");
    EXPECT_EQ(Joined({PadNumber(7, 4, ""), PadNumber(12345, 4, ""), PadNumber(-5, 4, ""),
                      PadInteger(48, 3, " ")}),
              "0007|2345|00-5| 48|");
    EXPECT_EQ(Joined({ReplaceAll("a a", " ", "-"), ReplaceAll("aaa", "a", "aa"),
                      ReplaceAll("aaa", "aa", "b"), ReplaceAll("aXax", "ax", ""),
                      ReplaceAll("abc", "", "x")}),
              "a-a|aaaaaa|ba|aX|abc|");
    EXPECT_EQ(
        Joined({DeleteChars("abcde", 2, 2), DeleteChars("abcde", 2), DeleteChars("abcde", 4, 32767),
                DeleteChars("abcde", 6, 1), DeleteChars("abcde", 3, 0), DeleteChars("abcde", -1, 3),
                DeleteChars("abcde", 0, 1)}),
        "ade|a|abc|abcde|abcde|bcde|abcde|");
    EXPECT_EQ(
        Joined({InsertText("abc", "X", 1), InsertText("abc", "XY", 3), InsertText("abc", "X", 4),
                InsertText("abc", "X", 5), InsertText("abc", "X", 0)}),
        "Xabc|abXYc|abcX|abc|abc|");
    EXPECT_EQ(
        Joined({JoinPath("C:\\a\\", "\\b"), JoinPath(" C:\\a b ", " b "), JoinPath("", "\\\\b")}),
        "C:\\a\\b|C:\\a b\\b|\\\\b|");
    EXPECT_EQ(Joined({DateTimeStamp({2000, 1, 1, 0, 0, 0}),
                      DateTimeStamp({2022, 4, 29, 16, 49, 52}), DateTimeStamp({})}),
              "20000101 000000|20220429 164952|               |");
}

TEST(SupportTest, WaitPumpsBeforeAndAfterSleeping) {
    ScriptedPlatform platform;
    Wait();
    EXPECT_EQ(platform.TakeCalls(), "Sleep(5) ");
    EXPECT_EQ(platform.LastPump, Pump::Now);
    platform.AtPump(2, [&] { EXPECT_EQ(platform.TakeCalls(), "Sleep(800) "); });
    Wait(800);
    Wait(0);
    Wait(-1);
    EXPECT_EQ(platform.TakeCalls(), "");
    EXPECT_EQ(platform.Pumps, 6);
}

TEST(SupportTest, EscAsksUntilTheAnswerIsYes) {
    ScriptedPlatform platform;
    ClearCancel();
    const std::string question = "Box(Abbrechen?|ESC gedrückt|YesNo|-) ";
    platform.Esc = {true, false, true, true};
    platform.Answers = {false, true};
    for (const auto& [cancelled, calls] :
         {std::pair{false, question}, {false, ""}, {true, question}, {true, ""}}) {
        EXPECT_EQ(CancelRequested(), cancelled);
        EXPECT_EQ(platform.TakeCalls(), calls);
        EXPECT_EQ(gbCancel, cancelled);
    }
    EXPECT_EQ(platform.Esc.size(), 1U);
    ClearCancel();
}

TEST(SupportTest, AboutText) {
    ScriptedPlatform platform;
    platform.Program = {"Solves", "by X", "https://x", 1, 6, 48};
    const std::string box = "Box(FileDescription: Solves\r\nCopyright: by X\r\nInternet: https://x"
                            "\r\nVersion: 01.06.048\r\nRelease: 29.04.2022 - 06:49:52"
                            "|About Tessarin|Ok|-) ";
    ShowAbout();
    ShowAbout();
    EXPECT_EQ(platform.TakeCalls(), box + box);
}

TEST(SupportTest, TaskbarEntry) {
    ScriptedPlatform platform;
    for (const auto& [before, show, after] :
         {std::tuple{0x10, true, 0x40010}, {0x40010, true, 0x40010}, {0x40010, false, 0x10}}) {
        platform.WindowStyle = before;
        ShowInTaskBar(5, show);
        EXPECT_EQ(platform.TakeCalls(), "Lock(77) Show(5|0) Get(5|-20) Set(5|-20|" +
                                            std::to_string(after) + ") Show(5|5) Lock(0) ");
    }
}

} // namespace tessarin
