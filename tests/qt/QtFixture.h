// The real window with a user made of mouse and key events.
#pragma once

#include "GameFixture.h"
#include "Program.h"
#include "qt/QtForm.h"
#include "qt/QtPlatform.h"
#include "qt/QtToolkit.h"
#include "ui/frmTessarin.h"

#include <QDialog>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>

#include <deque>
#include <functional>

namespace tessarin {

/// The real platform, which records some calls.
class SpyPlatform final : public qt::QtPlatform, public CallLog {
public:
    SpyPlatform() : QtPlatform(ProgramVersion) {}

    bool ReallySleeps = false;    ///< off: a sleep takes no time
    int Activations = 0;          ///< counted by the taskbar entry that each sets
    std::function<void()> AtPump; ///< runs before each pump handles its events

    void PumpEvents(Pump pump) override;
    void Sleep(int milliseconds) override;
    Message::Answer ShowMessage(const Message& message) override;
    void Beep() override {}
    void SetWindowLongA(int handle, int index, int value) override;
    void ReportError(const std::string& what) override { ADD_FAILURE() << what; }
};

struct QtParts {
    SpyPlatform platform;
    qt::QtToolkit toolkit{platform};
    frmTessarin window{toolkit};
    QWidget* const form = &platform.CurrentForm();
};

/// The window, shown and active, which executes commands given as text. A step that the user does
/// returns when its command has ended and its boxes are answered, in the way set before.
class QtFixture : public testing::Test, protected QtParts, public GameScript {
protected:
    QtFixture();

    // Events are sent to the top window, so that modal boxes, open menus and disabled panels keep
    // them from the controls as they do for a user.
    void Click(QWidget& widget, QPoint where, Qt::MouseButton button = Qt::LeftButton);
    void Key(const std::string& keys);
    /// Opens the menus on the way to the entry and clicks it; tells "shut" if one does not open.
    void Menu(const QString& entry);
    /// Activates the window, as a window manager does after a box.
    void Activate();

    /// Called when the next box is open, before its answer.
    std::function<void(QDialog&)> WhileOpen;
    /// Handles a box without an answer: by default a failure.
    std::function<void(QDialog&)> Unexpected;

    QWidget& Widget(const std::string& name);
    QMenuBar& MenuBar() { return *form->findChild<QMenuBar*>(); }

private:
    void LookForBox();

    QTimer mEyes;
    QPointer<QDialog> mSeen;
    std::deque<std::string> mAnswers; // a button, "Esc" or the path of a file
};

} // namespace tessarin
