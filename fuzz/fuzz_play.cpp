// Plays the input: each byte is an operation of the player or the grid, or a number it takes. Some
// run inside others, as they do when a window pumps events.
#include "platform/NullPlatform.h"
#include "play/Game.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <set>
#include <span>
#include <stdexcept>

using namespace tessarin;

namespace {

void Require(bool condition) {
    if (!condition) std::abort();
}

class Script : public NullPlatform {
public:
    explicit Script(std::span<const std::uint8_t> bytes) : mBytes(bytes) { SetCurrent(this); }
    ~Script() override { SetCurrent(nullptr); }

    void Run() {
        while (!mBytes.empty()) {
            Step();
            CheckBoard();
        }
    }

    void PumpEvents() override {
        if (mlDepth == 0 || mlDepth > 3 || mBytes.empty() || --mlPumpsLeft > 0) return;
        mlPumpsLeft = 7 * Next();
        Step();
    }
    // A solve that takes long is cancelled.
    bool EscPressed() override { return ++mlCycles % 40 == 0; }
    Message::Answer ShowMessage(const Message&) override { return Message::Answer::Yes; }

private:
    int Next() {
        if (mBytes.empty()) return 0;
        const int byte = mBytes.front();
        mBytes = mBytes.subspan(1);
        return byte;
    }

    void Step() {
        Fields& grid = *mGame.Fields;
        Play& play = *mGame.Play;
        const std::function<void()> operations[] = {
            [&] { grid.SetIndex(Next() % 84 - 1); },
            [&] { play.SetValue(Next() % 12 - 1); },
            [&] { play.SetValue(0, true); },
            [&] { play.SetLocked(!play.Locked()); },
            [&] { play.GotoNextFreeField(Next() % 2 == 1); },
            [&] { play.GoBack(Next() % 2 == 1); },
            [&] { play.GoBackToFreedom(Next() % 2 == 1); },
            [&] { play.NextFreeValue(Next() % 2 == 1); },
            [&] { play.SetTracing(!play.Tracing()); },
            [&] { play.Solve(); },
            [&] { grid.Clear(Next() % 2 == 1); },
            [&] { grid.SetLockAll(Next() % 2 == 1); },
            [&] { grid.SetTextCSV(grid.TextCSV()); }};
        ++mlDepth;
        try {
            operations[static_cast<std::size_t>(Next()) % std::size(operations)]();
        } catch (const std::out_of_range&) { // a cursor outside the grid
        }
        --mlDepth;
    }

    void CheckBoard() {
        Fields& grid = *mGame.Fields;
        const auto& history = mGame.Play->History;
        Require(mGame.Play->Tracing() == history.has_value());
        if (history) {
            const std::set<int> entries(history->begin(), history->end());
            Require(std::ssize(entries) == history->Count());
        }
        int lockedEmpty = 0;
        for (const auto& field : grid.Items)
            if (field->Locked() && field->Value() == 0) ++lockedEmpty;
        Require(grid.FreeCount() + grid.SetCount() + grid.LockedCount() - lockedEmpty == 81);
        Require(grid.IsWinner() == (grid.FreeCount() == 0));
        Require(grid.IsDeadEnd() == (grid.DeadCount() > 0) &&
                grid.IsDeadEnd() == (grid.DeadField() > 0));
        Require((grid.NextFreeField() == 0) == (grid.FreeCount() == grid.DeadCount()));
        // In range, since Item throws otherwise.
        Require(!grid.Cursor || grid.Cursor == grid.Items.Item(grid.Index()));
    }

    Game mGame;
    std::span<const std::uint8_t> mBytes;
    int mlDepth = 0;
    int mlPumpsLeft = 0;
    int mlCycles = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t MaxBytes = 100; // more of them are slow and show nothing new
    Script({data, std::min(size, MaxBytes)}).Run();
    return 0;
}
