#include "platform/NullPlatform.h"
#include "support/modDateTime.h"
#include "support/modStringLibrary.h"

#include <gtest/gtest.h>

#include <ctime>

namespace tessarin {

TEST(SupportTest, TextsAndDates) {
    const std::pair<std::string, std::string> cases[] = {
        {PadLeft(" 12 ", 4, "0") + PadLeft(" 12 ", 1, "0"), "00122"},
        {PadLeft(" 12 "), "  12"},
        {PadLeft("12", 0, "0") + PadLeft("12", -1, "0"), ""},
        {PadLeft("12", 4, "xy") + PadLeft("12", 4, ""), "xx12  12"},
        {PadNumber(7, 4, "") + PadNumber(12345, 4, "") + PadNumber(-5, 4, ""), "0007234500-5"},
        {PadInteger(48, 3, " "), " 48"},
        {ReplaceAll("a a", " ", "-") + ReplaceAll("aaa", "a", "aa"), "a-aaaaaaa"},
        {ReplaceAll("aaa", "aa", "b") + ReplaceAll("aXax", "ax", ""), "baaX"},
        {ReplaceAll("abc", "", "x") + InsertText("abc", "X", 0), "abcabc"},
        {DeleteChars("abcde", 2, 2) + DeleteChars("abcde", 2), "adea"},
        {DeleteChars("abcde", 4, 32767) + DeleteChars("abcde", 6, 1), "abcabcde"},
        {DeleteChars("abcde", 3, 0) + DeleteChars("abcde", 0, 1), "abcdeabcde"},
        {DeleteChars("abcde", -1, 3) + DeleteChars("abcde", 1, 1), "bcdebcde"},
        {InsertText("abc", "X", 1) + InsertText("abc", "XY", 3), "XabcabXYc"},
        {InsertText("abc", "X", 4) + InsertText("abc", "X", 5), "abcXabc"},
        {JoinPath("C:\\a\\", "\\b") + JoinPath("", "\\\\b"), "C:\\a\\b\\\\b"},
        {JoinPath(" C:\\a b ", " b "), "C:\\a b\\b"},
        {DateTimeStamp({2022, 4, 29, 6, 49, 5}), "20220429 064905"},
        {DateTimeStamp({}), std::string(15, ' ')}};
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(text, expected);
    const auto [year, month, day, hour, minute, second] = NullPlatform().Now();
    std::tm now{second, minute, hour, day, month - 1, year - 1900, 0, 0, -1, 0, nullptr};
    EXPECT_NEAR(std::difftime(std::mktime(&now), std::time(nullptr)), 0, 1);
}

} // namespace tessarin
