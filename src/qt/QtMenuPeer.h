#pragma once

#include "toolkit/Control.h"

#include <memory>

namespace tessarin::qt {

class QtForm;

/// The peer of a menu entry: an action of the menu bar or of the menu that contains it, with a menu
/// of its own as soon as that gets entries.
std::unique_ptr<ControlPeer> CreateMenuPeer(Control& item, QtForm& form);

} // namespace tessarin::qt
