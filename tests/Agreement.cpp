// SPDX-License-Identifier: MIT
#include "Agreement.h"

#include "FakeWindow.h"
#include "model/Groups.h"
#include "model/Window.h"
#include "platform/ScopedValue.h"
#include "support/modStringLibrary.h"
#include "support/modTextStream.h"

#include <cmath>
#include <memory>
#include <sstream>

namespace tessarin {

namespace {

struct HandlerError : std::exception {
    const char* what() const noexcept override { return "thrown"; }
};

struct Outcome {
    std::string Told;
    std::vector<int> Moments; // of the last command, in which something has just been told
};

std::string List(const auto& numbers) {
    std::string list;
    if constexpr (requires { numbers.value(); }) {
        if (numbers) list = List(*numbers);
    } else {
        for (const int number : numbers)
            list += std::to_string(number) + " ";
    }
    return list;
}

// The hands on one side: the program or its model.
class Hands {
public:
    Hands(ScriptedPlatform& platform, auto& game, auto& grid, auto& play, auto& groups)
        : mPlatform(platform) {
        platform.TellsPumps = true;
        platform.TellsErrors = false;
        platform.SaysYes = true;
        platform.EachPump = [this] { PassMoment(false); };
        const auto hear = [this](const std::string& event, int index) {
            mPlatform.Tell(event, " ", index);
            if (event != "Init") PassMoment(true);
        };
        if constexpr (requires { game.Listeners; })
            game.Listeners.push_back(hear);
        else
            mEvents = Listen(game, hear);
        const auto field = [&, this] { return grid.Items.Item(Number()); };
        const auto lastGroup = [&] {
            return groups.Item(static_cast<int>(std::distance(groups.begin(), groups.end())));
        };
        const auto say = [this](const auto&... parts) { mPlatform.Tell(parts...); };
        mCommands = {
            {"value", [=, this] { field()->SetValue(Number()); }},
            {"lock", [=, this] { field()->SetLocked(Flag()); }},
            {"next", [=, this] { say(field()->NextFreeValue(Flag())); }},
            {"free",
             [=, &groups] {
                 const auto asked = field();
                 say(asked->FreeValuesList(), asked->Freedom(), " in ", List(asked->InGroups),
                     "beside ", List(asked->Neighbours));
                 for (const int group : asked->InGroups)
                     say(groups.Item(group)->FlavorText());
             }},
            {"csv", [&, this] { grid.SetTextCSV(Rest()); }},
            {"sdk", [&, this] { grid.SetTextSDK(Rest()); }},
            {"texts", [=, &grid] { say(grid.TextCSV(), grid.TextSDK()); }},
            {"count",
             [=, &grid, this] {
                 const std::vector<std::function<int()>> counts{
                     [&] { return grid.FreeCount(); }, [&] { return grid.LockedCount(); },
                     [&] { return grid.SetCount(); },  [&] { return grid.NextFreeField(); },
                     [&] { return grid.IsWinner(); },  [&] { return grid.IsDeadEnd(); },
                     [&] { return grid.Status(); },    [&] { return grid.DeadField(); }};
                 say(counts.at(static_cast<std::size_t>(Number()))());
                 for (const auto& count : counts)
                     say(count());
             }},
            {"init", [=, &grid, this] { say(grid.Init(Number())); }},
            {"clear", [&, this] { grid.Clear(Flag()); }},
            {"lockall", [&, this] { grid.SetLockAll(Flag()); }},
            {"index", [&, this] { grid.SetIndex(Number()); }},
            {"group",
             [=, &groups, this] {
                 const auto owner = field();
                 const auto last = lastGroup();
                 const auto group = std::make_shared<std::decay_t<decltype(*last)>>();
                 group->Index = last->Index + 1;
                 group->Flavor = group->Index % 6;
                 group->Fields.Add(Number());
                 if (Flag()) groups.Add(group);
                 owner->GroupAdd(*group);
                 say(owner->FreeValuesList());
             }},
            {"ungroup", [=] { field()->InGroups = {}; }},
            {"regroup", [=] { field()->GroupAdd(*lastGroup()); }},
            {"widen", [=, this] { lastGroup()->Fields.Add(Number()); }},
            {"reset", [&] { play.Reset(); }},
            {"trace", [&, this] { play.SetTracing(Flag()); }},
            {"remember", [&, this] { play.History->Add(Number()); }},
            {"goto", [&, this] { play.GotoNextFreeField(Flag()); }},
            {"back", [&, this] { play.GoBack(Flag()); }},
            {"freedom", [=, &play, this] { say(play.GoBackToFreedom(Flag())); }},
            {"enter",
             [&, this] {
                 const int value = Number();
                 play.SetValue(value, Flag());
             }},
            {"playlock", [&] { play.SetLocked(!play.Locked()); }},
            {"playnext", [=, &play, this] { say(play.NextFreeValue(Flag()), " ", play.Value()); }},
            {"solve", [&] { play.Solve(); }},
            {"importcsv", [&, this] { game.FileImportCSV(File(Rest())); }},
            {"importsdk", [&, this] { game.FileImportSDK(File(Rest())); }},
            {"look", [] {}},
            {"esc", [this] { mPlatform.EscPresses.push_front(true); }},
            // Not Yes; a dialog takes it for a new file.
            {"refuse", [this] { mPlatform.Answers = {mPlatform.Folder + "new"}; }},
        };
        mState = [&, this] {
            std::ostringstream state;
            state << "at " << grid.Index() << " retries " << play.Retries << " dead "
                  << grid.DeadCount() << " " << List(grid.DeadFields) << "history "
                  << play.History.has_value() << " " << List(play.History) << play.Tracing()
                  << play.Locked() << "\n"
                  << ReplaceAll(grid.TextCSV(true), "\r\n", "|")
                  << ReadTextFile(mPlatform.Folder + "new");
            return state.str();
        };
    }

    /// The commands for a window of either side.
    void TakeWindow(auto& window) {
        mCommands["click"] = [&, this] { window.Click(Rest()); };
        mCommands["activate"] = [&] { window.Activate(); };
        mCommands["close"] = [&] { window.Close(); };
        mCommands["tick"] = [&] { window.Tick(); };
        mCommands["import"] = [&, this] {
            mPlatform.Answers = {File(Rest())};
            window.Click("mnuFileImportCSV");
        };
        mGlance = [&] {
            return window.Keyboard() + (window.Look("fraAction").Enabled ? "" : " solving");
        };
        mState = [&, ofGame = mState, this] {
            std::string state = ofGame() + "\nwide " + std::to_string(window.Width()) +
                                (mPlatform.Hourglass ? " busy" : "");
            for (const auto& [name, look] : window.Looks()) {
                if (mLooks[name] == look) continue;
                mLooks[name] = look;
                state += "\n" + name + ": " + look.Caption + "/" + look.Fore + "/" + look.Back +
                         "/" + look.Font + "/" + look.Spoken + (look.Enabled ? "" : " disabled") +
                         (look.Visible ? "" : " hidden");
            }
            return state;
        };
    }

    /// Gives all commands. Without a look at the state it is faster.
    Outcome Work(const Script& script, bool looks) {
        if (!looks) mState = [] { return ""; };
        mPlatform.Tell(); // the pumps of the start
        mPlatform.Record.clear();
        for (const Row& row : script) {
            mMoments.clear();
            Give(row);
        }
        return {ReplaceAll(mPlatform.Record, mPlatform.Folder, ""), mMoments};
    }

private:
    int Number() {
        int number = 0;
        if (!(mArguments >> number)) throw std::logic_error("a number is missing");
        return number;
    }
    bool Flag() { return Number() != 0; }
    // What is left of the command.
    std::string Rest() {
        mArguments.get(); // the blank
        const std::string rest(std::istreambuf_iterator<char>(mArguments), {});
        return ReplaceAll(rest, "|", "\r\n");
    }
    std::string File(const std::string& text) {
        // Others have other names.
        const std::string path = mPlatform.Folder + "puzzle" + std::to_string(text.size());
        WriteTextFile(path, text, "", true);
        return path;
    }

    void Give(const Row& row) {
        if (mPlatform.Closed) return; // nobody can work a closed window
        const ScopedValue<const Row*> running(mRunning, &row);
        const ScopedValue<int> moment(mlMoment, 0);
        if (row.Moment > 0) mPlatform.Tell("\n", mState());
        mPlatform.Tell("\n>", row.Command);
        mArguments = std::istringstream(row.Command);
        std::string word;
        mArguments >> word;
        if (!mCommands.contains(word)) throw std::runtime_error("no command " + word);
        try {
            mCommands.at(word)();
        } catch (const std::out_of_range&) {
            mPlatform.Tell("! out of range");
        } catch (const std::overflow_error&) {
            mPlatform.Tell("! overflow");
        } catch (const std::invalid_argument&) {
            mPlatform.Tell("! invalid");
        } catch (const HandlerError& error) {
            mPlatform.Tell("! ", error.what());
        }
        mPlatform.Tell("\n", mState());
    }
    // In each event and pump.
    void PassMoment(bool isEvent) {
        if (mRunning == nullptr) return;
        if (const auto seen = mGlance(); seen != std::exchange(msSeen, seen)) mPlatform.Tell(seen);
        // A solve that takes long is cancelled.
        auto& presses = mPlatform.EscPresses;
        if (presses.empty()) presses = {false, false, false, false, false, false, true};
        if (++mlMoment == 1) mPlatform.Tell(mState());
        if (mPlatform.Record.size() != std::exchange(mTold, mPlatform.Record.size()))
            mMoments.push_back(mlMoment);
        for (const Row& inner : mRunning->Inside) {
            if (inner.Moment != mlMoment) continue;
            if (inner.Command != "throw")
                Give(inner);
            else if (isEvent) // what pumps runs handles its errors itself
                throw HandlerError();
        }
    }

    ScriptedPlatform& mPlatform;
    std::vector<Connection> mEvents;
    std::map<std::string, std::function<void()>> mCommands;
    std::function<std::string()> mState;                      // see Disagreement
    std::function<std::string()> mGlance = [] { return ""; }; // told whenever it changes
    std::string msSeen;                                       // at the last glance
    model::Controls mLooks;                                   // as told last
    std::istringstream mArguments;
    const Row* mRunning = nullptr; // the innermost command
    int mlMoment = 0;              // the events and pumps of it so far
    std::vector<int> mMoments;     // of the last command, in which something has just been told
    std::size_t mTold = 0;         // the length of the record at the last moment
};

std::string NameOf(Color color) {
    return color == WindowBackground ? "normal"
           : color == ButtonText     ? "text"
           : color == ButtonFace     ? "face"
           : color == 0xFF           ? "red"
           : color == 0xFF00         ? "green"
           : color == 0xFFFF         ? "yellow"
                                     : std::to_string(color);
}

// The program's window with the words of its model.
class ProgramWindow : public FakeWindow {
public:
    void Activate() { window.RaiseActivate(); }
    void Close() { window.Close(); }
    float Width() { return window.Width(); }
    std::string Keyboard() { return toolkit.Current->Name(); }
    model::Controls Looks() {
        model::Controls looks;
        for (const auto& name : toolkit.Names())
            looks[name] = Look(name);
        return looks;
    }
    model::Control Look(const std::string& name) {
        const Control& control = toolkit.Named(name);
        model::Control look;
        look.Enabled = control.Enabled();
        look.Visible = control.Visible();
        if (const auto* const text = dynamic_cast<const TextControl*>(&control)) {
            look.Font = text->Font().Name + " " + std::to_string(std::lround(text->Font().Size)) +
                        (text->Font().Italic ? " italic" : "");
            look.Caption = text->Caption();
            if (text->AccessibleName() != look.Caption) look.Spoken = text->AccessibleName();
        }
        if (const auto* const label = dynamic_cast<const Label*>(&control)) {
            look.Fore = NameOf(label->ForeColor());
            look.Back = NameOf(label->BackColor());
        }
        if (const auto* const frame = dynamic_cast<const Frame*>(&control))
            look.Back = NameOf(frame->BackColor());
        return look;
    }
};

Outcome OfProgram(const Script& script, bool looks = true) {
    ScriptedPlatform platform;
    Game game;
    return Hands(platform, game, *game.Fields, *game.Play, game.Groups->Items).Work(script, looks);
}

Outcome OfProgramsWindow(const Script& script, bool looks = true) {
    ProgramWindow user;
    Hands hands(user.platform, user.game, user.grid, user.play, user.game.Groups->Items);
    hands.TakeWindow(user);
    return hands.Work(script, looks);
}

Outcome OfModel(const Script& script) {
    ScriptedPlatform platform;
    model::Game game;
    return Hands(platform, game, game.Fields, game.Play, game.Groups).Work(script, true);
}

Outcome OfModelsWindow(const Script& script) {
    static const auto layout = ProgramWindow().Looks();
    ScriptedPlatform platform;
    model::Window window(layout);
    model::Game& game = window.moGame;
    Hands hands(platform, game, game.Fields, game.Play, game.Groups);
    hands.TakeWindow(window);
    window.Dialog = [&](const std::string& title) {
        platform.Tell(title);
        return platform.TakeAnswer();
    };
    window.TellClosed = [&] { platform.Closed = true; };
    return hands.Work(script, true);
}

// The commands up to the first line that differs, and that line of both.
std::string FirstDifference(const std::string& program, const std::string& model) {
    std::istringstream programLines(program), modelLines(model);
    std::string told, expected, command;
    do {
        if (told.starts_with(">")) command = told;
        std::getline(programLines, told);
        std::getline(modelLines, expected);
    } while (told == expected);
    return "after " + command + "\nprogram: " + told + "\nmodel:   " + expected;
}

std::string Difference(const Script& script, bool withWindow) {
    const auto program = withWindow ? OfProgramsWindow(script) : OfProgram(script);
    const auto model = withWindow ? OfModelsWindow(script) : OfModel(script);
    return program.Told == model.Told ? "" : FirstDifference(program.Told, model.Told);
}

} // namespace

std::string Disagreement(const Script& script, bool withWindow) {
    const auto differs = [=](const Script& rows) { return !Difference(rows, withWindow).empty(); };
    if (!differs(script)) return "";
    const Script shortest = Shortened(script, differs);
    return "{" + ToCode(shortest) + "}\n" + Difference(shortest, withWindow);
}

Script RandomScript(const Choose& choose, bool withWindow) {
    static const auto commands = [] {
        std::vector<std::string> all{"activate",  "close",     "tick",
                                     "import %c", "import %c", "click lblField(%l)"};
        for (const auto& name : FakeWindow().toolkit.Names())
            if (name.starts_with("btn") || name.starts_with("opt") || name.starts_with("mnu") ||
                name == "lblDeadEnd")
                all.push_back("click " + name);
        return all;
    }();
    const auto momentsOfLast = [=](const Script& rows) {
        return (withWindow ? OfProgramsWindow(rows, false) : OfProgram(rows, false)).Moments;
    };
    return RandomScript(choose, withWindow ? commands : std::vector<std::string>(), momentsOfLast);
}

} // namespace tessarin
