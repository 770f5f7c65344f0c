#include "QtFixture.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
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

void SpyPlatform::SetWindowLongA(int handle, int index, int value) {
    ++Activations;
    QtPlatform::SetWindowLongA(handle, index, value);
}

QtFixture::QtFixture() {
    Unexpected = [this](QDialog& dialog) {
        ADD_FAILURE() << "unexpected box after " << Boxes.join("; ").toStdString();
        dialog.reject();
    };
    QObject::connect(&mEyes, &QTimer::timeout, [this] { LookForBox(); });
    mEyes.start(LookMilliseconds);
    window.Show();
    Activate();
}

void QtFixture::Click(QWidget& widget, QPoint where, Qt::MouseButton button) {
    QWidget* const top = widget.window();
    QTest::mouseClick(top->windowHandle(), button, {}, widget.mapTo(top, where));
}

void QtFixture::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    // As between two strokes of a hand; without the pause the second one counts as a repeat.
    QTest::qWait(LookMilliseconds);
    QWidget* top = QApplication::activePopupWidget();
    if (top == nullptr) top = QApplication::activeModalWidget();
    QTest::keyClick((top == nullptr ? form : top)->windowHandle(), key, modifiers);
}

bool QtFixture::Menu(const QString& entry) {
    for (QAction* const action : MenuBar().actions())
        if (action->objectName() == entry)
            Click(MenuBar(), MenuBar().actionGeometry(action).center());
    for (QMenu* const menu : MenuBar().findChildren<QMenu*>())
        for (QAction* const action : menu->actions()) {
            if (action->objectName() != entry) continue;
            Menu(menu->menuAction()->objectName());
            if (!QTest::qWaitFor([&] { return menu->isVisible(); }, 500)) return false;
            Click(*menu, menu->actionGeometry(action).center());
            return true;
        }
    return false;
}

void QtFixture::Activate() {
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
}

void QtFixture::Import(const QString& path) {
    ChooseFile(path);
    EXPECT_TRUE(Menu("mnuFileImportCSV"));
}

void QtFixture::Answer(QMessageBox::StandardButton button, std::function<void()> whileOpen) {
    mAnswers.emplace_back([this, button, whileOpen = std::move(whileOpen)](QDialog& dialog) {
        if (whileOpen) whileOpen();
        auto* const box = qobject_cast<QMessageBox*>(&dialog);
        if (box == nullptr || box->button(button) == nullptr) return Unexpected(dialog);
        Click(*box->button(button), {5, 5});
    });
}

void QtFixture::ChooseFile(const QString& path) {
    mAnswers.emplace_back([this, path](QDialog& dialog) {
        auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
        if (name == nullptr) return Unexpected(dialog);
        name->setText(path);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
}

void QtFixture::CancelDialog() {
    mAnswers.emplace_back([this](QDialog&) { Key(Qt::Key_Escape); });
}

void QtFixture::LookForBox() {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || dialog == mSeen) return;
    // Only an active box can be answered; a window manager sees to it that it becomes active.
    if (!dialog->isActiveWindow()) return dialog->activateWindow();
    mSeen = dialog;
    mEyes.start(); // or it would not look again before the answer has ended
    if (auto* const box = qobject_cast<QMessageBox*>(dialog)) {
        QStringList buttons(box->icon() == QMessageBox::Question ? QStringList("?")
                                                                 : QStringList());
        for (const auto* const button : box->buttons())
            buttons << button->text().remove('&');
        buttons.sort();
        Boxes << box->windowTitle() + ": " + box->text() + " [" + buttons.join(' ') + "]";
    }
    if (mAnswers.empty()) return Unexpected(*dialog);
    const auto answer = std::move(mAnswers.front());
    mAnswers.pop_front();
    answer(*dialog);
}

QWidget& QtFixture::Widget(const std::string& name) {
    auto* const widget = form->findChild<QWidget*>(QString::fromStdString(name));
    if (widget == nullptr) throw std::invalid_argument("no control " + name);
    return *widget;
}

QString QtFixture::File(const QString& name, const QByteArray& content) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    return file.fileName();
}

} // namespace tessarin
