#include "qt/QtForm.h"

#include "qt/QtLook.h"
#include "qt/QtPeer.h"
#include "qt/QtPlatform.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QIcon>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <tuple>
#include <utility>

namespace tessarin::qt {

QtForm::QtForm(Form& form, QtPlatform& platform)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      mForm(form),
      mPlatform(platform) {
    setObjectName(ToQt(form.Name()));
    setWindowTitle(ToQt(form.Caption()));
    setFont(ToQt(form.Font())); // also of the menus; boxes and dialogs have the desktop's
    QIcon icon;
    const QDir pictures(ResourcePath(""));
    for (const QString& file : pictures.entryList({ToQt(form.Properties().PictureFile) + "-*.png"}))
        icon.addFile(pictures.filePath(file));
    setWindowIcon(icon);
    mPlatform.SetForm(this);
    connect(this, &QObject::destroyed, [&platform] { platform.SetForm(nullptr); });
}

void QtForm::Changed(Property property) {
    if (property == Property::Bounds) {
        const int least = mMenuBar.sizeHint().height() + Pixels(mForm.MinClientHeight);
        mFrame.SetSize({Pixels(mForm.Width()), Pixels(mForm.Height())}, least);
        Arrange();
    }
    if (property == Property::Visible) {
        ArrangeTabOrder();
        setVisible(mForm.Visible());
        // Without a window manager the first activation is never reported.
        QTimer::singleShot(100, this, [this] {
            if (!mbActivated) Activate();
        });
    }
}

void QtForm::Arrange() {
    const QSize size = mFrame.InnerSize();
    const int menuHeight = mMenuBar.sizeHint().height();
    mMenuBar.setGeometry(0, 0, size.width(), menuHeight);
    mClient.setGeometry(0, menuHeight, size.width(), size.height() - menuHeight);
    for (QObject* const child : mClient.children())
        if (auto* const peer = dynamic_cast<QtPeer*>(child)) peer->Place();
}

bool QtForm::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (mFrame.Follow(*event)) Arrange();
    // A box of our own has not hidden much, and its end would repaint inside the running command.
    if (event->type() == QEvent::WindowActivate && !std::exchange(mbLeftForOwnBox, false))
        Activate();
    if (event->type() == QEvent::WindowDeactivate)
        mbLeftForOwnBox = QApplication::activeModalWidget() != nullptr;
    return handled;
}

void QtForm::Activate() {
    if (mPlatform.Closed()) return;
    mbActivated = true;
    mForm.RaiseActivate();
}

void QtForm::closeEvent(QCloseEvent* event) {
    const bool closes = mPlatform.Closed() || mForm.RaiseUnload();
    event->setAccepted(closes);
    if (closes) mPlatform.Close();
}

void QtForm::keyPressEvent(QKeyEvent* event) {
    event->ignore();
    if (mMenuBar.hasFocus()) return;
    const auto buttons = mClient.findChildren<QPushButton*>();
    for (QPushButton* const button : buttons)
        if (button->isVisible() && dynamic_cast<QtPeer&>(*button).IsClickedBy(*event)) {
            event->accept();
            return button->click();
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
