// SPDX-License-Identifier: MIT
#include "Agreement.h"

#include "FakeWindow.h"
#include "model/Groups.h"
#include "model/Window.h"
#include "platform/ScopedValue.h"
#include "support/modKbd.h"
#include "support/modStringLibrary.h"
#include "support/modTextStream.h"
#include "ui/Colors.h"

#include <filesystem>
#include <iterator>
#include <memory>
#include <random>
#include <sstream>

namespace tessarin {

namespace {

struct HandlerError : std::exception {
    const char* what() const noexcept override { return "thrown"; }
};

std::string List(const auto& numbers) {
    std::string list;
    for (const int number : numbers)
        list += std::to_string(number) + " ";
    return list;
}

// The model has plain lists where the program has collections that count from 1.
auto ItemOf(const auto& items, int position) {
    if constexpr (requires { items.Item(position); })
        return items.Item(position);
    else
        return items.at(static_cast<std::size_t>(position) - 1);
}
void Append(auto& items, auto item) {
    if constexpr (requires { items.Add(item); })
        items.Add(item);
    else
        items.push_back(item);
}

struct Outcome {
    std::string Told;
    int Moments = 0; // the events and pumps of the last command
};

// The hands on one side: the program or its model.
class Hands {
public:
    explicit Hands(ScriptedPlatform& platform) : mPlatform(platform) {
        std::filesystem::create_directory(msFolder);
        platform.TellsPumps = true;
        platform.TellsErrors = false;
        platform.EachPump = [this] { PassMoment(false); };
        Commands["esc"] = [this] { mPlatform.EscPresses.push_front(true); };
        // Not Yes; a dialog takes it for a new file.
        Commands["refuse"] = [this] { mPlatform.Answers = {msFolder + "new"}; };
        Commands["import"] = [this] {
            mPlatform.Answers = {File(Csv())};
            mArguments = std::istringstream("mnuFileImportCSV");
            Commands.at("click")();
        };
    }

    Hands(const Hands&) = delete;
    Hands& operator=(const Hands&) = delete;
    ~Hands() { std::filesystem::remove_all(msFolder); }

    std::map<std::string, std::function<void()>> Commands;
    std::function<std::string()> State;                      ///< told after each command
    std::function<std::string()> Glance = [] { return ""; }; ///< told whenever it changes

    /// Gives all commands.
    Outcome Work(const Script& script) {
        mPlatform.Tell(""); // the pumps of the start
        mPlatform.Record.clear();
        mPlatform.SaysYes = true;
        for (const Row& row : script)
            Give(row);
        return {ReplaceAll(mPlatform.Record, msFolder, ""), mlMomentsOfLast};
    }
    void TellEvent(const std::string& event, int index) {
        mPlatform.Tell(event, " ", index);
        PassMoment(true);
    }

    /// The commands for a game of either side.
    void TakeGame(auto& game, auto& grid, auto& play, auto& groups) {
        const auto field = [&, this] { return ItemOf(grid.Items, Number()); };
        const auto lastGroup = [&] {
            return ItemOf(groups, static_cast<int>(std::distance(groups.begin(), groups.end())));
        };
        const auto say = [this](const auto&... parts) { mPlatform.Tell(parts...); };
        Commands.merge(decltype(Commands){
            {"value", [=, this] { field()->SetValue(Number()); }},
            {"lock", [=, this] { field()->SetLocked(Flag()); }},
            {"next", [=, this] { say(field()->NextFreeValue(Flag())); }},
            {"free",
             [=] {
                 const auto asked = field();
                 say(asked->FreeValuesList(), asked->Freedom(), " in ", List(asked->InGroups),
                     "beside ", List(asked->Neighbours));
             }},
            {"csv", [&, this] { grid.SetTextCSV(Csv()); }},
            {"sdk", [&, this] { grid.SetTextSDK(Sdk()); }},
            {"texts", [=, &grid] { say(grid.TextCSV(), grid.TextSDK()); }},
            {"count",
             [=, &grid] {
                 say(List(std::initializer_list<int>{
                     grid.FreeCount(), grid.LockedCount(), grid.SetCount(), grid.NextFreeField(),
                     grid.IsWinner(), grid.IsDeadEnd(), grid.Status(), grid.DeadField()}));
             }},
            {"init", [=, &grid, this] { say(grid.Init(Number())); }},
            {"clear", [&, this] { grid.Clear(Flag()); }},
            {"lockall", [&, this] { grid.SetLockAll(Flag()); }},
            {"index", [&, this] { grid.SetIndex(Number()); }},
            {"group",
             [=, &groups, this] {
                 const auto owner = field();
                 auto group = std::make_shared<std::decay_t<decltype(*lastGroup())>>();
                 group->Index = lastGroup()->Index + 1;
                 Append(group->Fields, Number());
                 Append(groups, group);
                 if (Flag()) owner->InGroups = {};
                 owner->GroupAdd(*group);
                 say(owner->FreeValuesList());
             }},
            {"regroup", [=] { field()->GroupAdd(*lastGroup()); }},
            {"widen", [=, this] { Append(lastGroup()->Fields, Number()); }},
            {"reset", [&] { play.Reset(); }},
            {"trace", [&, this] { play.SetTracing(Flag()); }},
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
            {"importcsv", [&, this] { game.FileImportCSV(File(Csv())); }},
            {"importsdk", [&, this] { game.FileImportSDK(File(Sdk())); }},
        });
        State = [&] {
            std::ostringstream state;
            state << "at " << grid.Index() << " retries " << play.Retries << " dead "
                  << grid.DeadCount();
            if constexpr (requires { *grid.DeadFields; })
                state << " " << List(grid.DeadFields.value_or(UniqueNumbers()));
            else
                state << " " << List(grid.DeadFields);
            if (play.History) state << "history " << List(*play.History);
            state << play.Tracing() << "\n" << ReplaceAll(grid.TextCSV(true), "\r\n", "|");
            return state.str();
        };
    }

    /// What is left of the command.
    std::string Rest() {
        std::string rest;
        std::getline(mArguments >> std::ws, rest);
        return ReplaceAll(rest, "|", "\r\n");
    }

private:
    int Number() {
        int number = 0;
        if (!(mArguments >> number)) throw std::logic_error("a number is missing");
        return number;
    }
    bool Flag() { return Number() != 0; }
    std::string Csv() { return "Index;Value;Locked\r\n" + Rest(); }
    std::string Sdk() { return "\"Sudoku\"\r\n" + Rest(); }
    std::string File(const std::string& text) {
        WriteTextFile(msFolder + "puzzle", text, "", true);
        return msFolder + "puzzle";
    }

    void Give(const Row& row) {
        if (mPlatform.Closed) return; // nobody can work a closed window
        const ScopedValue<const Row*> running(mRunning, &row);
        const ScopedValue<int> moment(mlMoment, 0);
        mPlatform.Tell("\n>", row.Command);
        try {
            Do(row.Command);
        } catch (const std::out_of_range&) {
            mPlatform.Tell("! out of range");
        } catch (const std::overflow_error&) {
            mPlatform.Tell("! overflow");
        } catch (const std::invalid_argument&) {
            mPlatform.Tell("! invalid");
        } catch (const HandlerError& error) {
            mPlatform.Tell("! ", error.what());
        }
        mlMomentsOfLast = mlMoment;
        mPlatform.Tell("\n", State());
    }
    void Do(const std::string& command) {
        mArguments = std::istringstream(command);
        std::string word;
        mArguments >> word;
        if (!Commands.contains(word)) throw std::logic_error("no command " + command);
        Commands.at(word)();
    }
    // In each event and pump.
    void PassMoment(bool isEvent) {
        if (mRunning == nullptr) return;
        if (const auto seen = Glance(); seen != std::exchange(msSeen, seen)) mPlatform.Tell(seen);
        // A solve that takes long is cancelled.
        auto& presses = mPlatform.EscPresses;
        if (presses.empty()) presses = {false, false, false, false, false, false, true};
        ++mlMoment;
        for (const Row& inner : mRunning->Inside) {
            if (inner.Moment != mlMoment) continue;
            if (inner.Command != "throw")
                Give(inner);
            else if (isEvent) // what pumps runs handles its errors itself
                throw HandlerError();
        }
    }

    ScriptedPlatform& mPlatform;
    const std::string msFolder =
        testing::TempDir() + "tessarin-hands-" + std::to_string(std::random_device{}()) + "/";
    std::string msSeen; // at the last glance
    std::istringstream mArguments;
    const Row* mRunning = nullptr; // the innermost command
    int mlMoment = 0;              // the events and pumps of it so far
    int mlMomentsOfLast = 0;       // those of the command that has ended last
};

// What is seen and heard of a control, as far as it can change.
std::string Shown(const std::string& name, const model::Control& control) {
    const auto is = [&](const char* kind) { return name.starts_with(kind); };
    const bool isLight = is("lblDeadEnd") || is("lblWinner");
    std::string shown = "\n" + name + ":";
    if (is("lbl") && !isLight) shown += control.Caption;
    if (is("lblField")) shown += "/" + control.Fore + "/" + control.Font;
    if (is("lblField") || isLight || is("fra")) shown += "/" + control.Back;
    if (is("lblField") || isLight || is("optChill")) shown += "/" + control.Spoken;
    return shown + (control.Enabled ? "" : " disabled") + (control.Visible ? "" : " hidden");
}

model::Control LookOf(const Control& control) {
    model::Control look;
    look.Enabled = control.Enabled();
    look.Visible = control.Visible();
    if (const auto* const text = dynamic_cast<const TextControl*>(&control)) {
        std::ostringstream font;
        font << text->Font().Name << " " << text->Font().Size;
        look.Font = font.str() + (text->Font().Italic ? " italic" : "");
        look.Caption = text->Caption();
        look.Spoken = text->AccessibleName();
    }
    if (const auto* const label = dynamic_cast<const Label*>(&control)) {
        look.Fore = NameOf(label->ForeColor());
        look.Back = NameOf(label->BackColor());
    }
    if (const auto* const frame = dynamic_cast<const Frame*>(&control))
        look.Back = NameOf(frame->BackColor());
    return look;
}

std::vector<Connection> Listen(Game& game, Hands& hands) {
    auto& events = game.Events;
    std::vector<Connection> connections;
    for (const auto& [event, name] : {std::pair(&events.BeforeIndexChanged, "BeforeIndexChanged"),
                                      {&events.IndexChanged, "IndexChanged"},
                                      {&events.StatusChanged, "StatusChanged"},
                                      {&events.IsWinner, "IsWinner"},
                                      {&events.IsDeadEnd, "IsDeadEnd"}})
        connections.push_back(
            event->Connect([&hands, name = name](int index) { hands.TellEvent(name, index); }));
    return connections;
}

Outcome OfProgram(const Script& script) {
    ScriptedPlatform platform;
    Game game;
    Hands hands(platform);
    hands.TakeGame(game, *game.Fields, *game.Play, game.Groups->Items);
    const auto connections = Listen(game, hands);
    return hands.Work(script);
}

Outcome OfModel(const Script& script) {
    ScriptedPlatform platform;
    model::Game game;
    Hands hands(platform);
    hands.TakeGame(game, game.Fields, game.Play, game.Groups);
    game.Raise = [&](const std::string& event, int index) { hands.TellEvent(event, index); };
    return hands.Work(script);
}

Outcome OfProgramsWindow(const Script& script) {
    static const model::Window known;
    FakeWindow user;
    user.platform.Player = nullptr; // the state has its history
    Hands hands(user.platform);
    hands.TakeGame(user.game, user.grid, user.play, user.game.Groups->Items);
    const auto connections = Listen(user.game, hands);
    hands.Commands["click"] = [&] { user.toolkit.Click(hands.Rest()); };
    hands.Commands["activate"] = [&] { user.window.RaiseActivate(); };
    hands.Commands["close"] = [&] { user.window.Close(); };
    hands.Commands["tick"] = [&] { user.toolkit.Tick(); };
    hands.Glance = [&] {
        return user.toolkit.Current->Name() + (user.window.fraAction.Enabled() ? "" : " solving");
    };
    hands.State = [&, ofGame = hands.State] {
        std::ostringstream state;
        state << ofGame() << "\nwide " << user.window.Width() << user.platform.Hourglass;
        for (const auto& [name, unused] : known.Controls)
            state << Shown(name, LookOf(user.toolkit.Named(name)));
        return state.str();
    };
    return hands.Work(script);
}

Outcome OfModelsWindow(const Script& script) {
    ScriptedPlatform platform;
    model::Window window;
    Hands hands(platform);
    hands.TakeGame(window.moGame, window.moGame.Fields, window.moGame.Play, window.moGame.Groups);
    window.Told = [&](const std::string& event, int index) { hands.TellEvent(event, index); };
    window.Dialog = [&](const std::string& title) {
        platform.Tell(title);
        return platform.TakeAnswer();
    };
    window.TellClosed = [&] { platform.Closed = true; };
    // As those of the program, errors of the window's handlers go no further.
    const auto handled = [&](auto handler) {
        return [=, &platform] {
            try {
                handler();
            } catch (const std::exception& error) {
                platform.ReportError(error.what());
            }
        };
    };
    hands.Commands["click"] = handled([&] { window.Click(hands.Rest()); });
    hands.Commands["activate"] = handled([&] { window.Activate(); });
    hands.Commands["close"] = handled([&] { window.Unload(); });
    hands.Commands["tick"] = handled([&] { window.Tick(); });
    hands.Glance = [&] {
        return model::Name("lblField", window.Keyboard) +
               (window.Controls["fraAction"].Enabled ? "" : " solving");
    };
    hands.State = [&, ofGame = hands.State] {
        std::ostringstream state;
        state << ofGame() << "\nwide " << window.Width << window.Hourglass;
        for (const auto& [name, control] : window.Controls)
            state << Shown(name, control);
        return state.str();
    };
    return hands.Work(script);
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

std::vector<std::string> WindowCommands() {
    std::vector<std::string> commands{"activate", "close", "tick", "import %c", "import %c"};
    for (std::string control : FakeWindow().toolkit.Commands()) {
        control = ReplaceAll(control, "lblField(50)", "lblField(%l)");
        commands.push_back("click " + ReplaceAll(control, "btnNumPad(5)", "btnNumPad(%k)"));
    }
    return commands;
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
    static const auto commands = WindowCommands();
    const auto momentsOfLast = [=](const Script& rows) {
        return (withWindow ? OfProgramsWindow(rows) : OfProgram(rows)).Moments;
    };
    return RandomScript(choose, withWindow ? commands : std::vector<std::string>(), momentsOfLast);
}

} // namespace tessarin
