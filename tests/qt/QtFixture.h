// SPDX-License-Identifier: MIT
// The real window with a user made of mouse and key events.
#pragma once

#include "Program.h"
#include "WindowUser.h"
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

    bool ReallySleeps = false;                      ///< off: a sleep takes no time
    const QFont DesktopFont = QApplication::font(); ///< as it was before the window

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

/// The real toolkit, which knows the controls that it has made, and what their clicks run.
class SpyToolkit final : public qt::QtToolkit {
    auto Note(auto& control) {
        Controls.push_back(&control);
        if constexpr (requires { control.Click; }) Clicks.emplace(&control, control.Click);
        return QtToolkit::Create(control);
    }

public:
    using QtToolkit::QtToolkit;

    std::vector<const Control*> Controls;
    std::map<const Control*, std::function<void()>&> Clicks;

    using QtToolkit::Create;
    std::unique_ptr<ControlPeer> Create(CommandButton& button) override { return Note(button); }
    std::unique_ptr<ControlPeer> Create(Frame& frame) override { return Note(frame); }
    std::unique_ptr<LabelPeer> Create(Label& label) override { return Note(label); }
    std::unique_ptr<ControlPeer> Create(MenuItem& item) override { return Note(item); }
    std::unique_ptr<OptionPeer> Create(OptionButton& option) override { return Note(option); }
};

using QtParts = WindowParts<SpyPlatform, SpyToolkit>;

/// The window, shown and active. What the user does returns when its command has ended and its
/// boxes are answered: by the name of a file, which has a dot, or by a key, "Esc" if there is no
/// answer. After each step, each box and each test ExpectOrder looks at the window.
class QtFixture : public testing::Test, protected QtParts, public WindowUser {
protected:
    QWidget* const form = &platform.Window();

    QtFixture();
    void TearDown() override;

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
    /// Moves the mouse pointer to the title of a menu.
    void PointAtMenu(const QString& title);
    void Focus(const std::string& control) { Widget(control).setFocus(); }
    /// "" for the menu bar.
    std::string Focused() { return form->focusWidget()->objectName().toStdString(); }
    /// The user returns to the window, if it is not behind a box.
    void Activate();
    /// From now on clicks are only told, by the names of the controls.
    void TellClicks();
    /// Fails unless the window shows what its controls say, and the keyboard is where it belongs.
    void ExpectOrder();

    /// The file dialog that is open, when it has listed its folder.
    static QFileDialog& Dialog();
    /// Sends a click to the top window, so that modal boxes, open menus and disabled panels keep it
    /// from the controls as they do for a user.
    static void ClickAt(QWidget& widget, QPoint where);

    QWidget& Widget(const std::string& name);
    QImage Picture(const char* control) { return Widget(control).grab().toImage(); }

private:
    // Clicks a control near its corner. An entry of a menu is triggered as by a key.
    void ClickControl(const std::string& control) override;
    static QDialog* Box() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }
    void Press(const QString& keys);
    void SendKey(QEvent::Type type, int time, const QString& key);
    void LookForBox();
    void ExpectShown(const TextControl& control);
    void ExpectFocusOnCurrentField();
    void EndStep(const std::string& focusBefore);

    QTimer mEyes;
};

} // namespace tessarin
