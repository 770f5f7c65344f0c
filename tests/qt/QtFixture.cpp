#include "QtFixture.h"

namespace tessarin {

QtFixture::QtFixture() : WindowScript(platform, OwnWindow) {
    Add("key", [this](int, auto& keys) { Key(QString::fromStdString(keys)); });
    Add("focus", [this](int, auto& name) { Widget(name).setFocus(); });
    Add("focused", [this](int, auto&) { Tell(form->focusWidget()->objectName().toStdString()); });
    Add("activate", [this](int, auto&) { Activate(); });
    Add("close", [this](int, auto&) { form->close(); });
    Add("open", [this](int, auto&) { Tell(form->isVisible()); });
    Add("hourglass", [this](int, auto&) {
        const QCursor* const pointer = QApplication::overrideCursor();
        Tell(pointer != nullptr && pointer->shape() == Qt::WaitCursor);
    });
    Add("esc", [this](int, auto&) { Tell(platform.EscPressed()); });
    Add("away", [](int, auto&) { Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive); });
    // From now on these clicks are only told.
    Add("record", [this](int, auto&) {
        window.btnInfo.Click = [this] { Tell("info"); };
        window.lblField.Click = [this](int index) { Tell("field ", index); };
    });
    const auto mouse = [=, this](const char* name, QTest::MouseAction action, auto button) {
        Add(name, [=, this](int, auto& control) {
            const QPoint place = Widget(control).mapTo(form, QPoint(9, 9));
            QTest::mouseEvent(action, form->windowHandle(), button, {}, place);
        });
    };
    mouse("press", QTest::MousePress, Qt::LeftButton);
    mouse("release", QTest::MouseRelease, Qt::LeftButton);
    mouse("doubleclick", QTest::MouseDClick, Qt::LeftButton);
    mouse("rightclick", QTest::MouseClick, Qt::RightButton);
    // A key of the keyboard, which repeats while it is down, with the time in milliseconds: "up
    // 1200 Space".
    const auto key = [=, this](const char* name, QEvent::Type type) {
        Add(name, [=, this](int time, auto& words) {
            const QString wanted = QString::fromStdString(words).section(' ', 1);
            const int code = QKeySequence(wanted)[0].key();
            const QString text = code < 0x100 ? QString(QChar(code)) : QString();
            QKeyEvent event(type, code, {}, text);
            event.setTimestamp(static_cast<quint64>(time));
            QCoreApplication::sendEvent(Top().windowHandle(), &event);
        });
    };
    key("down", QEvent::KeyPress);
    key("up", QEvent::KeyRelease);

    QObject::connect(&mEyes, &QTimer::timeout, [this] { LookForBox(); });
    mEyes.start(10);
    window.Show();
    Activate();
    platform.Record.clear();
}

void QtFixture::Activate() {
    if (!form->isVisible() || QApplication::activeModalWidget() != nullptr) return;
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
}

QWidget& QtFixture::Widget(const std::string& name) {
    auto* const widget = form->findChild<QWidget*>(QString::fromStdString(name));
    if (widget == nullptr) throw std::invalid_argument("no control " + name);
    return *widget;
}

void QtFixture::ClickAt(QWidget& widget, QPoint where) {
    QWidget* const top = widget.window();
    QTest::mouseClick(top->windowHandle(), Qt::LeftButton, {}, widget.mapTo(top, where));
}

void QtFixture::Click(const std::string& control) {
    if (control.starts_with("mnu"))
        OpenMenuAndClick(QString::fromStdString(control));
    else
        ClickAt(Widget(control), Widget(control).rect().center());
    Activate();
}

void QtFixture::OpenMenuAndClick(const QString& entry) {
    auto* const action = form->findChild<QAction*>(entry);
    auto* const menu = qobject_cast<QMenu*>(action->associatedObjects().constFirst());
    if (menu == nullptr) return ClickAt(MenuBar(), MenuBar().actionGeometry(action).center());
    OpenMenuAndClick(menu->menuAction()->objectName());
    if (!QTest::qWaitFor([&] { return menu->isVisible(); }, 300)) return;
    ClickAt(*menu, menu->actionGeometry(action).center());
}

QWidget& QtFixture::Top() {
    QWidget* const box = QApplication::activeModalWidget();
    return box == nullptr ? *form : *box;
}

void QtFixture::Key(const QString& keys) {
    const QKeyCombination key = keys == "Alt" ? Qt::Key_Alt : QKeySequence(keys)[0];
    QTest::qWait(3); // KeyWatch takes a press that follows a release at once for a repeat
    QTest::keyClick(Top().windowHandle(), key.key(), key.keyboardModifiers());
    Activate();
}

void QtFixture::LookForBox() {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || dialog == mSeen) return;
    // Only an active box can be answered. A window manager would activate it.
    if (!dialog->isActiveWindow()) return dialog->activateWindow();
    mSeen = dialog;
    mEyes.start(); // fires again although this handler has not ended
    if (const auto* const box = qobject_cast<const QMessageBox*>(dialog))
        Tell("Box(", box->windowTitle().toStdString(), "|", box->text().toStdString(), ")");
    else
        Tell(dynamic_cast<QFileDialog&>(*dialog).acceptMode() == QFileDialog::AcceptSave ? "Save"
                                                                                         : "Open");
    platform.Meanwhile();
    if (dialog->isVisible()) AnswerBox(*dialog);
}

void QtFixture::AnswerBox(QDialog& dialog) {
    const auto buttons = dialog.findChildren<QPushButton*>();
    if (buttons.size() == 1) return ClickAt(*buttons[0], {5, 5});
    EXPECT_TRUE(dialog.inherits("QFileDialog") || !mAnswers.isEmpty()) << "box without an answer";
    const QString answer = mAnswers.isEmpty() ? "Esc" : mAnswers.takeFirst();
    for (auto* const button : buttons)
        if (button->text().remove('&') == answer) return ClickAt(*button, {5, 5});
    if (answer == "Esc" || answer == "Return") return Key(answer);
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(answer);
    QMetaObject::invokeMethod(&dialog, "accept");
}

} // namespace tessarin
