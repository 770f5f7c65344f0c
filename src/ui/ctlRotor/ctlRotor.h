// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"
#include "toolkit/Controls.h"

#include <deque>
#include <string>

namespace tessarin {

/// A turning rotor that shows that the program is busy. Twelve pictures lie on top of each other,
/// each turned 10 degrees counterclockwise from the one before; a timer shows one after the other.
/// While the rotor runs, the mouse pointer is the hourglass. The control always has the size of one
/// picture, 480 by 480 twips.
class ctlRotor : public UserControl {
public:
    ctlRotor(Control& container, std::string name, const Bounds& place);

    /// True starts or restarts the rotor, which shows a picture from the next tick on. False stops
    /// it, hides all pictures and pumps window events.
    void SetRunning(bool SetRunning);
    bool Running() const { return FrameIndex >= 0; }

private:
    void UserControl_Initialize();
    void UserControl_Resize();
    void Start();
    void Stop();
    void Timer1_Timer();
    void ShowFrameAndPump();
    void SetPointer(MousePointer pointer) const;

    void BoundsChanged() override { UserControl_Resize(); }

    std::deque<Picture> Image1; // counts from 0
    Timer Timer1{*this, "Timer1"};
    bool UseHourglass = true; // the pointer is an hourglass while the rotor turns
    int FrameIndex = -1;      // the picture shown last, 0 at the start; -1 while stopped
};

} // namespace tessarin
