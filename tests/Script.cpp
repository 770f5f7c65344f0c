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

// %f stands for a field, %v for a value, %b for no or yes (0 or 1), %d for a dimension, %l for a
// label of a field, %k for a key of the pad, %o for a pace, %c and %s for lines of the two puzzle
// texts, separated by "|".
const std::vector<std::string> GameCommands{
    "value %f %v",  "value %f 0",  "lock %f %b", "next %f %b",  "free %f",     "index %f",
    "clear %b",     "lockall %b",  "count",      "init %d",     "csv %c",      "sdk %s",
    "importcsv %c", "texts",       "reset",      "trace %b",    "goto %b",     "back %b",
    "freedom %b",   "enter %v %b", "enter 0 0",  "playlock",    "playnext %b", "solve",
    "solve",        "esc",         "refuse",     "importsdk %s"};

// Nothing tells the grid of these, so they are not given inside others.
const std::vector<std::string> GroupCommands{"group %f %f %b", "regroup %f", "widen %f"};

struct RandomUser {
    Choose Choice;
    std::vector<std::string> Commands = {};

    bool OneIn(int number) const { return Choice(number - 1) == 0; }
    const std::string& Pick(const std::vector<std::string>& texts) const {
        return texts[static_cast<std::size_t>(Choice(static_cast<int>(texts.size()) - 1))];
    }
    // Mostly one of few, so that commands meet.
    int Field() const { return OneIn(30) ? Choice(700) - 20 : 1 + Choice(OneIn(3) ? 80 : 11); }
    int Value() const { return OneIn(9) ? Choice(30) - 9 : Choice(9); }

    // Nearly full, or nearly empty; some values are wrong, and some lines are bad.
    std::string Csv() const {
        const int percentEmpty = OneIn(3) ? 50 + Choice(50) : Choice(OneIn(2) ? 1 : 9);
        std::string lines;
        for (int i = 0; i < 81; ++i) {
            if (Choice(99) < percentEmpty) continue;
            const int right = (i / 9 * 3 + i / 27 + i % 9) % 9 + 1;
            lines += std::to_string(i + 1) + ";" + std::to_string(OneIn(60) ? Value() : right) +
                     (OneIn(2) ? ";1|" : ";0|");
            if (OneIn(400)) lines += Pick({"82;1;1", "5;3", "x;1;1", "5; +4 ;1;x", ""}) + "|";
        }
        return lines;
    }
    std::string Sdk() const {
        const int count = std::stoi(Pick({"9", "9", "9", "25", "16", "8"}));
        std::string rows;
        for (int row = 0; row < count; ++row) {
            for (int i = Choice(9); i > 0; --i)
                rows += std::to_string(OneIn(3) ? Value() : 0).append(i > 1 ? "," : "");
            if (OneIn(90)) rows += Pick({",", "x", " ", ",9999999999"});
            rows += "|";
        }
        return rows;
    }
    std::string Word(char kind) const {
        const RandomUser writer{Dice(static_cast<unsigned>(Choice(9999)))};
        switch (kind) {
        case 'f':
            return std::to_string(Field());
        case 'v':
            return std::to_string(Value());
        case 'b':
            return std::to_string(Choice(1));
        case 'd':
            return OneIn(20) ? "7" : Pick({"0", "3", "3", "3", "3", "3", "5", "4", "-1", "217"});
        case 'k':
            return std::to_string(Choice(11));
        case 'l':
            return std::to_string(1 + Choice(80));
        case 'o':
            return std::to_string(Choice(6));
        case 's':
            return writer.Sdk();
        default:
            return writer.Csv();
        }
    }
    std::string Filled(std::string command) const {
        for (std::size_t at = 0; (at = command.find('%', at)) != std::string::npos;)
            command.replace(at, 2, Word(command[at + 1]));
        return command;
    }

    Row Command(int depth) const {
        Row row{.Command = Filled(Pick(depth == 0 && OneIn(8) ? GroupCommands : Commands))};
        if (depth > 0) row.Moment = 1 + Choice(OneIn(3) ? 400 : 9);
        if (depth > 0 && OneIn(40)) row.Command = "throw";
        if (depth < 3 && OneIn(2)) row.Inside = Rows(depth + 1);
        return row;
    }
    Script Rows(int depth) const {
        Script rows;
        for (int i = Choice(depth == 0 ? 12 : 2); i > 0; --i)
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
                    const std::function<int(const Script&)>& momentsOfLast) {
    // Few of all commands, so that they meet.
    RandomUser user{choose};
    const bool withWindow = !windowCommands.empty();
    for (int i = choose(7); i >= 0; --i)
        user.Commands.push_back(
            user.Pick(withWindow && !user.OneIn(3) ? windowCommands : GameCommands));
    if (user.OneIn(6)) user.Commands = {"value %f %v", "value %f 0", "free %f", "count"};
    if (withWindow && user.OneIn(2))
        user.Commands.insert(user.Commands.end(), {"click btnSolve", "click optChill(%o)"});
    Script script = user.Rows(0);
    for (const char* const first : {"index %f", "csv %c"})
        script.insert(script.begin(), {.Command = user.Filled(first)});
    // One command more, with another near its end.
    script.push_back({.Command = user.Filled(user.Pick(user.Commands))});
    Row inner = user.Command(1);
    inner.Moment = std::max(1, momentsOfLast(script) - choose(5));
    script.back().Inside = {inner};
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
