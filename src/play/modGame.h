// The one game of the run, and the About text.
#pragma once

#include <string>

namespace tessarin {

class Game;

/// The game of the run: set by its creation before anything else, cleared by its end.
extern Game* goGame;

/// The About text while ShowAbout puts it together.
extern std::string gsAboutText;

/// Shows what the program is, in a message box.
void ShowAbout();

/// Appends a line to gsAboutText.
void AddAboutLine(const std::string& line);

} // namespace tessarin
