#pragma once

#include "Script.h"
#include "ScriptedPlatform.h"
#include "play/Play.h"
#include "support/modKbd.h"
#include "support/modStringLibrary.h"
#include "support/modWait.h"

#include <filesystem>

namespace tessarin {

struct GameParts {
    ScriptedPlatform platform;
    Game OwnGame;
};

/// A game without a window. The events that a window would hear are told.
class GameFixture : public testing::Test, protected GameParts, protected Script {
protected:
    GameFixture() : Script(platform, OwnGame) {
        platform.Folder = folder;
        Hear(game.Events.StatusChanged, [this](int i) { Tell(i, "=", i > 0 ? At(i).Value() : 0); });
        Hear(game.Events.BeforeIndexChanged, [this](int i) { Tell("from ", i); });
        Hear(game.Events.IndexChanged, [this](int i) { Tell("to ", i); });
        Hear(game.Events.IsWinner, [this](int i) { Tell("winner ", i); });
        Hear(game.Events.IsDeadEnd, [this](int i) { Tell("dead ", i); });

        Add("tellpumps", [this](int, auto&) { platform.TellsPumps = true; });
        Add("wait", [](int milliseconds, auto&) { Wait(milliseconds); });
        Add("init", [this](int dimension, auto&) { Tell(grid.Init(dimension)); });
        Add("free", [this](int i, auto&) { Tell(At(i).FreeValuesList()); });
        // The player. "auto" enters the next free value, or the value that is given.
        Add("value", [this](int value, auto&) { play.SetValue(value); });
        Add("auto", [this](int value, auto&) { play.SetValue(value, true); });
        Add("next", [this](int set, auto&) { Tell(play.NextFreeValue(set == 1)); });
        Add("goto", [this](int fill, auto&) { play.GotoNextFreeField(fill == 1); });
        Add("back", [this](int, auto&) { play.GoBack(); });
        Add("retreat", [this](int fill, auto&) {
            Tell(play.GoBackToFreedom(fill == 1) ? "moved" : "stayed");
        });
        Add("retries", [this](int, auto&) { Tell(play.Retries); });
        Add("solve", [this](int, auto&) { play.Solve(); });
        // What the user does in the next solve: requests a cancel with every change; presses ESC,
        // or not, before each cycle; answers.
        Add("cancel",
            [this](int, auto&) { Hear(game.Events.StatusChanged, [](int) { SetCancel(); }); });
        Add("esc", [this](int, auto& presses) { platform.Esc = Numbers(presses); });
        Add("answer", [this](int, auto& text) { platform.Answers.push_back(text); });
        // Files in the test's folder, or without a name.
        const auto path = [this](auto& file) { return file.empty() ? "" : folder + file; };
        Add("tocsv", [=, this](int, auto& file) { game.FileExportCSV(path(file)); });
        Add("tosdk", [=, this](int, auto& file) { game.FileExportSDK(path(file)); });
        Add("fromcsv", [=, this](int, auto& file) { game.FileImportCSV(path(file)); });
        Add("fromsdk", [=, this](int, auto& file) { game.FileImportSDK(path(file)); });
        Add("sdk", [this](int, auto& text) { grid.SetTextSDK(ReplaceAll(text, "|", "\r\n")); });
    }
    void Hear(auto& event, auto handler) { mEvents.push_back(event.Connect(handler)); }

private:
    std::vector<Connection> mEvents;
};

} // namespace tessarin
