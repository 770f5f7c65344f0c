// SPDX-License-Identifier: MIT
#include "model/Group.h"

namespace tessarin {

std::string Group::FlavorText() const {
    switch (Flavor) {
    case Horizontal:
        return "horizontal";
    case Vertical:
        return "vertikal";
    case Diagonal:
        return "diagonal";
    case Box:
        return "box";
    default:
        return "(unbekannt)";
    }
}

} // namespace tessarin
