#pragma once

#include "GameFixture.h"

namespace tessarin {

/// A player who does anything; an impatient one also while something else is under way, as the
/// pumping of window events lets commands in.
class RandomPlayer : public TestGame {
public:
    /// `below` tells what happens next: a number from 0 to below its argument.
    RandomPlayer(bool impatient, std::function<int(int)> below)
        : mbImpatient(impatient), mBelow(std::move(below)) {
        mCommands["reload"] = [this](int, auto&) {
            grid.SetTextCSV(grid.Dimension() == 3 ? grid.TextCSV() : "");
        };
    }

    /// Does something and checks what always holds.
    void Step() {
        // Each with its least argument and how many there are.
        static const std::tuple<std::string, int, int> moves[] = {
            {"index", -1, 84}, {"value", -1, 12}, {"goto", 0, 2},     {"goto", 0, 2},
            {"back", 0, 2},    {"solve", 0, 1},   {"next", 0, 2},     {"auto", 0, 1},
            {"retreat", 0, 2}, {"clear", 0, 2},   {"reload", 0, 1},   {"trace", 0, 1},
            {"tracing", 0, 2}, {"lockall", 0, 2}, {"playlock", 0, 1}, {"init", 3, 3}};
        const auto& [move, least, count] = moves[mBelow(std::size(moves))];
        const std::string line = move + " " + std::to_string(least + mBelow(count));
        SCOPED_TRACE(line);
        if (++mlDepth < 3 && mbImpatient) platform.AtPump(1 + 7 * mBelow(60), [this] { Step(); });
        platform.Esc.assign(8, false); // a solve that takes long is cancelled
        platform.Esc.push_back(true);
        platform.Answers.assign(1, true);
        Do(line);
        ExpectRightStatus();
        --mlDepth;
        const bool silent = move == "clear" || move == "reload" || move == "init";
        for (const auto& field : grid.Items) {
            int& seen = mSeen[field->Index];
            if (silent) seen = field->Value(); // whose values the events do not tell
            if (mlDepth > 0) continue;         // changes may not have been told yet
            EXPECT_EQ(seen, field->Value()) << field->Index;
            if (mbImpatient || field->Value() == 0) continue;
            int alike = 0; // only free values are entered, unless something interferes
            for (const int i : field->Neighbours)
                alike += At(i).Value() == field->Value() ? 1 : 0;
            EXPECT_EQ(alike, 1) << field->Index;
        }
    }

private:
    const bool mbImpatient;
    std::function<int(int)> mBelow;
    int mlDepth = 0;
    std::map<int, int> mSeen; // the values as far as the events tell
    Connection mMirror = grid.Events.StatusChanged.Connect([this](int index) {
        if (index > 0 && index <= grid.Items.Count()) mSeen[index] = At(index).Value();
    });
};

} // namespace tessarin
