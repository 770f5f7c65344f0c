// SPDX-License-Identifier: MIT
#include "Script.h"

#include <algorithm>
#include <iterator>
#include <random>
#include <sstream>

namespace tessarin {

std::string ToCode(const Script& script) {
    std::ostringstream code;
    for (const Row& row : script)
        code << "{" << row.Moment << ", \"" << row.Command << "\", {" << ToCode(row.Inside)
             << "}},\n";
    return code.str();
}

namespace {

// %f stands for a field, %v for a value, %d for a dimension, %l for a label of a field, %c and %s
// for the two puzzle texts, with "|" for a line break; %1 for 0 or 1, %9 for 0 to 9.
const std::vector<std::string> GameCommands{
    "index 0",  "value %f %v",  "value %f 0",  "lock %f %1", "next %f %1",  "free %f",
    "index %f", "clear %1",     "lockall %1",  "count %7",   "init %d",     "csv %c",
    "sdk %s",   "importcsv %c", "texts",       "reset",      "trace %1",    "goto %1",
    "back %1",  "freedom %1",   "enter %v %1", "enter 0 0",  "playlock",    "playnext %1",
    "solve",    "solve",        "esc",         "refuse",     "importsdk %s"};

// What meets rarely if each is one of many.
const std::vector<std::vector<std::string>> GameThemes{
    {"value %f %v", "value %f 0", "free %f", "count %7"},
    {"index %f", "enter %v 0", "enter 0 0", "freedom %1"},
    {"solve", "solve", "csv %c", "clear %1"}};
const std::vector<std::vector<std::string>> WindowThemes{
    {"click btnSolve", "click btnSolve", "click optChill(%6)", "click lblField(%l)", "tick", "tick",
     "activate", "close"},
    {"click btnSolve", "click btnSolve", "click optChill(6)", "click optChill(%6)"},
    {"click btnSolve", "click btnSolve", "click optChill(2)", "click optChill(5)"},
    {"click btnSolve", "click btnSolve", "click optChill(%6)", "click mnuViewNeighbours"},
    {"activate", "csv %c", "clear %1", "click lblField(%l)"},
    {"click mnuViewFreedom", "click mnuViewNeighbours", "click mnuViewGroups", "value %f %v",
     "click btnNextFree", "activate", "close"},
    {"value %f %v", "value %f 0", "click lblDeadEnd", "click mnuFileImportCSV",
     "click mnuEditClearAll", "click mnuViewNeighbours"},
    {"index 1", "import %c", "refuse", "reset", "click mnuFileExportCSV", "click mnuEditClearAll"}};

// Nothing tells the grid of these, so they are not given inside others.
const std::vector<std::string> GroupCommands{"group 1 %f %1", "regroup 1", "widen %f", "free 1",
                                             "ungroup 1"};

struct RandomUser {
    Choose Choice;
    const bool GroupsAreMade = OneIn(8);
    std::vector<std::string> Commands = {};

    bool OneIn(int number) const { return Choice(number - 1) == 0; }
    template <class T>
    T Pick(const std::vector<T>& items) const {
        return items[static_cast<std::size_t>(Choice(static_cast<int>(items.size()) - 1))];
    }
    std::string Pick(std::initializer_list<std::string> texts) const {
        return Pick(std::vector(texts));
    }
    int Value() const { return OneIn(9) ? Choice(30) - 9 : Choice(9); }

    // Now and then a wrong item of a puzzle's text.
    std::string Item(int usual, int oneWrongIn = 500) const {
        if (OneIn(300))
            return Pick({"", "x", "+-5", "++5", " +4 ", "\t4", "5 5", "0x5", "5;", "5,",
                         "9999999999", "9999999999x"});
        return std::to_string(OneIn(oneWrongIn) ? Value() : usual);
    }
    std::string Header(const std::string& usual) const {
        return (OneIn(40) ? Pick({"", "index;value;locked", usual + ";"}) : usual) + "|";
    }
    // Nearly full, or nearly empty; right but for a few values, or not.
    std::string Csv() const {
        const int oneWrongIn = OneIn(2) ? 60 : 9;
        const int percentEmpty = OneIn(3) ? 50 + Choice(50) : Choice(OneIn(2) ? 1 : 12);
        std::string lines = Header("Index;Value;Locked");
        for (int i = 0; i < 81; ++i) {
            const bool isEmpty = Choice(99) < percentEmpty;
            if (isEmpty && !OneIn(20)) continue;
            const int right = isEmpty ? 0 : (i / 9 * 3 + i / 27 + i % 9) % 9 + 1;
            lines += Item(i + 1) + ";" + Item(right, oneWrongIn) + ";" +
                     Item(Choice(OneIn(9) ? 2 : 1)) + "|";
        }
        return lines;
    }
    std::string Sdk() const {
        std::string rows = Header("\"Sudoku\"");
        for (int count = std::stoi(Pick({"9", "9", "9", "25", "16", "49", "8"})); count > 0;
             --count) {
            for (int i = Choice(OneIn(9) ? 12 : 9); i > 0; --i)
                rows += Item(OneIn(3) ? Value() : 0).append(i > 1 ? "," : "");
            rows += "|";
        }
        if (OneIn(20)) rows += Item(0); // after the last line break
        return rows;
    }
    std::string Word(char kind) const {
        // A puzzle takes one choice, whatever its length.
        const RandomUser writer{Dice(static_cast<unsigned>(Choice(9999)))};
        if (kind == 'c') return writer.Csv();
        if (kind == 's') return writer.Sdk();
        if (kind == 'd')
            return Pick({"0", "3", "3", "3", "3", "3", "5", "7", "4", "-1", "216", "217"});
        if (kind == 'v') return std::to_string(Value());
        if (kind == 'l') return std::to_string(1 + Choice(80));
        if (kind != 'f') return std::to_string(Choice(kind - '0'));
        // Mostly one of few, so that commands meet.
        return std::to_string(OneIn(30) ? Choice(700) - 20 : 1 + Choice(OneIn(3) ? 80 : 11));
    }
    std::string Filled(std::string command) const {
        for (std::size_t at = 0; (at = command.find('%', at)) != std::string::npos;)
            command.replace(at, 2, Word(command[at + 1]));
        return command;
    }

    Row Command(int depth) const {
        const bool ofGroups = GroupsAreMade && depth == 0 && OneIn(2);
        Row row{.Command = Filled(Pick(ofGroups ? GroupCommands : Commands))};
        if (depth > 0) row.Moment = 1 + Choice(OneIn(3) ? 400 : OneIn(2) ? 9 : 1);
        if (depth > 0 && OneIn(40)) row.Command = "throw";
        if (depth < 3 && OneIn(2)) row.Inside = Rows(depth + 1);
        return row;
    }
    Script Rows(int depth) const {
        Script rows;
        for (int i = Choice(depth > 0 ? 2 : GroupsAreMade ? 12 : 6); i > 0; --i)
            rows.push_back(Command(depth));
        std::ranges::stable_sort(rows, {}, &Row::Moment);
        return rows;
    }
};

} // namespace

Choose Dice(unsigned seed) {
    return [dice = std::mt19937(seed)](int last) mutable {
        return static_cast<int>(dice() % (static_cast<unsigned>(last) + 1));
    };
}

Script RandomScript(const Choose& choose, const std::vector<std::string>& windowCommands,
                    const std::function<std::vector<int>(const Script&)>& momentsOfLast) {
    RandomUser user{choose};
    const bool withWindow = !windowCommands.empty();
    // Few of all commands, so that they meet.
    for (int i = choose(user.OneIn(2) ? 7 : 2); i >= 0; --i)
        user.Commands.push_back(
            user.Pick(withWindow && !user.OneIn(3) ? windowCommands : GameCommands));
    if (user.OneIn(3)) user.Commands = user.Pick(GameThemes);
    if (withWindow && user.OneIn(2)) {
        user.Commands = user.Pick(WindowThemes);
        for (int i = choose(2); i > 0; --i)
            user.Commands.push_back(user.Pick(windowCommands));
    }
    if (user.OneIn(3)) user.Commands.push_back(user.Pick(GameCommands));
    const bool isLarge = user.OneIn(40);
    if (isLarge) user.Commands = {"index %f", "index 600", "value %f %v", "value 30 1"};
    Script script = user.Rows(0);
    const auto begin = [&](std::initializer_list<const char*> commands) {
        for (const char* const first : commands)
            script.insert(script.begin(), {.Command = user.Filled(first)});
    };
    if (isLarge) begin({"init 5"});
    if (!user.OneIn(5)) begin({"index %f"});
    begin({"csv %c"});
    // An entry of the history that comes from a larger grid.
    if (user.OneIn(6)) begin({"remember 600", "trace 1"});
    // One command more, with others where something happens.
    script.push_back({.Command = user.Filled(user.Pick(user.Commands))});
    const auto moments = momentsOfLast(script);
    for (int i = moments.empty() ? 0 : 1 + choose(2); i > 0; --i) {
        Row inner = user.Command(1);
        inner.Moment = (user.OneIn(3) ? moments.back() : user.Pick(moments)) + choose(2);
        script.back().Inside.push_back(inner);
    }
    for (int i = moments.empty() ? 0 : 4; i > 0; --i)
        script.back().Inside.push_back({user.Pick(moments), "look"});
    return script;
}

// Tries to leave out each row, and those inside of it.
static void Shorten(Script& rows, const std::function<bool()>& fails) {
    for (std::size_t i = rows.size(); i-- > 0;) {
        const Script before = rows;
        rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(i));
        if (fails()) continue;
        rows = before;
        Shorten(rows[i].Inside, fails);
    }
}

Script Shortened(Script script, const std::function<bool(const Script&)>& fails) {
    Shorten(script, [&] { return fails(script); });
    return script;
}

} // namespace tessarin
