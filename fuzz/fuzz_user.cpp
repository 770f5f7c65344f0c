// Works the window with a random user who takes every choice from the input.
#include "WindowScript.h"

#include <fuzzer/FuzzedDataProvider.h>

namespace tessarin {

/// A user who does random things with game and window. An impatient one also does them inside the
/// pumps of commands that are running.
class RandomUser : public WindowScript {
public:
    RandomUser(bool impatient, FuzzedDataProvider& choices)
        : mbImpatient(impatient), mChoices(choices) {}

    bool IsOpen() const { return !platform.Closed; }

    /// Does one thing and checks the invariants.
    void Step() {
        // The 28 moves. "#" is any field, "*" any value or key; some do not exist.
        std::istringstream moves(R"(
            init 3& init 5& import 5;3;1|#;4;0|7;7;1& trace& index #& value *& next 0& next 1&
            back 0& back 1& retreat 0& retreat 1& click lblField(#)& click btnNumPad(*)&
            click btnNextFreeAuto& click btnGoBackToFreedom& click btnNextFreeValue&
            click btnSolve& click optChill(*)& click lblDeadEnd& click mnuViewFreedom&
            click mnuViewGroups& click mnuViewNeighbours& click mnuEditClearFree&
            click mnuEditClearAll& click mnuEditLockAllSet& click mnuEditLockClear&
            click mnuFileQuit)");
        std::string line;
        for (int choice = mChoices.ConsumeIntegralInRange(1, 28); choice > 0; --choice)
            std::getline(moves >> std::ws, line, '&');
        line = ReplaceAll(line, "#", std::to_string(mChoices.ConsumeIntegralInRange(-1, 82)));
        line = ReplaceAll(line, "*", std::to_string(mChoices.ConsumeIntegralInRange(-1, 11)));
        SCOPED_TRACE(line);
        if (++mlDepth < 3 && mbImpatient)
            platform.AtPump(mChoices.ConsumeIntegralInRange(1, 420), [this] { Step(); });
        platform.Esc.assign(8, false); // a solve that takes long is cancelled
        platform.Esc.push_back(true);
        platform.Answers.assign(2, true);
        Do(line);
        mbStale |= std::regex_search(line, std::regex("import|init|Clear|Chill"));
        ExpectRightStatus();
        if (--mlDepth == 0 && IsOpen()) ExpectInOrder();
    }

private:
    void ExpectRightStatus() {
        grid.Status(); // pumps, which may change the fields
        int free = 0, locked = 0, dead = 0;
        for (const auto& field : grid.Items) {
            locked += field->Locked() ? 1 : 0;
            free += field->Value() == 0 ? 1 : 0;
            dead += field->Value() == 0 && field->Freedom() == 0 ? 1 : 0;
        }
        EXPECT_EQ(Text(std::vector{grid.FreeCount(), grid.LockedCount(), grid.DeadCount()}),
                  Text(std::vector{free, locked, dead}));
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
    FuzzedDataProvider& mChoices;
    int mlDepth = 0;
    bool mbStale = false;
};

} // namespace tessarin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    GTEST_FLAG_SET(break_on_failure, true);
    FuzzedDataProvider choices(data, size);
    const bool impatient = choices.ConsumeBool();
    while (choices.remaining_bytes() > 0) {
        tessarin::RandomUser user(impatient, choices);
        while (user.IsOpen() && choices.remaining_bytes() > 0)
            user.Step();
    }
    return 0;
}
