#include "QtFixture.h"

namespace tessarin {

namespace {
constexpr int LookMilliseconds = 10;
}

QtFixture::QtFixture() : WindowScript(platform, OwnWindow) {
    mCommands["key"] = [this](int, auto& keys) { Key(keys); };
    mCommands["focus"] = [this](int, auto&) {
        Tell(form->focusWidget()->objectName().toStdString());
    };
    mCommands["activate"] = [this](int, auto&) { Activate(); };
    // From now on clicks on fields and options are only told.
    mCommands["record"] = [this](int, auto&) {
        window.lblField.Click = [this](int index) { Tell("field ", index); };
        window.optChill.Click = [this](int index) { Tell("pace ", index); };
    };
    QObject::connect(&mEyes, &QTimer::timeout, [this] { LookForBox(); });
    mEyes.start(LookMilliseconds);
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

// Tells "shut" if a menu does not open.
void QtFixture::OpenMenuAndClick(const QString& entry) {
    auto* const action = form->findChild<QAction*>(entry);
    auto* const menu = qobject_cast<QMenu*>(action->associatedObjects().constFirst());
    if (menu == nullptr) return ClickAt(MenuBar(), MenuBar().actionGeometry(action).center());
    OpenMenuAndClick(menu->menuAction()->objectName());
    if (!QTest::qWaitFor([&] { return menu->isVisible(); }, 300)) return Tell("shut");
    ClickAt(*menu, menu->actionGeometry(action).center());
}

void QtFixture::Key(const std::string& keys) {
    QWidget* top = QApplication::activePopupWidget();
    if (top == nullptr) top = QApplication::activeModalWidget();
    if (top == nullptr) top = form;
    const QKeyCombination key =
        keys == "Alt" ? Qt::Key_Alt : QKeySequence(QString::fromStdString(keys))[0];
    QTest::qWait(3); // KeyWatch takes a press that follows a release at once for a repeat
    QTest::keyClick(top->windowHandle(), key.key(), key.keyboardModifiers());
    Activate();
}

void QtFixture::SendKey(QWidget& top, QEvent::Type type, int key, quint64 time, bool repeat) {
    const QString text = key < 0x100 ? QString(QChar(key)) : QString();
    QKeyEvent event(type, key, {}, text, repeat);
    event.setTimestamp(time);
    QCoreApplication::sendEvent(top.windowHandle(), &event);
}

void QtFixture::LookForBox() {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || dialog == mSeen) return;
    // Only an active box can be answered. A window manager would activate it.
    if (!dialog->isActiveWindow()) return dialog->activateWindow();
    mSeen = dialog;
    mEyes.start(); // fires again although this handler has not ended
    if (const auto* const box = qobject_cast<const QMessageBox*>(dialog)) {
        QString buttons;
        for (const auto* const button : box->findChildren<QPushButton*>())
            buttons += " " + button->text().remove('&');
        const QString told = box->windowTitle() + "|" + box->text() +
                             (box->icon() == QMessageBox::Question ? "|?" : "|-") + buttons;
        Tell("Box(", told.toStdString(), ")");
    } else if (const auto* const files = qobject_cast<const QFileDialog*>(dialog)) {
        Tell(files->acceptMode() == QFileDialog::AcceptSave ? "Save" : "Open");
    }
    platform.Meanwhile();
    if (dialog->isVisible()) AnswerBox(*dialog);
}

void QtFixture::AnswerBox(QDialog& dialog) {
    const auto buttons = dialog.findChildren<QPushButton*>();
    const bool files = qobject_cast<QFileDialog*>(&dialog) != nullptr;
    const QString usual = buttons.size() == 1 ? buttons[0]->text().remove('&') : "Esc";
    EXPECT_TRUE(files || buttons.size() == 1 || !mAnswers.isEmpty()) << "box without an answer";
    const bool given = !mAnswers.isEmpty() && files == mAnswers[0].startsWith('/');
    const QString answer = given ? mAnswers.takeFirst() : usual;
    for (auto* const button : buttons)
        if (button->text().remove('&') == answer) return ClickAt(*button, {5, 5});
    if (answer == "Esc" || answer == "Return") return Key(answer.toStdString());
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(answer);
    QMetaObject::invokeMethod(&dialog, "accept");
}

} // namespace tessarin
