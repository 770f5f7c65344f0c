// SPDX-License-Identifier: MIT
#pragma once

#include "Script.h"

namespace tessarin {

constexpr bool WithWindow = true;

/// Gives the commands to the program and to its model. If they do not do the same, returns the rows
/// that show it, as code for a test, and the first line of what is told that differs; otherwise "".
/// Told are events, pumps, calls of the machine, results and errors in their order; in the first
/// moment of each command and after it, and before an inner one, values, locks, cursor, history and
/// dead fields; with a window also what has changed of all that is seen and heard.
///
///     value 5 7, lock 5 1, next 5 1    field 5 gets a value, a lock, its next free value
///     free 5                           its free values, groups and neighbours
///     csv TEXT, sdk TEXT, texts        loads the grid, writes it; "|" stands for a line break
///     init 5, index 5, clear 1 (those that are not locked), lockall 1
///     count 3                          the count with that number, from 0, then all
///     group 5 9 1                      a group of field 9 for field 5; 1: the game has it, too
///     ungroup 5, regroup 5, widen 9    no groups; the last one once more; with field 9, too
///     goto 1, back 1, freedom 1        the player, with AutoValue
///     enter 7 1, playnext 1, playlock, solve, reset
///     trace 1, remember 600            traces the history; a new entry of it
///     importcsv TEXT, importsdk TEXT   from a file
///     esc                              ESC is pressed
///     refuse                           the next box is answered No, the next dialog by a new file
///     click CONTROL, import TEXT, activate, close, tick
///     throw                            the handler of an event fails
///     look                             nothing, but the state is told
std::string Disagreement(const Script& script, bool withWindow);

/// A user who makes these choices: see Script.h.
Script RandomScript(const Choose& choose, bool withWindow);

} // namespace tessarin
