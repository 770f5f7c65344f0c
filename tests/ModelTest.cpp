// SPDX-License-Identifier: MIT
// The small classes below the grid.
#include "model/Errors.h"
#include "model/Event.h"
#include "model/UniqueNumbers.h"
#include "support/modDateTime.h"
#include "support/modStringLibrary.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace tessarin {

static_assert(!std::is_copy_constructible_v<Event<>> && !std::is_move_constructible_v<Event<>>);
static_assert(!std::is_copy_constructible_v<Connection> && std::is_move_assignable_v<Connection>);

TEST(EventTest, HandlersMayConnectAndDisconnect) {
    Event<> event;
    std::string called;
    Connection second, third, fourth;
    const Connection first = event.Connect([&] {
        called += "1";
        if (called == "1") {
            third = event.Connect([&] { called += "3"; }); // is not called yet
        } else {
            second = {}; // is not called any more
            fourth = event.Connect([&] { called += "4"; });
        }
    });
    second = event.Connect([&] { called += "2"; });
    event.Raise();
    EXPECT_EQ(called, "12");
    event.Raise();
    EXPECT_EQ(called, "1213");
}

TEST(EventTest, AHandlerMayReplaceItselfAndDestroyTheEvent) {
    auto event = std::make_unique<Event<>>();
    Connection own;
    own = event->Connect([&, data = std::make_shared<int>()] {
        const std::weak_ptr<int> kept = data;
        own = {};
        own = event->Connect([] {});
        event.reset();
        EXPECT_FALSE(kept.expired()) << "the running handler has been destroyed";
    });
    event->Raise();
}

TEST(UniqueNumbersTest, RefuseANumberThatIsThere) {
    UniqueNumbers numbers;
    numbers.Add(5);
    EXPECT_THROW(numbers.Add(5), DuplicateKeyError);
    EXPECT_EQ(numbers.Count(), 1);
}

TEST(StringLibraryTest, PadsAndPositions) {
    // As long as with its blanks.
    EXPECT_EQ(PadLeft(" ab "), "  ab");
    // A blank is the character 32 alone.
    EXPECT_EQ(PadLeft("\tab ", 5), "  \tab");
    EXPECT_EQ(PadLeft("  ", 1), " ");
    EXPECT_EQ(PadLeft("ab", 3, "xy"), "xab");
    EXPECT_EQ(PadLeft("ab", 3, ""), " ab");
    EXPECT_EQ(PadLeft("abc", 2, ""), "bc");
    EXPECT_EQ(PadLeft("abc", -1), "");
    // The sign is a character like the others.
    EXPECT_EQ(PadNumber(-7, 4, ""), "00-7");
    EXPECT_EQ(PadInteger(7, 3, " "), "  7");
    EXPECT_EQ(DateTimeStamp({2023, 1, 2, 3, 4, 5}), "20230102 030405");
    EXPECT_EQ(DateTimeStamp({}), "               ");
    EXPECT_EQ(DateTimeStamp({.Hour = 3}), "00000000 030000");
    EXPECT_EQ(ReplaceAll("aaab", "aa", "ca"), "caab");
    EXPECT_EQ(ReplaceAll("aab", "a", ""), "b");
    EXPECT_EQ(ReplaceAll("ab", "", "x"), "ab");
    EXPECT_EQ(JoinPath(" a b\\ ", " c "), "a b\\c");
    EXPECT_EQ(JoinPath("a", "b"), "a\\b");
    EXPECT_EQ(JoinPath("a\\", "\\b"), "a\\b");
    EXPECT_EQ(DeleteChars("abcdef", 2, 3), "aef");
    EXPECT_EQ(DeleteChars("abc", -1, 3), "bc");
    EXPECT_EQ(DeleteChars("abc", 2), "a");
    EXPECT_EQ(DeleteChars("abc", 2, 32767), "a");
    EXPECT_EQ(DeleteChars("abc", 3, 0), "abc");
    EXPECT_EQ(DeleteChars("abc", 4), "abc");
    EXPECT_EQ(InsertText("ab", "x", 1), "xab");
    EXPECT_EQ(InsertText("ab", "x", 3), "abx");
    EXPECT_EQ(InsertText("ab", "x", 4), "ab");
    EXPECT_EQ(InsertText("ab", "x", 0), "ab");
}

} // namespace tessarin
