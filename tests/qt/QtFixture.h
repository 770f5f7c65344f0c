// The real window with a user made of mouse and key events.
#pragma once

#include "Program.h"
#include "WindowScript.h"
#include "qt/QtForm.h"
#include "qt/QtPlatform.h"
#include "qt/QtToolkit.h"

#include <QTest>
#include <QtWidgets>

namespace tessarin {

/// The real platform, which records some calls.
class SpyPlatform final : public qt::QtPlatform, public Recorder {
public:
    SpyPlatform() : QtPlatform(ProgramVersion) {}

    bool ReallySleeps = false;              ///< off: a sleep takes no time
    std::function<void()> EachPump = [] {}; ///< runs before each pump handles its events

    void PumpEvents(Pump pump) override {
        EachPump();
        Pumped();
        QtPlatform::PumpEvents(pump);
    }
    void Sleep(int milliseconds) override {
        if (ReallySleeps) QtPlatform::Sleep(milliseconds);
    }
    void ReportError(const std::string& what) override { ADD_FAILURE() << what; }
};

using QtParts = WindowParts<SpyPlatform, qt::QtToolkit>;

/// The window, shown and active. A step that the user does returns when its command has ended and
/// its boxes are answered: by what is set for them, else a message with OK and a dialog with ESC.
class QtFixture : public testing::Test, protected QtParts, public WindowScript {
protected:
    QWidget* const form = &platform.CurrentForm();

    QtFixture();
    void TearDown() override { EXPECT_EQ(mAnswers.join("|"), "") << "not asked"; }

    /// Clicks the middle of a control; to an entry of a menu through all menus on the way.
    void Click(const std::string& control) override;
    void Answer(const std::string& answer) override { mAnswers << QString::fromStdString(answer); }

    QWidget& Widget(const std::string& name);
    QMenuBar& MenuBar() { return *form->findChild<QMenuBar*>(); }

private:
    void Activate();
    // Sends a click to the top window, so that modal boxes, open menus and disabled panels keep it
    // from the controls as they do for a user.
    static void ClickAt(QWidget& widget, QPoint where);
    // Presses and releases a key in the window that would get it.
    void Key(const QString& keys);
    QWidget& Top();
    void OpenMenuAndClick(const QString& entry);
    void LookForBox();
    void AnswerBox(QDialog& dialog);

    QTimer mEyes;
    QPointer<QDialog> mSeen;
    QStringList mAnswers; // a button, "Esc" or the path of a file
};

} // namespace tessarin
