// Works the window with a random user who takes every choice from the input.
#include "FakeWindow.h"
#include "model/Fields.h"
#include "support/modStringLibrary.h"

#include <fuzzer/FuzzedDataProvider.h>

namespace tessarin {

/// A user who gives random commands. An impatient one also gives them inside the pumps of commands
/// that are running.
class RandomUser : public FakeWindow {
public:
    RandomUser(bool impatient, FuzzedDataProvider& choices)
        : mbImpatient(impatient), mChoices(choices) {}

    bool IsOpen() const { return !platform.Closed; }

    /// Gives one command and checks what holds between commands.
    void Step() {
        const auto number = [this](int low, int high) {
            return std::to_string(mChoices.ConsumeIntegralInRange(low, high));
        };
        std::string step =
            Commands.at(mChoices.ConsumeIntegralInRange<std::size_t>(0, Commands.size() - 1));
        step = ReplaceAll(step, "#", number(1, 81));
        step = ReplaceAll(step, "*", number(0, 6));
        SCOPED_TRACE(step);
        if (++mlDepth < 3 && mbImpatient)
            platform.AtPump(mChoices.ConsumeIntegralInRange(1, 420), [this] { Step(); });
        platform.Esc = {0, 0, 0, 0, 0, 0, 0, 0, 1}; // a solve that takes long is cancelled
        platform.Answers = {"Yes", "Yes"};
        Told(step);
        mbStale |= step.starts_with("click optChill");
        if (--mlDepth > 0 || !IsOpen()) return;
        // What a quiet solve has changed is not painted if another pace is chosen in it.
        if (std::exchange(mbStale, false)) window.RefreshAll();
        platform.AtPump(0, nullptr);
        EXPECT_EQ(Faults(), "");
        if (!mbImpatient) ExpectFreeValues();
    }

private:
    // Without nested commands only free values are entered.
    void ExpectFreeValues() {
        for (const auto& field : grid.Items)
            for (const int i : field->Neighbours)
                EXPECT_TRUE(i == field->Index || field->Value() == 0 ||
                            At(i).Value() != field->Value());
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
