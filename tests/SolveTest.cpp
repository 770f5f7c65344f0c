#include "GameFixture.h"
#include "support/modKbd.h"

namespace tessarin {

class SolveTest : public GameFixture {
protected:
    // Records the changes that a solve makes, the history after it, the number of retreats, how it
    // ends, and the boxes and beeps.
    std::string Solve() {
        std::string told;
        const auto recorder = game.Events.StatusChanged.Connect([&](int index) {
            told += std::to_string(index) + "=" + std::to_string(At(index).Value()) + " ";
        });
        play.Solve();
        told += "[" + History() + "] " + std::to_string(play.Retries);
        told += grid.IsWinner() ? " won" : grid.IsDeadEnd() ? " dead" : " open";
        const std::string calls = platform.TakeCalls();
        return told + (calls.empty() ? "" : " ") + calls;
    }
    // In the first cycle field 2 leads to a dead end, and the retreat raises the value of field 28.
    const std::string OneRetreat =
        "4..815.2992734685..58.9..643152.9648.92...5178465712936394..1.2271963485584127936";
};

TEST_F(SolveTest, MovesAreFixed) {
    const std::tuple<std::string, int, std::vector<std::string>> cases[] = {
        {OneRetreat,
         28,
         {"2=6 2=0 28=7 2=6 3=3 7=7 18=1 19=1 22=7 24=2 25=3 32=3 37=3 40=6 41=8 42=4 59=5 60=8 "
          "62=7 [28 2 3 7 18 19 22 24 25 32 37 40 41 42 59 60 62] 1 won"}},
        {"58961.23.723.956...6123789..4278..6..7.56.4.315.92.7..2143..956.37.5.1.2..51423.8",
         46,
         {"6=4 6=0 46=3 6=4 9=7 13=8 13=0 9=0 6=0 46=6 6=4 9=7 13=8 13=0 9=0 6=0 46=8 [46] 3 dead",
          "6=4 6=0 46=0 46=8 [] 2 dead Beep "}},
        {"246957.1.81.264.7597.83124...812.4.9.6..8.1.21.24967.3.9751.3245813.2...3.467.581",
         55,
         {"7=8 7=0 55=6 7=8 7=0 55=0 55=6 7=8 7=0 7=8 [] 3 dead Beep ",
          "12=3 12=0 7=0 7=8 [] 1 dead"}},
        {".1" + FullCells.substr(2), 50, {"50=0 50=3 [] 1 dead Beep "}},
        {FullCells, 50, {"[50] 0 won"}}};
    for (const auto& [cells, cursor, runs] : cases) {
        Do("fill " + cells);
        play.Reset();
        grid.SetIndex(cursor);
        for (const auto& moves : runs)
            EXPECT_EQ(Solve(), moves);
    }
}

TEST_F(SolveTest, EscAsksOnceForEachPress) {
    platform.Esc = {false, true, true};
    platform.Answers = {false, true};
    const std::string question = "Box(Abbrechen?|ESC gedrückt|YesNo|-) ";
    // The run begins without a cursor.
    EXPECT_EQ(Solve(), "1=1 2=2 [1 2] 0 open " + question + question);
    platform.Esc = {false, true};
    platform.Answers = {true};
    // The last answer is forgotten.
    EXPECT_EQ(Solve(), "3=3 [1 2 3] 0 open " + question);
}

TEST_F(SolveTest, CancelAtTheFirstChangeMakesOneCycle) {
    Do("fill " + OneRetreat);
    Do("index 28");
    const auto step = game.Events.StatusChanged.Connect([](int) { SetCancel(); });
    EXPECT_EQ(Solve(), "2=6 2=0 28=7 [28] 1 open");
    EXPECT_EQ(Solve(), "2=6 [28 2] 0 open");
}

} // namespace tessarin
