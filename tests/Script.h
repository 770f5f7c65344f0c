// SPDX-License-Identifier: MIT
// Commands that the program and its model understand alike.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tessarin {

/// A command, and those that are given while it runs.
struct Row {
    int Moment = 0; ///< for an inner one: in which event or pump of the outer one, from 1
    std::string Command = {};
    std::vector<Row> Inside = {}; ///< by Moment
};
using Script = std::vector<Row>;

/// The script as a test takes it: {0, "solve", {{12, "index 5"}}}.
std::string ToCode(const Script& script);

/// Makes the choices of a random user: a number from 0 to `last`.
using Choose = std::function<int(int last)>;
/// Choices that are the same for the same seed, with every library.
Choose Dice(unsigned seed);

/// Loads a grid and goes on with any commands, also inside of others. `momentsOfLast` tells in
/// which moments of the last command of a script something has just happened.
Script RandomScript(const Choose& choose, const std::vector<std::string>& windowCommands,
                    const std::function<std::vector<int>(const Script&)>& momentsOfLast);

/// Leaves out every row without which the script still fails.
Script Shortened(Script script, const std::function<bool(const Script&)>& fails);

} // namespace tessarin
