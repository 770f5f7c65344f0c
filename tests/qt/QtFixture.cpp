// SPDX-License-Identifier: MIT
#include "QtFixture.h"

#include <algorithm>

namespace tessarin {

static QKeyCombination Combination(const QString& keys) {
    return keys == "Alt" ? Qt::Key_Alt : QKeySequence(keys)[0];
}

QtFixture::QtFixture() : WindowUser(platform, OwnWindow) {
    QObject::connect(&mEyes, &QTimer::timeout, [this] { LookForBox(); });
    mEyes.start(10);
    window.Show();
    Activate();
    platform.Record.clear();
}

void QtFixture::Key(const QString& keys) {
    const QKeyCombination key = Combination(keys);
    // A press in the same millisecond as the release before would be a repeat.
    QTest::qWait(2);
    QTest::keyClick(Top().windowHandle(), key.key(), key.keyboardModifiers());
    Activate();
}

void QtFixture::SendKey(QEvent::Type type, int time, const QString& key) {
    const int code = Combination(key).key();
    QKeyEvent event(type, code, {}, code < 0x100 ? QString(QChar(code)) : QString());
    event.setTimestamp(static_cast<quint64>(time));
    QCoreApplication::sendEvent(Top().windowHandle(), &event);
}

void QtFixture::Mouse(QTest::MouseAction action, const std::string& control,
                      Qt::MouseButton button) {
    const QPoint place = Widget(control).mapTo(form, QPoint(9, 9));
    QTest::mouseEvent(action, form->windowHandle(), button, {}, place);
}

void QtFixture::Activate() {
    if (!form->isVisible() || QApplication::activeModalWidget() != nullptr) return;
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
}

bool QtFixture::HasHourglass() {
    const QCursor* const pointer = QApplication::overrideCursor();
    return pointer != nullptr && pointer->shape() == Qt::WaitCursor;
}

void QtFixture::TellClicks() {
    window.btnInfo.Click = [this] { platform.Tell("info"); };
    window.lblField.Click = [this](int index) { platform.Tell("field ", index); };
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

void QtFixture::ClickControl(const std::string& control) {
    if (auto* const entry = form->findChild<QAction*>(QString::fromStdString(control)))
        entry->trigger();
    else
        ClickAt(Widget(control), Widget(control).rect().center());
    Activate();
}

QWidget& QtFixture::Top() {
    QWidget* const box = QApplication::activeModalWidget();
    return box == nullptr ? *form : *box;
}

void QtFixture::LookForBox() {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || dialog->property("seen").isValid()) return;
    // Only an active box can be answered. A window manager would activate it.
    if (!dialog->isActiveWindow()) {
        dialog->activateWindow();
        return;
    }
    dialog->setProperty("seen", true);
    // Fires again although this handler has not ended.
    mEyes.start();
    if (const auto* const box = qobject_cast<const QMessageBox*>(dialog)) {
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        platform.Tell("Box(", box->windowTitle().toStdString(), "|", box->text().toStdString(),
                      box->icon() == QMessageBox::Question ? "|?)" : "|-)");
    } else {
        platform.Tell(dialog->windowTitle().toStdString());
    }
    platform.Paused();
    if (dialog->isVisible()) AnswerBox(*dialog);
}

void QtFixture::AnswerBox(QDialog& dialog) {
    const auto buttons = dialog.findChildren<QPushButton*>();
    if (buttons.size() == 1) {
        ClickAt(*buttons[0], {5, 5});
        return;
    }
    std::string answer = platform.TakeAnswer();
    EXPECT_TRUE(dialog.inherits("QFileDialog") || !answer.empty()) << "box without an answer";
    if (answer.empty()) answer = "Esc";
    const QString wanted = QString::fromStdString(answer);
    const auto button = std::ranges::find(
        buttons, wanted, [](const QPushButton* each) { return each->text().remove('&'); });
    if (button != buttons.end()) {
        ClickAt(**button, {5, 5});
    } else if (answer == "Esc" || answer == "Return") {
        Key(wanted);
    } else {
        Type(wanted);
        EXPECT_TRUE(buttons.front()->isEnabled());
        Key("Return");
        if (dialog.isVisible()) dialog.reject();
    }
}

QFileDialog& QtFixture::Dialog() {
    auto& dialog = dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget());
    const auto& files = *dialog.findChild<QFileSystemModel*>();
    const auto listed = [&] { return files.rowCount(files.index(files.rootPath())) > 0; };
    EXPECT_TRUE(QTest::qWaitFor(listed));
    return dialog;
}

void QtFixture::Type(const QString& name) {
    auto* const line = Dialog().findChild<QLineEdit*>("fileNameEdit");
    for (const QChar c : name) {
        QKeyEvent key(QEvent::KeyPress, 0, {}, c);
        QCoreApplication::sendEvent(line, &key);
        QTest::qWait(1);
    }
}

} // namespace tessarin
