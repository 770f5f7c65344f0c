#pragma once

#include "ScriptedPlatform.h"
#include "play/Game.h"
#include "support/modKbd.h"
#include "support/modStringLibrary.h"
#include "support/modTextStream.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <random>
#include <regex>
#include <vector>

namespace tessarin {

/// A correctly filled grid of dimension 3.
inline const std::string FullCells =
    "123456789456789123789123456234567891567891234891234567345678912678912345912345678";

/// Numbers as text, with a blank between them.
std::string Text(const auto& numbers) {
    std::string text;
    for (const int number : numbers)
        text.append(text.empty() ? "" : " ").append(std::to_string(number));
    return text;
}

/// A game that executes commands given as text.
class GameScript {
public:
    Game& game;
    Fields& grid = *game.Fields;
    Play& play = *game.Play;
    /// A temporary folder of its own, with "/" at the end.
    const std::string folder =
        testing::TempDir() + "tessarin-test-" + std::to_string(std::random_device{}()) + "/";

    GameScript(Recorder& recorder, Game& played) : game(played), mRecorder(recorder) {
        std::filesystem::create_directory(folder);
    }
    ~GameScript() { std::filesystem::remove_all(folder); }

    Field& At(int index) { return *grid.Items.Item(index); }

    /// Executes one of mCommands and returns a record of it: events, calls of the platform, results
    /// and its error, after "!", in order, and the history in brackets if it has changed. Line
    /// breaks are "|", and files in the folder have no path.
    std::string Do(const std::string& line) {
        std::istringstream words(line);
        std::string command, text;
        std::getline(words >> command >> std::ws, text);
        const std::string before = History();
        // This step may run inside another one.
        const std::string outer = std::exchange(mRecorder.Told, "");
        try {
            mCommands.at(command)(std::atoi(text.c_str()), text);
        } catch (const std::exception& error) {
            Tell("! ", error.what());
        }
        if (History() != before) Tell("[", History(), "]");
        const std::string told = ReplaceAll(std::exchange(mRecorder.Told, outer), "\r\n", "|");
        return ReplaceAll(told.substr(0, told.find_last_of(' ')), folder, "");
    }

    /// Executes the steps of a script: "command > record", on separate lines or separated by " & ",
    /// and lines of comment. Compares what Do returns with the record; without " >" anything but
    /// an error is right.
    void Script(const std::string& script) {
        std::istringstream steps(ReplaceAll(script, " & ", "\n"));
        for (std::string step; std::getline(steps >> std::ws, step);) {
            if (step.starts_with("//")) continue;
            const auto end = std::min(step.find(" >"), step.size());
            const std::string told = Do(step.substr(0, end));
            if (end == step.size())
                EXPECT_EQ(told.find("! "), std::string::npos) << step << ": " << told;
            else
                EXPECT_EQ(told, step.substr(std::min(end + 3, step.size()))) << step;
        }
    }

protected:
    std::string History() const { return play.History ? Text(*play.History) : "none"; }
    void Tell(const auto&... parts) { mRecorder.Tell(parts...); }

    // Sets the fields to `cells` ("." and all after its end: empty) and records nothing.
    void Fill(const std::string& cells) {
        for (const auto& field : grid.Items) {
            const auto i = static_cast<std::size_t>(field->Index) - 1;
            field->SetValue(i < cells.size() && cells[i] != '.' ? cells[i] - '0' : 0);
        }
        grid.Status();
        mRecorder.Told.clear();
    }
    // The numbers of empty, locked and entered fields, the next free field and all dead fields.
    std::string Counts() {
        std::vector counts{grid.FreeCount(), grid.LockedCount(), grid.SetCount(),
                           grid.NextFreeField()};
        counts.insert(counts.end(), grid.DeadFields->begin(), grid.DeadFields->end());
        return Text(counts);
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
        const auto lines = text.substr(std::min(name.size() + 1, text.size()));
        WriteTextFile(folder + name, ReplaceAll(lines, "|", "\r\n"), "", true);
    }
    // Records the moves without those of the cursor, and the number of retreats.
    void Solve() {
        play.Solve();
        mRecorder.Told = std::regex_replace(mRecorder.Told, std::regex("(from|to) [0-9]+ "), "");
        Tell(play.Retries);
    }
    // The second number of `text`.
    static int Second(const std::string& text) { return std::atoi(text.c_str() + text.find(' ')); }

    // They get the first number and the whole text of their arguments.
    std::map<std::string, std::function<void(int, const std::string&)>> mCommands = {
        {"fill", [&](int, auto& cells) { Fill(cells); }},
        {"full", [&](int count, auto&) { Fill(FullCells.substr(0, std::size_t(count))); }},
        {"index", [&](int i, auto&) { grid.SetIndex(i); }},
        {"set", [&](int i, auto& text) { At(i).SetValue(Second(text)); }},
        {"lock", [&](int i, auto& text) { At(i).SetLocked(Second(text) == 1); }},
        {"free", [&](int i, auto&) { Tell(At(i).FreeValuesList()); }},
        {"raise", [&](int i, auto&) { Tell(At(i).NextFreeValue(true)); }},
        {"init", [&](int dimension, auto&) { Tell(grid.Init(dimension)); }},
        {"clear", [&](int freeOnly, auto&) { grid.Clear(freeOnly == 1); }},
        {"lockall", [&](int state, auto&) { grid.SetLockAll(state == 1); }},
        {"status", [&](int, auto&) { Tell(grid.Status()); }},
        {"cursor", [&](int, auto&) { Tell(grid.Index()); }},
        {"left", [&](int, auto&) { Tell(grid.FreeCount()); }},
        {"counts", [&](int, auto&) { Tell(Counts()); }},
        {"csv", [&](int, auto& text) { grid.SetTextCSV(ReplaceAll(text, "|", "\r\n")); }},
        {"sdk", [&](int, auto& text) { grid.SetTextSDK(ReplaceAll(text, "|", "\r\n")); }},
        {"is", [&](int, auto&) { Tell(grid.TextCSV().substr(18)); }},
        {"write", [&](int, auto& text) { Write(text); }},
        {"read", [&](int, auto& name) { Tell(ReadTextFile(folder + name)); }},
        {"trace", [&](int, auto& history) { Trace(history); }},
        {"tracing", [&](int on, auto&) { play.SetTracing(on == 1); }},
        {"reset", [&](int, auto&) { play.Reset(); }},
        {"value", [&](int value, auto&) { play.SetValue(value); }},
        {"auto", [&](int value, auto&) { play.SetValue(value, true); }},
        {"next", [&](int set, auto&) { Tell(play.NextFreeValue(set == 1)); }},
        {"goto", [&](int fill, auto&) { play.GotoNextFreeField(fill == 1); }},
        {"back", [&](int fill, auto&) { play.GoBack(fill == 1); }},
        {"retreat", [&](int fill, auto&) { Tell(play.GoBackToFreedom(fill == 1) ? "T" : "F"); }},
        {"playlock", [&](int, auto&) { play.SetLocked(!play.Locked()); }},
        {"solve", [&](int, auto&) { Solve(); }},
    };

    Recorder& mRecorder;
};

struct GameParts {
    ScriptedPlatform OwnPlatform;
    Game OwnGame;
};

/// A game without a window that records the events of its grid.
class GameFixture : public testing::Test, GameParts, protected GameScript {
protected:
    ScriptedPlatform& platform = OwnPlatform;

    GameFixture() : GameScript(OwnPlatform, OwnGame) {
        // Executes a step inside a later pump, the first one with 1.
        mCommands["at"] = [this](int pump, auto& text) {
            platform.AtPump(pump, [this, step = text.substr(text.find(' '))] { Tell(Do(step)); });
        };
        mCommands["pumps"] = [this](int, auto&) { Tell(std::exchange(platform.Pumps, 0)); };
        Listen(grid.Events.StatusChanged,
               [this](int index) { Tell(index, "=", index > 0 ? At(index).Value() : 0); });
        Listen(grid.Events.BeforeIndexChanged, [this](int index) { Tell("from ", index); });
        Listen(grid.Events.IndexChanged, [this](int index) { Tell("to ", index); });
        Listen(grid.Events.IsWinner, [this](int index) { Tell("winner ", index); });
        Listen(grid.Events.IsDeadEnd, [this](int index) { Tell("dead ", index); });
        Listen(grid.Events.Init, [this] { Tell("Init"); });
    }
    void Listen(auto& event, auto handler) { mConnections.push_back(event.Connect(handler)); }
    std::vector<Connection> mConnections;
};

} // namespace tessarin
