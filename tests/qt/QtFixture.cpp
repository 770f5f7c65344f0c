#include "QtFixture.h"

#include <QApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace tessarin {

namespace {

constexpr int LookMilliseconds = 20;

} // namespace

void SpyPlatform::PumpEvents(Pump pump) {
    if (AtPump) AtPump();
    QtPlatform::PumpEvents(pump);
}

void SpyPlatform::Sleep(int milliseconds) {
    if (ReallySleeps) QtPlatform::Sleep(milliseconds);
}

Message::Answer SpyPlatform::ShowMessage(const Message& message) {
    Note("Box", message.Prompt);
    return QtPlatform::ShowMessage(message);
}

void SpyPlatform::SetWindowLongA(int handle, int index, int value) {
    ++Activations;
    QtPlatform::SetWindowLongA(handle, index, value);
}

QtFixture::QtFixture() : GameScript(platform, *goGame) {
    mCommands["click"] = [this](int, auto& name) {
        Click(Widget(name), Widget(name).rect().center());
    };
    mCommands["key"] = [this](int, auto& keys) { Key(keys); };
    mCommands["menu"] = [this](int, auto& entry) { Menu(QString::fromStdString(entry)); };
    mCommands["answer"] = [this](int, auto& answer) { mAnswers.push_back(answer); };
    mCommands["choose"] = [this](int, auto& name) { mAnswers.push_back(folder.File(name)); };
    mCommands["import"] = [this](int, auto& puzzle) {
        mAnswers.push_back(TESSARIN_PUZZLES + puzzle);
        Menu("mnuFileImportCSV");
    };
    mCommands["to"] = [this](int, auto& name) { Widget(name).setFocus(); };
    mCommands["focus"] = [this](int, auto&) {
        Tell(form->focusWidget()->objectName().toStdString());
    };
    mCommands["cursor"] = [this](int, auto&) { Tell(std::to_string(grid.Index())); };
    mCommands["left"] = [this](int, auto&) { Tell(std::to_string(grid.FreeCount())); };
    mCommands["activate"] = [this](int, auto&) { Activate(); };
    Unexpected = [](QDialog& dialog) {
        ADD_FAILURE() << "unexpected box " << dialog.windowTitle().toStdString();
        dialog.reject();
    };
    QObject::connect(&mEyes, &QTimer::timeout, [this] { LookForBox(); });
    mEyes.start(LookMilliseconds);
    window.Show();
    Activate();
    mTold.clear();
}

void QtFixture::Click(QWidget& widget, QPoint where, Qt::MouseButton button) {
    QWidget* const top = widget.window();
    QTest::mouseClick(top->windowHandle(), button, {}, widget.mapTo(top, where));
}

void QtFixture::Key(const std::string& keys) {
    // Without a pause a second press would count as a repeat.
    QTest::qWait(LookMilliseconds);
    QWidget* top = QApplication::activePopupWidget();
    if (top == nullptr) top = QApplication::activeModalWidget();
    const QKeyCombination key =
        keys == "Alt" ? Qt::Key_Alt : QKeySequence(QString::fromStdString(keys))[0];
    QTest::keyClick((top == nullptr ? form : top)->windowHandle(), key.key(),
                    key.keyboardModifiers());
}

void QtFixture::Activate() {
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
}

void QtFixture::Menu(const QString& entry) {
    for (QAction* const action : MenuBar().actions())
        if (action->objectName() == entry)
            Click(MenuBar(), MenuBar().actionGeometry(action).center());
    for (QMenu* const menu : MenuBar().findChildren<QMenu*>())
        for (QAction* const action : menu->actions()) {
            if (action->objectName() != entry) continue;
            Menu(menu->menuAction()->objectName());
            if (!QTest::qWaitFor([&] { return menu->isVisible(); }, 500)) return Tell("shut");
            Click(*menu, menu->actionGeometry(action).center());
        }
}

void QtFixture::LookForBox() {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || dialog == mSeen) return;
    // Only an active box can be answered. A window manager would activate it.
    if (!dialog->isActiveWindow()) return dialog->activateWindow();
    mSeen = dialog;
    mEyes.start(); // fires again although this handler has not ended
    if (const auto meanwhile = std::exchange(WhileOpen, nullptr)) meanwhile(*dialog);
    if (mAnswers.empty()) return Unexpected(*dialog);
    const auto answer = QString::fromStdString(mAnswers.front());
    mAnswers.pop_front();
    for (auto* const button : dialog->findChildren<QPushButton*>())
        if (button->text().remove('&') == answer) return Click(*button, {5, 5});
    auto* const name = dialog->findChild<QLineEdit*>("fileNameEdit");
    if (answer == "Esc") return Key("Esc");
    if (name == nullptr) return Unexpected(*dialog);
    name->setText(answer);
    QMetaObject::invokeMethod(dialog, "accept");
}

QWidget& QtFixture::Widget(const std::string& name) {
    auto* const widget = form->findChild<QWidget*>(QString::fromStdString(name));
    if (widget == nullptr) throw std::invalid_argument("no control " + name);
    return *widget;
}

} // namespace tessarin
