// SPDX-License-Identifier: MIT
#include "qt/QtMenuBar.h"

#include "qt/KeyboardFocus.h"
#include "qt/QtLook.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QStyleOptionMenuItem>
#include <QWindow>

#include <utility>

namespace tessarin::qt {

QtMenuBar::QtMenuBar(QWidget& window, KeyboardFocus& focus) : QMenuBar(&window), mFocus(focus) {
    setNativeMenuBar(false);
}

// From now on there is a native window to watch.
void QtMenuBar::showEvent(QShowEvent* event) {
    QMenuBar::showEvent(event);
    window()->windowHandle()->installEventFilter(this);
}

// Watches the native window instead of the widgets in it: QMenuBar itself overlooks a tap on Alt if
// the focus moves between press and release, as it does during a solve.
bool QtMenuBar::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver != window()->windowHandle()) return false;
    switch (event->type()) {
    case QEvent::KeyPress:
        return Pressed(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        Released(*static_cast<QKeyEvent*>(event));
        break;
    case QEvent::MouseButtonPress:
        mbAltAlone = false;
        if (!underMouse()) Leave();
        break;
    case QEvent::FocusOut:
    case QEvent::Close: // the desktop may keep the F4 of Alt+F4
        mbAltAlone = false;
        break;
    default:
        break;
    }
    // QMenuBar keeps the focus if the control that had it before is disabled or hidden by now.
    if (hasFocus() && activeAction() == nullptr) mFocus.ToGrid();
    return false;
}

void QtMenuBar::Released(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Alt && std::exchange(mbAltAlone, false)) Toggle();
    // After ESC has closed the last menu, Qt leaves the focus on the menu bar.
    if (key.key() == Qt::Key_Escape && QApplication::activePopupWidget() == nullptr) Leave();
}

void QtMenuBar::Leave() {
    if (hasFocus()) Toggle();
}

bool QtMenuBar::Pressed(const QKeyEvent& key) {
    mbAltAlone = key.key() == Qt::Key_Alt && QApplication::activePopupWidget() == nullptr;
    if (QApplication::activePopupWidget() != nullptr) return false;
    if (key.key() == Qt::Key_F10 && key.modifiers() == Qt::NoModifier) {
        Toggle();
        return true;
    }
    const auto modifiers = key.modifiers() & ~Qt::ShiftModifier; // the "?" needs it
    return (hasFocus() || modifiers == Qt::AltModifier) && Open(key.text());
}

bool QtMenuBar::Open(const QString& letter) {
    if (letter.isEmpty()) return false;
    for (QAction* const title : actions())
        if (title->isEnabled() && title->text().startsWith(letter, Qt::CaseInsensitive)) {
            setActiveAction(title);
            QMenu* const menu = title->menu(); // none if it has no entries
            QKeyEvent toFirstEntry(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
            if (menu != nullptr && menu->isVisible()) QApplication::sendEvent(menu, &toFirstEntry);
            return true;
        }
    return false;
}

// Sends QMenuBar the events of a tap on Alt. First it is told that the pointer has left, else it
// would start at the title under the pointer.
void QtMenuBar::Toggle() {
    QEvent pointerLeaves(QEvent::Leave);
    QApplication::sendEvent(this, &pointerLeaves);
    QKeyEvent press(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier);
    QMenuBar::eventFilter(this, &press);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
    QMenuBar::eventFilter(this, &release);
}

// The style highlights only titles whose menu is open.
void QtMenuBar::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const {
    QMenuBar::initStyleOption(option, action);
    if (hasFocus() && action == activeAction()) option->state |= QStyle::State_Sunken;
}

namespace {

class QtMenuPeer : public QAction, public ControlPeer {
public:
    QtMenuPeer(MenuItem& item, QtMenuBar& bar)
        : QAction(&bar), mItem(item), mAround(Around(item, bar)) {
        setObjectName(ToQt(item.Name()));
        setSeparator(item.Caption == "-");
        if (!isSeparator()) setText(EscapeAmpersands(item.Caption));
        setShortcuts(Shortcuts(item.Shortcuts));
        setAutoRepeat(false);
        connect(this, &QAction::triggered, [&item] { item.RaiseClick(); });
        mAround.addAction(this);
    }

    // Only Enabled can change. If the title of an open menu alone were disabled, the entries would
    // still answer.
    void Changed(Property /*property*/) override {
        setEnabled(mItem.Enabled());
        if (mMenu) mMenu->setEnabled(mItem.Enabled());
    }

private:
    // The menu that contains the item, or the menu bar.
    static QWidget& Around(const MenuItem& item, QtMenuBar& bar) {
        auto* const container = dynamic_cast<QtMenuPeer*>(&item.Container()->Peer());
        return container != nullptr ? container->Menu() : bar;
    }

    QWidget& Menu() {
        if (!mMenu) {
            // Wayland opens a menu only out of its parent.
            mMenu = std::make_unique<QMenu>(&mAround);
            mMenu->setFont(mAround.font());
            setMenu(mMenu.get());
            // An entry that keys have triggered would still be the active one.
            QMenu& menu = *mMenu;
            connect(&menu, &QMenu::aboutToShow, [&menu] { menu.setActiveAction(nullptr); });
        }
        return *mMenu;
    }

    const MenuItem& mItem;
    QWidget& mAround;
    std::unique_ptr<QMenu> mMenu;
};

} // namespace

std::unique_ptr<ControlPeer> CreateMenuPeer(MenuItem& item, QtMenuBar& bar) {
    return std::make_unique<QtMenuPeer>(item, bar);
}

} // namespace tessarin::qt
