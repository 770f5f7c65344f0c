#include "platform/qt/QtForm.h"

#include "platform/qt/QtLook.h"
#include "platform/qt/QtPlatform.h"

#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QMenuBar>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <tuple>
#include <utility>

namespace tessarin::qt {

namespace {

// A frame as most window managers draw it, until the real one is known.
constexpr QMargins AssumedFrame(1, 20, 1, 1);
// The grid and the panels need so many pixels below the menu bar, whatever the frame takes.
constexpr int MinClientHeight = 410;

constexpr int ApplicationWindow = 0x40000;

} // namespace

QtForm::QtForm(Form& form, QtPlatform& platform)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      mForm(form),
      mPlatform(platform),
      mFrame(AssumedFrame) {
    setObjectName(ToQt(form.Name()));
    setWindowTitle(ToQt(form.Caption()));
    QIcon icon;
    for (const char* const size : {"16", "32", "48", "64", "128", "256"})
        icon.addFile(QLatin1String(":/tessarin/icon-") + size + ".png");
    setWindowIcon(icon);
    mMenuBar.setNativeMenuBar(false);
}

void QtForm::Changed(Property property) {
    if (property == Property::Bounds) ApplySize();
    if (property == Property::Caption) setWindowTitle(ToQt(mForm.Caption()));
    if (property == Property::Visible) {
        ArrangeTabOrder();
        setVisible(mForm.Visible());
    }
}

void QtForm::ApplySize() {
    const int menuHeight = mMenuBar.sizeHint().height();
    const QSize size(Pixels(mForm.Width()) - mFrame.left() - mFrame.right(),
                     std::max(Pixels(mForm.Height()) - mFrame.top() - mFrame.bottom(),
                              menuHeight + MinClientHeight));
    setFixedSize(size);
    mMenuBar.setGeometry(0, 0, size.width(), menuHeight);
    mClient.setGeometry(0, menuHeight, size.width(), size.height() - menuHeight);
    for (const auto& [widget, control] : mPlaced)
        if (widget) PlaceWidget(*widget, *control);
}

void QtForm::CheckFrame(bool trustZero) {
    if (!isVisible() || windowHandle() == nullptr) return;
    const QMargins frame = windowHandle()->frameMargins();
    if (frame == mFrame || (frame.isNull() && !trustZero)) return;
    mFrame = frame;
    ApplySize();
}

void QtForm::PlaceWidget(QWidget& widget, const Control& control) {
    const bool inClient = widget.parentWidget() == &mClient;
    if (inClient && std::none_of(mPlaced.begin(), mPlaced.end(),
                                 [&](const auto& placed) { return placed.first == &widget; }))
        mPlaced.append({&widget, &control});
    const bool beyond = inClient && widget.geometry().center().x() >= mClient.width();
    widget.setVisible(control.Visible() && !beyond);
}

void QtForm::KeepFocus(const std::function<void()>& change) {
    const QPointer<QWidget> before = focusWidget();
    change();
    QWidget* const after = focusWidget();
    if (before != nullptr && after != before) {
        if (!mLostFocus || before != mFocusInstead) mLostFocus = before;
        mFocusInstead = after;
    } else if (mLostFocus && mLostFocus->isVisible() && mLostFocus->isEnabled()) {
        // The menu bar keeps a focus that it got while no control had one.
        const auto* const bar = qobject_cast<QMenuBar*>(after);
        const bool isLeft = bar != nullptr && bar->activeAction() == nullptr;
        if (after == mFocusInstead || isLeft) mLostFocus->setFocus();
        mLostFocus.clear();
    }
}

void QtForm::LockUpdate() {
    mbLocked = true;
}

void QtForm::UnlockUpdate() {
    if (!mbLocked) return;
    mbLocked = false;
    ApplyStyle();
}

// Hiding and showing a window would place it anew and take the focus from it. Inside a lock both
// come to nothing but the new style, which a mapped window can take over as it is.
void QtForm::ShowCommand(int command) {
    if (!mbLocked) setVisible(command != 0);
}

void QtForm::SetExtendedStyle(int style) {
    mlExtendedStyle = style;
    if (!mbLocked) ApplyStyle();
}

void QtForm::ApplyStyle() {
    if (windowHandle() == nullptr) return;
    const Qt::WindowFlags type = (mlExtendedStyle & ApplicationWindow) != 0 ? Qt::Window : Qt::Tool;
    const Qt::WindowFlags flags = (windowHandle()->flags() & ~Qt::WindowType_Mask) | type;
    if (flags != windowHandle()->flags()) windowHandle()->setFlags(flags);
}

bool QtForm::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        CheckFrame(false);
        break;
    case QEvent::Paint:
        CheckFrame(true);
        // Some systems never tell that the first window has become active; most do so soon.
        if (!mbActivated)
            QTimer::singleShot(100, this, [this] {
                if (!mbActivated) RaiseActivate();
            });
        break;
    case QEvent::WindowActivate:
        if (!std::exchange(mbLeftForOwnBox, false)) RaiseActivate();
        break;
    case QEvent::WindowDeactivate:
        mbLeftForOwnBox = QApplication::activeModalWidget() != nullptr;
        break;
    default:
        break;
    }
    return handled;
}

// An activation that comes while one is being handled is part of it.
void QtForm::RaiseActivate() {
    if (mbActivating || mPlatform.Closed()) return;
    mbActivated = mbActivating = true;
    mForm.Form_Activate();
    mbActivating = false;
}

void QtForm::closeEvent(QCloseEvent* event) {
    bool cancel = false;
    if (!mPlatform.Closed()) mForm.Form_Unload(cancel);
    event->setAccepted(!cancel);
    if (cancel) return;
    mForm.Gate.Close();
    mPlatform.Close();
}

// The Tab key walks the controls of each container row by row, beginning with the first.
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
    if (!widgets.isEmpty()) widgets.constFirst()->setFocus();
}

} // namespace tessarin::qt
