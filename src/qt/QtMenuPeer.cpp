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

QtMenuPeer::QtMenuPeer(MenuItem& item, QtForm& form, Unplaced /*tag*/)
    : mItem(item), mForm(form), mAction(&form) {
    mForm.AddMenu(item, *this);
    mAction.setObjectName(ToQt(item.Name()));
    mAction.setSeparator(item.Caption() == "-");
    if (!mAction.isSeparator()) mAction.setText(Plain(item.Caption()));
    QObject::connect(&mAction, &QAction::triggered, [&item] { item.RaiseClick(); });
}

QtMenuPeer::QtMenuPeer(MenuItem& item, QtForm& form) : QtMenuPeer(item, form, Unplaced()) {
    mForm.MenuBar().addAction(&mAction);
}

QtMenuPeer::QtMenuPeer(MenuItem& item, QtForm& form, QtMenuPeer& parent)
    : QtMenuPeer(item, form, Unplaced()) {
    parent.Menu().addAction(&mAction);
}

QMenu& QtMenuPeer::Menu() {
    if (!mMenu) {
        mMenu = std::make_unique<BarMenu>(mForm);
        mAction.setMenu(mMenu.get());
    }
    return *mMenu;
}

void QtMenuPeer::Changed(Property property) {
    if (property == Property::Caption) mAction.setText(Plain(mItem.Caption()));
    if (property != Property::Enabled) return;
    mAction.setEnabled(mItem.Enabled());
    // The entries of an open menu still answer when only its action is disabled.
    if (mMenu) mMenu->setEnabled(mItem.Enabled());
}

} // namespace tessarin::qt
