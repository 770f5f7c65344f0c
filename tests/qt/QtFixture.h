// The real window with a user made of mouse and key events.
#pragma once

#include "GameFixture.h"
#include "Program.h"
#include "qt/QtForm.h"
#include "qt/QtPlatform.h"
#include "qt/QtToolkit.h"
#include "ui/frmTessarin.h"

#include <QTest>
#include <QtWidgets>

namespace tessarin {

/// The real platform, which records some calls.
class SpyPlatform final : public qt::QtPlatform, public Recorder {
public:
    SpyPlatform() : QtPlatform(ProgramVersion) {}

    bool ReallySleeps = false;            ///< off: a sleep takes no time
    std::function<void()> AtPump = [] {}; ///< runs before each pump handles its events

    void PumpEvents(Pump pump) override {
        AtPump();
        QtPlatform::PumpEvents(pump);
    }
    void Sleep(int milliseconds) override {
        if (ReallySleeps) QtPlatform::Sleep(milliseconds);
    }
    void SetWindowLongA(int handle, int index, int value) override {
        Tell("Taskbar"); // once for each activation
        QtPlatform::SetWindowLongA(handle, index, value);
    }
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
    QtFixture() : GameScript(platform, *goGame) {
        const auto add = [this](const char* name, auto command) { mCommands[name] = command; };
        add("click", [this](int, auto& n) { Click(Widget(n), Widget(n).rect().center()); });
        add("key", [this](int, auto& keys) { Key(keys); });
        add("menu", [this](int, auto& entry) { Menu(QString::fromStdString(entry)); });
        add("answer", [this](int, auto& answer) { mAnswers << QString::fromStdString(answer); });
        add("choose", [this](int, auto& n) { mAnswers << QString::fromStdString(folder + n); });
        add("import", [this](int, auto& puzzle) {
            mAnswers << QString::fromStdString(TESSARIN_PUZZLES + puzzle);
            Menu("mnuFileImportCSV");
        });
        add("to", [this](int, auto& name) { Widget(name).setFocus(); });
        add("focus", [this](int, auto&) { Tell(form->focusWidget()->objectName().toStdString()); });
        add("activate", [this](int, auto&) { Activate(); });
        // What is not as it is while no command runs.
        add("busy", [this](int, auto&) {
            const bool hourglass = QApplication::overrideCursor() != nullptr;
            Tell(hourglass ? "hourglass" : form->isVisible() ? "" : "closed");
        });
        // From now on clicks on fields and options are only told.
        add("record", [this](int, auto&) {
            window.lblField.Click = [this](int index) { Tell("field ", index); };
            window.optChill.Click = [this](int index) { Tell("pace ", index); };
        });
        QObject::connect(&mEyes, &QTimer::timeout, [this] { LookForBox(); });
        mEyes.start(LookMilliseconds);
        window.Show();
        Activate();
        mRecorder.Told.clear();
    }
    ~QtFixture() override { EXPECT_EQ(mAnswers.join("|"), "") << "not asked"; }

    // Events are sent to the top window, so that modal boxes, open menus and disabled panels keep
    // them from the controls as they do for a user.
    static void Click(QWidget& widget, QPoint where) {
        QWidget* const top = widget.window();
        QTest::mouseClick(top->windowHandle(), Qt::LeftButton, {}, widget.mapTo(top, where));
    }
    void Key(const std::string& keys) {
        // Without a pause a second press would count as a repeat.
        QTest::qWait(LookMilliseconds);
        QWidget* top = QApplication::activePopupWidget();
        if (top == nullptr) top = QApplication::activeModalWidget();
        const QKeyCombination key =
            keys == "Alt" ? Qt::Key_Alt : QKeySequence(QString::fromStdString(keys))[0];
        QTest::keyClick((top == nullptr ? form : top)->windowHandle(), key.key(),
                        key.keyboardModifiers());
    }
    /// Activates the window, as a window manager does after a box.
    void Activate() {
        form->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form));
    }

    /// Called when the next box is open, before its answer. It may close the box.
    std::function<void(QDialog&)> WhileOpen;

    QWidget& Widget(const std::string& name) {
        auto* const widget = form->findChild<QWidget*>(QString::fromStdString(name));
        if (widget == nullptr) throw std::invalid_argument("no control");
        return *widget;
    }
    QMenuBar& MenuBar() { return *form->findChild<QMenuBar*>(); }

private:
    static constexpr int LookMilliseconds = 20;

    // Opens the menus on the way to the entry and clicks it; tells "shut" if one does not open.
    void Menu(const QString& entry) {
        auto* const action = form->findChild<QAction*>(entry);
        auto* const menu = qobject_cast<QMenu*>(action->associatedObjects().constFirst());
        if (menu == nullptr) return Click(MenuBar(), MenuBar().actionGeometry(action).center());
        Menu(menu->menuAction()->objectName());
        if (!QTest::qWaitFor([&] { return menu->isVisible(); }, 500)) return Tell("shut");
        Click(*menu, menu->actionGeometry(action).center());
    }

    void LookForBox() {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog == mSeen) return;
        // Only an active box can be answered. A window manager would activate it.
        if (!dialog->isActiveWindow()) return dialog->activateWindow();
        mSeen = dialog;
        mEyes.start(); // fires again although this handler has not ended
        TellBox(*dialog);
        if (const auto meanwhile = std::exchange(WhileOpen, nullptr)) meanwhile(*dialog);
        if (!dialog->isVisible()) return;
        const QString answer = mAnswers.isEmpty() ? "none" : mAnswers.takeFirst();
        for (auto* const button : dialog->findChildren<QPushButton*>())
            if (button->text().remove('&') == answer) return Click(*button, {5, 5});
        if (!answer.contains('/')) {
            EXPECT_EQ(answer, "Esc") << "box without an answer";
            return Key("Esc");
        }
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(answer);
        QMetaObject::invokeMethod(dialog, "accept");
    }

    // Title, text, "?" for the icon of a question, and the buttons, the default one after "[".
    void TellBox(const QDialog& dialog) {
        QString told = dialog.windowTitle();
        if (const auto* const box = qobject_cast<const QMessageBox*>(&dialog))
            told += "|" + box->text() + (box->icon() == QMessageBox::Question ? "|?" : "|-");
        for (auto* const button : dialog.findChildren<QPushButton*>())
            told += (button->isDefault() ? " [" : " ") + button->text();
        Tell("Box(" + told.toStdString() + ")");
    }

    QTimer mEyes;
    QPointer<QDialog> mSeen;
    QStringList mAnswers; // a button, "Esc" or the path of a file
};

} // namespace tessarin
