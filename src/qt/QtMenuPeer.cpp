#include "qt/QtMenuPeer.h"

#include "qt/QtForm.h"
#include "qt/QtLook.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>

namespace tessarin::qt {

namespace {

// After ESC has closed the last menu, Qt leaves the focus on the menu bar. Gives it back to the
// control that had it.
class BarMenu : public QMenu {
public:
    explicit BarMenu(QtForm& form) : QMenu(&form.MenuBar()), mForm(form) { setFont(form.font()); }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        QMenu::keyPressEvent(event);
        if (event->key() != Qt::Key_Escape || QApplication::activePopupWidget() != nullptr) return;
        if (mForm.MenuBar().hasFocus()) mForm.MenuBar().Toggle();
        if (mForm.MenuBar().hasFocus()) mForm.Focus().ToGrid();
    }

private:
    QtForm& mForm;
};

class QtMenuPeer : public QAction, public ControlPeer {
public:
    QtMenuPeer(Control& item, QtForm& form) : QAction(&form), mItem(item), mForm(form) {
        setObjectName(ToQt(item.Name()));
        setSeparator(item.Caption() == "-");
        if (!isSeparator()) setText(Plain(item.Caption()));
        setShortcuts(Shortcuts(item));
        setAutoRepeat(false);
        connect(this, &QAction::triggered, [&item] { item.RaiseClick(); });
        auto* const menu = dynamic_cast<QtMenuPeer*>(&item.Container()->Peer());
        QWidget& bar = mForm.MenuBar();
        (menu != nullptr ? menu->Menu() : bar).addAction(this);
    }

    void Changed(Property property) override {
        if (property == Property::Texts) setText(Plain(mItem.Caption()));
        if (property != Property::Enabled) return;
        setEnabled(mItem.Enabled());
        // The entries of an open menu still answer when only its action is disabled.
        if (mMenu) mMenu->setEnabled(mItem.Enabled());
    }

private:
    QMenu& Menu() {
        if (!mMenu) {
            mMenu = std::make_unique<BarMenu>(mForm);
            setMenu(mMenu.get());
        }
        return *mMenu;
    }

    const Control& mItem;
    QtForm& mForm;
    std::unique_ptr<QMenu> mMenu;
};

} // namespace

std::unique_ptr<ControlPeer> CreateMenuPeer(Control& item, QtForm& form) {
    return std::make_unique<QtMenuPeer>(item, form);
}

} // namespace tessarin::qt
