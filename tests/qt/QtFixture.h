// The real window with a user made of mouse and key events.
#pragma once

#include "Program.h"
#include "qt/QtForm.h"
#include "qt/QtPlatform.h"
#include "qt/QtToolkit.h"
#include "ui/frmTessarin.h"

#include <QDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include <deque>
#include <functional>

namespace tessarin {

/// The real machine, which notes what passes.
class SpyPlatform final : public qt::QtPlatform {
public:
    SpyPlatform() : QtPlatform(ProgramVersion) {}

    bool ReallySleeps = false;    ///< off: a sleep takes no time
    int Activations = 0;          ///< of the window: each makes sure of the taskbar entry
    std::function<void()> AtPump; ///< runs before each pump handles its events

    void PumpEvents(Pump pump) override;
    void Sleep(int milliseconds) override;
    void Beep() override {}
    void SetWindowLongA(int handle, int index, int value) override;
    void ReportError(const std::string& what) override { ADD_FAILURE() << what; }
};

/// The window, shown and active. Whatever the user does is handled before the call returns: the
/// command that it started has ended then, its boxes answered as told before.
class QtFixture : public testing::Test {
protected:
    QtFixture();

    // Events go to the window that is seen, so that modal boxes, open menus and disabled panels
    // keep them from the controls as they do on a screen.
    void Click(QWidget& widget, QPoint where, Qt::MouseButton button = Qt::LeftButton);
    void Click(const std::string& name) { Click(Widget(name), Widget(name).rect().center()); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    std::string Focus() { return form->focusWidget()->objectName().toStdString(); }
    /// Opens the menus on the way to the entry and clicks it. False when one does not open.
    bool Menu(const QString& entry);
    void Import(const QString& path);
    /// As a window manager does when a box is gone.
    void Activate();

    // How the user answers the boxes to come, in order.
    void Answer(QMessageBox::StandardButton button, std::function<void()> whileOpen = {});
    void ChooseFile(const QString& path);
    void CancelDialog();
    /// What happens to a box that nobody expects: it is a failure.
    std::function<void(QDialog&)> Unexpected;
    /// The message boxes seen so far: "title: text [? No Yes]", "?" for the question icon.
    QStringList Boxes;

    QWidget& Widget(const std::string& name);
    QMenuBar& MenuBar() { return *form->findChild<QMenuBar*>(); }
    Fields& Grid() { return *goGame->Fields; }
    Field& At(int index) { return *Grid().Items.Item(index); }
    /// A file with that content in the scratch folder.
    QString File(const QString& name, const QByteArray& content);

    QTemporaryDir folder;
    SpyPlatform platform;
    qt::QtToolkit toolkit{platform};
    frmTessarin window{toolkit};
    QWidget* const form = &platform.CurrentForm();

private:
    void LookForBox();

    QTimer mEyes;
    QPointer<QDialog> mSeen;
    std::deque<std::function<void(QDialog&)>> mAnswers;
};

} // namespace tessarin
