// Works the window with a random user who takes every choice from the input.
#include "FakeWindow.h"
#include "support/modStringLibrary.h"

#include <fuzzer/FuzzedDataProvider.h>

namespace tessarin {

/// A user who gives random commands, most of them inside the pumps of others.
class RandomUser : public FakeWindow {
public:
    explicit RandomUser(FuzzedDataProvider& choices) : mChoices(choices) {}

    /// Gives one command and checks what holds between commands.
    void Step() {
        const auto choose = [this](auto last) {
            return mChoices.ConsumeIntegralInRange<decltype(last)>(0, last);
        };
        const auto commands = toolkit.Commands();
        std::string command = commands.at(choose(commands.size() - 1));
        command = ReplaceAll(command, "50)", std::to_string(choose(80) + 1) + ")");
        command = ReplaceAll(command, "Pad(5)", "Pad(" + std::to_string(choose(9)) + ")");
        SCOPED_TRACE(command);
        // Another command in one of the next pumps (0: in none), at most three deep.
        if (++mlDepth < 3) platform.AtPump(choose(420), [this] { Step(); });
        // A solve that takes long is cancelled.
        platform.EscPresses.assign(9, false);
        platform.EscPresses.back() = true;
        platform.SaysYes = true;
        Do(command);
        mbStale |= command.starts_with("optChill");
        if (--mlDepth > 0 || platform.Closed) return;
        // What a quiet solve has changed is not painted if another pace is chosen in it.
        if (std::exchange(mbStale, false)) window.RefreshAll();
        // The checks may pump: no command is to run there.
        platform.AtPump(0, nullptr);
        EXPECT_EQ(Faults(), "");
    }

private:
    FuzzedDataProvider& mChoices;
    int mlDepth = 0;
    bool mbStale = false;
};

} // namespace tessarin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    GTEST_FLAG_SET(break_on_failure, true);
    FuzzedDataProvider choices(data, size);
    while (choices.remaining_bytes() > 0) {
        tessarin::RandomUser user(choices);
        while (!user.platform.Closed && choices.remaining_bytes() > 0)
            user.Step();
    }
    return 0;
}
