// SPDX-License-Identifier: MIT
// The one game of the run, and the About text.
#pragma once

#include <string>

namespace tessarin {

class Game;

/// The game: set first of all in its constructor, cleared last in its destructor. A program has
/// one; of several the newest counts, and once it has ended none. What needs only the grid takes
/// Grid() of model/Board.h.
extern Game* goGame;

/// The text that ShowAbout builds.
extern std::string gsAboutText;

/// Shows the About text in a message box.
void ShowAbout();

/// Appends a line to gsAboutText.
void AddAboutLine(const std::string& line);

} // namespace tessarin
