#pragma once

#include "ScratchFolder.h"
#include "ScriptedPlatform.h"
#include "model/Errors.h"
#include "play/Game.h"
#include "support/modStringLibrary.h"
#include "support/modTextStream.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

namespace tessarin {

/// A correctly filled grid of dimension 3.
inline const std::string FullCells =
    "123456789456789123789123456234567891567891234891234567345678912678912345912345678";

/// Numbers as text, with a blank between them.
template <class Numbers>
std::string Text(const Numbers& numbers) {
    std::string text;
    for (const int number : numbers)
        text.append(text.empty() ? "" : " ").append(std::to_string(number));
    return text;
}

/// The kind of error that `action` throws, "" for none.
template <class Action>
std::string ErrorOf(Action action) try {
    action();
    return "";
} catch (const TypeMismatchError&) {
    return "type mismatch ";
} catch (const DuplicateKeyError&) {
    return "duplicate key ";
} catch (const std::out_of_range&) {
    return "out of range ";
} catch (const std::overflow_error&) {
    return "overflow ";
}

/// A game that executes commands given as text.
class GameScript {
public:
    Game& game;
    Fields& grid = *game.Fields;
    Play& play = *game.Play;
    ScratchFolder folder;

    GameScript(CallLog& log, Game& played) : game(played), mLog(log) {}

    Field& At(int index) { return *grid.Items.Item(index); }

    /// Records the events of a grid or game, each as `prefix` and its name.
    void Listen(auto& events, const std::string& prefix) {
        for (const auto& [name, event] :
             {std::pair{"BeforeIndexChanged", &events.BeforeIndexChanged},
              {"IndexChanged", &events.IndexChanged},
              {"StatusChanged", &events.StatusChanged},
              {"IsWinner", &events.IsWinner},
              {"IsDeadEnd", &events.IsDeadEnd}})
            mConnections.push_back(event->Connect([this, name = prefix + name](int index) {
                mTold += name + "(" + std::to_string(index) + ") ";
            }));
    }

    /// Executes one of mCommands and returns a record of it: its error, the events in order, its
    /// result, the platform's calls, and the history in brackets if it has changed.
    std::string Do(const std::string& line) {
        std::istringstream words(line);
        std::string command, text;
        std::getline(words >> command >> std::ws, text);
        // A script may run inside a step of another one.
        const std::string outerTold = std::exchange(mTold, ""), outerCalls = mLog.TakeCalls();
        const std::string before = History();
        const auto found = mCommands.find(command);
        if (found == mCommands.end()) {
            ADD_FAILURE() << "unknown command: " << line;
            return "";
        }
        std::string told = ErrorOf([&] { found->second(std::atoi(text.c_str()), text); });
        told += std::exchange(mTold, outerTold) + mLog.TakeCalls(outerCalls);
        if (History() != before) told.append("[").append(History()).append("] ");
        return told.substr(0, told.size() - (told.empty() ? 0 : 1));
    }

    /// Executes the steps of a script: "command > record", on separate lines or separated by " & ".
    /// Compares what Do returns with the record; without " >" anything is right.
    void Script(const std::string& script) {
        std::istringstream steps(ReplaceAll(script, " & ", "\n"));
        for (std::string step; std::getline(steps >> std::ws, step);) {
            const auto end = std::min(step.find(" >"), step.size());
            const std::string told = Do(step.substr(0, end));
            if (end == step.size()) continue;
            EXPECT_EQ(told, step.substr(std::min(end + 3, step.size()))) << step;
        }
    }

    /// Compares the grid's status with a count of its fields.
    void ExpectRightStatus() {
        grid.Status(); // pumps, which may change the fields
        int free = 0, locked = 0, set = 0, next = 0, least = grid.Numbers() + 1;
        std::vector<int> dead;
        for (const auto& field : grid.Items) {
            locked += field->Locked() ? 1 : 0;
            set += field->Value() != 0 && !field->Locked() ? 1 : 0;
            if (field->Value() != 0) continue;
            ++free;
            const int freedom = field->Freedom();
            if (freedom == 0) dead.push_back(field->Index);
            if (freedom > 0 && freedom < least) next = field->Index;
            if (freedom > 0) least = std::min(least, freedom);
        }
        EXPECT_EQ(grid.IsWinner(), free == 0);
        EXPECT_EQ(grid.IsDeadEnd(), !dead.empty());
        EXPECT_EQ(grid.DeadField(), dead.empty() ? 0 : dead[0]);
        dead.insert(dead.begin(), {free, locked, set, next});
        EXPECT_EQ(Counts(), Text(dead));
    }

    /// The numbers of empty, locked and entered fields, the next free field and all dead fields.
    std::string Counts() {
        std::vector counts{grid.FreeCount(), grid.LockedCount(), grid.SetCount(),
                           grid.NextFreeField()};
        counts.insert(counts.end(), grid.DeadFields->begin(), grid.DeadFields->end());
        return Text(counts);
    }

protected:
    std::string History() const { return play.History ? Text(*play.History) : "none"; }
    void Tell(const std::string& result) { mTold += result.empty() ? "" : result + " "; }

    // Sets the fields to `cells` ("." and all after its end: empty) and records nothing.
    void Fill(const std::string& cells) {
        for (const auto& field : grid.Items) {
            const auto i = static_cast<std::size_t>(field->Index) - 1;
            field->SetValue(i < cells.size() && cells[i] != '.' ? cells[i] - '0' : 0);
        }
        grid.Status();
        mTold.clear();
    }
    void Trace(const std::string& history) {
        play.Reset();
        play.SetTracing(true);
        std::istringstream words(history);
        for (int index = 0; words >> index;)
            play.History->Add(index);
    }
    // Writes a file: its name, a blank, and its lines, separated by "|".
    void Write(const std::string& text) {
        const auto name = text.substr(0, text.find(' '));
        folder.Write(name,
                     ReplaceAll(text.substr(std::min(name.size() + 1, text.size())), "|", "\r\n"));
    }
    std::string Content(const std::string& name) const {
        return ReplaceAll(ReadTextFile(folder.File(name)), "\r\n", "|");
    }
    // The second number of `text`.
    static int Second(const std::string& text) { return std::atoi(text.c_str() + text.find(' ')); }

    // They get the first number and the whole text of their arguments.
    std::map<std::string, std::function<void(int, const std::string&)>> mCommands = {
        {"fill", [&](int, auto& cells) { Fill(cells); }},
        {"index", [&](int i, auto&) { grid.SetIndex(i); }},
        {"set", [&](int i, auto& text) { At(i).SetValue(Second(text)); }},
        {"lock", [&](int i, auto& text) { At(i).SetLocked(Second(text) == 1); }},
        {"free", [&](int i, auto&) { Tell(At(i).FreeValuesList()); }},
        {"raise", [&](int i, auto&) { Tell(std::to_string(At(i).NextFreeValue(true))); }},
        {"init", [&](int dimension, auto&) { Tell(grid.Init(dimension)); }},
        {"clear", [&](int freeOnly, auto&) { grid.Clear(freeOnly == 1); }},
        {"lockall", [&](int state, auto&) { grid.SetLockAll(state == 1); }},
        {"status", [&](int, auto&) { Tell(std::to_string(grid.Status())); }},
        {"cursor", [&](int, auto&) { Tell(std::to_string(grid.Index())); }},
        {"left", [&](int, auto&) { Tell(std::to_string(grid.FreeCount())); }},
        {"counts", [&](int, auto&) { Tell(Counts()); }},
        {"csv", [&](int, auto& text) { grid.SetTextCSV(ReplaceAll(text, "|", "\r\n")); }},
        {"sdk", [&](int, auto& text) { grid.SetTextSDK(ReplaceAll(text, "|", "\r\n")); }},
        {"is", [&](int, auto&) { Tell(ReplaceAll(grid.TextCSV(), "\r\n", "|").substr(18)); }},
        {"write", [&](int, auto& text) { Write(text); }},
        {"read", [&](int, auto& name) { Tell(Content(name)); }},
        {"trace", [&](int, auto& history) { Trace(history); }},
        {"tracing", [&](int on, auto&) { play.SetTracing(on == 1); }},
        {"reset", [&](int, auto&) { play.Reset(); }},
        {"value", [&](int value, auto&) { play.SetValue(value); }},
        {"auto", [&](int value, auto&) { play.SetValue(value, true); }},
        {"next", [&](int set, auto&) { Tell(std::to_string(play.NextFreeValue(set == 1))); }},
        {"goto", [&](int fill, auto&) { play.GotoNextFreeField(fill == 1); }},
        {"back", [&](int fill, auto&) { play.GoBack(fill == 1); }},
        {"retreat", [&](int fill, auto&) { Tell(play.GoBackToFreedom(fill == 1) ? "T" : "F"); }},
        {"playlock", [&](int, auto&) { play.SetLocked(!play.Locked()); }},
        {"solve", [&](int, auto&) { play.Solve(); }},
    };

    std::string mTold;
    std::vector<Connection> mConnections;

private:
    CallLog& mLog;
};

struct GameParts {
    ScriptedPlatform OwnPlatform;
    Game OwnGame;
};

/// A game without a window that records the events of its grid.
class TestGame : GameParts, public GameScript {
public:
    ScriptedPlatform& platform = OwnPlatform;

    TestGame() : GameScript(OwnPlatform, OwnGame) {
        mCommands["pumps"] = [this](int, auto&) {
            Tell(std::to_string(std::exchange(platform.Pumps, 0)));
        };
        Listen(grid.Events, "");
        mConnections.push_back(grid.Events.Init.Connect([this] { mTold += "Init "; }));
    }
};

class GameFixture : public testing::Test, protected TestGame {};

} // namespace tessarin
