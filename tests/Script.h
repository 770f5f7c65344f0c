// The language of the tests.
//
// Each row of a script does a step, or two with " & " between them. Behind " > " stands what is
// told of the last one, in order:
//     7=5         field 7 has got the value 5 (or a lock is changed: the current field's value)
//     from 3      the cursor is about to leave field 3
//     to 4        the cursor is on field 4
//     winner 81   an event of the game with its index; also: dead 12
//     +3          field 3 has joined the history; -3: it has left it
//     Beep        a call of the machine; also: Sleep(100), Box(title|text|icon buttons)
//     (83)        so many pumps of window events, if pumps are told
//     ! text      the step, or a handler in it, has ended with this error
// Line breaks are told as "|", files without the test's folder. A step without " > " passes unless
// it ends with an error. The rest of a row "during ..." runs in the next box, pause or change of a
// field, a step behind "pump 3" inside the third pump from now. After a failure no row is run.
#pragma once

#include "model/Fields.h"
#include "play/Game.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace tessarin {

class Play;

/// The part of a test's platform that records what happens, in order, and acts inside pumps.
class Recorder {
public:
    /// Records a changed history, the pumps since the last call (if they are told), and the text of
    /// all parts unless it is empty.
    void Tell(const auto&... parts) {
        std::ostringstream text;
        (text << ... << parts);
        TellText(text.str());
    }
    /// Runs `action` inside the n-th pump from now, once.
    void AtPump(int n, std::function<void()> action) {
        mPumpOfAction = mPumps + n;
        mAction = std::move(action);
    }

    std::string Record; ///< each item with a blank behind it
    bool TellsPumps = false;
    const Play* Player = nullptr;            ///< whose history is told; set before the first Tell
    std::function<void()> Meanwhile = [] {}; ///< runs while a box is open and during a sleep

protected:
    /// To be called in each pump.
    void Pumped() {
        if (++mPumps == mPumpOfAction && mAction) std::exchange(mAction, nullptr)();
    }

private:
    void TellText(const std::string& text);

    std::vector<int> mHistory; // as told last
    int mPumps = 0;
    int mPumpsTold = 0;
    int mPumpOfAction = 0;
    std::function<void()> mAction;
};

/// The numbers in `text`, which are separated by blanks.
std::vector<int> Numbers(const std::string& text);

/// Rows of a script, and the place of the first one.
struct Story {
    std::string Name;
    std::string Rows;
    int Line;
    const char* File;
};
/// Splits a text into stories: a row that ends with ":" is the name of the rows below it.
std::vector<Story> SplitStories(const std::string& text, int line, const char* file);

/// Works the game by steps given as text.
class Script {
public:
    Game& game;
    Fields& grid;
    Play& play;
    /// A temporary folder of its own, with "/" at the end.
    const std::string folder;

    Script(Recorder& recorder, Game& played);
    virtual ~Script();

    Field& At(int index) { return *grid.Items.Item(index); }

    /// Runs the rows of a script. (Clang 14 has no std::source_location.)
    void Do(const std::string& rows, int line = __builtin_LINE(),
            const char* file = __builtin_FILE());
    /// Does one step and returns what is told of it.
    std::string Told(const std::string& step);

protected:
    using Command = std::function<void(int, const std::string&)>;
    /// Adds a command, the first word of a step. It gets the first number and all other words.
    void Add(const char* name, Command command) { mCommands[name] = std::move(command); }
    void Tell(const auto&... parts) { mRecorder.Tell(parts...); }

    /// Shows a grid that no event has told of.
    virtual void Refresh() {}

    Recorder& mRecorder;

private:
    void Fill(std::string cells);
    void Step(const std::string& step);

    std::map<std::string, Command> mCommands;
    std::vector<Story> mDuring;
    Connection mChanges;
};

/// Makes each story of a text a test of its own.
template <class Fixture>
class Stories {
public:
    Stories(const char* suite, const std::string& text, int line = __builtin_LINE(),
            const char* file = __builtin_FILE()) {
        for (const Story& story : SplitStories(text, line, file))
            testing::RegisterTest(suite, story.Name.c_str(), nullptr, nullptr, file, story.Line,
                                  [=]() -> Fixture* { return new Test(story); });
    }

private:
    struct Test : Fixture {
        explicit Test(Story story) : mStory(std::move(story)) {}
        void TestBody() override { this->Do(mStory.Rows, mStory.Line, mStory.File); }
        Story mStory;
    };
};

} // namespace tessarin
