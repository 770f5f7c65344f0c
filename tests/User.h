// SPDX-License-Identifier: MIT
// What all tests use: a record of what happens, commands inside other commands, and a user's hands
// on the grid.
//
// TELLS(step, "Beep") does a step and expects that this is told of it, in this order:
//     IndexChanged 4      an event of the game with its index (in tests without a window)
//     Beep                a call of the machine; also: Sleep(100); with Qt no calls are told
//     Box(title|text|? Yes No)  a box with its buttons (with Qt without them). Without a question
//                         icon it has a "-": Box(title|text|- OK)
//     Import File         the title of a file dialog
//     (83)                so many pumps of window events, if TellsPumps is set; the one after
//                         "now" must not be skipped
//     ! text              the step, or a handler of the window, has ended with this error
// Line breaks are told as "|", paths of files without the test's folder.
#pragma once

#include "model/Fields.h"
#include "play/Game.h"
#include "play/Play.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

// A macro, so that a failure has the line of the step and shows it.
#define TELLS(step, told) EXPECT_EQ(Told([&] { step; }), told)

namespace tessarin {

/// Calls `handler` for each event of a game, while the connections live.
std::vector<Connection> Listen(Game& game,
                               std::function<void(const std::string& event, int index)> handler);

/// The part of a test's platform that records what happens, and acts inside pumps and pauses.
class Recorder {
public:
    Recorder();
    ~Recorder();
    Recorder(const Recorder&) = delete;

    /// A temporary folder of its own, with "/" at the end.
    const std::string Folder;

    /// Runs `action` in the next box, pause or change of a field, once.
    void Meanwhile(std::function<void()> action) { mMeanwhile = std::move(action); }
    /// Fails if something was prepared that has not been asked for.
    void ExpectNothingLeft();

    std::string Record;              ///< what has been told, each item with a blank behind it
    std::deque<std::string> Answers; ///< to the next boxes: a button; to the next dialogs: a path
    bool TellsPumps = false;
    std::function<void()> EachPump = [] {}; ///< runs in each pump

    /// Records the pumps since the last call, and the text of all parts.
    void Tell(const auto&... parts) {
        std::ostringstream text;
        if (TellsPumps && mPumps > 0) text << "(" << mPumps << ") ";
        mPumps = 0;
        if constexpr (sizeof...(parts) > 0) (text << ... << parts) << " ";
        Record += text.str();
    }
    /// To be called in each pump.
    void Pumped() {
        EachPump();
        ++mPumps;
    }
    /// To be called while a box is open and during a sleep.
    void Paused() {
        if (mMeanwhile) std::exchange(mMeanwhile, nullptr)();
    }
    /// The next answer, "" if there is none.
    std::string TakeAnswer();

private:
    int mPumps = 0; // since the last that was told
    std::function<void()> mMeanwhile;
};

/// Works the grid and the player.
class User {
public:
    Game& game;
    Fields& grid;
    Play& play;
    const std::string& folder; ///< of the recorder

    User(Recorder& recorder, Game& played);
    virtual ~User() = default;

    /// Does a step and returns what is told of it.
    std::string Told(const std::function<void()>& step);
    void Meanwhile(std::function<void()> action) { mRecorder.Meanwhile(std::move(action)); }

    Field& At(int index) { return *grid.Items.Item(index); }
    /// Loads lines of CSV, separated by "|", without their first line.
    void Load(const std::string& lines);
    /// The lines of all fields with a value, in the same form.
    std::string Grid();
    /// Loads a value for each field. Nine groups of nine make a whole grid; "." and all that is
    /// left out is empty. The cursor is nowhere then.
    void Fill(std::string values);
    /// Loads a full grid but for these fields, and puts the cursor on the first of them.
    void FullBut(const std::vector<int>& empty);

    /// Writes a file, whose lines are separated by "|". Returns its path.
    std::string Write(const std::string& name, const std::string& lines);
    /// The text of a file with its lines separated by "|"; "" if there is no such file.
    std::string Read(const std::string& name);

protected:
    /// Shows a grid that no event has told of.
    virtual void Refresh() {}

    Recorder& mRecorder;

private:
    Connection mChanges;
};

} // namespace tessarin
