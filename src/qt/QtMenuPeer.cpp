#include "qt/QtMenuPeer.h"

#include "qt/QtForm.h"
#include "qt/QtLook.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>

namespace tessarin::qt {

namespace {

// After ESC has closed the last menu, Qt leaves the focus on the menu bar.
class BarMenu : public QMenu {
public:
    explicit BarMenu(QtForm& form) : QMenu(&form.MenuBar()), mForm(form) {}

protected:
    void keyPressEvent(QKeyEvent* event) override {
        QMenu::keyPressEvent(event);
        const bool isClosed = QApplication::activePopupWidget() == nullptr;
        if (event->key() == Qt::Key_Escape && isClosed) mForm.LeaveMenuBar();
    }

private:
    QtForm& mForm;
};

} // namespace

QtMenuPeer::QtMenuPeer(MenuItem& item, QtForm& form) : mItem(item), mForm(form), mAction(&form) {
    mAction.setObjectName(ToQt(item.Name()));
    mAction.setSeparator(item.Caption() == "-");
    if (!mAction.isSeparator()) mAction.setText(Plain(item.Caption()));
    mAction.setShortcuts(Shortcuts(item));
    QObject::connect(&mAction, &QAction::triggered, [&item] { item.RaiseClick(); });
    auto* const parent = dynamic_cast<QtMenuPeer*>(&item.Container()->Peer());
    QWidget& bar = mForm.MenuBar();
    (parent != nullptr ? parent->Menu() : bar).addAction(&mAction);
}

QMenu& QtMenuPeer::Menu() {
    if (!mMenu) {
        mMenu = std::make_unique<BarMenu>(mForm);
        mMenu->setFont(mForm.font());
        mAction.setMenu(mMenu.get());
    }
    return *mMenu;
}

void QtMenuPeer::Changed(Property property) {
    if (property == Property::Texts) mAction.setText(Plain(mItem.Caption()));
    if (property != Property::Enabled) return;
    mAction.setEnabled(mItem.Enabled());
    // The entries of an open menu still answer when only its action is disabled.
    if (mMenu) mMenu->setEnabled(mItem.Enabled());
}

} // namespace tessarin::qt
