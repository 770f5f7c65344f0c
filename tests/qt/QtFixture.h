// The real window with a user made of mouse and key events.
#pragma once

#include "GameFixture.h"
#include "Program.h"
#include "ScratchFolder.h"
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

/// The real machine, which notes what passes.
class SpyPlatform final : public qt::QtPlatform, public CallLog {
public:
    SpyPlatform() : QtPlatform(ProgramVersion) {}

    bool ReallySleeps = false;    ///< off: a sleep takes no time
    int Activations = 0;          ///< of the window: each makes sure of the taskbar entry
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

/// The window, shown and active, worked by lines of text. Whatever the user does is handled before
/// a step ends: the command that it started has ended then, its boxes answered as told before.
class QtFixture : public testing::Test, protected QtParts, public GameScript {
protected:
    QtFixture();

    // Events go to the window that is seen, so that modal boxes, open menus and disabled panels
    // keep them from the controls as they do on a screen.
    void Click(QWidget& widget, QPoint where, Qt::MouseButton button = Qt::LeftButton);
    void Key(const std::string& keys);
    /// Opens the menus on the way to the entry and clicks it; tells "shut" if one does not open.
    void Menu(const QString& entry);
    /// As a window manager does when a box is gone.
    void Activate();

    /// What else is done while the next box is open.
    std::function<void(QDialog&)> WhileOpen;
    /// What happens to a box that nobody expects: it is a failure.
    std::function<void(QDialog&)> Unexpected;

    QWidget& Widget(const std::string& name);
    QMenuBar& MenuBar() { return *form->findChild<QMenuBar*>(); }

    ScratchFolder folder;

private:
    void LookForBox();

    QTimer mEyes;
    QPointer<QDialog> mSeen;
    std::deque<std::string> mAnswers; // a button, "Esc" or the path of a file
};

} // namespace tessarin
