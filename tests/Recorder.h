#pragma once

#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace tessarin {

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
    void AtPump(int n, std::function<void()> action);

    std::string Record; ///< each item with a blank behind it
    bool TellsPumps = false;
    std::function<std::vector<int>()> History; ///< the player's; set before the first Tell
    std::function<void()> Meanwhile = [] {};   ///< runs while a box is open and during a sleep

protected:
    /// To be called in each pump.
    void Pumped();

private:
    void TellText(const std::string& text);

    std::vector<int> mHistory; // as told last
    int mPumps = 0;
    int mPumpsTold = 0;
    int mPumpOfAction = 0;
    std::function<void()> mAction;
};

} // namespace tessarin
