// SPDX-License-Identifier: MIT
// The real window with a user made of mouse and key events.
#pragma once

#include "Program.h"
#include "WindowUser.h"
#include "qt/QtForm.h"
#include "qt/QtPlatform.h"
#include "qt/QtToolkit.h"

#include <QTest>
#include <QtWidgets>

/// In messages of failures.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << text.toStdString();
}

namespace tessarin {

/// The real platform, which records some calls.
class SpyPlatform final : public qt::QtPlatform, public Recorder {
public:
    SpyPlatform() : QtPlatform(ProgramVersion) {}

    bool ReallySleeps = false; ///< off: a sleep takes no time

    void PumpEvents(Pump pump) override {
        Pumped();
        QtPlatform::PumpEvents(pump);
    }
    void Sleep(int milliseconds) override {
        Paused();
        if (ReallySleeps) QtPlatform::Sleep(milliseconds);
    }
    void ReportError(const std::string& what) override { ADD_FAILURE() << what; }
};

using QtParts = WindowParts<SpyPlatform, qt::QtToolkit>;

/// The window, shown and active. What the user does returns when its command has ended and its
/// boxes are answered: those without an answer by their only button, dialogs by ESC. "Esc" and
/// "Return" are answers, too.
class QtFixture : public testing::Test, protected QtParts, public WindowUser {
protected:
    QWidget* const form = &platform.Window();

    QtFixture();
    void TearDown() override { platform.ExpectNothingLeft(); }

    /// Presses and releases a key, "Ctrl+Home", in the window that would get it.
    void Key(const QString& keys);
    /// The press of a key, its release, and a repeat while it is held: X11 sends that as a release
    /// and a press at the same time, and does not mark it. Times are in milliseconds.
    void Down(int time, const QString& key) { SendKey(QEvent::KeyPress, time, key); }
    void Up(int time, const QString& key) { SendKey(QEvent::KeyRelease, time, key); }
    void Repeat(int time, const QString& key) {
        Up(time, key);
        Down(time, key);
    }
    /// Does something with the mouse near the corner of a control.
    void Mouse(QTest::MouseAction action, const std::string& control,
               Qt::MouseButton button = Qt::LeftButton);
    void Focus(const std::string& control) { Widget(control).setFocus(); }
    std::string Focused() { return form->focusWidget()->objectName().toStdString(); }
    /// The user returns to the window, if it is not behind a box.
    void Activate();
    static bool HasHourglass();
    /// From now on clicks on fields and on "I" are only told.
    void TellClicks();

    /// The file dialog that is open, when it has listed its folder.
    static QFileDialog& Dialog();
    /// Types a name into it. While a path grows, the dialog itself selects rows of its list.
    static void Type(const QString& name);
    /// Sends a click to the top window, so that modal boxes, open menus and disabled panels keep it
    /// from the controls as they do for a user.
    static void ClickAt(QWidget& widget, QPoint where);

    QWidget& Widget(const std::string& name);
    QMenuBar& MenuBar() { return *form->findChild<QMenuBar*>(); }

private:
    // Clicks the middle of a control. An entry of a menu is triggered as by a key.
    void ClickControl(const std::string& control) override;
    QWidget& Top();
    void SendKey(QEvent::Type type, int time, const QString& key);
    void LookForBox();
    void AnswerBox(QDialog& dialog);

    QTimer mEyes;
};

} // namespace tessarin
