#pragma once

#include "toolkit/Controls.h"

#include <QAction>
#include <QMenu>

#include <memory>

namespace tessarin::qt {

class QtForm;

/// The peer of a menu entry: an action, with a menu as soon as that gets entries.
class QtMenuPeer : public ControlPeer {
public:
    /// An entry of the form's menu bar.
    QtMenuPeer(MenuItem& item, QtForm& form);
    /// An entry of the menu of `parent`.
    QtMenuPeer(MenuItem& item, QtForm& form, QtMenuPeer& parent);

    void Changed(Property property) override;

private:
    struct Unplaced {};
    QtMenuPeer(MenuItem& item, QtForm& form, Unplaced tag);

    QMenu& Menu();

    const MenuItem& mItem;
    QtForm& mForm;
    QAction mAction;
    std::unique_ptr<QMenu> mMenu;
};

} // namespace tessarin::qt
