// SPDX-License-Identifier: MIT
#include "qt/QtPlatform.h"

#include "platform/AtScopeEnd.h"
#include "platform/ScopedValue.h"

#include <QAbstractEventDispatcher>
#include <QDeadlineTimer>
#include <QDialog>
#include <QFileInfo>
#include <QSettings>
#include <QStyleFactory>
#include <QThread>

#include <algorithm>
#include <utility>

namespace tessarin::qt {

QtPlatform::QtPlatform(VersionRecord version) : mVersion(std::move(version)) {
    QApplication::setStyle(QStyleFactory::create("fusion"));
    // Texts and paths are the same in every language, and mirrored "<" would be read as ">".
    QApplication::setLayoutDirection(Qt::LeftToRight);
    // File dialogs would keep the folders visited in the user's settings.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
    Platform::SetCurrent(this);
}

QtPlatform::~QtPlatform() {
    Platform::SetCurrent(nullptr);
}

void QtPlatform::PumpEvents(Pump pump) {
    if (mbClosed || (pump == Pump::WhenDue && !IsPumpDue())) return;
    const ScopedValue<bool> ticking(mbTicksHeld, false);
    mbPumpIsDue = false; // first: what changes inside makes the next pump due again
    mSincePump.start();
    QApplication::processEvents();
}

// Even if nothing is waiting, Qt's pump asks the kernel, which takes fifty times as long as the
// puzzle logic works between two pumps. So pumps are made at least half a millisecond apart, unless
// a field has changed. Reading the clock is slow, too: only every eighth call does.
bool QtPlatform::IsPumpDue() {
    constexpr qint64 NanosecondsBetween = 500'000;
    constexpr unsigned PumpsPerLook = 8;
    if (mbPumpIsDue) return true;
    return ++mlPumpsAsked % PumpsPerLook == 0 && mSincePump.nsecsElapsed() >= NanosecondsBetween;
}

// Sleeps in slices, so that the window is painted and activated meanwhile. What the user does,
// closing the window included, waits for the next pump; so do the timers. Only an activation may
// pump.
void QtPlatform::Sleep(int milliseconds) {
    constexpr qint64 SliceMilliseconds = 20;
    const QDeadlineTimer end(milliseconds);
    mbPumpIsDue = true;
    while (!mbClosed && !end.hasExpired()) {
        QThread::msleep(
            static_cast<unsigned long>(std::min(SliceMilliseconds, end.remainingTime())));
        const ScopedValue<bool> held(mbTicksHeld, true);
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    // Otherwise GLib's event loop would not look at what has waited until something new arrives.
    QAbstractEventDispatcher::instance()->wakeUp();
}

void QtPlatform::SetMousePointer(MousePointer pointer) {
    mbHourglass = pointer == MousePointer::Hourglass;
    ApplyPointer();
}

std::string QtPlatform::ProgramName() {
    return QFileInfo(QApplication::applicationFilePath()).completeBaseName().toStdString();
}

void QtPlatform::SetWindow(QWidget& window, std::function<QRect()> area) {
    mWindow = &window;
    mArea = std::move(area);
}

void QtPlatform::Close() {
    mbClosed = true;
    SetMousePointer(MousePointer::Default);
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows)
        if (auto* const dialog = qobject_cast<QDialog*>(window)) dialog->reject();
}

int QtPlatform::RunModal(QDialog& dialog) {
    const AtScopeEnd closed([this] {
        --mlOpenDialogs;
        ApplyPointer();
        mbPumpIsDue = true;
    });
    ++mlOpenDialogs;
    ApplyPointer();
    return dialog.exec();
}

// Qt keeps a stack of pointers: one that is set twice would have to be restored twice. While a
// dialog is open the program waits for the user, so the hourglass would be wrong.
void QtPlatform::ApplyPointer() {
    const bool shown = QApplication::overrideCursor() != nullptr;
    const bool wanted = mbHourglass && mlOpenDialogs == 0;
    if (wanted && !shown) QApplication::setOverrideCursor(Qt::WaitCursor);
    if (shown && !wanted) QApplication::restoreOverrideCursor();
}

} // namespace tessarin::qt
