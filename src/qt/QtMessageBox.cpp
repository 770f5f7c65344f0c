// SPDX-License-Identifier: MIT
// The message box.
#include "qt/BoxPlace.h"
#include "qt/QtLook.h"
#include "qt/QtPlatform.h"
#include "qt/WindowFrame.h"

#include <QGridLayout>
#include <QMessageBox>
#include <QScreen>
#include <QWindow>

namespace tessarin::qt {

namespace {

// There a modal dialog with a parent is fixed over the middle of it and darkens it, so that the
// fields could not be seen. Without one it still stays above the windows of its program.
bool IsOnGnome() {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':').contains("GNOME");
}

// Opens beside `area`, the part of its window that its text is about.
class QtMessageBox : public QMessageBox {
public:
    QtMessageBox(const Message& message, QWidget& window, const QRect& area)
        : QMessageBox(&window), mWindow(window), mArea(area) {
        const bool isQuestion = message.ButtonSet == Message::Buttons::YesNo;
        setWindowTitle(message.Title.empty() ? window.windowTitle() : ToQt(message.Title));
        setTextFormat(Qt::PlainText);
        setText(ToQt(message.Prompt));
        setIcon(message.QuestionIcon ? Question : NoIcon);
        setStandardButtons(isQuestion ? Yes | No : Ok);
        // Unless it is set, the default button depends on the desktop.
        setDefaultButton(isQuestion ? Yes : Ok);
        // However short its text, its title fits between the icon and the buttons of the frame,
        // also where a desktop adds " <2>".
        const int least = 23 * fontMetrics().height();
        if (auto* const grid = qobject_cast<QGridLayout*>(layout()))
            grid->addItem(new QSpacerItem(least, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }

protected:
    // QMessageBox fixes its size.
    bool event(QEvent* event) override {
        const bool handled = QMessageBox::event(event);
        if (IsOnWayland()) setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        return handled;
    }

    void showEvent(QShowEvent* event) override {
        // QDialog would first centre the box, and some window managers show it there.
        if (!mArea.isEmpty()) setAttribute(Qt::WA_Moved);
        if (IsOnGnome() && !IsOnWayland()) windowHandle()->setTransientParent(nullptr);
        QMessageBox::showEvent(event);
        if (mArea.isEmpty()) return;
        // With room for a frame: some window managers put the frame at that place, others the box
        // itself.
        const QMargins frame = mWindow.windowHandle()->frameMargins();
        const QRect screen = mWindow.screen()->availableGeometry();
        move(PlaceBeside(mArea.marginsAdded(frame), size().grownBy(frame), screen));
    }

private:
    const QWidget& mWindow;
    const QRect mArea;
};

} // namespace

Message::Answer QtPlatform::ShowMessage(const Message& message) {
    if (mbClosed || !mWindow) return message.Refusal();
    QtMessageBox box(message, *mWindow, mArea());
    const bool isConfirmed = RunModal(box) == QMessageBox::Yes;
    return isConfirmed ? Message::Answer::Yes : message.Refusal();
}

} // namespace tessarin::qt
