// SPDX-License-Identifier: MIT
#include "qt/QtForm.h"

#include "qt/QtButton.h"
#include "qt/QtLook.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QIcon>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>
#include <tuple>
#include <utility>

namespace tessarin::qt {

QtForm::QtForm(Form& form, std::function<void()> closed)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      mForm(form),
      mTellClosed(std::move(closed)) {
    setObjectName(ToQt(form.Name()));
    setWindowTitle(ToQt(form.Caption));
    setFont(ToQt(FontStyle())); // also of the menus; boxes and dialogs have the desktop's
    QIcon icon;
    const QDir pictures(ResourcePath(""));
    for (const QString& file : pictures.entryList({ToQt(form.Icon) + "-*.png"}))
        icon.addFile(pictures.filePath(file));
    setWindowIcon(icon);
}

void QtForm::Changed(Property property) {
    if (property == Property::Bounds) {
        const int least = mMenuBar.sizeHint().height() + Pixels(mForm.MinClientHeight);
        mFrame.SetSize({Pixels(mForm.Width()), Pixels(mForm.Height())}, least);
        Arrange();
    }
    if (property == Property::Visible) { // changes once, by Form::Show
        ArrangeTabOrder();
        show();
        WaitForActivation();
    }
}

// Without a window manager nobody makes the window active, and an inactive one has no shortcuts.
void QtForm::WaitForActivation() {
    constexpr int PatienceMilliseconds = 100;
    QTimer::singleShot(PatienceMilliseconds, this, [this] {
        if (QApplication::activeWindow() == nullptr) activateWindow();
        if (!mbActivated) Activate(); // where no activation is ever reported
    });
}

void QtForm::Arrange() {
    const QSize size = mFrame.InnerSize();
    const int menuHeight = mMenuBar.sizeHint().height();
    // On Wayland the window may be larger than it should be; the menu bar fills its width.
    mMenuBar.setGeometry(0, 0, width(), menuHeight);
    mClient.setGeometry(0, menuHeight, size.width(), size.height() - menuHeight);
    for (QObject* const child : mClient.children())
        if (auto* const widget = dynamic_cast<ControlWidget*>(child)) widget->Place();
}

QRect QtForm::GridOnScreen() const {
    return mFocus.GridBounds().translated(mClient.mapToGlobal(QPoint()));
}

bool QtForm::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (mFrame.Follow(*event) || event->type() == QEvent::Resize) Arrange();
    // The end of a box of our own does not count: it has not hidden much of the window, and the
    // repaint would run inside the command that has shown it.
    if (event->type() == QEvent::WindowActivate && !std::exchange(mbLeftForOwnBox, false))
        Activate();
    if (event->type() == QEvent::WindowUnblocked) WaitForActivation(); // a box has closed
    if (event->type() == QEvent::WindowDeactivate)
        mbLeftForOwnBox = QApplication::activeModalWidget() != nullptr;
    return handled;
}

void QtForm::Activate() {
    if (mbClosed) return;
    mbActivated = true;
    mForm.RaiseActivate();
}

void QtForm::closeEvent(QCloseEvent* event) {
    if (!mbClosed) mbClosed = mForm.RaiseUnload();
    event->setAccepted(mbClosed);
    if (mbClosed) mTellClosed();
}

void QtForm::keyPressEvent(QKeyEvent* event) {
    event->ignore();
    if (mMenuBar.hasFocus()) return;
    const auto buttons = mClient.findChildren<QPushButton*>();
    for (QPushButton* const button : buttons) {
        const auto* const command = dynamic_cast<const QtCommandButton*>(button);
        if (command == nullptr || !button->isVisible() || !command->IsClickedBy(*event)) continue;
        event->accept();
        button->click();
        return;
    }
}

// Tab visits the containers from left to right, and the controls in each of them row by row.
void QtForm::ArrangeTabOrder() {
    auto widgets = mClient.findChildren<QWidget*>();
    widgets.removeIf([](const QWidget* widget) { return widget->focusPolicy() == Qt::NoFocus; });
    const auto place = [this](QWidget* widget) {
        QWidget* const container = widget->parentWidget();
        const QPoint outer = container->mapTo(&mClient, QPoint());
        return std::tuple(outer.x(), outer.y(), widget->y(), widget->x());
    };
    std::stable_sort(widgets.begin(), widgets.end(),
                     [&](QWidget* a, QWidget* b) { return place(a) < place(b); });
    for (qsizetype i = 1; i < widgets.size(); ++i)
        setTabOrder(widgets[i - 1], widgets[i]);
}

} // namespace tessarin::qt
