// Works the window with a random user who takes every choice from a byte of the input.
#include "WindowScript.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace tessarin {

/// A user who does random things with game and window. An impatient one also does them inside the
/// pumps of commands that are running.
class RandomUser : public WindowScript {
public:
    /// Takes its choices from the front of `choices`.
    RandomUser(bool impatient, std::span<const std::uint8_t>& choices)
        : mbImpatient(impatient), mChoices(choices) {}

    bool IsOpen() const { return !platform.Closed; }

    /// Does one thing and checks the invariants.
    void Step() {
        // The 25 moves, each after the least number for "#" and the count of numbers.
        std::istringstream moves(R"(
            -1 84 index #; -1 12 value #; 0 2 next #; 0 2 back #; 0 2 retreat #; 0 1 trace #;
            3 3 init #; 1 82 import 5,3,1|#,4,0|7,7,1; 1 81 click lblField(#);
            0 12 click btnNumPad(#); 0 1 click btnNextFreeAuto; 0 1 click btnNextFreeAuto;
            0 1 click btnGoBackToFreedom; 0 1 click btnNextFreeValue; 0 1 click btnSolve;
            0 7 click optChill(#); 0 1 click lblDeadEnd; 0 1 click mnuViewFreedom;
            0 1 click mnuViewGroups; 0 1 click mnuViewNeighbours; 0 1 click mnuEditClearFree;
            0 1 click mnuEditClearAll; 0 1 click mnuEditLockAllSet; 0 1 click mnuEditLockClear;
            0 1 click mnuFileQuit)");
        int least = 0, count = 0;
        std::string line;
        for (int choice = Below(25); choice >= 0; --choice)
            std::getline(moves >> least >> count >> std::ws, line, ';');
        line = ReplaceAll(ReplaceAll(line, "#", std::to_string(least + Below(count))), ",", ";");
        SCOPED_TRACE(line);
        if (++mlDepth < 3 && mbImpatient) platform.AtPump(1 + 7 * Below(60), [this] { Step(); });
        platform.Esc.assign(8, false); // a solve that takes long is cancelled
        platform.Esc.push_back(true);
        platform.Answers.assign(2, true);
        Do(line);
        const auto is = [&line](const char* name) { return line.find(name) != std::string::npos; };
        mbStale |= is("import") || is("init") || is("Clear") || is("Chill");
        ExpectRightStatus();
        if (--mlDepth == 0 && IsOpen()) ExpectInOrder();
    }

private:
    // The next choice: a number from 0 to `count` - 1.
    int Below(int count) {
        if (mChoices.empty()) return 0;
        const int choice = mChoices.front() % count;
        mChoices = mChoices.subspan(1);
        return choice;
    }
    void ExpectRightStatus() {
        grid.Status(); // pumps, which may change the fields
        int free = 0, locked = 0, dead = 0;
        for (const auto& field : grid.Items) {
            locked += field->Locked() ? 1 : 0;
            free += field->Value() == 0 ? 1 : 0;
            dead += field->Value() == 0 && field->Freedom() == 0 ? 1 : 0;
        }
        EXPECT_EQ(grid.FreeCount(), free);
        EXPECT_EQ(grid.LockedCount(), locked);
        EXPECT_EQ(grid.DeadCount(), dead);
    }
    // The invariants while no command runs.
    void ExpectInOrder() {
        EXPECT_EQ(Do("busy"), "");
        // Changes without events, and those of a quiet solve, are not painted at once.
        if (std::exchange(mbStale, false)) window.RefreshAll();
        int green = 0;
        for (const auto& field : grid.Items) {
            if (!window.lblField.Has(field->Index)) break;
            const Label& label = window.lblField(field->Index);
            const int value = field->Value();
            EXPECT_EQ(label.Caption(), value == 0 ? "" : std::to_string(value)) << field->Index;
            green += label.BackColor() == Green ? 1 : 0;
            int alike = 0; // only free values are entered, unless a nested command interferes
            for (const int i : field->Neighbours)
                alike += At(i).Value() == value ? 1 : 0;
            EXPECT_TRUE(mbImpatient || value == 0 || alike == 1) << field->Index;
        }
        EXPECT_LE(green, 1);
    }

    const bool mbImpatient;
    std::span<const std::uint8_t>& mChoices;
    int mlDepth = 0;
    bool mbStale = false;
};

} // namespace tessarin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    GTEST_FLAG_SET(break_on_failure, true);
    if (size == 0) return 0;
    std::span choices(data + 1, size - 1);
    while (!choices.empty()) {
        tessarin::RandomUser user(data[0] % 2 == 1, choices);
        while (user.IsOpen() && !choices.empty())
            user.Step();
    }
    return 0;
}
