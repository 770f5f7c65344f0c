#pragma once

#include "toolkit/Controls.h"

#include <QTimer>

namespace tessarin::qt {

class QtPlatform;

/// The peer of a timer.
class QtTimerPeer : public ControlPeer {
public:
    QtTimerPeer(Timer& timer, QtPlatform& platform);
    void Changed(Property property) override;

private:
    void Tick();

    Timer& mControl;
    QtPlatform& mPlatform;
    QTimer mTimer;
};

} // namespace tessarin::qt
