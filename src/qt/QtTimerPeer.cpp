#include "qt/QtTimerPeer.h"

#include "qt/QtPlatform.h"

namespace tessarin::qt {

QtTimerPeer::QtTimerPeer(Timer& timer, QtPlatform& platform)
    : mControl(timer), mPlatform(platform) {
    mTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&mTimer, &QTimer::timeout, [this] { Tick(); });
}

void QtTimerPeer::Changed(Property /*property*/) {
    if (mControl.Enabled())
        mTimer.start(mControl.Interval());
    else
        mTimer.stop();
}

// A QTimer does not fire again before its handler has returned. But a tick pumps window events, and
// a whole command may run in them: the rotor would stand still until that command ends. Restarting
// the timer before the tick is handled makes it fire all the same, so ticks nest.
void QtTimerPeer::Tick() {
    if (mPlatform.TicksHeld()) return mTimer.start(0); // try again with the next events
    mTimer.start(mControl.Interval());
    mControl.RaiseTick();
}

} // namespace tessarin::qt
