#pragma once

#include "toolkit/Controls.h"

#include <QAction>
#include <QMenu>

#include <memory>

namespace tessarin::qt {

class QtForm;

/// The peer of a menu entry: an action of the menu bar or of the menu that contains it, with a menu
/// of its own as soon as that gets entries.
class QtMenuPeer : public ControlPeer {
public:
    QtMenuPeer(MenuItem& item, QtForm& form);

    void Changed(Property property) override;

private:
    QMenu& Menu();

    const MenuItem& mItem;
    QtForm& mForm;
    QAction mAction;
    std::unique_ptr<QMenu> mMenu;
};

} // namespace tessarin::qt
